#pragma once

#include "application/Contexte.h"

namespace startup {

/// Brings the start with the system in line with `LanceDemarrage`.
void RegleDemarrageSysteme(application::Contexte& contexte);

} // namespace startup
