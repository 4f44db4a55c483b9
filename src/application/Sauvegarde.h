#pragma once

#include "application/Contexte.h"

#include <QString>

namespace application {

/// The prescription in hand as a plain text: patient, date, then the entries of each zone in their order,
/// markers included. Empty when there is no entry.
QString TexteOrdonnance(const Contexte& contexte);

/// Keeps the prescription in hand in "Ordonnance sauvegardee.txt" of `CheminTravail`, or of `CheminData`
/// while the first is not settled, as UTF-8 with its mark. Gives the file's path, empty when there was
/// nothing to keep. Throws `Erreur` when it cannot be written.
QString SauveOrdonnance(const Contexte& contexte);

/// The same, and what a box adds about it, "" when there is none in hand. A failure is part of the text.
QString ConserveOrdonnance(const Contexte& contexte);

/// What the doctor reads when a failure ends the program; the prescription is kept and the databases
/// are closed on the way.
QString FermeSurErreur(Contexte& contexte, const QString& phrase, const QString& lieu);

} // namespace application
