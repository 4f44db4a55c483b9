#pragma once

#include "drugbank/InterfaceBanque.h"

#include <QtGlobal>

namespace drugbank {

/// Every function of the library with the type that the interface gives it: a definition that differs does
/// not compile, one that is missing does not link.
#define DECLARE(nom, resultat, ...) extern "C" Q_DECL_EXPORT resultat DRUGBANK_APPEL nom(__VA_ARGS__);
DRUGBANK_FONCTIONS_BANQUE(DECLARE)

/// Chooses the bank file of the next start, in UTF-8; null or empty: `banque.sqlite` beside the library.
DECLARE(BanquePublique_choisitFichier, void, const char*)
#undef DECLARE

} // namespace drugbank
