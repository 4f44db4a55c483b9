// The list of 100 000 patients: filling it and one keystroke of its search.
#include "bench/Rapport.h"
#include "patients/MondePatients.h"
#include "patients/windows/FrmPatient.h"

#include <QApplication>
#include <QListView>
#include <sqlite3.h>
#include <stdexcept>

namespace {

constexpr int kPatients = 100000;

/// A name that resembles those of a practice: a few thousand surnames, some compound, some accented.
QString NomDePatient(int rang)
{
    static const QStringList debuts = {QStringLiteral("MAR"),    QStringLiteral("BER"), QStringLiteral("DU"),
                                       QStringLiteral("LE "),    QStringLiteral("É"),   QStringLiteral("D'"),
                                       QStringLiteral("PE"),     QStringLiteral("GAR"), QStringLiteral("RO"),
                                       QStringLiteral("DE LA "), QStringLiteral("MO"),  QStringLiteral("FA")};
    static const QStringList milieux = {QStringLiteral("TI"),  QStringLiteral("NAR"), QStringLiteral("PON"),
                                        QStringLiteral("GAL"), QStringLiteral("LI"),  QStringLiteral("RÉ"),
                                        QStringLiteral("CHE"), QStringLiteral("VI"),  QStringLiteral("SAN")};
    static const QStringList fins = {QStringLiteral("N"),  QStringLiteral("D"),   QStringLiteral("T"),
                                     QStringLiteral("ER"), QStringLiteral("OT"),  QStringLiteral("LE"),
                                     QStringLiteral("AC"), QStringLiteral("ÈRE"), QStringLiteral("-DUVAL")};
    static const QStringList prenoms = {
        QStringLiteral("Paul"),        QStringLiteral("Anne-Marie"), QStringLiteral("Émile"),
        QStringLiteral("Jean"),        QStringLiteral("Zoé"),        QStringLiteral("Catherine"),
        QStringLiteral("Jean-Pierre"), QStringLiteral("Marie"),      QStringLiteral("Nathalie"),
        QStringLiteral("Philippe"),    QStringLiteral("Isabelle"),   QStringLiteral("Michel"),
        QStringLiteral("Françoise"),   QStringLiteral("Alain"),      QStringLiteral("Sylvie"),
        QStringLiteral("Nicolas"),     QStringLiteral("Camille"),    QStringLiteral("Théo"),
        QStringLiteral("Léa"),         QStringLiteral("Hugo"),       QStringLiteral("Chloé"),
        QStringLiteral("Bernard"),     QStringLiteral("Monique"),    QStringLiteral("Hervé"),
        QStringLiteral("Aurélie")};
    const int tire = static_cast<int>(qint64(rang) * 48271 % 2147483647);
    const auto choisit = [](const QStringList& mots, int tirage) { return mots[tirage % mots.size()]; };
    return choisit(debuts, tire) + choisit(milieux, tire / 12) + choisit(milieux, tire / 108) +
           choisit(fins, tire / 972) + QStringLiteral("  ") + choisit(prenoms, tire / 8748);
}

struct Cabinet : MondePatients
{
    Cabinet()
    {
        storage::Transaction transaction(Medoc());
        for (int rang = 0; rang < kPatients; ++rang) {
            Medoc().Execute(
                QStringLiteral("insert into Patients (Titre, NomPatient, Datenais, Poids, Precautions, "
                               "Adresse, Telephone1) values (?, ?, ?, ?, ?, ?, ?)"),
                {QStringLiteral("Monsieur"), NomDePatient(rang), QStringLiteral("20/03/1953"),
                 QStringLiteral("72"), QString(), QStringLiteral("12 rue des Lilas\n75012 Paris"),
                 QStringLiteral("01 02 03 04 05")});
        }
        transaction.Valide();
    }
    QString CheminMedoc() const
    {
        return common::Joint(Etat.Chemins.CheminTravail, QStringLiteral("Medoc.mdb"));
    }
};

/// What the engine alone gives.
class Etalon
{
public:
    explicit Etalon(const QString& chemin)
    {
        if (sqlite3_open_v2(chemin.toUtf8().constData(), &base_, SQLITE_OPEN_READONLY, nullptr) !=
            SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(base_));
        }
    }
    ~Etalon() { sqlite3_close(base_); }
    Etalon(const Etalon&) = delete;
    Etalon& operator=(const Etalon&) = delete;

