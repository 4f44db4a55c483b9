#pragma once

#include "PagesSqlite.h"

#include <bitset>

namespace utile {

/// A leaf of a table of which parts may be broken. A disk loses whole sectors: where one byte cannot have
/// been written by us, nothing of its sector is believed, for the numbers beside it look as good as any.
class Feuille
{
public:
    Feuille(const PagesSqlite& pages, quint32 numero);

    const PageArbre& Page() const { return page_; }
    /// The key and the fields of a row, those that are not to be believed missing; nothing when there is no
    /// telling where its fields are.
    std::optional<std::pair<qint64, Champs>> Ligne(int rang) const;

private:
    void Juge(int rang);
    void JugeTexte(const Cellule& cellule, int rang, qint64 debut, qint64 fin);
    bool EstCondamnee(const Cellule& cellule, int rang, qint64 debut, qint64 fin) const;

    PageArbre page_;
    std::bitset<128> secteurs_;
    QSet<int> suites_; ///< ranks of rows whose pages behind are not to be believed
};

} // namespace utile
