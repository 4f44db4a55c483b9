#include "page/Corps.h"
#include "page/Gabarit.h"

namespace page {

namespace {

constexpr double kDebutFilet = 10;
constexpr double kFinFilet = 200;
constexpr float kTailleTitreZone = 9;

void PeintFilet(Surface& cible)
{
    cible.DrawWidth(2);
    cible.Line(kDebutFilet, cible.CurrentY(), kFinFilet, cible.CurrentY());
    cible.DrawWidth(1);
    cible.Print();
}

void EcritCentre(Surface& cible, const QString& texte)
{
    cible.CurrentX(kCentreFeuille - cible.TextWidth(texte) / 2);
    cible.Print(texte);
}

// The underline stays as the former text left it.
void PoseStyle(Surface& cible)
{
    cible.ScaleLeft(0);
    cible.ScaleTop(0);
    page::Police police = cible.Font();
    police.Nom = QStringLiteral("Arial");
    police.Taille = kTailleTitreZone;
    police.Gras = true;
    police.Italique = false;
    cible.Font(police);
}

void PeintTitreZone(Surface& cible, const QString& titre, const QString& precision)
{
    PeintFilet(cible);
    EcritCentre(cible, titre);
    cible.FontBold(false);
    EcritCentre(cible, precision);
    cible.Print();
    PeintFilet(cible);
}

} // namespace

void PeintTitreZone1(Surface& cible, const settings::Reglages& reglages)
{
    PoseStyle(cible);
    PeintTitreZone(cible,
                   QStringLiteral("Prescriptions relatives au traitement de l'affection de longue durée "
                                  "reconnue (liste ou hors liste)"),
                   QStringLiteral("(AFFECTION EXONERANTE)"));
    SauteIntervalle(cible, reglages);
}

void PeintTitreZone2(Surface& cible, const settings::Reglages& reglages)
{
    PoseStyle(cible);
    SauteIntervalle(cible, reglages);
    PeintTitreZone(cible, QStringLiteral("Prescriptions SANS RAPPORT avec l'affection de longue durée"),
                   QStringLiteral("(MALADIES INTERCURRENTES)"));
    SauteIntervalle(cible, reglages);
}

} // namespace page
