#pragma once

#include "application/Contexte.h"

#include <QString>

namespace startup {

struct Medecins;

/// Reads "Medecin.ini" of `CheminData` into the list; once per run, at the start. A missing file leaves
/// the list as it is.
void LitMedecins(application::Contexte& contexte);

/// The row of the doctor with that number, -1 without one.
int RangMedecin(const Medecins& medecins, int numero);

/// Makes the doctor of that row of the list the current one, with his settings and database. Every
/// change of doctor of the program comes here. A row outside the list changes nothing. A database
/// that cannot be read is told in a box; one that is absent is not, since a tree may be in preparation.
void ChangeMedecin(application::Contexte& contexte, int rang);

/// Says that the current doctor has no database in this tree; nothing when he has one. For the moments
/// where he begins to prescribe: his sheets would have no letterhead.
void DitBaseDuMedecinAbsente(application::Contexte& contexte);

/// True with a current doctor; otherwise shows "Choisissez d'abord un médecin utilisateur.".
bool ExigeMedecin(application::Contexte& contexte);

/// `CmdNouveau`: asks for a name, inscribes the doctor and switches to him.
void InscritMedecin(application::Contexte& contexte);

/// `CmdSupprime`: deletes the selected doctor after a question. What cannot be deleted is told of; he stays
/// in the list when "Medecin.ini" cannot be written.
void SupprimeMedecin(application::Contexte& contexte);

/// `CmdDefaut`: the selected doctor is the one selected at the next start. A file that cannot be written is
/// told of.
void PoseMedecinParDefaut(application::Contexte& contexte);

/// `CmdQuitter`: true when the window may unload.
bool QuitteMedecins(application::Contexte& contexte);

} // namespace startup
