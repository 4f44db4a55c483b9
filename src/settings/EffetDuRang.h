#pragma once

#include "settings/RangsEntete.h"

namespace settings {

/// What a row of the letterhead does on paper, in a sentence for the doctor who stands in it: the sign it
/// ends with, or how it is shifted. `rang`: 0 to 23.
QString EffetDuRang(const RangsEntete& rangs, int rang);

} // namespace settings
