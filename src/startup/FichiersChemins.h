#pragma once

#include "settings/Enregistrement.h"
#include "startup/Chemins.h"
#include "startup/Medecins.h"

namespace startup {

/// "CheminData.cfg" of `CheminInstallation`. A missing or damaged file leaves `CheminData` empty.
void LitCheminData(Chemins& chemins);
/// Throws `Erreur`.
void EcritCheminData(const Chemins& chemins);

/// "CheminBase.cfg" of `CheminInstallation`: `IndexStockage`, `CheminBase`, `NumMedecinDefaut`. Fields that
/// a short or damaged file does not give keep what they had.
settings::Lecture LitCheminBase(Chemins& chemins, Medecins& medecins);
/// Throws `Erreur`.
void EcritCheminBase(const Chemins& chemins, const Medecins& medecins);

} // namespace startup
