#pragma once

#include "page/Police.h"

#include <QString>

namespace certificates {

/// The certificate in hand.
struct Certificat
{
    double DecalageCertif = 0; ///< millimetres, in steps of 2
    quint8 CertifALD = 0;      ///< 1: the text is the two-zone sheet
    quint8 ChargeCertif = 0;   ///< 1 while a template is being loaded: `ChkALD` changes nothing then
    int IndexCertif = -1;      ///< row of the template in use when the text went to the page, -1 for none
    quint8 IdentiteCertif = 0; ///< 1: the patient block is printed above it
    /// The font of `TxtCert`: that of the zone headings on the page. The largest, by half points, in which
    /// each of their lines stands within 170 mm.
    page::Police TxtCert = {.Nom = QStringLiteral("Arial"), .Taille = 10};
};

} // namespace certificates
