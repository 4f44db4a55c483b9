#pragma once

#include "application/Contexte.h"

#include <QStringList>

namespace startup {

/// The font names that the current doctor's documents are printed in, each once, in the order of the sheet:
/// letterhead, medication and posology lines, certificates, the word on the copies.
QStringList PolicesDesDocuments(application::Contexte& contexte);

/// Tells once for each doctor and run which of them this computer lacks, and what prints instead.
void SignalePolices(application::Contexte& contexte);

} // namespace startup
