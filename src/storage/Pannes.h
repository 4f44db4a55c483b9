#pragma once

#include "common/Erreur.h"

class QSqlError;

namespace storage {

/// The failure of a statement or of an opening in the doctor's words, for the database at that path.
common::Erreur Panne(const QSqlError& erreur, const QString& chemin);

/// A failure that we found ourselves: `message` is one of the sentences that take a file's name.
common::Erreur Panne(QString (*message)(const QString& nom), const QString& chemin);

} // namespace storage
