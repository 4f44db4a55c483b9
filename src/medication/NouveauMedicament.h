#pragma once

#include "application/Contexte.h"
#include "medication/ListePersonnelle.h"
#include "medication/Noeud.h"

namespace medication {

/// Fills the list of `FrmNouveauM` from the personal pharmacy. The local mode leaves it empty.
void ChargePersonnelle(application::Contexte& contexte, ListePersonnelle& liste);

/// What `CmdOK` leaves to do in the window.
enum class FinNouveau {
    Refus,       ///< nothing is stored
    GardeSaisie, ///< stored in the local pharmacy: the boxes keep their text
    VideSaisie   ///< stored in the personal pharmacy: the boxes are emptied
};

/// `CmdOK`: stores a new medication, or a new title after the question on capitals, which joins the list.
FinNouveau EnregistreNouveau(application::Contexte& contexte, ListePersonnelle& liste, const Saisie& saisie);

/// F5 on a row of the list: asks, then deletes the title that the row stands for. The empty row has none.
void SupprimePersonnelle(application::Contexte& contexte, ListePersonnelle& liste, int rang);

} // namespace medication
