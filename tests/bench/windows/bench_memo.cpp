// Opening FrmMemo on 2 000 titles, and one keystroke of its search.
#include "bench/Rapport.h"
#include "prescription/windows/FrmMemo.h"
#include "support/Monde.h"

#include <QApplication>
#include <QLineEdit>

namespace {

constexpr int kPeu = 10;
constexpr int kBeaucoup = 2000;

QList<prescription::Memorisee> Memorisees(int nombre)
{
    QList<prescription::Memorisee> memorisees;
    for (int rang = 0; rang < nombre; ++rang) {
        const QString titre = QStringLiteral("Épisode %1 de la maladie chronique").arg(rang);
        memorisees.append({rang % 2 == 0
                               ? prescription::CleMemo{titre}
                               : prescription::CleMemo{titre, QStringLiteral("Monsieur  MARTIN  Paul"),
                                                       QStringLiteral("20/03/1953")},
                           0});
    }
    return memorisees;
}

/// Built, filled, shown and painted.
void Ouvre(application::Contexte& contexte, application::Fenetres& fenetres,
           const QList<prescription::Memorisee>& memorisees)
{
    prescription::FrmMemo fenetre(contexte, fenetres);
    fenetre.Remplit(memorisees);
    fenetre.show();
    QApplication::processEvents();
    benchmark::DoNotOptimize(fenetre.grab());
}

void FrmMemoDe2000(benchmark::State& state)
{
    support::Monde monde;
    application::Fenetres fenetres(monde.Contexte);
    const auto peu = Memorisees(kPeu);
    const auto beaucoup = Memorisees(kBeaucoup);
    bench::Compare(
        state, [&] { Ouvre(monde.Contexte, fenetres, beaucoup); },
        [&] { Ouvre(monde.Contexte, fenetres, peu); });
    state.counters["ms_de_plus"] = state.counters["ms"] - state.counters["etalon_ms"];
}
BENCHMARK(FrmMemoDe2000)->UseManualTime()->Unit(benchmark::kMillisecond);

void UneFrappeDans2000(benchmark::State& state)
{
    support::Monde monde;
    application::Fenetres fenetres(monde.Contexte);
    prescription::FrmMemo fenetre(monde.Contexte, fenetres);
    fenetre.Remplit(Memorisees(kBeaucoup));
    fenetre.show();
    auto* champ = fenetre.findChild<QLineEdit*>(QStringLiteral("TxtRecherche"));
    for ([[maybe_unused]] auto _ : state) {
        champ->setText(champ->text().isEmpty() ? QStringLiteral("e") : QString());
        QApplication::processEvents();
    }
}
BENCHMARK(UneFrappeDans2000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
