#pragma once

#include "storage/Base.h"
#include "upgrade/Source.h"
#include "upgrade/Suivi.h"

#include <QStringList>
#include <memory>

namespace upgrade {

/// A template that receives the rows of old databases, in one transaction. Its indexes are made at the end,
/// and nothing is kept beside it on the disk: a template half filled is thrown away.
class Recopie
{
public:
    /// Opens the template and lets it see the sources, as "source0", "source1" in their order. Throws
    /// `Erreur`.
    Recopie(const QString& copie, storage::GenreBase genre, const QList<const Source*>& sources,
            Suivi& suivi);

    storage::Base& Base() { return base_; }
    const storage::Table& Destination(const QString& nom) const { return *base_.ChercheTable(nom); }

    /// Copies all the rows of a table of that source in stored order; `champs` are the columns of the new
    /// table from the first on, as pieces of a statement over the row "s".
    void Copie(int source, const storage::Table& depuis, const QString& vers, const QStringList& champs);
    /// Runs one statement.
    void Execute(const QString& instruction, const QVariantList& valeurs = {});
    /// The whole number that a select gives.
    qint64 Nombre(const QString& select);

    /// Makes the indexes and stores everything.
    void Valide();

private:
    /// Beyond so many rows a table goes over in stretches, so that the windows are painted.
    static constexpr qint64 kTranche = 100000;

    void RetireIndexes();

    Suivi& suivi_;
    storage::Base base_;
    std::unique_ptr<storage::Transaction> transaction_;
};

/// "source0."Nom"": a table of a source as a statement names it.
QString TableDe(int source, const storage::Table& table);

/// The first names of the columns of a table, parted by commas.
QString Colonnes(const storage::Table& table, qsizetype nombre);

} // namespace upgrade
