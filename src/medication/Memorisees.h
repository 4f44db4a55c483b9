#pragma once

#include "application/Contexte.h"
#include "prescription/OrdosMemorisees.h"

/// `LblOrdoMem` around its window.
namespace medication {

/// The prescriptions on offer, for all patients and for this one; the message when there is none. The codes
/// of an earlier loading are forgotten. Throws `Erreur`.
QList<prescription::Memorisee> PrepareMemorisees(application::Contexte& contexte);

/// Whether the page shows lines of a second zone.
bool MontreZone2(const prescription::Ordonnance& ordonnance);
/// A prescription of one zone was loaded behind lines in hand: says that those of the second zone, shown
/// before, are not on the page any more.
void SignaleZone2Cachee(application::Contexte& contexte, bool montreeAvant);

/// In bank mode, when the prescription just loaded holds lines of an old version: asks whether they are to
/// be converted. True when the doctor wants to empty the lines and choose it again. Throws `Erreur`.
bool ProposeConversion(application::Contexte& contexte);

} // namespace medication
