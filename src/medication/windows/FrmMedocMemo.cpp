#include "medication/Memorisees.h"
#include "medication/windows/ChampCherche.h"
#include "medication/windows/FrmMedoc.h"
#include "medication/windows/ListeLignes.h"
#include "outside/Tente.h"
#include "prescription/windows/FrmMemo.h"

// The memorised prescriptions in the picker.
namespace medication {

void FrmMedoc::OuvreMemorisees()
{
    bool encore = true;
    while (encore) {
        encore = false;
        bool ouverte = false;
        outside::Tente(contexte_.Dehors.Boites, [&] { encore = ChoisitMemorisee(ouverte); });
        if (ouverte) {
            CalculeInteractions();
            VideGeneriques();
        }
        if (encore) {
            ToutEfface();
        }
    }
}

bool FrmMedoc::ChoisitMemorisee(bool& ouverte)
{
    const auto memorisees = PrepareMemorisees(contexte_);
    if (memorisees.isEmpty()) {
        return false;
    }
    const prescription::Ordonnance& ordonnance = contexte_.Ordonnance;
    const int premiere1 = ordonnance.LstChoix1.rowCount();
    const int premiere2 = ordonnance.LstChoix2.rowCount();
    ouverte = true;
    const bool chargee = fenetres_.Donne<prescription::FrmMemo>().Ouvre(memorisees);
    fenetres_.Decharge<prescription::FrmMemo>();
    if (!chargee) {
        return false;
    }
    MontreZones();
    CocheCases();
    c_.LstChoix1->scrollTo(ordonnance.LstChoix1.index(premiere1), QListView::PositionAtTop);
    c_.LstChoix2->scrollTo(ordonnance.LstChoix2.index(premiere2), QListView::PositionAtTop);
    FocusRecherche();
    return ProposeConversion(contexte_);
}

} // namespace medication
