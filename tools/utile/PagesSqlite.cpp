#include "PagesSqlite.h"

#include "storage/EstUneBase.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace utile {

namespace {

constexpr qsizetype kEntete = 100;
constexpr qint64 kContenuMaximum = 64LL * 1024 * 1024;

template <typename Entier> Entier Gros(QByteArrayView octets, qsizetype place)
{
    if (place < 0 || place + static_cast<qsizetype>(sizeof(Entier)) > octets.size()) {
        return 0;
    }
    return qFromBigEndian<Entier>(octets.data() + place);
}

/// A number of one to nine bytes; moves the place behind it. Nothing at the end of the bytes.
std::optional<qint64> Variable(QByteArrayView octets, qsizetype& place)
{
    quint64 valeur = 0;
    for (int i = 0; i < 9; ++i) {
        if (place < 0 || place >= octets.size()) {
            return {};
        }
        const auto octet = static_cast<quint8>(octets[place++]);
        if (i == 8) {
            return static_cast<qint64>((valeur << 8) | octet);
        }
        valeur = (valeur << 7) | (octet & 0x7F);
        if (octet < 0x80) {
            return static_cast<qint64>(valeur);
        }
    }
    return {};
}

GenrePage GenreDe(quint8 octet)
{
    switch (octet) {
    case 13:
        return GenrePage::Feuille;
    case 5:
        return GenrePage::Noeud;
    case 10:
        return GenrePage::FeuilleIndex;
    case 2:
        return GenrePage::NoeudIndex;
    default:
        return GenrePage::Autre;
    }
}

bool EstNoeud(GenrePage genre)
{
    return genre == GenrePage::Noeud || genre == GenrePage::NoeudIndex;
}

/// The bytes that a field of that kind takes; -1 for a kind that there is not.
qint64 TailleDe(qint64 genre)
{
    constexpr std::array<qint64, 12> kTailles{0, 1, 2, 3, 4, 6, 8, 8, 0, 0, -1, -1};
    if (genre < 0 || genre > 2 * kContenuMaximum) {
        return -1;
    }
    return genre < 12 ? kTailles[static_cast<size_t>(genre)] : (genre - 12) / 2;
}

QVariant Valeur(qint64 genre, QByteArrayView octets)
{
    if (genre == 7) {
        return std::bit_cast<double>(Gros<quint64>(octets, 0));
    }
    if (genre == 8 || genre == 9) {
        return genre - 8;
    }
    if (genre >= 12) {
        return genre % 2 ? QVariant(QString::fromUtf8(octets)) : QVariant(octets.toByteArray());
    }
    quint64 nombre = !octets.empty() && octets[0] < 0 ? ~quint64(0) : 0;
    for (const char octet : octets) {
        nombre = (nombre << 8) | static_cast<quint8>(octet);
    }
    return static_cast<qint64>(nombre);
}

/// How much of a row lies in its own page.
qint64 PartDansLaPage(qint64 longueur, qint64 utiles)
{
    const qint64 plus = utiles - 35;
    if (longueur <= plus) {
        return longueur;
    }
    const qint64 moins = (utiles - 12) * 32 / 255 - 23;
    const qint64 part = moins + (longueur - moins) % (utiles - 4);
    return part <= plus ? part : moins;
}

} // namespace

PagesSqlite::PagesSqlite(QByteArray octets) : octets_(std::move(octets))
{
    const quint32 brute = Gros<quint16>(octets_, 16);
    const quint32 ecrite = brute == 1 ? 65536 : brute;
    entete_ = octets_.startsWith(storage::kMarqueDuMoteur);
    const bool lisible = entete_ && ecrite >= 512 && std::has_single_bit(ecrite);
    taille_ = lisible ? ecrite : DevineTaille();
    reserve_ = lisible ? static_cast<quint8>(octets_[20]) : 0;
    if (taille_ - reserve_ < 480) {
        reserve_ = 0;
    }
}

int PagesSqlite::Entier32(qsizetype page, qsizetype place) const
{
    return static_cast<int>(Gros<quint32>(octets_, page + place));
}

quint32 PagesSqlite::Nombre() const
{
    return static_cast<quint32>((octets_.size() + taille_ - 1) / taille_);
}

QByteArrayView PagesSqlite::Page(quint32 numero) const
{
    const qsizetype debut = (static_cast<qsizetype>(numero) - 1) * taille_;
    if (numero == 0 || debut >= octets_.size()) {
        return {};
    }
    return QByteArrayView(octets_).sliced(debut, std::min<qsizetype>(Utiles(), octets_.size() - debut));
}

quint32 PagesSqlite::DevineTaille() const
{
    quint32 meilleure = 4096;
    int plus = 0;
    for (const quint32 taille : {4096U, 1024U, 2048U, 8192U, 512U, 16384U, 32768U, 65536U}) {
        PagesSqlite essai(*this);
        essai.taille_ = taille;
        int bonnes = 0;
        for (quint32 page = 2; page <= essai.Nombre(); ++page) {
            const PageArbre lue(essai, page);
            bonnes += lue.EstCoherente() && lue.NbCellules() > 0;
        }
        if (bonnes > plus) {
            plus = bonnes;
            meilleure = taille;
        }
    }
    return meilleure;
}

