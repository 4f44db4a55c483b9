#pragma once

#include "page/Police.h"

#include <QImage>
#include <QList>
#include <variant>

namespace page {

/// One print of the pen. x and y are millimetres from the surface's top left corner, y the top of the text.
struct ItemTexte
{
    QString Texte;
    double X = 0;
    double Y = 0;
    double Largeur = 0;
    double Hauteur = 0;
    page::Police Police;
    Couleur Encre = kNoir;
};

/// A rule. `Epaisseur` is the pen's `DrawWidth`; the replay draws `kMillimetresParTrait` for each unit.
struct ItemTrait
{
    double X = 0;
    double Y = 0;
    double X2 = 0;
    double Y2 = 0;
    int Epaisseur = 1;
    Couleur Encre = kNoir;
};

/// A box that is not filled.
struct ItemCadre
{
    double X = 0;
    double Y = 0;
    double X2 = 0;
    double Y2 = 0;
    int Epaisseur = 1;
    Couleur Encre = kNoir;
};

struct ItemImage
{
    double X = 0;
    double Y = 0;
    double Largeur = 0;
    double Hauteur = 0;
    QImage Image;
};

using Item = std::variant<ItemTexte, ItemTrait, ItemCadre, ItemImage>;

constexpr double kMillimetresParTrait = 0.18;

/// What was drawn on a surface, in order. Everything that shows or prints only replays it.
struct Dessin
{
    double Largeur = 210;
    double Hauteur = 297;
    QList<Item> Items;
    qsizetype DebutCorps = 0; ///< index of the prescription's first item, and of the one behind its last
    qsizetype FinCorps = 0;
};

} // namespace page
