#pragma once

#include "storage/Schema.h"

namespace storage {

class Base;

/// Throws `Erreur` unless a readable SQLite file stands at that path. Opens it for reading only.
void VerifieFichier(const QString& chemin);

/// Throws `Erreur` unless the open database is ours, of its kind, of this version or an earlier one, and
/// undamaged as far as that can be seen quickly.
void VerifieContenu(Base& base);

/// Reads every page of it, whatever its size. Throws `Erreur` when one is damaged.
void VerifieEnEntier(Base& base);

/// Throws `Erreur` unless it has every table of the current layout, with its columns in their order.
void VerifieTables(Base& base);

/// The version of the layout that the file is marked with; 0 for an older one.
int VersionDuFichier(Base& base);

/// The tables and columns that the file has, in its own order.
QList<Table> TablesDuFichier(Base& base);

/// Adds the indexes that a file made by an earlier version lacks. One that cannot be added, as in a file
/// that is only to be read, stays missing.
void CompleteIndexes(Base& base);

} // namespace storage
