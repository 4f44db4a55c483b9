#pragma once

#include "application/Contexte.h"

namespace prescription {

/// `CmdEnr`: refuses without a doctor, a certificate and an empty prescription, each with its message, then
/// asks and stores the prescription in hand under its title or a new one. A failure is told, and nothing
/// is changed.
void MemoriseOrdonnance(application::Contexte& contexte);

/// `CmdSupp`: refuses without a doctor, a certificate and a prescription that is not a memorised one, then
/// asks and deletes it. True when the prescription in hand is to be given up for a new one. A failure is
/// told, and nothing is changed.
bool SupprimeOrdonnanceMemorisee(application::Contexte& contexte);

} // namespace prescription
