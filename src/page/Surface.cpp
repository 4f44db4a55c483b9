#include "page/Surface.h"

#include "common/Lignes.h"

#include <algorithm>

namespace page {

namespace {

bool ToutBlanc(const QString& texte)
{
    return std::ranges::all_of(texte, [](QChar caractere) { return caractere.isSpace(); });
}

} // namespace

Surface::Surface(page::Cible cible, double largeur, double hauteur) : cible_(cible)
{
    dessin_.Largeur = largeur;
    dessin_.Hauteur = hauteur;
}

void Surface::Cls()
{
    dessin_.Items.clear();
    dessin_.DebutCorps = dessin_.FinCorps = 0;
    CurrentX(0);
    CurrentY(0);
}

void Surface::ScaleMode(Echelle echelle)
{
    echelle_ = echelle;
    gauche_ = haut_ = 0;
}

double Surface::UnitesParMillimetre() const
{
    switch (echelle_) {
    case Echelle::Twips:
        return kTwipsParMillimetre;
    case Echelle::Pixels:
        return kPixelsParMillimetre;
    case Echelle::Millimetres:
        break;
    }
    return 1;
}

double Surface::VersX(double valeur) const
{
    return (valeur - gauche_) / UnitesParMillimetre();
}

double Surface::VersY(double valeur) const
{
    return (valeur - haut_) / UnitesParMillimetre();
}

double Surface::ScaleWidth() const
{
    return dessin_.Largeur * UnitesParMillimetre();
}

double Surface::ScaleHeight() const
{
    return dessin_.Hauteur * UnitesParMillimetre();
}

double Surface::CurrentX() const
{
    return x_ * UnitesParMillimetre() + gauche_;
}

void Surface::CurrentX(double valeur)
{
    x_ = VersX(valeur);
}

double Surface::CurrentY() const
{
    return y_ * UnitesParMillimetre() + haut_;
}

void Surface::CurrentY(double valeur)
{
    y_ = VersY(valeur);
}

double Surface::TextWidth(const QString& texte) const
{
    return MesureLargeur(texte, police_) * UnitesParMillimetre();
}

double Surface::TextHeight() const
{
    return MesureHauteur(police_) * UnitesParMillimetre();
}

void Surface::Print(const QString& texte)
{
    Ecrit(texte);
    PasseALaLigne();
}

void Surface::PrintSuite(const QString& texte)
{
    Ecrit(texte);
}

void Surface::Ecrit(const QString& texte)
{
    const QStringList parties = common::PartiesDeTexte(texte);
    for (qsizetype rang = 0; rang < parties.size(); ++rang) {
        if (rang > 0) {
            PasseALaLigne();
        }
        EcritPartie(parties[rang]);
    }
}

void Surface::EcritPartie(const QString& partie)
{
    const double largeur = MesureLargeur(partie, police_);
    const bool visible = police_.Souligne ? !partie.isEmpty() : !ToutBlanc(partie);
    if (visible) {
        dessin_.Items.append(ItemTexte{partie, x_, y_, largeur, MesureHauteur(police_), police_, encre_});
    }
    x_ += largeur;
}

void Surface::PasseALaLigne()
{
    x_ = VersX(0);
    y_ += MesureHauteur(police_);
}

void Surface::Line(double x1, double y1, double x2, double y2)
{
    dessin_.Items.append(ItemTrait{VersX(x1), VersY(y1), VersX(x2), VersY(y2), epaisseur_, encre_});
}

void Surface::Box(double x1, double y1, double x2, double y2)
{
    dessin_.Items.append(ItemCadre{VersX(x1), VersY(y1), VersX(x2), VersY(y2), epaisseur_, encre_});
}

void Surface::PaintPicture(const QImage& image, double x, double y, double largeur, double hauteur)
{
    if (image.isNull() || largeur == 0 || hauteur == 0) {
        return;
    }
    dessin_.Items.append(ItemImage{VersX(x), VersY(y), largeur / UnitesParMillimetre(),
                                   hauteur / UnitesParMillimetre(), image});
}

} // namespace page
