#pragma once

#include "scenario/Commande.h"
#include "scenario/Programme.h"

namespace scenario {

/// The whole of the runner's `main`: watches the files of the command, or plays the one in this process.
int Principal(int argc, char** argv, Fabrique& fabrique);

} // namespace scenario
