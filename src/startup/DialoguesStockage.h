#pragma once

#include "application/Contexte.h"

namespace startup {

/// The first run: asks for the user's directory, creates the tree and writes "CheminData.cfg".
/// False when the doctor gives up and the program ends. Throws `Erreur`.
bool DemandeCheminData(application::Contexte& contexte);

/// Settles `CheminTravail` for the chosen `TypeStockage`. Every give-up, and every failure,
/// ends in work on the own disk with a message.
void RegleCheminTravail(application::Contexte& contexte);

} // namespace startup
