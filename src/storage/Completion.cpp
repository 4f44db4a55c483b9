#include "storage/Completion.h"

#include "storage/Base.h"
#include "storage/Schema.h"
#include "storage/Verification.h"

#include <algorithm>

namespace storage {

namespace {

bool MemeNom(const Colonne& une, const Colonne& autre)
{
    return une.Nom.compare(autre.Nom, Qt::CaseInsensitive) == 0;
}

/// For each column of `voulue` the place in `presente` that holds it, -1 for none. Columns whose names are
/// all known, in their order, are found by name; others by their position, which is what the format goes by.
QList<qsizetype> Places(const Table& voulue, const Table& presente)
{
    QList<qsizetype> places(voulue.Colonnes.size(), -1);
    qsizetype suivante = 0;
    for (qsizetype i = 0; i < places.size() && suivante < presente.Colonnes.size(); ++i) {
        if (MemeNom(voulue.Colonnes[i], presente.Colonnes[suivante])) {
            places[i] = suivante++;
        }
    }
    if (suivante < presente.Colonnes.size()) {
        for (qsizetype i = 0; i < places.size(); ++i) {
            places[i] = i < presente.Colonnes.size() ? i : -1;
        }
    }
    return places;
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
    const QList<qsizetype> places = Places(table, presente);
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
