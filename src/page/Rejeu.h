#pragma once

#include "page/Dessin.h"

class QPainter;

namespace page {

/// Replays a drawing with a painter. `unitesParMm` is the painter's resolution. Every character stands
/// where the surface measured it, so that all targets show the same sheet.
void Rejoue(const Dessin& dessin, QPainter& peintre, double unitesParMm);

} // namespace page
