#pragma once

#include <cstdint>
#include <span>

namespace jet {

/// Bytes of a page or of a value.
using Octets = std::span<const unsigned char>;

/// The little-endian number at a place. The caller has checked that it lies inside.
inline std::uint32_t Nombre(const unsigned char* place, int octets)
{
    std::uint32_t nombre = 0;
    for (int i = 0; i < octets; ++i) {
        nombre |= static_cast<std::uint32_t>(place[i]) << (8 * i);
    }
    return nombre;
}

} // namespace jet
