#include "storage/Completion.h"

#include "storage/Base.h"
#include "storage/Correspondance.h"
#include "storage/Schema.h"
#include "storage/Verification.h"

#include <algorithm>

namespace storage {

namespace {

QStringList Noms(const Table& table)
{
    QStringList noms;
    for (const Colonne& colonne : table.Colonnes) {
        noms.append(colonne.Nom);
    }
    return noms;
}

/// An index keeps its name with the table that it stands on: the rebuilt one could not have its own.
void RetireIndexes(Base& base, const QString& table)
{
    for (const Index& index : Indexes(base.Genre())) {
        if (index.Table == table) {
            base.Execute(QStringLiteral("drop index if exists ") + Cite(index.Nom));
        }
    }
}

/// Gives whether every column of the former table found its place.
bool CopieLignes(Base& base, const Table& table, const Table& presente, const QString& ancien)
{
    const QList<qsizetype> places = Places(table, Noms(presente));
    QStringList vers;
    QStringList depuis;
    for (qsizetype i = 0; i < places.size(); ++i) {
        if (places[i] >= 0) {
            vers.append(Cite(table.Colonnes[i].Nom));
            depuis.append(Cite(presente.Colonnes[places[i]].Nom));
        }
    }
    base.Execute(QStringLiteral("insert into %1 (%2) select %3 from %4 order by rowid")
                     .arg(Cite(table.Nom), vers.join(u','), depuis.join(u','), Cite(ancien)));
    return vers.size() == presente.Colonnes.size();
}

/// The counter goes on from where it stood, also behind rows that were deleted.
void ReprendCompteur(Base& base, const Table& table, const QString& ancien)
{
    const auto compteur = [](const Colonne& colonne) { return colonne.Type == TypeColonne::Compteur; };
    if (std::ranges::any_of(table.Colonnes, compteur)) {
        base.Execute(QStringLiteral("delete from sqlite_sequence where name = ? and exists "
                                    "(select 1 from sqlite_sequence where name = ?)"),
                     {table.Nom, ancien});
        base.Execute(QStringLiteral("insert into sqlite_sequence (name, seq) "
                                    "select ?, seq from sqlite_sequence where name = ?"),
                     {table.Nom, ancien});
    }
}

void Refait(Base& base, const Table& table, const Table& presente)
{
    const QString ancien = table.Nom + QStringLiteral(" (ancien)");
    base.Execute(QStringLiteral("alter table %1 rename to %2").arg(Cite(table.Nom), Cite(ancien)));
    RetireIndexes(base, table.Nom);
    base.Execute(CreeTableSql(table));
    const bool entiere = CopieLignes(base, table, presente, ancien);
    ReprendCompteur(base, table, ancien);
    if (entiere) {
        base.Execute(QStringLiteral("drop table ") + Cite(ancien));
    }
}

void CompleteTable(Base& base, const QList<Table>& presentes, const Table& table)
{
    const auto presente = std::ranges::find(presentes, table.Nom, &Table::Nom);
    if (presente == presentes.end()) {
        base.Execute(CreeTableSql(table));
    } else if (*presente != table) {
        Refait(base, table, *presente);
    }
}

} // namespace

void CompleteDisposition(Base& base)
{
    if (VersionDuFichier(base) == kVersionSchema) {
        return;
    }
    Transaction transaction(base);
    const QList<Table> presentes = TablesDuFichier(base);
    for (const Table& table : Tables(base.Genre())) {
        CompleteTable(base, presentes, table);
    }
    base.Execute(QStringLiteral("pragma user_version = %1").arg(kVersionSchema));
    transaction.Valide();
}

} // namespace storage
