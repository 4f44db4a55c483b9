#pragma once

#include "application/Contexte.h"
#include "page/Peintres.h"

namespace prescription {

/// Sheets of the job: one for a certificate, else 2 with `ChkDup`, 3 with `ChkTri`, 1 otherwise.
quint8 NombreDeCopies(const Ordonnance& ordonnance, quint8 modeApercu);

/// Paints the one sheet of a certificate: letterhead, certificate, footer.
page::Dessin PeintFeuilletCertificat(page::Modele& modele, const QImage& logo,
                                     application::Contexte& contexte, const QString& texte);

/// Paints the sheets of one job: letterhead, patient, body. Each sheet behind the first bears the mark of
/// the copies, if it is active, before its own content. `LigneJournal` is that of the last sheet.
QList<page::Dessin> PeintFeuillets(page::Modele& modele, const QImage& logo, int nombre,
                                   outside::Boites& boites);

} // namespace prescription
