#pragma once

#include "medication/PharmacieBanque.h"
#include "medication/PharmacieLocale.h"

namespace medication {

/// Both pharmacies of a run. Which one serves follows `TypeBase` at each use.
class Pharmacies
{
public:
    explicit Pharmacies(application::Contexte& contexte);

    Pharmacie& EnService();
    PharmacieLocale& Locale() { return locale_; }

private:
    application::Contexte& contexte_;
    PharmacieLocale locale_;
    PharmacieBanque banque_;
};

} // namespace medication
