#pragma once

#include "application/Contexte.h"

namespace prescription {

/// Puts the document in hand on paper: one job of one to three sheets on the chosen printer, then a line
/// in the journal if one is kept. Asks before lines are lost at the sheet's bottom, and tells of a printer
/// that has gone, of a failed job and of a failed journal. The first job behind the confirmation of the
/// printer is painted twice, abandoned once and printed once. The doctor test is the caller's.
/// True when the job went to the printer.
bool ImprimeDocument(application::Contexte& contexte);

} // namespace prescription
