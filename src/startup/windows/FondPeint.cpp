#include "startup/windows/FondPeint.h"

#include "page/Peintres.h"
#include "page/Rejeu.h"

#include <QSize>

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

} // namespace

void FondPeint::Ajuste(const QSize& taille)
{
    page::Surface surface(page::Cible::Autre, taille.width() / page::kPixelsParMillimetre,
                          taille.height() / page::kPixelsParMillimetre);
    page::PeintFond(surface, Rouge(haut_), Vert(haut_), Bleu(haut_), Rouge(bas_), Vert(bas_), Bleu(bas_),
                    marge_, marge_, true);
    dessin_ = surface.Resultat();
}

void FondPeint::Montre(QPainter& peintre) const
{
    page::Rejoue(dessin_, peintre, page::kPixelsParMillimetre);
}

} // namespace startup
