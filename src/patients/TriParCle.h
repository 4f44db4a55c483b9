#pragma once

#include <QtGlobal>
#include <vector>

namespace patients {

/// A key and the place of what it belongs to.
struct Repere
{
    quint64 Cle = 0; ///< below 2 to the 60
    quint32 Place = 0;
};

/// Sorts by the key; equal keys stay in their order. Takes time in proportion to their number: it deals
/// them into heaps by twelve bits at a time, the lowest first.
std::vector<Repere> TrieParCle(std::vector<Repere> reperes);

} // namespace patients
