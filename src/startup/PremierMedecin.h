#pragma once

#include "application/Contexte.h"

namespace startup {

/// Inscribes the first doctor of an installation in `CheminData`. False when the doctor gives up and
/// the program ends. Throws `Erreur`.
bool InscritPremierMedecin(application::Contexte& contexte);

} // namespace startup
