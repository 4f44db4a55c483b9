#pragma once

#include "upgrade/Source.h"
#include "upgrade/Suivi.h"

namespace upgrade {

/// The rows of an old `Entete`, from which the row of the electronic signature is missing.
inline constexpr qint64 kLignesEnteteAnciennes = 23;

/// Fills the template `copie` with the rows of a doctor's old "Ordo.mdb". Tables that are missing leave
/// theirs empty; any other failure throws `Erreur`, and the template is worth nothing then. True when the
/// letterhead got the row of the signature, which is to be filled in.
bool RecopieOrdo(const QString& copie, const Source& ordo, Suivi& suivi);

} // namespace upgrade
