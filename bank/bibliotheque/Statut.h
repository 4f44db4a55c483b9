#pragma once

#include "drugbank/InterfaceBanque.h"

namespace banque::bibliotheque {

using drugbank::Entier;

/// What a start answers. None of the failures bears a number that a program gives itself.
constexpr Entier kPrete = 0;
constexpr Entier kFichierAbsent = 1;    ///< no file there, or a drive that does not answer
constexpr Entier kFichierIllisible = 2; ///< no bank, or a damaged one
constexpr Entier kAutreVersion = 3;     ///< a bank of another layout
constexpr Entier kEchec = 4;            ///< anything else: no memory, no database engine
constexpr Entier kDemandeVide = 5;      ///< nowhere to write the answer, or no such session
constexpr Entier kDemarrage = 14;       ///< still starting

} // namespace banque::bibliotheque
