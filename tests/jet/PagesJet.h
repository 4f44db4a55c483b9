#pragma once

#include <QByteArray>
#include <QtEndian>

#include <functional>

namespace support {

/// The bytes of a Jet 4 file, by its tables.
class PagesJet
{
public:
    explicit PagesJet(const QByteArray& octets) : Octets(octets) {}

    quint16 Deux(qsizetype place) const { return qFromLittleEndian<quint16>(Octets.constData() + place); }
    void Deux(qsizetype place, quint16 valeur) { qToLittleEndian<quint16>(valeur, Octets.data() + place); }

    /// The definition's place of each table of so many columns, of which so many are of variable length.
    QList<qsizetype> Definitions(int colonnes, int variables) const
    {
        QList<qsizetype> places;
        for (qsizetype page = 0; page < Octets.size(); page += kPage) {
            if (Octets[page] == 2 && Deux(page + kColonnes) == colonnes &&
                Deux(page + kVariables) == variables) {
                places.append(page);
            }
        }
        return places;
    }
    /// Gives the first and the last byte of each row that stands on a page of that table.
    void Lignes(qsizetype definition, const std::function<void(qsizetype, qsizetype)>& recoit) const
    {
        for (qsizetype page = 0; page < Octets.size(); page += kPage) {
            if (Octets[page] != 1 ||
                qFromLittleEndian<quint32>(Octets.constData() + page + 4) != definition / kPage) {
                continue;
            }
            for (int i = 0; i < Deux(page + kNombre); ++i) {
                const qsizetype debut = Deux(page + kPlaces + 2 * i);
                const qsizetype fin = i == 0 ? kPage : Deux(page + kPlaces + 2 * (i - 1)) & 0x1FFF;
                if (debut < 0x4000) {
                    recoit(page + debut, page + fin - 1);
                }
            }
        }
    }

    static constexpr qsizetype kPage = 4096;
    static constexpr qsizetype kRangs = 41; ///< in a definition: the columns that the table ever had
    QByteArray Octets;

private:
    static constexpr qsizetype kVariables = 43;
    static constexpr qsizetype kColonnes = 45;
    static constexpr qsizetype kNombre = 12;
    static constexpr qsizetype kPlaces = 14;
};

} // namespace support
