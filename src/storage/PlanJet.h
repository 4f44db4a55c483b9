#pragma once

#include "storage/Schema.h"

#include <optional>

namespace storage {

/// What a column of a Jet file holds.
enum class TypeJet { OuiNon, Entier, Compteur, Simple, Double, Date, Texte, Autre };

/// A table of a Jet file.
struct TableJet
{
    struct Colonne
    {
        QString Nom;
        TypeJet Type = TypeJet::Autre;
    };

    QString Nom;
    QList<Colonne> Colonnes;
};

/// How the rows of a Jet table become rows of ours.
struct PlanJet
{
    storage::Table Table;     ///< our name, our columns; the types that the file has
    QList<qsizetype> Sources; ///< for each column of `Table` its place in the Jet table
};

/// The tables that a conversion of that kind of file takes: those of the current layout and those that older
/// ones kept there.
QList<Table> TablesConnues(GenreBase genre);

/// What becomes of a Jet table: the columns that we know, in the file's order. Nothing when the table is none
/// of ours, or a column of ours holds what no layout ever held there.
std::optional<PlanJet> PlanDe(const TableJet& jet, GenreBase genre);

/// Whether tables of these columns are the current layout of that kind of file.
bool EstDispositionCourante(const QList<Table>& tables, GenreBase genre);

} // namespace storage
