#pragma once

#include "application/Contexte.h"
#include "bank/Importateur.h"

namespace drugbank {

/// Why an update cannot begin; empty when it can.
QString RefusDeLaMaj(const banque::Demande& demande);

/// Closes the session on the open bank, so that its file can be replaced; the next use of the bank opens it
/// anew, and the picker fills its tree again. Another bank's session stays.
void LibereBanquePublique(application::Contexte& contexte);

} // namespace drugbank
