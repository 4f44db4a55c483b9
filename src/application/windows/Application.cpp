#include "application/windows/Application.h"

namespace application {

Application::Application(const Dehors& dehors, const QString& cheminProgramme,
                         const QString& cheminInstallation)
    : contexte_(etat_.Contexte(dehors)), fenetres_(contexte_)
{
    etat_.Chemins.CheminProgramme = cheminProgramme;
    etat_.Chemins.CheminInstallation = cheminInstallation;
}

Application::~Application() = default;

} // namespace application
