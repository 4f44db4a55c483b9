#pragma once

#include "storage/Base.h"

#include <QByteArray>
#include <QHash>

namespace upgrade {

/// A database that the upgrade reads, as it was found: its tables and what tells whether it changed since.
class Source
{
public:
    /// Opens the database whatever its layout, tries that nobody else is writing it and that it can be
    /// written, and closes it. Throws `Erreur`.
    Source(const QString& chemin, storage::GenreBase genre);

    const QString& Chemin() const { return chemin_; }
    /// The table of that name in capitals or small letters, or null.
    const storage::Table* ChercheTable(const QString& nom) const;
    /// The rows of all its tables.
    qint64 Lignes() const;
    qint64 Lignes(const storage::Table& table) const { return lignes_.value(table.Nom); }
    /// Throws `Erreur` when another station has written the file since.
    void ExigeInchangee() const;

private:
    QString chemin_;
    QList<storage::Table> tables_;
    QHash<QString, qint64> lignes_;
    QByteArray empreinte_;
};

} // namespace upgrade
