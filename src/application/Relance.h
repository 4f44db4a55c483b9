#pragma once

#include "application/Contexte.h"

namespace application {

/// Starts the program once more, before this one ends; the databases are closed. Says when it cannot.
void Relance(Contexte& contexte);

} // namespace application
