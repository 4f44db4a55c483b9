// From the start of the process to FrmChoixBase on the screen, and the memory of a day's work, against a
// program that shows one empty window.
#include "bench/Rapport.h"
#include "startup/windows/ProgrammeDeTest.h"

#include <QProcess>

namespace {

QByteArray Lance(const QString& programme, const QStringList& arguments = {})
{
    QProcess processus;
    processus.start(QStringLiteral(RACINE_CONSTRUCTION "/bin/") + programme, arguments);
    if (!processus.waitForFinished(60000) || processus.exitCode() != 0) {
        qFatal("%s did not run", qPrintable(programme));
    }
    return processus.readAllStandardOutput().trimmed();
}

void Demarrage(benchmark::State& state)
{
    support::ProgrammeDeTest arbre;
    arbre.Installe();
    const QString programme = arbre.Chemin(QStringLiteral("programme"));
    bench::Compare(
        state, [&] { Lance(QStringLiteral("mesure_depart"), {programme}); },
        [] { Lance(QStringLiteral("mesure_fenetre_vide")); });
}
BENCHMARK(Demarrage)->UseManualTime()->Unit(benchmark::kMillisecond);

void Memoire(benchmark::State& state)
{
    long ordo = 0;
    long vide = 0;
    for ([[maybe_unused]] auto _ : state) {
        ordo = Lance(QStringLiteral("mesure_memoire")).toLong();
        vide = Lance(QStringLiteral("mesure_fenetre_vide"), {QStringLiteral("memoire")}).toLong();
    }
    state.counters["Mo"] = static_cast<double>(ordo) / 1024;
    state.counters["etalon_Mo"] = static_cast<double>(vide) / 1024;
    state.counters["Mo_de_plus"] = static_cast<double>(ordo - vide) / 1024;
}
BENCHMARK(Memoire)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int nombre, char** arguments)
{
    application::ApplicationQt application(nombre, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    application::style::Installe(application);
    benchmark::Initialize(&nombre, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
