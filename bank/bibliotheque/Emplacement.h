#pragma once

#include <QString>

namespace banque::bibliotheque {

/// The directory of the library's own file.
QString DossierDeLaBibliotheque();

/// Keeps the library in memory until the process ends, however often it is unloaded: a start on its thread
/// must not lose its code, nor the end of the program the call that waits for it.
void RetiensLaBibliotheque();

} // namespace banque::bibliotheque
