// The picker's tree filled with 20 000 medications, against a select of the same rows by the engine alone.
#include "Rapport.h"
#include "medication/Commandes.h"
#include "medication/PharmacieLocale.h"
#include "support/BaseDeTest.h"

#include <sqlite3.h>
#include <stdexcept>

namespace {

constexpr int kMedicaments = 20000;

/// One row of the table as the engine gives it.
struct Rangee
{
    qint64 Num = 0;
    std::string Champ1;
    std::string Champ2;
    std::string Notes;
    std::string Posologie;
    std::string Nom;
};

void Remplit(storage::Base& base)
{
    storage::Transaction transaction(base);
    base.Execute(QStringLiteral("delete from BddMed"));
    for (int i = 0; i < kMedicaments; ++i) {
        // A step that is prime to their number: stored in no order of names.
        const int numero = static_cast<int>(qint64(i) * 7919 % kMedicaments);
        base.Execute(QStringLiteral("insert into BddMed (num, Posologie, Nom) values (?, ?, ?)"),
                     {i + 1, QStringLiteral("1 comprimé matin* et soir pendant %1 jours").arg(i % 30),
                      QStringLiteral("%1%2 %3 MG COMPRIMÉ")
                          .arg(QChar(u'A' + numero % 26))
                          .arg(numero, 6, 10, QChar(u'X'))
                          .arg(numero % 1000)});
    }
    transaction.Valide();
}

std::string Texte(sqlite3_stmt* requete, int colonne)
{
    const auto* texte = reinterpret_cast<const char*>(sqlite3_column_text(requete, colonne));
    return texte ? std::string(texte, static_cast<std::size_t>(sqlite3_column_bytes(requete, colonne)))
                 : std::string();
}

std::vector<Rangee> Lit(sqlite3* base)
{
    sqlite3_stmt* requete = nullptr;
    if (sqlite3_prepare_v2(base, "select * from BddMed", -1, &requete, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(base));
    }
    std::vector<Rangee> rangees;
    while (sqlite3_step(requete) == SQLITE_ROW) {
        rangees.push_back({sqlite3_column_int64(requete, 0), Texte(requete, 1), Texte(requete, 2),
                           Texte(requete, 3), Texte(requete, 4), Texte(requete, 5)});
    }
    sqlite3_finalize(requete);
    return rangees;
}

void ArbreDe20000(benchmark::State& state)
{
    support::BaseDeTest base;
    Remplit(base.Medoc());
    sqlite3* seule = nullptr;
    sqlite3_open(base.Chemin(QStringLiteral("Medoc.mdb")).toUtf8().constData(), &seule);
    medication::PharmacieLocale pharmacie([&]() -> storage::Base& { return base.Medoc(); });
    medication::ArbreMedicaments arbre;
    medication::Choix choix;
    bench::Compare(
        state, [&] { medication::ChargeMedicaments(choix, pharmacie, arbre, {}); },
        [&] {
            if (Lit(seule).size() != kMedicaments) {
                state.SkipWithError("rows are missing");
            }
        });
    sqlite3_close(seule);
    if (arbre.rowCount() != kMedicaments) {
        state.SkipWithError("nodes are missing");
    }
}

/// One keystroke of the search box.
void Recherche(benchmark::State& state)
{
    support::BaseDeTest base;
    Remplit(base.Medoc());
    medication::PharmacieLocale pharmacie([&]() -> storage::Base& { return base.Medoc(); });
    medication::ArbreMedicaments arbre;
    arbre.Remplit(pharmacie.Charge({}));
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(arbre.Cherche(QStringLiteral("MXX123")));
    }
}

BENCHMARK(ArbreDe20000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Recherche)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
