#pragma once

#include "application/Contexte.h"
#include "page/Peintres.h"

namespace prescription {

/// The painters' model over the state of the run. The header rows are read from the doctor's database
/// into `entete`, which must outlive the model; a base that cannot be read leaves them empty.
page::Modele ModelePage(application::Contexte& contexte, QList<page::LigneEntete>& entete);

/// The picture of `FichierLogo`, null when the file is none or is out of all measure.
QImage ChargeLogo(const settings::Options& options);

/// What to tell the doctor when a logo is wanted and its file gives no picture; empty when all is well.
QString DefautDuLogo(const settings::Options& options);

/// Clears the preview.
void EffaceApercu(application::Contexte& contexte);

/// Clears the preview and paints the document in hand on it: patient block and body, or the certificate,
/// whose text may be missing.
void Repeint(application::Contexte& contexte);

/// Clears the preview and paints the patient block alone.
void RepeintPatient(application::Contexte& contexte);

/// The whole of `CmdNouvelle` but its window: document, lines, counters and preview are emptied,
/// `DateOrdo` is today. The doctor test is the caller's.
void VideDocument(application::Contexte& contexte);

/// `mnuHauteurP` and `mnuHauteurN`, with the doctor test, the box, the files and the repainting.
void FixeHauteurPersonnelle(application::Contexte& contexte);
void RetablitHauteurNormale(application::Contexte& contexte);

} // namespace prescription
