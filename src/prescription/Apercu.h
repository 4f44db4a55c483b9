#pragma once

#include "page/Dessin.h"

namespace prescription {

/// What the editor shows.
struct Apercu
{
    quint8 ModeApercu =
        0; ///< 0 a prescription, 1 a certificate, 2 back from the certificate to the medications
    quint8 DispositionFaite = 0; ///< 1 once the editor was activated with a drug bank in use
    page::Dessin PctOrdo;        ///< the sheet on the screen
};

/// The state of printing in this run.
struct Impression
{
    quint8 EtatImprimante = 0; ///< 0 not confirmed, 1 confirmed just now, 2 first job thrown away
    quint8 NbCopies = 1;       ///< sheets of the job
};

} // namespace prescription
