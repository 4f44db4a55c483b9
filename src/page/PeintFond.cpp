#include "page/Peintres.h"

#include <algorithm>

namespace page {

namespace {

/// One of a colour's three parts on its way from the first colour to the last.
struct Degrade
{
    double Valeur;
    double Pas;

    int Suivante()
    {
        Valeur += Pas;
        return std::clamp(static_cast<int>(Valeur), 0, 255);
    }
};

void TraceLigne(Surface& cible, int place, bool vertical)
{
    if (vertical) {
        cible.Line(0, place, cible.ScaleWidth(), place);
    } else {
        cible.Line(place, 0, place, cible.ScaleHeight());
    }
}

} // namespace

void PeintFond(Surface& cible, int rouge1, int vert1, int bleu1, int rouge2, int vert2, int bleu2, int debut,
               int fin, bool vertical)
{
    const Couleur encre = cible.ForeColor();
    cible.DrawWidth(1);
    cible.ScaleMode(Echelle::Pixels);
    const int taille = qRound(vertical ? cible.ScaleHeight() : cible.ScaleWidth());
    const double etendue = std::max(1, taille - debut - fin);
    Degrade rouge{double(rouge1), (rouge2 - rouge1) / etendue};
    Degrade vert{double(vert1), (vert2 - vert1) / etendue};
    Degrade bleu{double(bleu1), (bleu2 - bleu1) / etendue};
    for (int place = debut; place <= taille - fin; ++place) {
        cible.ForeColor(Rvb(rouge.Suivante(), vert.Suivante(), bleu.Suivante()));
        TraceLigne(cible, place, vertical);
    }
    cible.ForeColor(encre);
    cible.ScaleMode(Echelle::Twips);
}

} // namespace page
