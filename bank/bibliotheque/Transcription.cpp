#include "bank/bibliotheque/Transcription.h"

#include "common/Texte8.h"

#include <QHash>
#include <QString>

namespace banque::bibliotheque {

namespace {

/// What is written for the characters of medical texts. The letters of a unit come first: "μg" must stay
/// micrograms.
const QHash<char16_t, QString>& Ecritures()
{
    static const QHash<char16_t, QString> ecritures = {{u'μ', QStringLiteral("µ")},
                                                       {u'≥', QStringLiteral(">=")},
                                                       {u'≤', QStringLiteral("<=")},
                                                       {u'≠', QStringLiteral("<>")},
                                                       {u'≈', QStringLiteral("~")},
                                                       {u'∼', QStringLiteral("~")},
                                                       {u'−', QStringLiteral("-")},
                                                       {u'‐', QStringLiteral("-")},
                                                       {u'‑', QStringLiteral("-")},
                                                       {u'‒', QStringLiteral("-")},
                                                       {u'―', QStringLiteral("-")},
                                                       {u'→', QStringLiteral("->")},
                                                       {u'←', QStringLiteral("<-")},
                                                       {u'⇒', QStringLiteral("=>")},
                                                       {u'↑', QStringLiteral("augmentation ")},
                                                       {u'↓', QStringLiteral("diminution ")},
                                                       {u'⁄', QStringLiteral("/")},
                                                       {u'∕', QStringLiteral("/")},
                                                       {u'′', QStringLiteral("'")},
                                                       {u'″', QStringLiteral("\"")},
                                                       {u'ʼ', QStringLiteral("'")},
                                                       {u'∞', QStringLiteral("infini")},
                                                       {u'√', QStringLiteral("racine ")},
                                                       {u'Δ', QStringLiteral("delta")},
                                                       {u'α', QStringLiteral("alpha")},
                                                       {u'β', QStringLiteral("bêta")},
                                                       {u'γ', QStringLiteral("gamma")},
                                                       {u'δ', QStringLiteral("delta")},
                                                       {u'ε', QStringLiteral("epsilon")},
                                                       {u'ζ', QStringLiteral("zêta")},
                                                       {u'η', QStringLiteral("êta")},
                                                       {u'θ', QStringLiteral("thêta")},
                                                       {u'ι', QStringLiteral("iota")},
                                                       {u'κ', QStringLiteral("kappa")},
                                                       {u'λ', QStringLiteral("lambda")},
                                                       {u'ν', QStringLiteral("nu")},
                                                       {u'ξ', QStringLiteral("xi")},
                                                       {u'π', QStringLiteral("pi")},
                                                       {u'ρ', QStringLiteral("rhô")},
                                                       {u'σ', QStringLiteral("sigma")},
                                                       {u'τ', QStringLiteral("tau")},
                                                       {u'φ', QStringLiteral("phi")},
                                                       {u'χ', QStringLiteral("khi")},
                                                       {u'ψ', QStringLiteral("psi")},
                                                       {u'ω', QStringLiteral("oméga")},
                                                       {u'Ω', QStringLiteral("oméga")},
                                                       {u'ł', QStringLiteral("l")},
                                                       {u'Ł', QStringLiteral("L")},
                                                       {u'đ', QStringLiteral("d")},
                                                       {u'ı', QStringLiteral("i")},
                                                       {u'●', QStringLiteral("•")},
                                                       {u'▪', QStringLiteral("•")},
                                                       {u'\u200B', QString()},
                                                       {u'\uFEFF', QString()}};
    return ecritures;
}

/// The character taken apart, as far as Windows-1252 has the parts: "ő" is "o" and an accent, "ﬁ" is "fi".
QString Decompose(QChar c)
{
    QString parties;
    for (const QChar partie : QString(c).normalized(QString::NormalizationForm_KD)) {
        if (!partie.isMark()) {
            parties += partie == u'\u2044' ? QChar(u'/') : partie;
        }
    }
    return common::TientEnWindows1252(parties) ? parties : QStringLiteral("?");
}

QString Ecriture(QChar c)
{
    if (c.isSpace()) {
        return QStringLiteral(" ");
    }
    const auto ecriture = Ecritures().constFind(c.unicode());
    if (ecriture != Ecritures().constEnd()) {
        return *ecriture;
    }
    return c.isMark() ? QString() : Decompose(c);
}

} // namespace

QByteArray EnWindows1252(QStringView texte)
{
    if (common::TientEnWindows1252(texte)) {
        return common::VersWindows1252(texte);
    }
    QString transcrit;
    for (const QChar c : texte.toString().normalized(QString::NormalizationForm_C)) {
        if (common::TientEnWindows1252(QStringView(&c, 1))) {
            transcrit += c;
        } else if (!c.isLowSurrogate()) {
            transcrit += Ecriture(c);
        }
    }
    return common::VersWindows1252(transcrit);
}

} // namespace banque::bibliotheque
