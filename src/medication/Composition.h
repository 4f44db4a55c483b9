#pragma once

#include "medication/Choix.h"
#include "medication/Posologie.h"

#include <functional>
#include <optional>

namespace medication {

/// A posology being composed: what the boxes of `FrmPoso` hold.
struct Composition
{
    ChoixPosologie CboP;
    bool QuantitesActives = true; ///< `CboP(1)` to `CboP(4)` take a choice
    QString TxtPoso;
    bool operator==(const Composition&) const = default;
};

/// Asks for a quantity with that prompt; nothing on Cancel. What the composition holds is up to date then.
using DemandeDeQuantite = std::function<std::optional<QString>(const QString& invite)>;

/// A fresh composition over the posology that the medication has.
Composition CommencePosologie(const QString& txtPoso);

/// A text chosen or typed in the box `indice`, 0 to 7, a second time as well: the sentence is composed anew.
/// `DernierCboP` and `TexteQuantite` of `choix` follow.
void ChangeCboP(Composition& composition, Choix& choix, int indice, const QString& texte,
                const DemandeDeQuantite& demande);

} // namespace medication
