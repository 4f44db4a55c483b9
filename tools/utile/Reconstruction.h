#pragma once

#include "Bilan.h"
#include "Releve.h"

namespace utile {

/// Makes a new, compact database of the current layout at `ebauche` from all rows of a `Releve`, in stored
/// order and with their keys, and gives what was kept of each table. Throws `Erreur`; what stands at
/// `ebauche` then is worth nothing.
QList<BilanTable> Reconstruit(const PagesSqlite& pages, const Releve& releve, const QString& ebauche,
                              storage::GenreBase genre);

} // namespace utile
