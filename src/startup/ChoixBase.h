#pragma once

#include "application/Contexte.h"

#include <QStringList>

namespace startup {

/// The rows of `CboBase`.
QStringList LignesCboBase();

/// Selection in `CboBase`.
void ChoisitStockage(application::Contexte& contexte, int rang);

/// Selection in `CboMed`.
void ChoisitMedecinDuJour(application::Contexte& contexte, int rang);

/// What `FrmChoixBase` does after `CmdSuite`.
enum class SuiteChoix { Reste, Poursuit, Termine };

/// `CmdSuite` with that row of `CboBase` selected, -1 for none: asks, or writes "CheminBase.cfg" and
/// sets `TypeStockage`. A file that cannot be written is told, and the choice holds for this run.
SuiteChoix ValideChoixBase(application::Contexte& contexte, int rang);

} // namespace startup
