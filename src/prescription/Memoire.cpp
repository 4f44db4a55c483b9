#include "prescription/Memoire.h"

#include "application/messages.h"
#include "outside/Boites.h"
#include "prescription/Apercu.h"
#include "prescription/Ordonnance.h"
#include "prescription/messages.h"
#include "startup/GestionMedecins.h"

namespace prescription {

void MemoriseOrdonnance(application::Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    const Ordonnance& ordonnance = contexte.Ordonnance;
    if (!startup::ExigeMedecin(contexte)) {
        return;
    }
    if (contexte.Apercu.ModeApercu == 1) {
        boites.Information(messages::CertificatNonMemorise());
    } else if (ordonnance.LstChoix1.Vide() && ordonnance.LstChoix2.Vide()) {
        boites.Stop(messages::RienAMemoriser());
    } else {
        boites.Information(application::messages::PasEncoreDisponible());
    }
}

void SupprimeOrdonnanceMemorisee(application::Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    if (!startup::ExigeMedecin(contexte)) {
        return;
    }
    if (contexte.Apercu.ModeApercu == 1) {
        boites.Information(messages::CertificatNonSupprime());
    } else if (contexte.Ordonnance.OrdoMemorisee == 0) {
        boites.Information(messages::PasUneMemorisee());
    } else {
        boites.Information(application::messages::PasEncoreDisponible());
    }
}

} // namespace prescription
