#pragma once

#include <QByteArray>
#include <QSet>
#include <QVariantList>

#include <optional>

namespace utile {

/// The bytes of a database file as its format lays them out, whatever is broken in them: nothing here trusts
/// a length or a number that stands in the file. Pages count from 1.
class PagesSqlite
{
public:
    explicit PagesSqlite(QByteArray octets);

    /// Whether the first bytes are those of a database.
    bool EnteteLisible() const { return entete_; }
    /// The marks of our databases (see `storage::MarqueApplication`) as the header has them.
    int Marque() const { return Entier32(0, 68); }
    int Version() const { return Entier32(0, 60); }

    quint32 Nombre() const;
    /// The bytes of a page that its content may use: fewer where the file is cut, none behind its end.
    QByteArrayView Page(quint32 numero) const;
    quint32 Utiles() const { return taille_ - reserve_; }
    /// The pages that the file says are free; none when its header is lost.
    QSet<quint32> Libres() const;

private:
    int Entier32(qsizetype page, qsizetype place) const;
    quint32 DevineTaille() const;

    QByteArray octets_;
    bool entete_ = false;
    quint32 taille_ = 4096;
    quint32 reserve_ = 0;
};

/// A row of a table as it lies in its page and the pages behind it.
struct Cellule
{
    qint64 Cle = 0;
    qint64 Longueur = 0; ///< of its content, of which less may be there
    QByteArray Contenu;
    qsizetype Place = 0;    ///< of the content in its page, behind the length and the key
    qsizetype DansPage = 0; ///< how much of the content lies in the page itself
};

/// The kinds of pages that make a tree.
enum class GenrePage { Autre, Feuille, Noeud, FeuilleIndex, NoeudIndex };

/// One page of a tree, read with care.
class PageArbre
{
public:
    PageArbre(const PagesSqlite& pages, quint32 numero);

    /// `Autre` when it is none, or its directory of cells is broken.
    GenrePage Genre() const { return genre_; }
    int NbCellules() const { return nombre_; }
    /// Whether all its cells begin within it.
    bool EstCoherente() const;
    /// The row of a leaf of a table; nothing when it cannot be one.
    std::optional<Cellule> Ligne(int rang) const;
    /// The child of a node, and the highest key below it; nothing when the cell is broken. The rank behind
    /// the last one is the child that has no key.
    std::optional<std::pair<quint32, qint64>> Enfant(int rang) const;
    /// Where a cell begins in its page; -1 when it cannot be there.
    qsizetype Place(int rang) const;

private:
    bool CompleteParChaine(Cellule& cellule, qsizetype suite) const;

    const PagesSqlite& pages_;
    QByteArrayView octets_;
    qsizetype debut_ = 0;
    GenrePage genre_ = GenrePage::Autre;
    int nombre_ = 0;
};

/// The fields of a row; a field that is not there as a whole is invalid and counts as missing.
struct Champs
{
    QVariantList Valeurs; ///< an invalid one is null
    QList<int> Manquants;
    QList<qint64> Debuts; ///< where each begins in the content, and where the last one ends
};

/// Takes a row's content apart; nothing when it is none.
std::optional<Champs> Demonte(const Cellule& cellule);

} // namespace utile
