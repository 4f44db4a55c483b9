#include "medication/Tri.h"

#include "common/CleDeTri.h"
#include "common/TriParCle.h"

namespace medication {

namespace {

/// What the sort needs of a node.
struct Place
{
    quint64 Repliee = 0;
    quint64 Suite = 0;
    qsizetype Rang = 0;
};

std::vector<Place> Places(const QList<Noeud>& noeuds)
{
    std::vector<Place> places;
    places.reserve(static_cast<std::size_t>(noeuds.size()));
    for (qsizetype rang = 0; rang < noeuds.size(); ++rang) {
        const common::CleDeTri cle = common::Cle(noeuds[rang].Texte);
        places.push_back({cle.Repliee, cle.Suite, rang});
    }
    return places;
}

bool Precede(const QList<Noeud>& noeuds, const Place& a, const Place& b)
{
    if (a.Suite != b.Suite) {
        return a.Suite < b.Suite;
    }
    const QString& texteA = noeuds[a.Rang].Texte;
    const QString& texteB = noeuds[b.Rang].Texte;
    if (const auto ordre = common::CompareReplie(texteA, texteB); ordre != 0) {
        return ordre < 0;
    }
    const int ordre = texteA.compare(texteB);
    return ordre != 0 ? ordre < 0 : a.Rang < b.Rang;
}

} // namespace

void Trie(QList<Noeud>& noeuds)
{
    std::vector<Place> places = Places(noeuds);
    common::TrieParCle(places, &Place::Repliee,
                       [&](const Place& a, const Place& b) { return Precede(noeuds, a, b); });
    QList<Noeud> tries;
    tries.reserve(noeuds.size());
    for (const Place& place : places) {
        tries.append(std::move(noeuds[place.Rang]));
    }
    noeuds = std::move(tries);
}

} // namespace medication
