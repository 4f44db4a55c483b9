#pragma once

#include "bank/Thesaurus.h"

#include <QMultiMap>
#include <QSet>

namespace banque {

/// A substance of the public files with all its spellings.
struct SubstancePublique
{
    int Code = 0;
    QStringList Noms;
};

/// An active substance (SA) and the therapeutic fraction (FT) that one line of a composition says it is.
struct Fraction
{
    int Active = 0;
    int Therapeutique = 0;

    bool operator==(const Fraction&) const = default;
};

/// The entries' public codes: place in `Thesaurus::Entrees`, code. A code may belong to several entries.
using LiensThesaurus = QMultiMap<int, int>;

/// Links entries to public substances, by rules alone that can be told: the same name but for accents,
/// capitals, ligatures, order of words in brackets, salt and hydrate; the table of equivalences; and, for a
/// code that these leave alone, the one fraction that the public files pair it with, when both names begin
/// alike.
LiensThesaurus Lie(const Thesaurus& thesaurus, const QList<SubstancePublique>& substances,
                   const QList<Fraction>& fractions);

/// Each class with the places of all its members, through classes in classes, itself included.
QHash<int, QSet<int>> MembresDesClasses(const Thesaurus& thesaurus);

/// The pairs of which both sides lead to at least one public substance.
int NbInteractionsLiees(const Thesaurus& thesaurus, const LiensThesaurus& liens);

} // namespace banque
