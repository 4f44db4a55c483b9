#include "Feuille.h"

#include <algorithm>

namespace utile {

namespace {

constexpr qint64 kSecteur = 512;

/// The bytes of a character of UTF-8 by its first one; 0 for none.
qsizetype Longueur(quint8 premier)
{
    if (premier < 0x80) {
        return 1;
    }
    if (premier < 0xC2 || premier > 0xF4) {
        return 0;
    }
    return premier < 0xE0 ? 2 : premier < 0xF0 ? 3 : 4;
}

/// A text of ours has line ends and tabs, but none of the characters that no keyboard writes.
bool EstEcrit(quint8 octet)
{
    return octet > 0x1A || (octet >= 0x09 && octet <= 0x0D);
}

/// How many bytes at the beginning make a character that a text can have; 0 for none.
qsizetype Caractere(QByteArrayView octets)
{
    const qsizetype longueur = Longueur(static_cast<quint8>(octets[0]));
    const auto suite = [](char octet) { return (static_cast<quint8>(octet) & 0xC0) == 0x80; };
    const bool entier = longueur > 0 && longueur <= octets.size() &&
                        EstEcrit(static_cast<quint8>(octets[0])) &&
                        std::all_of(octets.begin() + 1, octets.begin() + longueur, suite);
    return entier ? longueur : 0;
}

} // namespace

Feuille::Feuille(const PagesSqlite& pages, quint32 numero) : page_(pages, numero)
{
    for (int rang = 0; page_.Genre() == GenrePage::Feuille && rang < page_.NbCellules(); ++rang) {
        Juge(rang);
    }
}

void Feuille::Juge(int rang)
{
    const auto cellule = page_.Ligne(rang);
    const auto champs = cellule ? Demonte(*cellule) : std::nullopt;
    if (!champs) {
        if (const qsizetype place = page_.Place(rang); place >= 0) {
            secteurs_.set(static_cast<size_t>(place / kSecteur));
        }
        return;
    }
    for (qsizetype i = 0; i < champs->Valeurs.size(); ++i) {
        if (champs->Valeurs[i].typeId() == QMetaType::QString && !champs->Manquants.contains(i)) {
            JugeTexte(*cellule, rang, champs->Debuts[i], champs->Debuts[i + 1]);
        }
    }
}

void Feuille::JugeTexte(const Cellule& cellule, int rang, qint64 debut, qint64 fin)
{
    const QByteArrayView texte = QByteArrayView(cellule.Contenu).sliced(debut, fin - debut);
    for (qsizetype i = 0; i < texte.size();) {
        const qsizetype longueur = Caractere(texte.sliced(i));
        if (longueur == 0 && debut + i < cellule.DansPage) {
            secteurs_.set(static_cast<size_t>((cellule.Place + debut + i) / kSecteur));
        } else if (longueur == 0) {
            suites_.insert(rang);
        }
        i += std::max<qsizetype>(1, longueur);
    }
}

bool Feuille::EstCondamnee(const Cellule& cellule, int rang, qint64 debut, qint64 fin) const
{
    if (fin > cellule.DansPage && suites_.contains(rang)) {
        return true;
    }
    const qint64 dernier = std::min<qint64>(fin, cellule.DansPage) - 1;
    for (qint64 s = (cellule.Place + debut) / kSecteur; s <= (cellule.Place + dernier) / kSecteur; ++s) {
        if (debut <= dernier && secteurs_.test(static_cast<size_t>(s))) {
            return true;
        }
    }
    return false;
}

std::optional<std::pair<qint64, Champs>> Feuille::Ligne(int rang) const
{
    const auto cellule = page_.Ligne(rang);
    auto champs = cellule ? Demonte(*cellule) : std::nullopt;
    // The length and the key lie before the content.
    const qint64 entete = cellule ? page_.Place(rang) - cellule->Place : 0;
    if (!champs || EstCondamnee(*cellule, rang, entete, champs->Debuts.first())) {
        return {};
    }
    for (int i = 0; i < champs->Valeurs.size(); ++i) {
        const bool vide = champs->Debuts[i] == champs->Debuts[i + 1];
        if (!vide && !champs->Manquants.contains(i) &&
            EstCondamnee(*cellule, rang, champs->Debuts[i], champs->Debuts[i + 1])) {
            const bool texte = champs->Valeurs[i].typeId() == QMetaType::QString;
            champs->Valeurs[i] = texte ? QVariant(QString()) : QVariant();
            champs->Manquants.append(i);
        }
    }
    return std::pair(cellule->Cle, *champs);
}

} // namespace utile
