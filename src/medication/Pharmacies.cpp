#include "medication/Pharmacies.h"

#include "application/Contexte.h"
#include "drugbank/Banque.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace medication {

Pharmacies::Pharmacies(application::Contexte& contexte)
    : contexte_(contexte), locale_([&contexte]() -> storage::Base& {
          return contexte.Bases.Medoc(contexte.Chemins.CheminTravail);
      }),
      banque_(contexte)
{}

Pharmacie& Pharmacies::EnService()
{
    if (drugbank::EnModeBanque(contexte_.Banque)) {
        return banque_;
    }
    return locale_;
}

} // namespace medication
