#include "bank/Thesaurus.h"
#include "bank/ThesaurusLiens.h"

#include <cstdlib>

using namespace banque;

/// Any text gives entries and pairs that hold together.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t taille)
{
    const Thesaurus lu =
        LitThesaurus(QByteArrayView(reinterpret_cast<const char*>(octets), static_cast<qsizetype>(taille)));
    const auto connue = [&](int place) { return place >= 0 && place < lu.Entrees.size(); };
    for (const Interaction& une : lu.Interactions) {
        if (!connue(une.A) || !connue(une.B) || int(une.Niveau) < 0 || int(une.Niveau) > 3) {
            std::abort();
        }
    }
    for (const auto& [classe, membre] : lu.Appartenances) {
        if (!connue(classe) || !connue(membre) || classe == membre) {
            std::abort();
        }
    }
    if (lu.Bilan.Lues < lu.Interactions.size() || lu.ParCle.size() != lu.Entrees.size()) {
        std::abort();
    }
    for (auto classe : MembresDesClasses(lu)) {
        if (classe.size() > lu.Entrees.size()) {
            std::abort();
        }
    }
    return 0;
}
