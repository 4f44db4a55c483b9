#include "medication/messages.h"
#include "medication/windows/ChampMedicament.h"
#include "medication/windows/ChampPosologie.h"
#include "medication/windows/FrmMedoc.h"
#include "medication/windows/FrmPoso.h"
#include "medication/windows/ListeOffres.h"
#include "outside/Boites.h"

#include <QPushButton>

// The posology of the medication in hand.
namespace medication {

const Noeud* FrmMedoc::NoeudEnMain() const
{
    return c_.CmdModifier->isEnabled() ? arbre_.Lis(NoeudSelectionne()) : nullptr;
}

void FrmMedoc::RelieOffres()
{
    c_.LstOffres->setModel(&offres_);
    connect(c_.TxtPoso, &ChampPosologie::Entre, this,
            [this] { RemplitOffres(contexte_, offres_, c_.TxtMedoc->text(), NoeudEnMain()); });
    connect(c_.TxtPoso, &ChampPosologie::Tape, this, [this] {
        offres_.Restreint(c_.TxtPoso->toPlainText());
        c_.TxtPoso->MontreOffres();
    });
    connect(c_.LstOffres, &ListeOffres::Prise, this,
            [this](int rang) { c_.TxtPoso->Remplace(offres_.Texte(rang)); });
}

void FrmMedoc::ComposePosologie()
{
    if (c_.TxtMedoc->text().isEmpty()) {
        contexte_.Dehors.Boites.Information(messages::SelectionnezUnMedicament());
        return;
    }
    const bool enregistrable = contexte_.Choix.NoeudChoisi != kAucunNoeud && NoeudEnMain();
    const Saisie saisie = Boites();
    const auto reponse = fenetres_.Donne<FrmPoso>().Compose(saisie.TxtMedoc, saisie.TxtPoso, enregistrable);
    if (reponse.TxtPoso) {
        c_.TxtPoso->Remplace(*reponse.TxtPoso);
    }
    if (reponse.Etiquette == FrmPoso::Etiquette::Enregistre) {
        ModifieMedicament();
    }
    if (reponse.Etiquette != FrmPoso::Etiquette::Rien) {
        if (const std::optional<Zone> zone = ZoneDePosologie(contexte_)) {
            Ajoute(*zone);
        }
    }
}

} // namespace medication
