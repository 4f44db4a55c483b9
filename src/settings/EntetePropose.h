#pragma once

#include "settings/Entete.h"

namespace settings {

/// `ModeEntete` of the letterhead offered: the address goes under the name.
constexpr quint8 kOrdrePropose = 1;

/// A plain letterhead from what is known of the doctor, the name that the list bears ("DR NEIBRE"): the
/// title, the name in bold, as large as it fits, and a rule of underscores. Address, telephone and foot stay
/// without text; nothing else may stand on paper.
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
