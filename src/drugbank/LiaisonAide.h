#pragma once

#include "drugbank/Fonction.h"

#include <QString>

namespace drugbank {

/// The helper library, loaded as long as this object lives.
class LiaisonAide
{
public:
    /// `nom` as the system's loader takes it: a plain name or a path.
    explicit LiaisonAide(const QString& nom) : bibliotheque_(nom) {}

    bool Chargee() const { return bibliotheque_.Chargee(); }

    /// Where the bank of a product is, in `chemin`; the helper's answer, 0 when the product is installed.
    /// A helper without the function has no product.
    Entier CheminDeBanque(Entier produit, QString& chemin) const;

private:
    Bibliotheque bibliotheque_;

public:
#define DECLARE(nom, ...) Fonction<__VA_ARGS__> nom{bibliotheque_, #nom};
    DRUGBANK_FONCTIONS_AIDE(DECLARE)
#undef DECLARE
};

} // namespace drugbank
