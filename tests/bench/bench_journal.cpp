// A journal of a million lines opened, against the system's own counting and sorting of the same file.
#include "Rapport.h"
#include "common/Fichiers.h"
#include "prescription/JournalEntrees.h"

#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr int kLignes = 1'000'000;

/// Some thirty years of a practice: 20 000 patients, a hundred prescriptions a day.
QByteArray Contenu()
{
    QByteArray contenu;
    for (int i = 0; i < kLignes; ++i) {
        const QDate jour = QDate(1996, 1, 2).addDays(i / 100);
        const int patient = static_cast<int>((i * 7919LL) % 20'000);
        contenu += jour.toString(QStringLiteral("dd/MM/yyyy")).toLatin1() + "*PATIENT" +
                   QByteArray::number(patient * 31 % 20'000) + "  Jean*" +
                   QDate(1930, 1, 1).addDays(patient).toString(QStringLiteral("dd/MM/yyyy")).toLatin1() +
                   "*DOLIPRANE1000MGCP*AMLOR5MGGEL" + QByteArray::number(i % 97) + "*METFORMINE850MGCP\r\n";
    }
    return contenu;
}

bool Lance(const QString& programme, const QStringList& arguments)
{
    QProcess processus;
    processus.setStandardOutputFile(QProcess::nullDevice());
    processus.start(programme, arguments);
    return processus.waitForFinished(-1) && processus.exitCode() == 0;
}

void Ouverture(benchmark::State& state)
{
    const QTemporaryDir dossier;
    const QString chemin = common::Joint(dossier.path(), QStringLiteral("Journal_Docteur X.log"));
    common::EcritFichier(chemin, Contenu());
    bool etalon = true;
    bench::Compare(
        state,
        [&] {
            prescription::JournalEntrees journal;
            journal.Lit(chemin);
            benchmark::DoNotOptimize(journal.Dates());
            benchmark::DoNotOptimize(journal.Patients());
        },
        [&] {
            etalon = Lance(QStringLiteral("wc"), {QStringLiteral("-l"), chemin}) &&
                     Lance(QStringLiteral("sort"), {chemin});
        });
    if (!etalon) {
        state.SkipWithError("the system's counting or sorting is missing");
    }
}

BENCHMARK(Ouverture)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
