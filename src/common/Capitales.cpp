#include "common/Capitales.h"

#include <algorithm>

namespace common {

namespace {

constexpr QChar kMicro(0xB5);
constexpr QChar kMuGrec(0x3BC);

} // namespace

QString EnCapitales(QString texte)
{
    std::ranges::transform(texte, texte.begin(),
                           [](QChar c) { return c == kMicro || c == kMuGrec ? c : c.toUpper(); });
    return texte;
}

} // namespace common
