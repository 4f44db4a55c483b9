#pragma once

#include "upgrade/Source.h"
#include "upgrade/Suivi.h"

namespace upgrade {

/// Fills the template `copie` with the rows of the old "Medoc.mdb"; the patients of very old trees stand in
/// the "Ordo.mdb" of the root, null where there is none. Tables and columns that are missing leave theirs
/// empty; any other failure throws `Erreur`, and the template is worth nothing then. True when birth dates
/// were repaired.
bool RecopieMedoc(const QString& copie, const Source& medoc, const Source* racine, Suivi& suivi);

} // namespace upgrade
