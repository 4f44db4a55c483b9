#pragma once

#include "settings/Entete.h"

namespace settings {

/// A plain letterhead from what is known of the doctor: his name as the list bears it ("DR NEIBRE"), in bold,
/// and his profession. Address, telephone and foot stay without text; nothing else may stand on paper.
RangsEntete RangsProposes(const QString& nomMedecin);

/// The name of the current doctor as the lists bear it.
QString NomDuMedecinCourant(const application::Contexte& contexte);

/// Whether that letterhead is to be offered: there is a doctor, his stored rows still bear the texts of first
/// use, and he has not declined.
bool EnteteAProposer(const application::Contexte& contexte, const QList<page::LigneEntete>& lignes);

/// Stores the letterhead offered, unless another one was stored meanwhile. A failure is told; false then.
bool UtiliseEntete(application::Contexte& contexte);

/// It is offered to this doctor no more: remembered in "EntetePropose.cfg" of his directory. A failure is
/// told; false then.
bool LaisseEntete(application::Contexte& contexte);

} // namespace settings
