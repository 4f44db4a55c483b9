#include "drugbank/RemplacementBanque.h"

#include "common/Fichiers.h"
#include "drugbank/Banque.h"
#include "drugbank/Seance.h"
#include "drugbank/messagesMaj.h"
#include "medication/Choix.h"

namespace drugbank {

QString RefusDeLaMaj(const banque::Demande& demande)
{
    if (demande.Dossier.isEmpty()) {
        return messages::MajSansDossier();
    }
    if (!demande.Interactions.isEmpty() && !common::FichierExiste(demande.Interactions)) {
        return messages::MajSansThesaurus(common::CheminAffiche(demande.Interactions));
    }
    return {};
}

void LibereBanquePublique(application::Contexte& contexte)
{
    contexte.Seance.LiberePublique(contexte);
    if (EstPublique(contexte.Banque)) {
        contexte.Choix.BaseChangee = 1;
    }
}

} // namespace drugbank
