#pragma once

#include "page/Surface.h"
#include "prescription/Ordonnance.h"
#include "settings/Reglages.h"

namespace page {

/// The parts of a prescription's body, in the order of the page. Each leaves the pen where its last
/// line ends; `PeintOrdo` calls them.

/// What one painting of the body carries from entry to entry.
struct SuiteDuCorps
{
    int Numero = 0; ///< running number of the last medication; it goes on over both zones
    QString Titres; ///< every title printed so far, each with "*" behind
};

/// The gap between two entries: a height of the doctor's own, or a line.
void SauteIntervalle(Surface& cible, const settings::Reglages& reglages);

/// One entry: number, title, posology and the gaps behind it.
void PeintEntree(Surface& cible, const prescription::Entree& entree, const settings::Reglages& reglages,
                 SuiteDuCorps& suite);

/// The headings of a two-zone page. They leave the origin on the sheet's corner.
void PeintTitreZone1(Surface& cible, const settings::Reglages& reglages);
void PeintTitreZone2(Surface& cible, const settings::Reglages& reglages);

/// The count of medications at the foot of the page, its number in a box.
void PeintNombre(Surface& cible, int nombre, const settings::Reglages& reglages);

} // namespace page
