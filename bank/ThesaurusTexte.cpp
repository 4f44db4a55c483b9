#include "bank/ThesaurusTexte.h"

#include <QRegularExpression>

#include <array>

namespace banque {

namespace {

constexpr qsizetype kLigneCourte = 48;  // characters; the columns hold 60 to 75
constexpr qsizetype kDebutColonne = 30; // the level never stands left of it

const QRegularExpression& EnFinDeLigne()
{
    static const QRegularExpression niveau(QStringLiteral(
        "(?:^|  )(CONTRE-INDICATION|Association DECONSEILLEE|Précaution d['’]emploi|A prendre en compte"
        "|(?:CI|ASDEC|PE|APEC)(?: - (?:CI|ASDEC|PE|APEC)){1,3})\\s*$"));
    return niveau;
}

Niveau NiveauDe(QStringView nom)
{
    if (nom == QStringLiteral("CI") || nom.startsWith(QStringLiteral("CONTRE"))) {
        return Niveau::ContreIndication;
    }
    if (nom == QStringLiteral("ASDEC") || nom.startsWith(QStringLiteral("Association"))) {
        return Niveau::Deconseillee;
    }
    return nom == QStringLiteral("PE") || nom.startsWith(QStringLiteral("Pr")) ? Niveau::PrecautionDEmploi
                                                                               : Niveau::APrendreEnCompte;
}

/// True for a line that begins anew in a column: an item of a list, or the name of a level with its
/// condition.
bool CommenceUneLigne(const QString& ligne)
{
    static const QRegularExpression debut(
        QStringLiteral("^(?:[-•·] ?\\S|(?:Contre-indication|Association déconseillée|Précaution d['’]emploi"
                       "|A prendre en compte)(?: *:| *$| (?:avec|chez|en|dans|pour|si|sauf)\\b))"));
    return debut.match(ligne).hasMatch();
}

/// True when the first line ends long before the column does and the next one begins a sentence: whoever
/// wrote them broke the line there.
bool RompueExpres(qsizetype avant, const QString& apres)
{
    return apres.front().isUpper() && avant + 1 + apres.section(u' ', 0, 0).size() <= kLigneCourte;
}

/// True when nothing parts two lines: the first one ends inside a word.
bool DansUnMot(const QString& avant, const QString& apres)
{
    return avant.size() >= 2 && (avant.back() == u'-' || avant.back() == u'/') &&
           avant[avant.size() - 2].isLetterOrNumber() && apres.front().isLetterOrNumber();
}

} // namespace

std::optional<NiveauxLus> LitNiveaux(QStringView texte)
{
    const QRegularExpressionMatch trouve = EnFinDeLigne().match(texte.trimmed().toString());
    if (!trouve.hasMatch() || trouve.capturedStart(1) != 0) {
        return std::nullopt;
    }
    NiveauxLus lus;
    const QStringList noms = trouve.captured(1).split(QStringLiteral(" - "));
    for (const QString& nom : noms) {
        lus.Plus = qMax(lus.Plus, NiveauDe(nom));
    }
    lus.Plusieurs = noms.size() > 1;
    return lus;
}

QString NomsDesNiveaux(QStringView texte)
{
    static const std::array<QString, 4> noms = {
        QStringLiteral("A prendre en compte"), QStringLiteral("Précaution d'emploi"),
        QStringLiteral("Association déconseillée"), QStringLiteral("Contre-indication")};
    QStringList lus;
    for (const QString& nom : texte.trimmed().toString().split(QStringLiteral(" - "))) {
        lus.append(noms[static_cast<std::size_t>(NiveauDe(nom))]);
    }
    return lus.join(QStringLiteral(" - "));
}

qsizetype ColonneDuNiveau(const QString& ligne)
{
    const QRegularExpressionMatch trouve = EnFinDeLigne().match(ligne);
    return trouve.hasMatch() && trouve.capturedStart(1) >= kDebutColonne ? trouve.capturedStart(1) : -1;
}

QString TexteDeColonne(const QStringList& lignes)
{
    QString texte;
    qsizetype precedente = 0;
    bool paragraphe = false;
    for (const QString& brute : lignes) {
        const QString ligne = QString(brute).remove(QChar(0xAD)).simplified();
        if (ligne.isEmpty()) {
            paragraphe = !texte.isEmpty();
            continue;
        }
        if (paragraphe) {
            texte += QStringLiteral("\n\n");
        } else if (!texte.isEmpty() && (CommenceUneLigne(ligne) || RompueExpres(precedente, ligne))) {
            texte += u'\n';
        } else if (!texte.isEmpty() && !DansUnMot(texte, ligne)) {
            texte += u' ';
        }
        paragraphe = false;
        precedente = ligne.size();
        texte += ligne;
    }
    return texte;
}

QStringList MembresDeListe(const QString& texte)
{
    QStringList membres;
    QString membre;
    int profondeur = 0;
    const auto ferme = [&] {
        if (!membre.trimmed().isEmpty()) {
            membres.append(membre.simplified());
        }
        membre.clear();
    };
    for (const QChar c : texte) {
        profondeur += c == u'(' ? 1 : 0;
        profondeur -= c == u')' ? 1 : 0;
        const bool borne = (c == u'(' && profondeur == 1) || (c == u')' && profondeur == 0);
        if (c == u',' && profondeur <= 1) {
            ferme();
        } else if (!borne) {
            membre += c;
        }
    }
    ferme();
    return membres;
}

QString EditionDeCouverture(const QString& texte)
{
    static const QRegularExpression mois(
        QStringLiteral("^\\s*((?:janvier|février|mars|avril|mai|juin|juillet|août|septembre|octobre|novembre"
                       "|décembre) \\d{4})\\s*$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::MultilineOption);
    return mois.match(texte).captured(1).toLower();
}

QString VoiesLocalesDeCouverture(const QString& texte)
{
    static const QRegularExpression paragraphe(
        QStringLiteral("^[^\\S\\n]*■?[^\\S\\n]*(Les voies locales\\b.*(?:\\n.*\\S.*)*)"),
        QRegularExpression::MultilineOption);
    return TexteDeColonne(paragraphe.match(texte).captured(1).split(u'\n'));
}

} // namespace banque
