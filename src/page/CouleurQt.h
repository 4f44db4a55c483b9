#pragma once

#include "page/Police.h"

#include <QColor>

namespace page {

/// The colour as Qt draws it; bits beyond blue are dropped.
inline QColor CouleurQt(Couleur couleur)
{
    constexpr Couleur kOctet = 0xFF;
    return QColor(static_cast<int>(couleur & kOctet), static_cast<int>(couleur >> 8 & kOctet),
                  static_cast<int>(couleur >> 16 & kOctet));
}

} // namespace page
