#include "page/FlotCertificat.h"

#include "common/Lignes.h"

#include <algorithm>

namespace page {

FlotCertificat::FlotCertificat(Surface& cible, const page::Police& police, double largeur,
                               const QString& adresse)
    : cible_(cible), police_(police), largeur_(largeur), adresse_(adresse)
{
    cible_.Font(police_);
}

bool FlotCertificat::Tient(const Mot& mot) const
{
    if (cible_.TextWidth(ligne_ + mot.Mesure) >= largeur_) {
        return false;
    }
    const bool aCote = apresAdresse_ || common::PartiesDeTexte(mot.Mesure).size() > 1;
    const double surFeuille = cible_.CurrentX() - cible_.ScaleLeft();
    return !aCote || ligne_.isEmpty() || surFeuille + cible_.TextWidth(mot.Mesure) <= cible_.ScaleWidth();
}

void FlotCertificat::PasseALaLigne()
{
    cible_.Print(QStringLiteral("\n"));
    DescendAu(basAdresse_);
    ligne_.clear();
    apresAdresse_ = false;
}

void FlotCertificat::Place(const Mot& mot)
{
    if (!Tient(mot)) {
        PasseALaLigne();
    }
    ligne_ += mot.Mesure + QLatin1Char(' ');
}

// The parts stand below each other; the pen comes back to the first one's level, behind the widest.
void FlotCertificat::EcritAdresse(const QStringList& parties)
{
    const double gauche = cible_.CurrentX();
    const double haut = cible_.CurrentY();
    double droite = gauche;
    for (const QString& partie : parties) {
        cible_.CurrentX(gauche);
        cible_.PrintSuite(partie + QLatin1Char(' '));
        droite = std::max(droite, cible_.CurrentX());
        cible_.Print();
    }
    basAdresse_ = std::max(basAdresse_, cible_.CurrentY());
    cible_.CurrentY(haut);
    cible_.CurrentX(droite);
    apresAdresse_ = apresAdresse_ || parties.size() > 1;
}

void FlotCertificat::Ecrit(const Mot& mot)
{
    vide_ = false;
    cible_.Font(StyleDuMot(police_, mot));
    Place(mot);
    if (!adresse_.isEmpty() && mot.Mesure.contains(adresse_)) {
        EcritAdresse(common::PartiesDeTexte(mot.Mesure));
    } else {
        cible_.PrintSuite(mot.Imprime());
    }
    cible_.Font(police_);
    cible_.PrintSuite(QStringLiteral(" "));
}

void FlotCertificat::DescendAu(double y)
{
    cible_.CurrentY(std::max(cible_.CurrentY(), y));
}

void FlotCertificat::Termine(double saut)
{
    cible_.Print(vide_ ? QStringLiteral(" ") : QString());
    cible_.CurrentY(cible_.CurrentY() + saut);
    cible_.Print();
    DescendAu(basAdresse_ + saut);
}

} // namespace page
