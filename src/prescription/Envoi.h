#pragma once

#include "application/Contexte.h"
#include "outside/Imprimantes.h"

namespace startup {
struct Chemins;
}

namespace prescription {

/// The doctor's printer while the system has it, else the system's default one.
QString ImprimanteEnUsage(application::Contexte& contexte);

/// What the editor shows while the chosen printer has gone: its name and the one that prints instead. Empty
/// otherwise.
QString AvisImprimante(application::Contexte& contexte);

/// Where "Fichier PDF" writes.
QString DossierPdf(const startup::Chemins& chemins);

/// Sends a job to a printer. A failure is told; false then.
bool Envoie(application::Contexte& contexte, const QString& imprimante, const outside::Travail& travail);

} // namespace prescription
