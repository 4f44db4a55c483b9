#pragma once

#include "application/Contexte.h"
#include "startup/Chemins.h"

namespace startup {

/// Moves the databases that an installer left to `CheminData`. Throws `Erreur`.
void DeplaceInstallation(const Chemins& chemins);

/// Moves the directory "Commun" of an old layout to `CheminData`, with a word about it. Throws `Erreur`.
void DeplaceCommun(application::Contexte& contexte);

/// Deletes what only the start needs from `CheminData`. Failures are ignored.
void NettoieCheminData(const Chemins& chemins);

} // namespace startup
