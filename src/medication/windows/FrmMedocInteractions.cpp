#include "application/Signaux.h"
#include "drugbank/Banque.h"
#include "drugbank/windows/FrmIAM.h"
#include "medication/windows/FrmMedoc.h"
#include "medication/windows/ImageAnimee.h"

#include <QLabel>
#include <QPushButton>

// The interactions of the prescription in hand.
namespace medication {

void FrmMedoc::RelieInteractions()
{
    connect(c_.AniGIFI, &ImageAnimee::Clic, this, [this] { MontreInteractions(medication::Clic::AniGIFI); });
    connect(&contexte_.Signaux, &application::Signaux::StatutBanqueChange, this,
            &FrmMedoc::RattrapeInteractions);
    connect(&contexte_.Signaux, &application::Signaux::StatutBanqueChange, this,
            &FrmMedoc::RattrapeRecherche);
    connect(c_.HlbI, &QPushButton::clicked, this, [this] { MontreInteractions(medication::Clic::HlbI); });
}

void FrmMedoc::CalculeInteractions()
{
    if (!ModeBanque()) {
        return;
    }
    medication::CalculeInteractions(contexte_);
    if (AInteractions(contexte_.Banque)) {
        c_.AniGIFI->Joue();
    } else {
        c_.AniGIFI->Arrete();
    }
    MontreNonVerifiees();
}

void FrmMedoc::RattrapeInteractions()
{
    if (InteractionsARefaire(contexte_.Banque)) {
        CalculeInteractions();
    }
}

void FrmMedoc::MontreNonVerifiees()
{
    const prescription::Ordonnance& ordonnance = contexte_.Ordonnance;
    const bool lignes = !ordonnance.LstChoix1.Vide() || !ordonnance.LstChoix2.Vide();
    c_.LblNonVerifiees->setVisible(ModeBanque() && lignes && contexte_.Banque.InteractionsNonVerifiees);
}

void FrmMedoc::ArreteAnimations()
{
    c_.AniGIFG->Arrete();
    c_.AniGIFI->Arrete();
    MontreNonVerifiees();
}

void FrmMedoc::MontreInteractions(medication::Clic clic)
{
    RattrapeInteractions();
    fenetres_.Donne<drugbank::FrmIAM>().MontreInteractions(TexteInteractions(contexte_.Banque, clic));
}

} // namespace medication
