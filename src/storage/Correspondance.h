#pragma once

#include "storage/Schema.h"

namespace storage {

/// For each column of a table of ours the place among `presentes` that holds it, -1 for none. Columns whose
/// names are all known, in their order, are found by name; others by their position, which is what the format
/// goes by.
QList<qsizetype> Places(const Table& voulue, const QStringList& presentes);

} // namespace storage
