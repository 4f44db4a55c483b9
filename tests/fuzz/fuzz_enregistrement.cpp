#include "settings/ChampsReglages.h"
#include "settings/Enregistrement.h"
#include "settings/Reglages.h"

using namespace settings;

namespace {

/// What was read can be written and comes back the same.
template <typename Struct> void Verifie(QByteArrayView octets, auto champs)
{
    Struct lu;
    const Lecture etat = LitChamps(octets, champs(lu));
    Struct relu;
    const Lecture relecture = LitChamps(TexteEnregistrement(champs(lu)), champs(relu));
    const bool memes = TexteEnregistrement(champs(relu)) == TexteEnregistrement(champs(lu));
    if (etat == Lecture::Absente || relecture != Lecture::Complete || !memes) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t taille)
{
    const QByteArrayView vue(octets, static_cast<qsizetype>(taille));
    Verifie<Options>(vue, [](auto& o) { return ChampsOptions(o); });
    Verifie<Marges>(vue, [](auto& m) { return ChampsMarges(m); });
    Verifie<Dupli>(vue, [](auto& d) { return ChampsDupli(d); });
    return 0;
}
