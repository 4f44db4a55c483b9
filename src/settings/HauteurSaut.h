#pragma once

#include "outside/Boites.h"
#include "settings/Reglages.h"

#include <optional>

namespace settings {

/// A measure as the doctor reads it, with a comma: "12,5".
QString TexteMesure(float millimetres);

/// The text with a comma for each point.
QString AVirgule(QString nombre);

/// The height in millimetres that a text gives, with a comma or a point; nothing unless it is a number from
/// 0 to 297.
std::optional<float> LitHauteurSaut(const QString& texte);

/// What `TxtSLP` shows when the doctor's settings are read.
QString TexteSautPersonnalise(const Reglages& reglages);

/// Asks for the personal height. On an answer it is in force, in `TxtSLP` too. False on an empty answer, on
/// Cancel and, after its message, on one that is no height: nothing changed then.
bool DemandeHauteurSaut(Reglages& reglages, outside::Boites& boites);

} // namespace settings
