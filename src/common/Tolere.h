#pragma once

#include "common/Erreur.h"

namespace common {

/// Runs one statement whose failure is to be ignored; each use says why.
/// Returns false when it failed. Only `Erreur` is tolerated: a defect of the program still shows.
template <typename Instruction> bool Tolere(Instruction&& instruction)
{
    try {
        instruction();
        return true;
    } catch (const Erreur&) {
        return false;
    }
}

} // namespace common
