#include "medication/Memorisees.h"
#include "medication/windows/ChampCherche.h"
#include "medication/windows/FrmMedoc.h"
#include "outside/Tente.h"
#include "prescription/windows/FrmMemo.h"

// The memorised prescriptions in the picker.
namespace medication {

void FrmMedoc::OuvreMemorisees()
{
    bool encore = true;
    while (encore) {
        encore = false;
        outside::Tente(contexte_.Dehors.Boites, [&] { encore = ChoisitMemorisee(); });
        if (encore) {
            ToutEfface();
        }
    }
}

bool FrmMedoc::ChoisitMemorisee()
{
    const auto memorisees = PrepareMemorisees(contexte_);
    if (memorisees.isEmpty()) {
        return false;
    }
    const bool chargee = fenetres_.Donne<prescription::FrmMemo>().Ouvre(memorisees);
    fenetres_.Decharge<prescription::FrmMemo>();
    if (!chargee) {
        return false;
    }
    MontreZones();
    CocheCases();
    FocusRecherche();
    return ProposeConversion(contexte_);
}

} // namespace medication
