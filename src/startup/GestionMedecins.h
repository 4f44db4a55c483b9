#pragma once

#include "application/Contexte.h"

#include <QString>

namespace startup {

/// Reads "Medecin.ini" of `CheminData` into the list. A missing file leaves it empty.
void LitMedecins(application::Contexte& contexte);

/// Makes the doctor of that row of the list the current one, with his settings and database. Every
/// change of doctor of the program comes here. -1, or an empty list, changes nothing.
void ChangeMedecin(application::Contexte& contexte, int rang);

/// True with a current doctor; otherwise shows "Choisissez d'abord un médecin utilisateur.".
bool ExigeMedecin(application::Contexte& contexte);

} // namespace startup
