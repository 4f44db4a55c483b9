// The interactions of twenty products, each pair of a hundred and ninety, on a thesaurus of the published
// one's size; and the reading of its text, against finding its line ends.
#include "Rapport.h"
#include "bank/ThesaurusRapport.h"

#include <cstring>

namespace {

using namespace banque;

constexpr int kClasses = 170;
constexpr int kSubstances = 1100;
constexpr int kInteractions = 1700;
constexpr int kProduits = 20;

/// Every substance is in ten classes, every class in twenty interactions.
Thesaurus Invente()
{
    Thesaurus thesaurus;
    for (int i = 0; i < kClasses + kSubstances; ++i) {
        thesaurus.Entrees.append({QString::number(i), QString::number(i), i < kClasses});
        thesaurus.ParCle.insert(QString::number(i), i);
    }
    for (int i = 0; i < kSubstances; ++i) {
        for (int j = 0; j < 10; ++j) {
            thesaurus.Appartenances.append({(i * 7 + j * 13) % kClasses, kClasses + i});
        }
    }
    for (int i = 0; i < kInteractions; ++i) {
        thesaurus.Interactions.append({i % kClasses, (i * 31 + i / kClasses) % kClasses, Niveau(i % 4),
                                       i % 31 == 0, false, QStringLiteral("Un risque."),
                                       QStringLiteral("Un avis.")});
    }
    return thesaurus;
}

void RapportDe20Produits(benchmark::State& state)
{
    const Thesaurus thesaurus = Invente();
    LiensThesaurus liens;
    for (int i = 0; i < kSubstances; ++i) {
        liens.insert(kClasses + i, i);
    }
    const Interactions interactions(thesaurus, liens);
    QList<ProduitAVerifier> produits;
    for (int i = 0; i < kProduits; ++i) {
        produits.append({{i * 53 % kSubstances, (i * 53 + 1) % kSubstances}, true, false});
    }
    qsizetype couples = 0;
    for ([[maybe_unused]] auto _ : state) {
        couples = interactions.Rapport(produits, Niveau::APrendreEnCompte).Couples.size();
    }
    state.counters["couples"] = double(couples);
    if (couples == 0) {
        state.SkipWithError("no couple");
    }
}

QByteArray Document()
{
    QByteArray texte = "THESAURUS\nMARS 2021\n";
    for (int i = 0; i < 600; ++i) {
        texte += "\f                    " + QByteArray::number(i % 999 + 1) + "\n\nENTREE " +
                 QByteArray::number(i) + "\n";
        for (int j = 1; j <= 5; ++j) {
            texte +=
                "+ ENTREE " + QByteArray::number((i + j * 7) % 600) +
                "\n                      Un risque assez long pour tenir une ligne.    Précaution d'emploi\n"
                "                      Et une seconde ligne.                         Un avis sur la "
                "conduite.\n\n";
        }
    }
    return texte;
}

void LectureDuTexte(benchmark::State& state)
{
    const QByteArray texte = Document();
    bench::Compare(
        state, [&] { benchmark::DoNotOptimize(LitThesaurus(texte)); },
        [&] { benchmark::DoNotOptimize(QString::fromUtf8(texte).split(u'\n')); });
}

BENCHMARK(RapportDe20Produits)->Unit(benchmark::kMillisecond);
BENCHMARK(LectureDuTexte)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
