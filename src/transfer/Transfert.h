#pragma once

#include "application/Contexte.h"
#include "transfer/CopieArbre.h"

namespace transfer {

/// `mnuTransfertDonn`: asks for source and destination, copies and says what became of it. Answers true when
/// the program is to end, the data being those of the destination from the next start on.
bool TransfereDonnees(application::Contexte& contexte, const Avancement& avancement);

/// `mnuRepare` up to the doctor's answer: true when the program is to end and the repair program to start.
bool DemandeReparation(application::Contexte& contexte);

/// Closes the databases and starts the repair program of the program's directory; says when it cannot.
void LanceReparation(application::Contexte& contexte);

} // namespace transfer
