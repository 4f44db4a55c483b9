#include "page/Peintres.h"

namespace page {

namespace {

constexpr int kCentimetres = 21;
constexpr int kUnChiffre = 9; // the centimetres whose number has one digit
constexpr float kTailleTrait = 6;
constexpr float kTailleChiffre = 8;

// Counted from where the pen stood before the text: the marks keep their centimetre, whatever the font.
void EcritPuisAvance(Surface& cible, const QString& texte, float taille, double avance)
{
    const double x = cible.CurrentX();
    cible.FontSize(taille);
    cible.PrintSuite(texte);
    cible.CurrentX(x + avance);
    cible.CurrentY(0);
}

} // namespace

void PeintRegle(Surface& cible)
{
    cible.ForeColor(kNoir);
    cible.ScaleMode(Echelle::Millimetres);
    cible.CurrentY(0);
    cible.CurrentX(5);
    cible.Font({.Nom = QStringLiteral("Perpetua")});
    const QString trait = QStringLiteral("|");
    for (int i = 0; i < kCentimetres; ++i) {
        EcritPuisAvance(cible, trait, kTailleTrait, i < kUnChiffre ? 5 : 4);
        EcritPuisAvance(cible, QStringLiteral(" %1 ").arg(i + 1), kTailleChiffre, i < kUnChiffre ? 5 : 6);
    }
    EcritPuisAvance(cible, trait, kTailleTrait, 0);
}

} // namespace page
