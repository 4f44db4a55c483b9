#include "bank/IndexRecherche.h"

#include "bank/Ecriture.h"
#include "bank/Mots.h"

#include <QHash>
#include <QtEndian>

namespace banque {

namespace {

/// Sorts by a key that is computed once for each.
template <typename Element, typename Cle> void TrieParCle(QList<Element>& elements, Cle&& cle)
{
    QList<std::pair<QString, Element>> paires;
    paires.reserve(elements.size());
    for (const Element& element : std::as_const(elements)) {
        paires.append({cle(element), element});
    }
    std::stable_sort(paires.begin(), paires.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (qsizetype i = 0; i < elements.size(); ++i) {
        elements[i] = std::move(paires[i].second);
    }
}

QList<quint32> PacksParTaille(NomATrouver& nom)
{
    TrieParCle(nom.Packs, [](const NomATrouver::Pack& pack) { return CleNaturelle(pack.Libelle); });
    QList<quint32> packs;
    for (const NomATrouver::Pack& pack : std::as_const(nom.Packs)) {
        packs.append(pack.Id);
    }
    return packs;
}

} // namespace

QByteArray EnOctets(const QList<quint32>& nombres)
{
    QByteArray octets(nombres.size() * 4, Qt::Uninitialized);
    qToLittleEndian<quint32>(nombres.constData(), nombres.size(), octets.data());
    return octets;
}

QList<quint32> DepuisOctets(const QByteArray& octets)
{
    QList<quint32> nombres(octets.size() / 4);
    qFromLittleEndian<quint32>(octets.constData(), nombres.size(), nombres.data());
    return nombres;
}

void EcrisIndexRecherche(Ecriture& ecriture, QList<NomATrouver> noms)
{
    TrieParCle(noms, [](const NomATrouver& nom) { return CleNaturelle(nom.Nom); });
    Insertion ordre = ecriture.Prepare(QStringLiteral("recherche_noms"));
    QHash<QString, QList<quint32>> mots;
    quint32 rang = 0;
    for (NomATrouver& nom : noms) {
        ordre.Ajoute({rang, nom.Cis, EnOctets(PacksParTaille(nom))});
        for (const MotPlace& mot : MotsATrouver(nom.Nom)) {
            mots[mot.Mot].append(rang * kPlacesParNom +
                                 std::min<quint32>(kPlacesParNom - 1, quint32(mot.Place)));
        }
        ++rang;
    }
    QStringList tries = mots.keys();
    tries.sort();
    Insertion insertion = ecriture.Prepare(QStringLiteral("recherche_mots"));
    for (const QString& mot : std::as_const(tries)) {
        insertion.Ajoute({mot, EnOctets(mots.value(mot))});
    }
}

} // namespace banque
