#include "settings/EffetDuRang.h"

#include "page/LignesEntete.h"

namespace settings {

namespace {

constexpr int kFinAdresse = 9; // its text sets the distance of the next block

const QLatin1String kSuite("*");
const QLatin1String kFinDeSuite("$");

bool OuvreUneSuite(const QString& texte)
{
    return texte.endsWith(kSuite) && texte != kSuite;
}

QString SansImpression(int rang, bool vide)
{
    if (rang == kFinAdresse) {
        return vide ? QStringLiteral("Vide, à la fin de l'adresse : deux lignes blanches avant la suite.")
                    : QStringLiteral("« * » seul, à la fin de l'adresse : une ligne blanche avant la suite.");
    }
    return vide ? QStringLiteral("Vide : laisse une ligne blanche sur le papier.")
                : QStringLiteral("« * » seul : cette ligne ne s'imprime pas. Remplacez-le par votre texte.");
}

QString Retrait(qint16 espaces)
{
    return espaces > 0
               ? QStringLiteral("Décalée de %1 mm : au début, Espace en ajoute un, Retour arrière l'enlève.")
                     .arg(espaces)
               : QStringLiteral("Pour la décaler vers la droite : Espace, au début de la ligne.");
}

QString EffetDuTexte(const RangsEntete& rangs, int rang)
{
    const RangEntete& ligne = rangs.at(static_cast<size_t>(rang));
    if (ligne.Texte.isEmpty() || ligne.Texte == kSuite) {
        return SansImpression(rang, ligne.Texte.isEmpty());
    }
    if (OuvreUneSuite(ligne.Texte)) {
        return QStringLiteral(
            "« * » à la fin : la ligne suivante vient à la suite, si elle finit par « $ ».");
    }
    if (ligne.Texte.endsWith(kFinDeSuite)) {
        return QStringLiteral("« $ » à la fin : s'imprime à la suite de la ligne qui finit par « * ».");
    }
    if (rang > 0 && OuvreUneSuite(rangs.at(static_cast<size_t>(rang) - 1).Texte)) {
        return QStringLiteral(
            "La ligne d'avant finit par « * » : finissez celle-ci par « $ », sinon elle peut la "
            "recouvrir.");
    }
    return Retrait(ligne.EspacesLigne);
}

} // namespace

QString EffetDuRang(const RangsEntete& rangs, int rang)
{
    if (rang == page::kBasDePage) {
        return QStringLiteral(
            "S'imprime tel quel en bas de chaque ordonnance, à la hauteur de la marge basse.");
    }
    if (rang == kRangSignature) {
        return QStringLiteral("N'est pas dans l'en-tête : c'est le nom que <DR> écrit dans les certificats.");
    }
    return EffetDuTexte(rangs, rang);
}

} // namespace settings
