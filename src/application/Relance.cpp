#include "application/Relance.h"

#include "application/messages.h"
#include "common/Fichiers.h"
#include "outside/Boites.h"
#include "outside/Lanceur.h"
#include "startup/Chemins.h"

namespace application {

void Relance(Contexte& contexte)
{
    const QString programme =
        common::Joint(contexte.Chemins.CheminProgramme, QStringLiteral("Scriptelle.exe"));
    if (!contexte.Dehors.Lanceur.Lance(common::CheminAffiche(programme))) {
        contexte.Dehors.Boites.Stop(messages::RedemarrageImpossible());
    }
}

} // namespace application
