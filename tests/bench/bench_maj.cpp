// The upgrade of a practice of 20 000 patients and 300 000 memorised lines, against the engine's own shell
// copying the same rows into the same templates with "insert ... select".
#include "Rapport.h"
#include "support/Monde.h"
#include "upgrade/MajBases.h"

#include <QCoreApplication>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <stdexcept>

namespace {

constexpr int kPatients = 20000;
constexpr int kOrdonnances = 30000;
constexpr int kLignesParOrdonnance = 10;

/// Boxes that are all answered at once.
struct BoitesMuettes : outside::Boites
{
    outside::Bouton Montre(const outside::Message& message) override { return message.Defaut; }
    std::optional<QString> Demande(const outside::Saisie&) override { return {}; }
    std::optional<QString> Dossier(const QString&) override { return {}; }
    std::optional<QString> Ouvre(const outside::ChoixFichier&) override { return {}; }
    std::optional<QString> Enregistre(const outside::ChoixFichier&) override { return {}; }
    std::optional<page::Police> ChoisitPolice(const page::Police&) override { return {}; }
    std::optional<page::Couleur> ChoisitCouleur(page::Couleur) override { return {}; }
};

struct Cabinet : support::Monde
{
    BoitesMuettes Muettes;
    application::Contexte Sourd{
        Etat.Contexte({Muettes, Imprimantes, Horloge, Plateau, DemarrageSysteme, Lanceur})};
    QString Depart = Chemin(QStringLiteral("depart/DataScriptelle"));
    QString Arbre = Chemin(QStringLiteral("travail/DataVelmont/DataScriptelle"));
    QString Etalon = Chemin(QStringLiteral("etalon.mdb"));
    QString Modele = Chemin(QStringLiteral("programme/BasesInstal/Copie de Medoc.mdb"));

    /// `date` is that of the memorised prescriptions; "0" has the birth dates repaired.
    explicit Cabinet(const QString& date)
    {
        Installe();
        for (const auto& [nom, genre] :
             {std::pair{"Medoc", storage::GenreBase::Medoc}, std::pair{"Ordo", storage::GenreBase::Ordo}}) {
            storage::CreeBase(
                Chemin(QStringLiteral("programme/BasesInstal/Copie de %1.mdb").arg(QLatin1String(nom))),
                genre, storage::ContenuInitial::Aucun);
        }
        common::CreeDossier(Depart);
        storage::CreeBase(common::Joint(Depart, QStringLiteral("Medoc.mdb")), storage::GenreBase::Medoc);
        Remplit(date);
    }
    void Remplit(const QString& date) const
    {
        const QString compte =
            QStringLiteral("with recursive n(i) as (select 0 union all select i + 1 from n "
                           "where i < ? - 1) ");
        storage::Base medoc(common::Joint(Depart, QStringLiteral("Medoc.mdb")), storage::GenreBase::Medoc);
        storage::Transaction transaction(medoc);
        medoc.Execute(
            QStringLiteral("insert into Patients ") + compte +
                QStringLiteral("select i + 1, 'Monsieur', 'PATIENT' || i || '  Paul', '20/03/1953', '70', "
                               "null, 'notes', null, '1, rue Haute', '01', null from n"),
            {kPatients});
        medoc.Execute(
            QStringLiteral("insert into ListeOrdos ") + compte +
                QStringLiteral("select 'Traitement ' || i, 'Monsieur  PATIENT' || (i % 20000) || '  Paul', "
                               "0, ? from n"),
            {kOrdonnances, date});
        medoc.Execute(
            QStringLiteral("insert into OrdoEnr ") + compte +
                QStringLiteral(
                    "select 'Traitement ' || (i / 10), 'DOLIPRANE ' || (i % 997) || ' MG COMPRIMÉ', "
                    "'1 comprimé matin* et soir pendant 30 jours', 1 + i % 2, "
                    "'Monsieur  PATIENT' || (i / 10 % 20000) || '  Paul', ?, i % 5000, 1 from n"),
            {kOrdonnances * kLignesParOrdonnance, date});
        transaction.Valide();
    }

    void Pose() const
    {
        if (common::DossierExiste(Arbre)) {
            common::SupprimeDossier(Arbre);
        }
        common::CopieDossier(Depart, Arbre);
        common::CopieFichier(Modele, Etalon);
    }

    /// The same rows into a template by the shell, one transaction.
    void ParLeShell() const
    {
        QString lot = QStringLiteral("attach '%1' as ancien;\nbegin;\n")
                          .arg(common::Joint(Depart, QStringLiteral("Medoc.mdb")));
        for (const storage::Table& table : storage::Tables(storage::GenreBase::Medoc)) {
            QStringList colonnes;
            for (const storage::Colonne& colonne : table.Colonnes) {
                colonnes.append(storage::Cite(colonne.Nom));
            }
            lot += QStringLiteral("insert into main.%1 (%2) select %2 from ancien.%1;\n")
                       .arg(table.Nom, colonnes.join(u','));
        }
        QProcess shell;
        shell.start(QStringLiteral("sqlite3"), {QStringLiteral("-bail"), Etalon});
        shell.write((lot + QStringLiteral("commit;\n")).toUtf8());
        shell.closeWriteChannel();
        if (!shell.waitForFinished(-1) || shell.exitCode() != 0) {
            throw std::runtime_error(shell.readAllStandardError().toStdString());
        }
    }
};

/// In turn, as `bench::Compare` does, over a tree laid out anew and not timed.
void Mesure(benchmark::State& state, const QString& date)
{
    const auto cabinet = std::make_unique<Cabinet>(date);
    std::vector<double> temps;
    std::vector<double> reference;
    std::vector<double> rapports;
    for ([[maybe_unused]] auto _ : state) {
        cabinet->Pose();
        reference.push_back(bench::Secondes([&] { cabinet->ParLeShell(); }));
        temps.push_back(bench::Secondes([&] { upgrade::MajBases(cabinet->Sourd, {}, cabinet->Arbre); }));
        rapports.push_back(temps.back() / reference.back());
        state.SetIterationTime(temps.back());
    }
    state.counters["ms"] = 1000 * bench::Mediane(temps);
    state.counters["etalon_ms"] = 1000 * bench::Mediane(reference);
    state.counters["rapport"] = bench::Mediane(rapports);
}

void Maj(benchmark::State& state)
{
    Mesure(state, QStringLiteral("20/03/1953"));
}
BENCHMARK(Maj)->UseManualTime()->Unit(benchmark::kMillisecond);

void MajAvecDates(benchmark::State& state)
{
    Mesure(state, QStringLiteral("0"));
}
BENCHMARK(MajAvecDates)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int nombre, char** arguments)
{
    const QCoreApplication application(nombre, arguments);
    benchmark::Initialize(&nombre, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
