// Prints the memory of a run with FrmOrdo open over a practice of 100 000 patients.
#include "PremierePeinture.h"

#include "bench/PatientsInventes.h"
#include "prescription/windows/FrmOrdo.h"
#include "startup/Chemins.h"
#include "startup/windows/ProgrammeDeTest.h"

int main(int nombre, char** arguments)
{
    application::ApplicationQt boucle(nombre, arguments);
    application::style::Installe(boucle);
    support::ProgrammeDeTest programme;
    bench::AjoutePatients(programme.Chemin(QStringLiteral("programme/Medoc.mdb")), 100000);
    programme.Installe();
    auto& fenetre = programme.Fenetres().Donne<prescription::FrmOrdo>();
    bench::FinALaPremierePeinture fin(&fenetre, true);
    fenetre.showMaximized();
    return QCoreApplication::exec();
}
