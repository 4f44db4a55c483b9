#include "prescription/Editeur.h"

#include "application/Signaux.h"
#include "common/Erreur.h"
#include "outside/Boites.h"
#include "prescription/messages.h"
#include "settings/FichiersReglages.h"
#include "settings/HauteurSaut.h"
#include "startup/Chemins.h"
#include "startup/GestionMedecins.h"

namespace prescription {

namespace {

void EcritReglages(application::Contexte& contexte)
{
    try {
        settings::EcritMarges(contexte.Reglages.Marges, contexte.Chemins.CheminMedecin);
        settings::EcritOptions(contexte.Reglages.Options, contexte.Chemins.CheminMedecin);
    } catch (const common::Erreur& erreur) {
        contexte.Dehors.Boites.Stop(messages::HauteurNonEcrite(erreur.Phrase()));
    }
    Q_EMIT contexte.Signaux.ReglagesChanges();
    Repeint(contexte);
}

} // namespace

void FixeHauteurPersonnelle(application::Contexte& contexte)
{
    if (startup::ExigeMedecin(contexte) &&
        settings::DemandeHauteurSaut(contexte.Reglages, contexte.Dehors.Boites)) {
        EcritReglages(contexte);
    }
}

void RetablitHauteurNormale(application::Contexte& contexte)
{
    if (!startup::ExigeMedecin(contexte)) {
        return;
    }
    contexte.Reglages.Options.SautPersonnalise = 0;
    contexte.Reglages.TxtSLP.clear();
    EcritReglages(contexte);
}

} // namespace prescription
