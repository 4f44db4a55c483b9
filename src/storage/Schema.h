#pragma once

#include "storage/Base.h"

#include <QList>
#include <QStringList>

namespace storage {

enum class TypeColonne { Compteur, Texte, Entier, Simple, OuiNon };

struct Colonne
{
    QString Nom;
    TypeColonne Type;
};

struct Table
{
    QString Nom;
    QList<Colonne> Colonnes;
};

/// The tables of a kind of database, columns in their order. Position and order are the format.
const QList<Table>& Tables(GenreBase genre);

/// Creates a database with all its tables, its first rows included (24 rows of `Entete`, ...), over
/// whatever stands at that path. Throws `Erreur`.
void CreeBase(const QString& chemin, GenreBase genre);

} // namespace storage
