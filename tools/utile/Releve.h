#pragma once

#include "Feuille.h"

#include "storage/Schema.h"

#include <map>

namespace utile {

/// The rows of one table that can be read, by their keys, and what is known of the others.
struct TableRelevee
{
    struct Lieu
    {
        quint32 Page;
        int Rang;
    };
    /// Keys above the first and up to the second whose page is broken.
    struct Trou
    {
        qint64 Bas;
        qint64 Haut;
    };

    storage::Table Table;
    std::map<qint64, Lieu> Lignes;
    QList<Trou> Trous;
    qint64 Brisees = 0;                ///< rows broken in pages that can be read
    std::optional<qint64> Declarees;   ///< the number of rows that an index counts, or 0 for an empty table
    std::optional<qint64> DerniereCle; ///< the counter of the table
};

/// What a database file holds, found page by page, whatever is broken in it.
class Releve
{
public:
    Releve(const PagesSqlite& pages, storage::GenreBase genre);

    const QList<TableRelevee>& Tables() const { return tables_; }
    /// Whether the file's own list of tables could be read in full.
    bool ListeEntiere() const { return listeEntiere_; }
    /// Rows that no table could be found for.
    qint64 SansTable() const { return sansTable_; }

private:
    struct Racine
    {
        QString Table;
        quint32 Page;
    };

    void LitListe(storage::GenreBase genre);
    void LitEntree(const QVariantList& entree, storage::GenreBase genre);
    void AjouteAbsentes(storage::GenreBase genre);
    void LitCompteurs();
    void SuitTables();
    void CompteIndexes();
    std::optional<qint64> Compte(quint32 page, int profondeur);
    void Suit(TableRelevee& table, quint32 page, TableRelevee::Trou bornes, int profondeur);
    void SuitNoeud(TableRelevee& table, const PageArbre& noeud, TableRelevee::Trou bornes, int profondeur);
    void LitFeuille(TableRelevee& table, quint32 page, const Feuille& feuille, TableRelevee::Trou bornes);
    bool EstPlausible(const TableRelevee& table, quint32 page, TableRelevee::Trou bornes, int profondeur);
    void PlaceOrphelines();
    void Adopte(const TableRelevee& orpheline);

    const PagesSqlite& pages_;
    QList<TableRelevee> tables_;
    QList<Racine> racines_;
    QList<Racine> index_;
    QSet<quint32> vues_;
    bool listeEntiere_ = false;
    quint32 compteurs_ = 0; ///< the page of the counters
    qint64 sansTable_ = 0;
};

} // namespace utile
