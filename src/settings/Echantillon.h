#pragma once

#include "page/Surface.h"
#include "settings/Reglages.h"

namespace settings {

/// Writes the two sample prescriptions of `FrmConfOrdo.PctMeP` as the settings place them: the left margin
/// at half its size, the rest at its own.
void PeintEchantillon(page::Surface& cible, const Reglages& reglages);

/// The sample on its paper, about half of a sheet wide, which grows with what is written on it up to a whole
/// sheet.
page::Dessin DessinEchantillon(const Reglages& reglages);

} // namespace settings
