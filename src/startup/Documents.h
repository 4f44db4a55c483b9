#pragma once

#include "application/Contexte.h"

namespace startup {

/// Opens "Ordo.hlp" of the program directory; says when it is missing or nothing opens it.
void OuvreAide(application::Contexte& contexte);
/// The same for "Aide.pdf".
void OuvreNouvelleAide(application::Contexte& contexte);
/// Begins a message about this version in the user's own mail program; says when there is none.
void EcritUnMessage(application::Contexte& contexte);

} // namespace startup
