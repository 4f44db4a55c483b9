#include "medication/Memorisees.h"

#include "medication/messages.h"
#include "outside/Boites.h"
#include "prescription/Ordonnance.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace medication {

namespace {

storage::Base& Medoc(application::Contexte& contexte)
{
    return contexte.Bases.Medoc(contexte.Chemins.CheminTravail);
}

bool DAncienFormat(const application::Contexte& contexte)
{
    const prescription::Ordonnance& ordonnance = contexte.Ordonnance;
    return drugbank::EnModeBanque(contexte.Banque) && ordonnance.CleMemo && ordonnance.AncienFormat;
}

/// True when the doctor wants to choose the prescription again.
bool Convertit(application::Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    const drugbank::ResolutionCip produitDuCip = contexte.Banque.ProduitDuCip;
    const prescription::Conversion conversion =
        prescription::ConvertitMemorisee(Medoc(contexte), *contexte.Ordonnance.CleMemo, produitDuCip);
    if (conversion.Converties == 0) {
        boites.Information(messages::NonConvertie());
        return false;
    }
    boites.Information(messages::Convertie());
    return boites.QuestionInformation(messages::EditerANouveau(), outside::Bouton::Non);
}

} // namespace

QList<prescription::Memorisee> PrepareMemorisees(application::Contexte& contexte)
{
    contexte.Ordonnance.AncienFormat = false;
    const auto memorisees = prescription::ListeMemorisees(Medoc(contexte), contexte.Patient);
    if (memorisees.isEmpty()) {
        contexte.Dehors.Boites.Information(messages::AucunModele());
    }
    return memorisees;
}

bool ProposeConversion(application::Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    if (!DAncienFormat(contexte)) {
        return false;
    }
    if (boites.Question(messages::AncienFormat(), outside::Bouton::Non)) {
        return Convertit(contexte);
    }
    if (boites.Question(messages::ArreterDeDemander(), outside::Bouton::Non)) {
        prescription::MarqueConvertie(Medoc(contexte), *contexte.Ordonnance.CleMemo);
    }
    return false;
}

} // namespace medication
