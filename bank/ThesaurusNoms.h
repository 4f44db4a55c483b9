#pragma once

#include <QSet>
#include <QString>
#include <QStringView>

namespace banque {

/// What two names of one substance or class have in common: capitals without accents, ligatures in two
/// letters, anything that is neither letter nor digit as one blank.
QString CleDeNom(QStringView nom);

/// The keys under which an entry of the thesaurus is looked for: its own, and, for "SODIUM (OXYBATE DE)" or
/// "BOTULIQUE (TOXINE)", that of the name read in its natural order.
QStringList ClesDEntree(const QString& nom);

/// Every key that a public substance answers to: its own, that in natural order, and what is left when salts,
/// hydrates and "BASE" are taken away one after the other. Empty for what is diluted for homeopathy. A bare
/// element is never reached by taking a salt away: "IODURE DE POTASSIUM" is no potassium.
QSet<QString> FormesPubliques(const QString& nom);

/// True for a word that many substances share: a salt, a hydrate, an element, "ACIDE".
bool EstMotCommun(const QString& mot);

} // namespace banque
