// The whole import against the same files unpacked and imported by the engine's own shell; and the search
// over every presentation, whose slowest hundredth is shown.
#include "Rapport.h"
#include "bank/BanqueDeTest.h"
#include "bank/DonneesReelles.h"
#include "bank/Recherche.h"

#include <QSqlQuery>

namespace {

/// Where the public files do not stand, the project's own are imported: the run is seen, its ratio means
/// nothing.
QString Dossier(const std::optional<support::DonneesReelles>& donnees)
{
    return donnees ? donnees->Dossier() : support::DossierExtrait();
}

std::optional<support::DonneesReelles> Donnees()
{
    std::optional<support::DonneesReelles> donnees;
    if (support::DonneesReelles::Presentes()) {
        donnees.emplace();
    }
    return donnees;
}

/// Statements for the shell: every file as a table of its own, split on tabs alone.
QByteArray InstructionsDuShell(const QString& dossier)
{
    QByteArray instructions = ".mode ascii\n.separator \"\\t\" \"\\n\"\n";
    for (const QString& nom : QDir(dossier).entryList({QStringLiteral("*.txt")}, QDir::Files)) {
        const QString chemin = common::Joint(dossier, nom);
        const QByteArray contenu = common::LitFichier(chemin);
        QByteArrayList colonnes;
        for (qsizetype i = 0; i <= contenu.first(contenu.indexOf('\n')).count('\t'); ++i) {
            colonnes.append("c" + QByteArray::number(i));
        }
        const QByteArray table = nom.chopped(4).toUtf8();
        instructions += "create table " + table + "(" + colonnes.join(",") + ");\n.import \"" +
                        chemin.toUtf8() + "\" " + table + "\n";
    }
    return instructions;
}

void ImporteParLeShell(const QByteArray& instructions, const QString& base)
{
    QFile::remove(base);
    QProcess shell;
    shell.setStandardErrorFile(QProcess::nullDevice());
    shell.start(QStringLiteral("sqlite3"), {base});
    shell.write(instructions);
    shell.closeWriteChannel();
    shell.waitForFinished();
}

void Import(benchmark::State& state)
{
    const auto donnees = Donnees();
    const QString dossier = Dossier(donnees);
    const QByteArray instructions = InstructionsDuShell(dossier);
    const QTemporaryDir sortie;
    const QString shell = common::Joint(sortie.path(), QStringLiteral("shell.sqlite"));
    const QString banque = common::Joint(sortie.path(), QStringLiteral("banque.sqlite"));
    bench::Compare(
        state, [&] { banque::Importe({.Dossier = dossier, .Vers = banque}); },
        [&] {
            if (donnees) {
                const support::DonneesReelles depaquetees;
            }
            ImporteParLeShell(instructions, shell);
        });
    if (!common::FichierExiste(shell)) {
        state.SkipWithError("the engine's shell is missing");
    }
}

/// What a doctor types: every beginning of the names of a few hundred medications.
QStringList Questions(const support::BanqueDeTest& banque)
{
    QStringList questions;
    QSqlQuery noms(banque.Base());
    noms.exec(QStringLiteral("select nom from specialites where commercialisee order by cis"));
    for (int i = 0; noms.next(); ++i) {
        const QString nom = noms.value(0).toString().left(24);
        for (qsizetype longueur = 1; i % 40 == 0 && longueur <= nom.size(); ++longueur) {
            questions.append(nom.left(longueur));
        }
    }
    return questions;
}

void Recherche(benchmark::State& state)
{
    const auto donnees = Donnees();
    const support::BanqueDeTest banque(Dossier(donnees));
    const banque::Recherche recherche(banque.Base());
    const QStringList questions = Questions(banque);
    std::vector<double> temps;
    for ([[maybe_unused]] auto _ : state) {
        for (const QString& question : questions) {
            temps.push_back(bench::Secondes(
                [&] { benchmark::DoNotOptimize(recherche.Cherche(banque.Base(), question)); }));
        }
    }
    std::ranges::sort(temps);
    state.counters["questions"] = static_cast<double>(questions.size());
    state.counters["ms_mediane"] = 1000 * temps[temps.size() / 2];
    state.counters["ms_99"] = 1000 * temps[temps.size() * 99 / 100];
}

void Ouverture(benchmark::State& state)
{
    const auto donnees = Donnees();
    const support::BanqueDeTest banque(Dossier(donnees));
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(banque::Recherche(banque.Base()));
    }
}

BENCHMARK(Import)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Recherche)->Unit(benchmark::kMillisecond);
BENCHMARK(Ouverture)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
