#include "bank/bibliotheque/Exports.h"

#include <iterator>

namespace drugbank {

namespace {

/// Takes every function by its address, so that the library does not link without it.
#define ADRESSE(nom, ...) reinterpret_cast<void (*)()>(&nom),
[[gnu::used]] void (*const kExportees[])() = {DRUGBANK_FONCTIONS_BANQUE(ADRESSE)};
#undef ADRESSE

static_assert(std::size(kExportees) == 72);

} // namespace

} // namespace drugbank