QSet<quint32> PagesSqlite::Libres() const
{
    QSet<quint32> libres;
    auto tronc = entete_ ? Gros<quint32>(octets_, 32) : 0;
    while (tronc > 1 && tronc <= Nombre() && !libres.contains(tronc)) {
        libres.insert(tronc);
        const QByteArrayView page = Page(tronc);
        const quint32 nombre = std::min<quint32>(Gros<quint32>(page, 4), Utiles() / 4 - 2);
        for (quint32 i = 0; i < nombre; ++i) {
            libres.insert(Gros<quint32>(page, 8 + 4 * static_cast<qsizetype>(i)));
        }
        tronc = Gros<quint32>(page, 0);
    }
    return libres;
}

PageArbre::PageArbre(const PagesSqlite& pages, quint32 numero)
    : pages_(pages), octets_(pages.Page(numero)), debut_(numero == 1 ? kEntete : 0)
{
    if (octets_.size() < debut_ + 8) {
        return;
    }
    const GenrePage genre = GenreDe(static_cast<quint8>(octets_[debut_]));
    nombre_ = Gros<quint16>(octets_, debut_ + 3);
    const qsizetype repertoire = debut_ + (EstNoeud(genre) ? 12 : 8);
    if (repertoire + 2 * nombre_ <= octets_.size()) {
        genre_ = genre;
    }
}

bool PageArbre::EstCoherente() const
{
    for (int i = 0; i < nombre_; ++i) {
        if (const qsizetype place = Place(i); place < 0 || place >= octets_.size()) {
            return false;
        }
    }
    return genre_ != GenrePage::Autre;
}

qsizetype PageArbre::Place(int rang) const
{
    const qsizetype repertoire = debut_ + (EstNoeud(genre_) ? 12 : 8);
    const qsizetype place = Gros<quint16>(octets_, repertoire + 2 * rang);
    return place < repertoire + 2 * nombre_ ? -1 : place;
}

/// The rest of a long row lies in a chain of pages, each with the number of the next one.
bool PageArbre::CompleteParChaine(Cellule& cellule, qsizetype suite) const
{
    auto numero = Gros<quint32>(octets_, suite);
    while (cellule.Contenu.size() < cellule.Longueur) {
        const QByteArrayView page = numero > 1 ? pages_.Page(numero) : QByteArrayView();
        const qint64 reste = std::min<qint64>(cellule.Longueur - cellule.Contenu.size(), pages_.Utiles() - 4);
        const bool derniere = cellule.Contenu.size() + reste == cellule.Longueur;
        numero = Gros<quint32>(page, 0);
        if (page.size() < 4 + reste || derniere != (numero == 0)) {
            return false; // cut, or not the page that it was
        }
        cellule.Contenu.append(page.sliced(4, reste));
    }
    return true;
}

std::optional<Cellule> PageArbre::Ligne(int rang) const
{
    qsizetype place = Place(rang);
    const auto longueur = Variable(octets_, place);
    const auto cle = longueur ? Variable(octets_, place) : std::nullopt;
    if (!cle || *longueur < 2 || *longueur > kContenuMaximum) {
        return {};
    }
    const qint64 part = PartDansLaPage(*longueur, pages_.Utiles());
    Cellule cellule{*cle, *longueur, {}, place, static_cast<qsizetype>(part)};
    cellule.Contenu = octets_.sliced(place, std::min<qint64>(part, octets_.size() - place)).toByteArray();
    if (cellule.Contenu.size() == part && part < *longueur) {
        CompleteParChaine(cellule, place + part);
    }
    return cellule;
}

std::optional<std::pair<quint32, qint64>> PageArbre::Enfant(int rang) const
{
    if (rang == nombre_) {
        return std::pair(Gros<quint32>(octets_, debut_ + 8), std::numeric_limits<qint64>::max());
    }
    qsizetype place = Place(rang);
    const auto enfant = Gros<quint32>(octets_, place);
    place += place < 0 ? 0 : 4;
    const auto cle = genre_ == GenrePage::Noeud ? Variable(octets_, place) : std::optional<qint64>(0);
    return enfant == 0 || !cle ? std::nullopt : std::optional(std::pair(enfant, *cle));
}

std::optional<Champs> Demonte(const Cellule& cellule)
{
    qsizetype place = 0;
    const auto entete = Variable(cellule.Contenu, place);
    if (!entete || *entete < place || *entete > cellule.Contenu.size()) {
        return {};
    }
    const QByteArrayView genres = QByteArrayView(cellule.Contenu).first(*entete);
    QList<qint64> lus;
    qint64 total = *entete;
    while (place < genres.size()) {
        const auto genre = Variable(genres, place);
        const qint64 taille = genre ? TailleDe(*genre) : -1;
        if (taille < 0) {
            return {};
        }
        total += taille;
        lus.append(*genre);
    }
    if (total != cellule.Longueur) {
        return {};
    }
    Champs champs;
    qint64 debut = *entete;
    for (const qint64 genre : lus) {
        const qint64 taille = TailleDe(genre);
        const bool present = debut + taille <= cellule.Contenu.size();
        if (!present) {
            champs.Manquants.append(static_cast<int>(champs.Valeurs.size()));
        }
        const bool nul = genre == 0 || !present;
        champs.Debuts.append(debut);
        champs.Valeurs.append(nul ? QVariant()
                                  : Valeur(genre, QByteArrayView(cellule.Contenu).sliced(debut, taille)));
        debut += taille;
    }
    champs.Debuts.append(debut);
    // A text that is not there is told from a number that is not.
    for (int& manquant : champs.Manquants) {
        const qint64 genre = lus[manquant];
        champs.Valeurs[manquant] = genre >= 13 && genre % 2 ? QVariant(QString()) : QVariant();
    }
    return champs;
}

} // namespace utile
