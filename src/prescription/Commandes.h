#pragma once

#include "application/Contexte.h"

namespace prescription {

/// `CmdNouvelle` before its window: the document is emptied, its date is today. False without a doctor,
/// after the message.
bool CommenceOrdonnance(application::Contexte& contexte);

/// `CmdDate`: asks for the date of the document until the answer is empty, "0" or of ten characters.
/// An empty answer is today and repaints nothing; "0" takes the date off the page.
void DemandeDate(application::Contexte& contexte);

/// `CmdPharma` before its window: the preview is emptied and shows prescriptions from now on.
void RevientAuxMedicaments(application::Contexte& contexte);

/// `CboMed`: another doctor takes over, his settings are read, the preview is emptied. -1, or a row that
/// the list does not have, changes nothing. In the active editor his bank is opened.
void ChangeMedecinDeLEditeur(application::Contexte& contexte, int rang, bool editeurActif = false);

/// At an activation of the editor: the session of a bank in use is opened, once.
void OuvreLaBanque(application::Contexte& contexte);

/// `ChkCiv`: the name on the page with or without its civility.
void ImprimeCivilite(application::Contexte& contexte, bool oui);

/// Where the preview meets the bottom of the printed sheet, in millimetres from its top; 0 when the whole
/// body, or certificate, stands on the sheet. It begins lower on paper than on the preview.
double BasDeLaFeuille(application::Contexte& contexte);

} // namespace prescription
