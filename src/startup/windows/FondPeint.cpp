#include "startup/windows/FondPeint.h"

#include "page/Peintres.h"
#include "page/Rejeu.h"

#include <QPainter>

namespace startup {

namespace {

int Rouge(page::Couleur couleur)
{
    return static_cast<int>(couleur & 255);
}

int Vert(page::Couleur couleur)
{
    return static_cast<int>(couleur >> 8 & 255);
}

int Bleu(page::Couleur couleur)
{
    return static_cast<int>(couleur >> 16 & 255);
}

QRgb VersQt(page::Couleur couleur)
{
    return qRgb(Rouge(couleur), Vert(couleur), Bleu(couleur));
}

} // namespace

void FondPeint::Ajuste(const QSize& taille)
{
    page::Surface surface(page::Cible::Autre, taille.width() / page::kPixelsParMillimetre,
                          taille.height() / page::kPixelsParMillimetre);
    page::PeintFond(surface, Rouge(haut_), Vert(haut_), Bleu(haut_), Rouge(bas_), Vert(bas_), Bleu(bas_),
                    marge_, marge_, true);
    dessin_ = surface.Resultat();
}

void PeintBouts(QPainter& peintre, page::Couleur haut, page::Couleur bas)
{
    const int largeur = peintre.device()->width();
    const int hauteur = peintre.device()->height();
    peintre.fillRect(0, 0, largeur, hauteur / 2, VersQt(haut));
    peintre.fillRect(0, hauteur / 2, largeur, hauteur, VersQt(bas));
}

void FondPeint::Montre(QPainter& peintre) const
{
    PeintBouts(peintre, haut_, bas_);
    page::Rejoue(dessin_, peintre, page::kPixelsParMillimetre);
}

} // namespace startup
