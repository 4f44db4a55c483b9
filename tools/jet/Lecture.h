#pragma once

#include "storage/Genre.h"

namespace jet {

/// Turns a Jet file into a draft of ours and tells on the standard output how far it is. Throws.
void Convertit(const char* chemin, const char* ebauche, storage::GenreBase genre);

} // namespace jet
