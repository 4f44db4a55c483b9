#pragma once

#include <QVariantList>

namespace scenario {

// Tables of a database file, read and written apart from the program. Each throws `Echec`.

/// The rows in stored order, each a list of values by column position, null as null.
QVariantList LitTable(const QString& chemin, const QString& table);
/// Stores one row, a value for each column; those that are not given are null.
void AjouteRangee(const QString& chemin, const QString& table, const QVariantList& valeurs);
/// Removes all rows.
void VideTable(const QString& chemin, const QString& table);

} // namespace scenario
