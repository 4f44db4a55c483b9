#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace banque {

class Ecriture;

/// A medication to be found by name, with its packs on the market.
struct NomATrouver
{
    struct Pack
    {
        QString Libelle;
        quint32 Id = 0;
    };

    qint64 Cis = 0;
    QString Nom;
    QList<Pack> Packs;
};

/// Writes what the search reads: the medications in the order of their names, each with its packs by size,
/// and for each word the ranks of the medications that bear it. A place is rank * 64 + place in the name, a
/// row of them 32-bit numbers, lowest byte first.
void EcrisIndexRecherche(Ecriture& ecriture, QList<NomATrouver> noms);

constexpr quint32 kPlacesParNom = 64; ///< words behind the 63rd count as the 63rd

/// A row of 32-bit numbers as stored.
QByteArray EnOctets(const QList<quint32>& nombres);
/// Reads one back; bytes over are passed over.
QList<quint32> DepuisOctets(const QByteArray& octets);

} // namespace banque
