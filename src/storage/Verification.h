#pragma once

#include <QString>

namespace storage {

class Base;

/// Throws `Erreur` unless a readable SQLite file stands at that path. Opens it for reading only.
void VerifieFichier(const QString& chemin);

/// Throws `Erreur` unless the open database is ours, of its kind and version, with every table's columns
/// in their order, and undamaged as far as that can be seen quickly.
void VerifieContenu(Base& base);

/// Adds the indexes that a file made by an earlier version lacks. One that cannot be added, as in a file
/// that is only to be read, stays missing.
void CompleteIndexes(Base& base);

} // namespace storage
