#pragma once

#include <QtGlobal>
#include <algorithm>
#include <functional>
#include <iterator>
#include <vector>

namespace common {

/// A key and the place of what it belongs to.
struct Repere
{
    quint64 Cle = 0; ///< below 2 to the 60
    quint32 Place = 0;
};

/// Sorts by the key; equal keys stay in their order. Takes time in proportion to their number: it deals
/// them into heaps by twelve bits at a time, the lowest first.
std::vector<Repere> TrieReperes(std::vector<Repere> reperes);

/// Sorts elements by their key, below 2 to the 60, which grows with them; `precede` is the whole order and
/// is asked only about elements of one key.
template <typename Element, typename Cle, typename Precede>
void TrieParCle(std::vector<Element>& elements, Cle cle, Precede precede)
{
    std::vector<Repere> reperes;
    reperes.reserve(elements.size());
    for (const Element& element : elements) {
        reperes.push_back({std::invoke(cle, element), static_cast<quint32>(reperes.size())});
    }
    std::vector<Element> tries;
    tries.reserve(elements.size());
    for (const Repere& repere : TrieReperes(std::move(reperes))) {
        tries.push_back(std::move(elements[repere.Place]));
    }
    elements = std::move(tries);
    for (auto debut = elements.begin(); debut != elements.end();) {
        const auto fin = std::find_if(std::next(debut), elements.end(), [&](const Element& element) {
            return std::invoke(cle, element) != std::invoke(cle, *debut);
        });
        std::sort(debut, fin, precede);
        debut = fin;
    }
}

} // namespace common
