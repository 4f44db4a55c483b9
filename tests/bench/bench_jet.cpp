// The conversion of a large practice's Jet files against `mdb-export` of all their tables.
#include "Rapport.h"
#include "common/Fichiers.h"
#include "storage/ConversionJet.h"
#include "support/DonneesJet.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

namespace {

using storage::GenreBase;
using support::DonneesJet;

/// What a command of mdbtools writes.
QByteArray Sortie(const QString& programme, const QStringList& arguments)
{
    QProcess processus;
    processus.start(programme, arguments);
    processus.waitForFinished();
    return processus.readAllStandardOutput();
}

void Exporte(const QString& base)
{
    for (const QByteArray& table :
         Sortie(QStringLiteral("mdb-tables"), {QStringLiteral("-1"), base}).split('\n')) {
        if (!table.isEmpty()) {
            Sortie(QStringLiteral("mdb-export"), {base, QString::fromUtf8(table)});
        }
    }
}

void Conversion(benchmark::State& state)
{
    if (!DonneesJet::Presentes()) {
        state.SkipWithError("the Jet files are not here");
        return;
    }
    const QString medoc = DonneesJet::Chemin(QStringLiteral("gros/Medoc.mdb"));
    const QString ordo = DonneesJet::Chemin(QStringLiteral("gros/Ordo.mdb"));
    std::unique_ptr<QTemporaryDir> dossier;
    const auto prepare = [&] {
        dossier = std::make_unique<QTemporaryDir>();
        common::CopieFichier(medoc, dossier->filePath(QStringLiteral("Medoc.mdb")));
        common::CopieFichier(ordo, dossier->filePath(QStringLiteral("Ordo.mdb")));
    };
    bench::Compare(
        state,
        [&] {
            storage::ConvertitSiJet(dossier->filePath(QStringLiteral("Medoc.mdb")), GenreBase::Medoc);
            storage::ConvertitSiJet(dossier->filePath(QStringLiteral("Ordo.mdb")), GenreBase::Ordo);
        },
        [&] {
            Exporte(medoc);
            Exporte(ordo);
        },
        prepare);
}

BENCHMARK(Conversion)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int nombre, char** arguments)
{
    const QCoreApplication application(nombre, arguments);
    benchmark::Initialize(&nombre, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
