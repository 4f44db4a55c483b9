#include "startup/DemarrageAuto.h"

#include "common/Fichiers.h"
#include "outside/DemarrageSysteme.h"
#include "settings/Reglages.h"
#include "startup/Chemins.h"

namespace startup {

void RegleDemarrageSysteme(application::Contexte& contexte)
{
    outside::DemarrageSysteme& systeme = contexte.Dehors.DemarrageSysteme;
    if (contexte.Reglages.Options.LanceDemarrage == 1) {
        const QString programme =
            common::Joint(contexte.Chemins.CheminTravail, QStringLiteral("Scriptelle.exe"));
        systeme.Active(common::CheminAffiche(programme));
    } else {
        systeme.Desactive();
    }
}

} // namespace startup
