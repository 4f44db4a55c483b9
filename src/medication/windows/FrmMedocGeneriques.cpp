#include "medication/Generiques.h"
#include "medication/windows/ChampMedicament.h"
#include "medication/windows/FrmGEN.h"
#include "medication/windows/FrmMedoc.h"
#include "medication/windows/ImageAnimee.h"
#include "outside/Boites.h"

#include <QPushButton>

// The generics of the pack in hand.
namespace medication {

void FrmMedoc::RelieGeneriques()
{
    connect(c_.AniGIFG, &ImageAnimee::Clic, this, &FrmMedoc::OuvreGeneriques);
    connect(c_.HlbG, &QPushButton::clicked, this, [this] {
        if (const Noeud* noeud = arbre_.Lis(NoeudSelectionne())) {
            // A line added empties the list while its pack stays selected.
            if (contexte_.Choix.LstGen.isEmpty() && !pharmacies_.EnService().InfoPack(*noeud).isEmpty()) {
                RechercheGeneriques();
            }
            OuvreGeneriques();
        }
    });
}

void FrmMedoc::RechercheGeneriques()
{
    if (medication::RechercheGeneriques(contexte_)) {
        c_.AniGIFG->Joue();
    } else {
        c_.AniGIFG->Arrete();
    }
    fenetres_.Donne<FrmGEN>().Remplit();
}

void FrmMedoc::VideGeneriques()
{
    c_.AniGIFG->Arrete();
    contexte_.Choix.LstGen.clear();
    if (FrmGEN* fenetre = fenetres_.Presente<FrmGEN>()) {
        fenetre->Remplit();
    }
}

void FrmMedoc::OuvreGeneriques()
{
    Choix& choix = contexte_.Choix;
    if (choix.LstGen.isEmpty()) {
        contexte_.Dehors.Boites.Information(SansGenerique(contexte_));
        return;
    }
    const Noeud* noeud = arbre_.Lis(NoeudSelectionne());
    const QString titre = TitreGeneriques(choix, noeud ? noeud->Texte : QString());
    const std::optional<QString> pris = fenetres_.Donne<FrmGEN>().Choisit(titre);
    fenetres_.Decharge<FrmGEN>();
    if (pris) {
        c_.TxtMedoc->setText(NomDuGenerique(*pris));
    }
    RechercheGeneriques();
    c_.TxtMedoc->setFocus();
    c_.TxtMedoc->end(false);
}

} // namespace medication
