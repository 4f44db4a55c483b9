#include "medication/Pharmacie.h"

#include "application/Contexte.h"
#include "medication/PharmacieLocale.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace medication {

std::unique_ptr<Pharmacie> PharmacieEnService(application::Contexte& contexte)
{
    return std::make_unique<PharmacieLocale>(
        [&contexte]() -> storage::Base& { return contexte.Bases.Medoc(contexte.Chemins.CheminTravail); });
}

} // namespace medication
