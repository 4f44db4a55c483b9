#pragma once

#include "application/Contexte.h"
#include "prescription/OrdosMemorisees.h"

/// `LblOrdoMem` around its window.
namespace medication {

/// The prescriptions on offer, for all patients and for this one; the message when there is none. The codes
/// of an earlier loading are forgotten. Throws `Erreur`.
QList<prescription::Memorisee> PrepareMemorisees(application::Contexte& contexte);

/// In bank mode, when the prescription just loaded holds lines of an old version: asks whether they are to
/// be converted. True when the doctor wants to empty the lines and choose it again. Throws `Erreur`.
bool ProposeConversion(application::Contexte& contexte);

} // namespace medication
