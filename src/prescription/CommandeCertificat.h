#pragma once

#include "application/Contexte.h"

namespace prescription {

/// What `CmdCertif` opens next.
enum class EtapeCertificat {
    Arret,
    Patient, ///< `FrmPatient`, then `PoursuitCertificat`
    Nouveau, ///< `FrmCertif` as it was left
    Reprise  ///< `FrmCertif` on the certificate of the page
};

/// `CmdCertif` up to its first window: asks whether the patient in hand is the one. Without a doctor nothing.
/// The preview shows certificates from now on, and is cleared before `FrmCertif` opens.
EtapeCertificat CommenceCertificat(application::Contexte& contexte);

/// The step behind `FrmPatient`. Without a patient the prescription comes back to the preview.
EtapeCertificat PoursuitCertificat(application::Contexte& contexte);

} // namespace prescription
