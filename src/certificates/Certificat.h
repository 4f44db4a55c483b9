#pragma once

#include <QString>

namespace certificates {

/// The certificate in hand.
struct Certificat
{
    double DecalageCertif = 0; ///< millimetres
    quint8 IdentiteCertif = 0; ///< 1: the patient block is printed above it
};

} // namespace certificates
