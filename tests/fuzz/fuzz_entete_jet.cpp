#include "storage/EnteteJet.h"

#include <cstdlib>

using storage::FormatDeLEntete;
using storage::FormatJet;

/// Only a file whose first bytes bear the name of that engine is taken for one of its own, and a piece of one
/// is never read.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t taille)
{
    const QByteArray debut(reinterpret_cast<const char*>(octets), static_cast<qsizetype>(taille));
    const bool nomme = debut.mid(4, 15) == "Standard Jet DB" || debut.mid(4, 15) == "Standard ACE DB";
    if ((FormatDeLEntete(debut, debut.size()) != FormatJet::Aucun) != nomme) {
        std::abort();
    }
    if (FormatDeLEntete(debut, 4096 * 3 + 1) == FormatJet::Lisible) {
        std::abort();
    }
    return 0;
}
