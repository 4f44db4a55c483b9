#include "patients/TexteSaisie.h"

#include "common/Nombres.h"

#include <algorithm>

namespace patients {

namespace {

QString DeuxBlancs()
{
    return QStringLiteral("  ");
}

bool EstChiffre(QChar c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

QString PremiereMajuscule(const QString& texte)
{
    return texte.left(1).toUpper() + texte.mid(1);
}

QString MasqueTelephone(const QString& texte)
{
    constexpr int kChiffres = 10;
    QString chiffres = texte.trimmed();
    if (chiffres.isEmpty() || !std::ranges::all_of(chiffres, EstChiffre)) {
        return texte;
    }
    chiffres = chiffres.rightJustified(kChiffres, u'0');
    for (int place = 2; place < kChiffres; place += 2) {
        chiffres.insert(chiffres.size() - place - (place / 2 - 1), u' ');
    }
    return chiffres;
}

QString PoidsSaisi(const QString& texte)
{
    return texte.isEmpty() ? QStringLiteral("0") : common::TexteNombre(common::Val(texte));
}

QString NomComplet(const QString& nom, const QString& prenom)
{
    QString gauche = nom;
    QString droite = prenom;
    gauche.replace(DeuxBlancs(), QStringLiteral(" "));
    droite.replace(DeuxBlancs(), QStringLiteral(" "));
    return gauche + DeuxBlancs() + droite;
}

NomEtPrenom DecoupeNom(const QString& nomPatient)
{
    const QStringList parties = nomPatient.split(DeuxBlancs());
    return {parties.value(0), parties.value(1)};
}

QString JointPrecautions(const QStringList& precautions)
{
    return precautions.join(u'*');
}

QStringList SeparePrecautions(const QString& precautions)
{
    return precautions.isEmpty() ? QStringList() : precautions.split(u'*');
}

} // namespace patients
