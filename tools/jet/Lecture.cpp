#include "Lecture.h"

#include "Defaut.h"
#include "Ebauche.h"
#include "Table.h"
#include "storage/ProtocoleJet.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <span>

namespace jet {

namespace protocole = storage::jet;

namespace {

constexpr unsigned long kPageDuCatalogue = 2;

/// A row missing in the file's catalogue would be a whole table missing: the library passes over one that it
/// cannot read. Gives the number of rows.
std::uint32_t VerifieCatalogue(const Fichier& fichier)
{
    MdbCatalogEntry entree{};
    entree.mdb = fichier.Mdb();
    entree.object_type = MDB_TABLE;
    entree.table_pg = kPageDuCatalogue;
    std::strcpy(entree.object_name, "MSysObjects");
    Table catalogue(fichier, entree);
    catalogue.Verifie();
    return catalogue.Lignes();
}

using Entrees = std::span<MdbCatalogEntry* const>;

Entrees LitCatalogue(const Fichier& fichier)
{
    const std::uint32_t lignes = VerifieCatalogue(fichier);
    const GPtrArray* catalogue = mdb_read_catalog(fichier.Mdb(), MDB_ANY);
    if (!catalogue || catalogue->len != lignes) {
        throw Defaut("entries missing in the catalogue");
    }
    return {reinterpret_cast<MdbCatalogEntry**>(catalogue->pdata), catalogue->len};
}

bool SeNomme(const MdbCatalogEntry& entree, const QString& nom)
{
    return nom.compare(QString::fromUtf8(entree.object_name), Qt::CaseInsensitive) == 0;
}

const storage::Table* Cherche(const QList<storage::Table>& tables, const MdbCatalogEntry& entree)
{
    const auto trouvee =
        std::ranges::find_if(tables, [&](const auto& table) { return SeNomme(entree, table.Nom); });
    return trouvee == tables.end() ? nullptr : &*trouvee;
}

bool Ressemble(const storage::TableJet& jet, const storage::Table& table)
{
    const auto memeNom = [](const storage::TableJet::Colonne& une, const storage::Colonne& autre) {
        return une.Nom.compare(autre.Nom, Qt::CaseInsensitive) == 0;
    };
    const qsizetype deux = std::min<qsizetype>(2, table.Colonnes.size());
    return jet.Colonnes.size() >= deux && memeNom(jet.Colonnes[0], table.Colonnes[0]) &&
           memeNom(jet.Colonnes.last(),
                   table.Colonnes[std::min(jet.Colonnes.size(), table.Colonnes.size()) - 1]);
}

/// A table that the catalogue does not name is one that an older layout lacks, unless its columns stand there
/// under a name that damage has made: a whole table would be lost without a word.
void VerifieAbsentes(const Fichier& fichier, Entrees entrees, storage::GenreBase genre)
{
    const QList<storage::Table> connues = storage::TablesConnues(genre);
    for (const storage::Table& table : connues) {
        if (std::ranges::any_of(entrees, [&](const auto* entree) { return SeNomme(*entree, table.Nom); })) {
            continue;
        }
        for (MdbCatalogEntry* entree : entrees) {
            if (mdb_is_user_table(entree) && !Cherche(connues, *entree) &&
                Ressemble(Table(fichier, *entree).Description(), table)) {
                throw Defaut("a table of ours under another name");
            }
        }
    }
}

storage::Table EcrisTable(Table& table, Ebauche& ebauche, storage::GenreBase genre)
{
    const auto plan = storage::PlanDe(table.Description(), genre);
    if (!plan) {
        throw Defaut("columns of another kind");
    }
    std::printf("%s\t%s\t%u\n", protocole::kTable, qPrintable(plan->Table.Nom), table.Lignes());
    table.Ecris(ebauche, *plan, [](std::uint32_t lignes) {
        std::printf("%s\t%u\n", protocole::kLignes, lignes);
        std::fflush(stdout);
    });
    return plan->Table;
}

void ConvertitFichier(const Fichier& fichier, const char* ebauche, storage::GenreBase genre)
{
    const Entrees entrees = LitCatalogue(fichier);
    const QList<storage::Table> connues = storage::TablesConnues(genre);
    VerifieAbsentes(fichier, entrees, genre);
    Ebauche sortie(ebauche, genre);
    QList<storage::Table> tables;
    for (MdbCatalogEntry* entree : entrees) {
        if (!Cherche(connues, *entree)) {
            continue;
        }
        if (entree->object_type != MDB_TABLE) {
            throw Defaut("a table of ours that is none");
        }
        Table table(fichier, *entree);
        tables.append(EcrisTable(table, sortie, genre));
    }
    sortie.Acheve(tables);
    std::printf("%s\n", protocole::kFin);
}

} // namespace

void Convertit(const char* chemin, const char* ebauche, storage::GenreBase genre)
{
    const Fichier fichier(chemin);
    try {
        ConvertitFichier(fichier, ebauche, genre);
    } catch (const Defaut&) {
        if (fichier.EnPanne()) {
            throw NonEcrit("the disk does not answer", protocole::kDisqueEnPanne);
        }
        throw;
    }
}

} // namespace jet
