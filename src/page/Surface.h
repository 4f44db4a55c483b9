#pragma once

#include "page/Dessin.h"
#include "page/Mesure.h"

#include <QImage>

namespace page {

/// What a surface stands for: the painters begin and end differently on each.
enum class Cible { Imprimante, Apercu, Depart, Autre };

enum class Echelle { Millimetres, Twips, Pixels };

constexpr double kTwipsParMillimetre = 56.7;
constexpr double kPixelsParMillimetre = 96 / 25.4;

/// A text pen that records a `Dessin`. Every text is measured at one fixed reference (1200 dpi, no
/// hinting, no kerning), whatever the target, so that a line wraps at the same word everywhere.
/// X and Y are in the units of the scale mode, counted from the scale's origin.
class Surface
{
public:
    /// A surface of the given size in millimetres.
    explicit Surface(Cible cible, double largeur = 210, double hauteur = 297);

    page::Cible Genre() const { return cible_; }

    /// Removes what was drawn and puts the pen at 0, 0; scale, origin and font stay.
    void Cls();

    /// Changes the unit and puts the origin back on the corner. The pen does not move.
    void ScaleMode(Echelle echelle);
    Echelle ScaleMode() const { return echelle_; }

    /// The number that the left (top) edge bears. The pen does not move, its numbers change.
    void ScaleLeft(double valeur) { gauche_ = valeur; }
    double ScaleLeft() const { return gauche_; }
    void ScaleTop(double valeur) { haut_ = valeur; }
    double ScaleTop() const { return haut_; }

    /// The surface's size in the units of the scale mode.
    double ScaleWidth() const;
    double ScaleHeight() const;

    double CurrentX() const;
    void CurrentX(double valeur);
    double CurrentY() const;
    void CurrentY(double valeur);

    void Font(const Police& police) { police_ = police; }
    const Police& Font() const { return police_; }
    void FontBold(bool oui) { police_.Gras = oui; }
    void FontUnderline(bool oui) { police_.Souligne = oui; }
    void FontSize(float points) { police_.Taille = points; }

    void ForeColor(Couleur couleur) { encre_ = couleur; }
    Couleur ForeColor() const { return encre_; }
    void DrawWidth(int epaisseur) { epaisseur_ = epaisseur; }

    /// Width of a text in the current font; of several lines, that of the widest.
    double TextWidth(const QString& texte) const;
    /// Height of one line in the current font.
    double TextHeight() const;

    /// Prints at the pen and ends the line: the pen goes to X 0, one line lower.
    /// A line feed inside the text does the same between its parts. Blanks leave no item, unless underlined.
    void Print(const QString& texte = QString());
    /// Prints at the pen, which stays on the line, behind the text.
    void PrintSuite(const QString& texte);

    void Line(double x1, double y1, double x2, double y2);
    void Box(double x1, double y1, double x2, double y2);
    void PaintPicture(const QImage& image, double x, double y, double largeur, double hauteur);

    /// What is drawn between the two is the prescription itself, as against letterhead and footer.
    void DebuteCorps() { dessin_.DebutCorps = dessin_.FinCorps = dessin_.Items.size(); }
    void TermineCorps() { dessin_.FinCorps = dessin_.Items.size(); }

    const Dessin& Resultat() const { return dessin_; }

private:
    double UnitesParMillimetre() const;
    double VersX(double valeur) const;
    double VersY(double valeur) const;
    void Ecrit(const QString& texte);
    void EcritPartie(const QString& partie);
    void PasseALaLigne();

    page::Cible cible_;
    Echelle echelle_ = Echelle::Millimetres;
    double gauche_ = 0;
    double haut_ = 0;
    double x_ = 0; // of the pen, in millimetres from the corner
    double y_ = 0;
    Police police_;
    Couleur encre_ = kNoir;
    int epaisseur_ = 1;
    Dessin dessin_;
};

} // namespace page
