#pragma once

#include "drugbank/Fonction.h"

#include <QString>

namespace drugbank {

/// The bank library, loaded as long as this object lives. Each function is bound on its first call.
class LiaisonBanque
{
public:
    explicit LiaisonBanque(const QString& chemin) : bibliotheque_(chemin) {}

    bool Chargee() const { return bibliotheque_.Chargee(); }

    /// From now on the library stays in memory until the process ends: a start that nobody waited for
    /// still runs in it.
    void Garde() { bibliotheque_.Garde(); }

private:
    Bibliotheque bibliotheque_;

public:
#define DECLARE(nom, ...) Fonction<__VA_ARGS__> nom{bibliotheque_, #nom};
    DRUGBANK_FONCTIONS_BANQUE(DECLARE)
    DRUGBANK_FONCTIONS_PUBLIQUES(DECLARE)
#undef DECLARE
};

/// A text of the bank. Without `CopyStringN2` it ends in a NUL character. A null address, and a length that
/// no text has, give the empty text; beyond a million characters `CopyStringN2` cuts it.
QString LitChaineBanque(const LiaisonBanque& banque, TexteBanque adresse);

/// The same up to its first NUL character.
QString LitTexte(const LiaisonBanque& banque, TexteBanque adresse);

} // namespace drugbank
