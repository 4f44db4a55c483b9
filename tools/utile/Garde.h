#pragma once

#include "Bilan.h"

#include <QDateTime>

class QFile;

namespace utile {

/// Where the former file of a database is kept: a path that nothing stands at.
QString CheminDeGarde(const BaseTrouvee& base, const QDateTime& moment);

/// Takes a kept path away that is another name of the database itself: a program was killed before the new
/// file took its place.
void RetireSecondsNoms(const BaseTrouvee& base);

/// A second name for the same file where the disk knows such; else a copy of the bytes read through
/// `fichier`, which is open. Never over another file. Throws `Erreur`.
void Garde(QFile& fichier, const QString& copie);

/// Copies the bytes, and the journal that lies beside. Throws `Erreur`.
void GardeAvecJournal(QFile& fichier, const QString& copie);

} // namespace utile
