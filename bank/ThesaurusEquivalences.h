#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace banque {

/// A class that the document names in a pair without a heading of its own, and what it is made of.
struct Composee
{
    QString Classe;
    QStringList Membres;
};

/// The public names of an entry whose name differs from theirs, by the entry's key. They are keys
/// (`CleDeNom`), compared with every form of a public name; with a '*' behind, its beginning.
const QHash<QString, QStringList>& Equivalences();

/// The classes without a heading.
const QList<Composee>& ClassesComposees();

/// The name of the heading that "AUTRES X" means where X is not how it is written; empty when there is none.
QString RubriqueDe(const QString& cle);

/// True for a member that stands in a list for "no substance".
bool EstSansSubstance(const QString& cle);

} // namespace banque
