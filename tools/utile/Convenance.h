#pragma once

#include "PagesSqlite.h"

#include "storage/Schema.h"

namespace utile {

/// Whether a row of these fields can be one of that table.
bool Convient(const storage::Table& table, const Champs& champs);

/// The same of a row that may have been written before columns were added. One with fewer columns than the
/// fields is never it; a table without a name says nothing of its columns but their number.
bool PeutEtreDe(const storage::Table& table, const Champs& champs);

} // namespace utile
