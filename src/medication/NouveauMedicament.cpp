#include "medication/NouveauMedicament.h"

#include "application/Signaux.h"
#include "common/Capitales.h"
#include "drugbank/Banque.h"
#include "medication/PharmaciePersonnelle.h"
#include "medication/Pharmacies.h"
#include "medication/messages.h"
#include "outside/Boites.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace medication {

namespace {

PharmaciePersonnelle Personnelle(application::Contexte& contexte)
{
    return PharmaciePersonnelle(contexte.Bases.Medoc(contexte.Chemins.CheminTravail));
}

void AjouteTitre(application::Contexte& contexte, ListePersonnelle& liste, const Saisie& saisie)
{
    const bool capitales = contexte.Dehors.Boites.Question(messages::EnMajuscules());
    const QString titre = capitales ? common::EnCapitales(saisie.TxtMedoc) : saisie.TxtMedoc;
    Personnelle(contexte).Ajoute({titre, saisie.TxtPoso});
    liste.Ajoute(saisie.TxtMedoc, titre);
}

} // namespace

void ChargePersonnelle(application::Contexte& contexte, ListePersonnelle& liste)
{
    liste.Remplit(drugbank::EnModeBanque(contexte.Banque) ? Personnelle(contexte).Titres() : QStringList());
}

FinNouveau EnregistreNouveau(application::Contexte& contexte, ListePersonnelle& liste, const Saisie& saisie)
{
    if (saisie.TxtMedoc.trimmed().isEmpty()) {
        contexte.Dehors.Boites.Stop(messages::SansNom());
        return FinNouveau::Refus;
    }
    const bool banque = drugbank::EnModeBanque(contexte.Banque);
    if (banque) {
        AjouteTitre(contexte, liste, saisie);
    } else {
        Pharmacies(contexte).Locale().Ajoute(saisie);
    }
    Q_EMIT contexte.Signaux.PharmacieChange();
    return banque ? FinNouveau::VideSaisie : FinNouveau::GardeSaisie;
}

void SupprimePersonnelle(application::Contexte& contexte, ListePersonnelle& liste, int rang)
{
    const EntreePersonnelle* entree = liste.Lis(rang);
    outside::Boites& boites = contexte.Dehors.Boites;
    if (!entree || !entree->Titre ||
        !boites.Question(messages::SupprimePersonnel(entree->Texte), outside::Bouton::Non)) {
        return;
    }
    if (!Personnelle(contexte).Supprime(*entree->Titre)) {
        boites.Exclamation(messages::PersonnelDisparu());
    }
    liste.Retire(rang);
    Q_EMIT contexte.Signaux.PharmacieChange();
}

} // namespace medication
