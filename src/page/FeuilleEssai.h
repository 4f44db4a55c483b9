#pragma once

#include "page/Peintres.h"

namespace page {

/// The whole first sheet of a sample prescription, as it would come out of the printer with these settings
/// and these letterhead rows: letterhead, patient block, body. The designers show it while the doctor types.
Dessin FeuilleEssai(const settings::Reglages& reglages, const QList<LigneEntete>& entete, const QImage& logo,
                    const QDate& aujourdhui, outside::Boites& boites);

} // namespace page
