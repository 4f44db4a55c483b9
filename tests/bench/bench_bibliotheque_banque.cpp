// The open bank through the program's own questions: a search as it is typed, the interactions of twenty
// lines, the generics of the largest group, a page, the start, and what it all weighs.
#include "Rapport.h"
#include "bank/PosteReel.h"

#include <ctime>

namespace {

/// The started library, and its file to take the questions from.
struct Banque : support::PosteReel
{
    Banque() : Lecture(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("lecture")))
    {
        Lecture.setDatabaseName(Poste->Fichier());
        Lecture.open();
    }
    ~Banque()
    {
        Lecture = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("lecture"));
    }
    Banque(const Banque&) = delete;
    Banque& operator=(const Banque&) = delete;

    QVariantList Valeurs(const QString& instruction) const
    {
        QVariantList valeurs;
        QSqlQuery requete(Lecture);
        for (requete.exec(instruction); requete.next();) {
            valeurs.append(requete.value(0));
        }
        return valeurs;
    }

    QSqlDatabase Lecture;
};

/// Seconds of processor time that a call takes, whatever else the machine does.
template <typename Appel> double SecondesProcesseur(Appel&& appel)
{
    const std::clock_t debut = std::clock();
    appel();
    return static_cast<double>(std::clock() - debut) / CLOCKS_PER_SEC;
}

/// Times each question by itself; the slowest hundredth and the slowest are shown.
template <typename Questions, typename Pose>
void Chacune(benchmark::State& state, const Questions& questions, Pose&& pose)
{
    std::vector<double> temps;
    for ([[maybe_unused]] auto _ : state) {
        for (const auto& question : questions) {
            temps.push_back(SecondesProcesseur([&] { pose(question); }));
        }
    }
    if (temps.empty()) {
        state.SkipWithError("nothing to ask");
        return;
    }
    std::ranges::sort(temps);
    state.counters["questions"] = static_cast<double>(questions.size());
    state.counters["ms_mediane"] = 1000 * temps[temps.size() / 2];
    state.counters["ms_99"] = 1000 * temps[temps.size() * 99 / 100];
    state.counters["ms_pire"] = 1000 * temps.back();
}

/// Every beginning of the names of a few hundred medications.
void Recherche(benchmark::State& state)
{
    Banque banque;
    QStringList questions;
    const QVariantList noms =
        banque.Valeurs(QStringLiteral("select nom from specialites where commercialisee order by cis"));
    for (qsizetype i = 0; i < noms.size(); i += 80) {
        const QString nom = noms[i].toString().left(24);
        for (qsizetype longueur = 1; longueur <= nom.size(); ++longueur) {
            questions.append(nom.left(longueur));
        }
    }
    Chacune(state, questions,
            [&](const QString& question) { banque.Poste->Requetes->RecherchePacks(question, 64); });
}

void Interactions20Lignes(benchmark::State& state)
{
    Banque banque;
    const QVariantList produits =
        banque.Valeurs(QStringLiteral("select distinct cis from specialites join compositions using(cis) "
                                      "join thesaurus_substances using(code) "
                                      "where commercialisee order by cis * 7919 % 100003"));
    QList<QList<qint32>> ordonnances;
    for (qsizetype i = 0; i + 20 <= qMin<qsizetype>(produits.size(), 2000); i += 20) {
        QList<qint32> ordonnance;
        for (qsizetype j = i; j < i + 20; ++j) {
            ordonnance.append(produits[j].toInt());
        }
        ordonnances.append(ordonnance);
    }
    qsizetype caracteres = 0;
    Chacune(state, ordonnances, [&](const QList<qint32>& ordonnance) {
        caracteres = qMax(caracteres, banque.Poste->Requetes->Interactions(ordonnance, 0).size());
    });
    state.counters["caracteres"] = static_cast<double>(caracteres);
}

void GeneriquesDuPlusGrandGroupe(benchmark::State& state)
{
    Banque banque;
    const QVariantList produits = banque.Valeurs(
        QStringLiteral("select cis from groupes_membres where groupe = (select groupe from groupes_membres "
                       "join specialites using(cis) "
                       "where commercialisee group by groupe order by count(*) desc limit 1)"));
    qsizetype rangs = 0;
    Chacune(state, produits, [&](const QVariant& produit) {
        rangs = qMax(rangs, banque.Poste->Requetes->Generiques(produit.toInt()).size());
    });
    state.counters["rangs"] = static_cast<double>(rangs);
}

void Monographies(benchmark::State& state)
{
    Banque banque;
    QVariantList packs =
        banque.Valeurs(QStringLiteral("select min(id) from presentations group by cis having cis % 31 = 0"));
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        banque.Poste->Libere(); // no page is written yet
        banque.Poste->Demarre();
        state.ResumeTiming();
        for (const QVariant& pack : std::as_const(packs)) {
            banque.Poste->Requetes->Monographie(pack.toInt());
        }
    }
    state.counters["pages"] = static_cast<double>(packs.size());
}

void Demarrage(benchmark::State& state)
{
    Banque banque;
    for ([[maybe_unused]] auto _ : state) {
        banque.Poste->Libere();
        banque.Poste->Demarre();
    }
}

void Memoire(benchmark::State& state)
{
    Banque banque;
    QProcess mesure;
    for ([[maybe_unused]] auto _ : state) {
        mesure.start(QStringLiteral(CHEMIN_MESURE_BDP),
                     {QStringLiteral(CHEMIN_BDP), banque.Poste->Fichier()});
        mesure.waitForFinished();
    }
    const QByteArrayList kilooctets = mesure.readAllStandardOutput().trimmed().split(' ');
    if (kilooctets.size() != 2) {
        state.SkipWithError("the process that is weighed failed");
        return;
    }
    state.counters["Mo_demarree"] = kilooctets[0].toDouble() / 1024;
    state.counters["Mo_employee"] = kilooctets[1].toDouble() / 1024;
}

BENCHMARK(Recherche)->Unit(benchmark::kMillisecond);
BENCHMARK(Interactions20Lignes)->Unit(benchmark::kMillisecond);
BENCHMARK(GeneriquesDuPlusGrandGroupe)->Unit(benchmark::kMillisecond);
BENCHMARK(Monographies)->Unit(benchmark::kMillisecond);
BENCHMARK(Demarrage)->Unit(benchmark::kMillisecond);
BENCHMARK(Memoire)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

BENCHMARK_MAIN();
