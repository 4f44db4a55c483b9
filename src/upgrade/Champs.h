#pragma once

#include "storage/Schema.h"

#include <QString>

/// What a column of the old table gives to the new one, as a piece of a statement.
namespace upgrade {

/// The column at that position of the old table as a value of that type; "null" where the table is shorter. A
/// value that does not convert is null too.
QString Champ(const storage::Table& source, qsizetype position, storage::TypeColonne type);

/// The value, or that one where it is null. `sinon` is a literal.
QString SinonNul(const QString& champ, const QString& sinon);

/// The value, or that one where it is null or empty.
QString SinonVide(const QString& champ, const QString& sinon);

/// A patient's name: the words parted by two blanks. Every run of two blanks becomes one, then every blank
/// two.
QString NomEspace(const QString& champ);

/// The product identifier, a whole number of 32 bits: 0 for what is no number and wherever `converti` is
/// null, null for a number that is too long.
QString IdProduit(const QString& champ, const QString& converti);

} // namespace upgrade
