#pragma once

#include "application/Contexte.h"

namespace prescription {

/// `CmdEnr`: refuses without a doctor, a certificate and an empty prescription, each with its message;
/// keeping a prescription is not available yet, and that is said.
void MemoriseOrdonnance(application::Contexte& contexte);

/// `CmdSupp`: refuses without a doctor, a certificate and a prescription that is not a memorised one.
void SupprimeOrdonnanceMemorisee(application::Contexte& contexte);

} // namespace prescription
