#include "Lecture.h"

#include "Defaut.h"
#include "Ebauche.h"
#include "Table.h"
#include "storage/ProtocoleJet.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace jet {

namespace protocole = storage::jet;

namespace {

constexpr unsigned long kPageDuCatalogue = 2;

/// A row missing in the file's catalogue would be a whole table missing.
void VerifieCatalogue(const Fichier& fichier)
{
    MdbCatalogEntry entree{};
    entree.mdb = fichier.Mdb();
    entree.object_type = MDB_TABLE;
    entree.table_pg = kPageDuCatalogue;
    std::strcpy(entree.object_name, "MSysObjects");
    Table(fichier, entree).Compte();
}

bool EstConnue(const MdbCatalogEntry& entree, storage::GenreBase genre)
{
    const QString nom = QString::fromUtf8(entree.object_name);
    return std::ranges::any_of(storage::TablesConnues(genre), [&](const storage::Table& table) {
        return table.Nom.compare(nom, Qt::CaseInsensitive) == 0;
    });
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

} // namespace

void Convertit(const char* chemin, const char* ebauche, storage::GenreBase genre)
{
    const Fichier fichier(chemin);
    VerifieCatalogue(fichier);
    const GPtrArray* catalogue = mdb_read_catalog(fichier.Mdb(), MDB_TABLE);
    if (!catalogue) {
        throw Defaut("no catalogue");
    }
    Ebauche sortie(ebauche, genre);
    QList<storage::Table> tables;
    for (guint i = 0; i < catalogue->len; ++i) {
        auto& entree = *static_cast<MdbCatalogEntry*>(g_ptr_array_index(catalogue, i));
        if (EstConnue(entree, genre)) {
            Table table(fichier, entree);
            tables.append(EcrisTable(table, sortie, genre));
        }
    }
    sortie.Acheve(tables);
    std::printf("%s\n", protocole::kFin);
}

} // namespace jet
