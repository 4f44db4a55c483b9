#include "common/Dates.h"
#include "page/Corps.h"
#include "page/Gabarit.h"
#include "page/Peintres.h"

namespace page {

namespace {

constexpr quint8 kCertificat = 1;
constexpr double kHauteurSansPied = 200;

void PoseOrigineDuCorps(Surface& cible, const settings::Marges& marges)
{
    cible.ScaleLeft(-marges.MargeGaucheOrdo);
    cible.ScaleTop(-marges.MargeHauteEntete);
}

void PeintZone(Surface& cible, const prescription::LignesZone& lignes,
               const QList<prescription::Entree>& entrees, const settings::Reglages& reglages,
               SuiteDuCorps& suite)
{
    for (const prescription::Ligne& ligne : lignes.Lignes()) {
        if (ligne.Indice >= 0 && ligne.Indice < entrees.size()) {
            PeintEntree(cible, entrees[ligne.Indice], reglages, suite);
        }
    }
}

void PeintZones(Surface& cible, const Modele& modele, SuiteDuCorps& suite)
{
    const settings::Reglages& reglages = modele.Reglages;
    const prescription::Ordonnance& ordonnance = modele.Ordonnance;
    const bool deuxZones = ordonnance.ChkALD == 1;
    if (deuxZones) {
        PeintTitreZone1(cible, reglages);
    }
    PoseOrigineDuCorps(cible, reglages.Marges);
    PeintZone(cible, ordonnance.LstChoix1, ordonnance.OrdoZone1, reglages, suite);
    cible.Print();
    if (deuxZones) {
        PeintTitreZone2(cible, reglages);
        PoseOrigineDuCorps(cible, reglages.Marges);
        PeintZone(cible, ordonnance.LstChoix2, ordonnance.OrdoZone2, reglages, suite);
    }
}

void PeintCorps(Surface& cible, Modele& modele)
{
    const settings::Reglages& reglages = modele.Reglages;
    cible.ForeColor(kNoir);
    cible.ScaleMode(Echelle::Millimetres);
    const double haut = reglages.Marges.MargeHauteOrdo;
    cible.CurrentY(cible.Genre() == Cible::Imprimante ? haut : haut / 2);
    cible.DebuteCorps();
    SuiteDuCorps suite;
    PeintZones(cible, modele, suite);
    cible.TermineCorps();
    modele.Ordonnance.LigneJournal = suite.Titres.remove(QLatin1Char(' '));
    const int nombre = modele.Ordonnance.NbMedZone1 + modele.Ordonnance.NbMedZone2;
    if (reglages.Options.TotalMedicaments == 1 && nombre > 0) {
        PeintNombre(cible, nombre, reglages);
    }
}

void PeintBasDePage(Surface& cible, const Modele& modele)
{
    if (!modele.AvecTravail || cible.ScaleHeight() <= kHauteurSansPied) {
        return;
    }
    cible.Print();
    cible.ForeColor(modele.Reglages.Look.CouleurEntete);
    const LigneEntete* ligne = LigneBasDePage(modele.Entete);
    if (!ligne) {
        return;
    }
    cible.Font(ligne->PoliceApres(cible.Font()));
    cible.CurrentX(0);
    cible.CurrentY(HauteurPage(modele.Reglages.Options) - modele.Reglages.Marges.MargeBasEntete);
    cible.Print(ligne->Texte);
}

// The titles of a certificate's sheet are those of the former painting, wrapped once more: no journal
// keeps such a line.
void TermineLigneJournal(Modele& modele)
{
    const QString ligne = common::TexteDate(modele.Aujourdhui) + QLatin1Char('*') + modele.Patient.NomSeul +
                          QLatin1Char('*') + modele.Patient.DateNaissance + QLatin1Char('*') +
                          modele.Ordonnance.LigneJournal;
    modele.Ordonnance.LigneJournal = ligne.chopped(1);
}

} // namespace

void PeintOrdo(Surface& cible, Modele& modele)
{
    if (modele.ModeApercu != kCertificat) {
        PeintCorps(cible, modele);
    }
    PeintBasDePage(cible, modele);
    TermineLigneJournal(modele);
}

} // namespace page
