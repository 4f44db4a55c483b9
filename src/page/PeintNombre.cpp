#include "page/Corps.h"
#include "page/Gabarit.h"

namespace page {

namespace {

constexpr float kTailleNombre = 8;
constexpr double kHautDuCadre = 10; // millimetres above the lower margin
constexpr double kBasDuCadre = 6;

} // namespace

void PeintNombre(Surface& cible, int nombre, const settings::Reglages& reglages)
{
    cible.FontSize(kTailleNombre);
    const settings::Marges& marges = reglages.Marges;
    const double bas = HauteurPage(reglages.Options) - marges.MargeBasEntete;
    const QString modele = QStringLiteral("Nombre de médicaments prescrits : xxxxxxxx");
    cible.CurrentX(LargeurPage(reglages.Options) - marges.MargeGaucheOrdo - cible.TextWidth(modele) - 10);
    cible.CurrentY(bas - kHautDuCadre);
    cible.PrintSuite(QStringLiteral("Nombre de médicaments prescrits :   "));
    cible.PrintSuite(QStringLiteral(" %1 ").arg(nombre));
    const double fin = cible.CurrentX();
    const double debut = fin - cible.TextWidth(QString::number(nombre)) - 2;
    cible.DrawWidth(2);
    cible.Box(debut, bas - kHautDuCadre, fin + 1, bas - kBasDuCadre);
    cible.DrawWidth(1);
}

} // namespace page
