// The posologies offered while one is typed, in a practice with 300 000 lines of memorised prescriptions:
// their reading when the box of the posology is entered, and one keystroke in it.
#include "Rapport.h"
#include "medication/OffresPosologie.h"
#include "support/BaseDeTest.h"

#include <sqlite3.h>

namespace {

constexpr int kLignes = 300000;
constexpr int kMedicaments = 1500; // each in 200 lines, with 50 posologies

/// A practice of many years, the same for all measures.
support::BaseDeTest& Cabinet()
{
    static support::BaseDeTest cabinet;
    static const bool pret = [] {
        cabinet.Medoc().Execute(
            QStringLiteral("with recursive n(i) as (select 0 union all select i + 1 from n where i + 1 < ?) "
                           "insert into OrdoEnr select 'Ordonnance ' || (i / 6), "
                           "'MEDICAMENT ' || (i % ?) || ' 1 000 mg', (i / ? % 50) || ' comprimé(s) le matin, "
                           "1 le soir, pendant les repas, pendant ' || (i % 30) || ' jours', "
                           "1, '*', '0', 1, 1 from n"),
            {kLignes, kMedicaments, kMedicaments});
        return true;
    }();
    Q_UNUSED(pret);
    return cabinet;
}

QString Medicament()
{
    return QStringLiteral("MEDICAMENT 700 1 000 mg");
}

/// The rows of one title by the engine alone.
int Compte(sqlite3* base)
{
    sqlite3_stmt* requete = nullptr;
    sqlite3_prepare_v2(base,
                       "select Posologie from OrdoEnr "
                       "where TitreLigne collate nocase = 'MEDICAMENT 700 1 000 mg'",
                       -1, &requete, nullptr);
    int nombre = 0;
    while (sqlite3_step(requete) == SQLITE_ROW) {
        nombre += sqlite3_column_bytes(requete, 0) > 0 ? 1 : 0;
    }
    sqlite3_finalize(requete);
    return nombre;
}

void Lecture(benchmark::State& state)
{
    storage::Base& base = Cabinet().Medoc();
    sqlite3* seule = nullptr;
    sqlite3_open(base.Chemin().toUtf8().constData(), &seule);
    medication::OffresPosologie offres;
    bench::Compare(
        state, [&] { offres.Remplit(medication::LitOffres(base, Medicament(), {})); },
        [&] {
            if (Compte(seule) != kLignes / kMedicaments) {
                state.SkipWithError("rows are missing");
            }
        });
    sqlite3_close(seule);
}

/// One keystroke, with the rows that the list then shows; against the same search in the texts as they stand.
void Touche(benchmark::State& state)
{
    const QList<medication::Offre> lues = medication::LitOffres(Cabinet().Medoc(), Medicament(), {});
    medication::OffresPosologie offres;
    offres.Remplit(lues);
    const QString tape = QStringLiteral("1 comprime");
    bench::Compare(
        state,
        [&] {
            offres.Restreint(tape);
            for (int rang = 0; rang < std::min(offres.rowCount(), 5); ++rang) {
                benchmark::DoNotOptimize(offres.index(rang, 0).data());
            }
        },
        [&] {
            qsizetype nombre = 0;
            for (const medication::Offre& offre : lues) {
                nombre += offre.Texte.contains(tape, Qt::CaseInsensitive) ? 1 : 0;
            }
            benchmark::DoNotOptimize(nombre);
        });
    if (offres.rowCount() == 0) {
        state.SkipWithError("nothing is offered");
    }
}

/// The first keystroke for a medication: the reading and the keystroke.
void PremiereTouche(benchmark::State& state)
{
    storage::Base& base = Cabinet().Medoc();
    medication::OffresPosologie offres;
    for ([[maybe_unused]] auto _ : state) {
        offres.Remplit(medication::LitOffres(base, Medicament(), {}));
        offres.Restreint(QStringLiteral("1"));
        benchmark::DoNotOptimize(offres.rowCount());
    }
}

/// One keystroke when every line is of one medication, in 5 000 posologies.
void ToucheUnSeulNom(benchmark::State& state)
{
    support::BaseDeTest cabinet;
    cabinet.Medoc().Execute(
        QStringLiteral("with recursive n(i) as (select 0 union all select i + 1 from n where i + 1 < ?) "
                       "insert into OrdoEnr select 'Ordonnance ' || (i / 6), ?, "
                       "(i % 5000) || ' comprimé(s) le matin, 1 le soir', 1, '*', '0', 1, 1 from n"),
        {kLignes, Medicament()});
    medication::OffresPosologie offres;
    offres.Remplit(medication::LitOffres(cabinet.Medoc(), Medicament(), {}));
    for ([[maybe_unused]] auto _ : state) {
        offres.Restreint(QStringLiteral("1 comprime"));
        benchmark::DoNotOptimize(offres.index(0, 0).data());
    }
}

BENCHMARK(ToucheUnSeulNom)->Unit(benchmark::kMillisecond);
BENCHMARK(Lecture)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Touche)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(PremiereTouche)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
