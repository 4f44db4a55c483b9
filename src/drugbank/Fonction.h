#pragma once

#include "drugbank/Bibliotheque.h"
#include "drugbank/InterfaceBanque.h"
#include "drugbank/NomsExportes.h"

namespace drugbank {

/// A function of a library, found by its name when it is first called. Holds as long as its library.
template <typename R, typename... A> class Fonction
{
public:
    /// Both arguments outlive the function.
    Fonction(Bibliotheque& bibliotheque, const char* nom) : bibliotheque_(bibliotheque), nom_(nom) {}

    /// True when the library has it.
    bool Existe() const { return Adresse() != nullptr; }

    /// Calls it; a function that the library lacks gives zero.
    R operator()(A... arguments) const
    {
        const auto adresse = Adresse();
        if (!adresse) {
            return R();
        }
        return adresse(arguments...);
    }

private:
    using Appel = R(DRUGBANK_APPEL*)(A...);

    Appel Adresse() const
    {
        if (!cherchee_) {
            cherchee_ = true;
            adresse_ = reinterpret_cast<Appel>(bibliotheque_.Adresse(nom_, kOctetsArguments<A...>));
        }
        return adresse_;
    }

    Bibliotheque& bibliotheque_;
    const char* nom_;
    mutable bool cherchee_ = false;
    mutable Appel adresse_ = nullptr;
};

} // namespace drugbank