    struct Rangee
    {
        int Index;
        std::string Nom;
    };

    std::vector<Rangee> Lit()
    {
        sqlite3_stmt* requete = nullptr;
        if (sqlite3_prepare_v2(base_, "select \"Index\", NomPatient from Patients", -1, &requete, nullptr) !=
            SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(base_));
        }
        std::vector<Rangee> rangees;
        while (sqlite3_step(requete) == SQLITE_ROW) {
            const auto* nom = reinterpret_cast<const char*>(sqlite3_column_text(requete, 1));
            const auto longueur = static_cast<size_t>(sqlite3_column_bytes(requete, 1));
            rangees.push_back({sqlite3_column_int(requete, 0), std::string(nom, longueur)});
        }
        sqlite3_finalize(requete);
        return rangees;
    }

private:
    sqlite3* base_ = nullptr;
};

/// The shared world: made once, since it takes longer than all that is measured on it.
Cabinet& LeCabinet()
{
    static Cabinet cabinet;
    return cabinet;
}

void ListeDe100000(benchmark::State& state)
{
    Etalon etalon(LeCabinet().CheminMedoc());
    patients::ListePatients liste;
    bench::Compare(
        state, [&] { liste.Charge(LeCabinet().Medoc()); },
        [&] { benchmark::DoNotOptimize(etalon.Lit().size()); });
    if (liste.rowCount() != kPatients) {
        state.SkipWithError("patients are missing");
    }
}

/// The window on the screen is filled again, its list laid out.
void FrmPatientDe100000(benchmark::State& state)
{
    Etalon etalon(LeCabinet().CheminMedoc());
    application::Fenetres fenetres(LeCabinet().Contexte);
    auto& fenetre = fenetres.Donne<patients::FrmPatient>();
    fenetre.show();
    QApplication::processEvents();
    auto* liste = fenetre.findChild<QListView*>(QStringLiteral("LstPatient"));
    bench::Compare(
        state,
        [&] {
            Q_EMIT LeCabinet().Etat.Signaux.PatientsChanges();
            benchmark::DoNotOptimize(liste->visualRect(liste->model()->index(kPatients - 1, 0)));
        },
        [&] { benchmark::DoNotOptimize(etalon.Lit().size()); });
}

/// Keystrokes as they come: each beginning of the names of a hundred patients.
QStringList Frappes()
{
    QStringList frappes;
    for (int rang = 0; rang < kPatients; rang += kPatients / 100) {
        const QString nom = NomDePatient(rang).toLower();
        for (int longueur = 1; longueur <= nom.size(); ++longueur) {
            frappes << nom.left(longueur);
        }
    }
    return frappes;
}

/// The text as the list sorts it: upper case, without accents.
QString Replie(const QString& texte)
{
    QString replie = texte.trimmed().toUpper().normalized(QString::NormalizationForm_D);
    replie.removeIf([](QChar c) { return c.isMark(); });
    return replie;
}

/// One keystroke, against a plain binary search for the folded text over the folded names in their order.
void UneFrappe(benchmark::State& state)
{
    patients::ListePatients liste;
    liste.Charge(LeCabinet().Medoc());
    QStringList cles;
    for (int rang = 0; rang < liste.rowCount(); ++rang) {
        cles << Replie(liste.Texte(rang));
    }
    std::ranges::sort(cles);
    const QStringList frappes = Frappes();
    QStringList repliees;
    std::ranges::transform(frappes, std::back_inserter(repliees), Replie);
    const auto cherche = [&] {
        for (const QString& frappe : frappes) {
            benchmark::DoNotOptimize(liste.Cherche(frappe));
        }
    };
    const auto dichotomie = [&] {
        for (const QString& repliee : repliees) {
            benchmark::DoNotOptimize(std::ranges::lower_bound(cles, repliee));
        }
    };
    bench::Compare(state, cherche, dichotomie);
    state.counters["us_par_frappe"] = 1000 * state.counters["ms"] / double(frappes.size());
    double pire = 0;
    for (const QString& frappe : frappes) {
        pire = std::max(pire, bench::Secondes([&] { benchmark::DoNotOptimize(liste.Cherche(frappe)); }));
    }
    state.counters["us_la_pire"] = 1e6 * pire;
}

BENCHMARK(ListeDe100000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(FrmPatientDe100000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(UneFrappe)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
