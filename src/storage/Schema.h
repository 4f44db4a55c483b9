#pragma once

#include "storage/Genre.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace storage {

enum class TypeColonne { Compteur, Texte, Entier, Simple, OuiNon };

struct Colonne
{
    QString Nom;
    TypeColonne Type;
    bool operator==(const Colonne&) const = default;
};

struct Table
{
    QString Nom;
    QList<Colonne> Colonnes;
    bool operator==(const Table&) const = default;
};

/// What makes the selections on a table quick. No part of the format: a file without it works the same.
struct Index
{
    QString Nom;
    QString Table;
    QStringList Colonnes;
    bool SansCasse = false; ///< serves selections that take capitals and small letters for the same
};

/// The marks in a file's header that tell our databases apart, and the version of the layout.
int MarqueApplication(GenreBase genre);
inline constexpr int kVersionSchema = 1;

/// The tables of a kind of database, columns in their order. Position and order are the format.
const QList<Table>& Tables(GenreBase genre);

/// The indexes of a kind of database.
const QList<Index>& Indexes(GenreBase genre);

/// The statement that creates a table.
QString CreeTableSql(const Table& table);

/// The type that a column was declared with in such a statement. Text for what we never declare.
TypeColonne TypeDeclare(const QString& declaration, bool cle);

/// The statement that creates an index where it is missing.
QString CreeIndexSql(const Index& index);

/// The name as a statement needs it: in double quotes, inner ones doubled.
QString Cite(const QString& nom);

/// `Premier` for a database that a doctor begins with, `Aucun` for one that rows will be copied into.
enum class ContenuInitial { Premier, Aucun };

inline constexpr int kLignesEntete = 24;

/// The text that a row of `Entete`, 0 to 23, bears at first use.
QString TextePremiereEntete(int ligne);

/// Creates a database with all its tables over whatever stands at that path, with its first rows (24 rows
/// of `Entete`, ...) where asked. The former file stays until the new one is whole. Throws `Erreur`.
void CreeBase(const QString& chemin, GenreBase genre, ContenuInitial contenu = ContenuInitial::Premier);

} // namespace storage
