// A sheet of two zones, 20 entries of 40 words, against the same strings drawn at given places.
#include "bench/Rapport.h"
#include "page/Rejeu.h"
#include "support/PageDeTest.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

namespace {

constexpr int kFeuilles = 500;
constexpr double kUnitesParMm = 1200 / 25.4;

struct Chaine
{
    QPointF Place;
    QString Texte;
    int Police = 0;
};

/// The yardstick's sheet: what is left once every decision is taken.
struct FeuilleEtalon
{
    QList<Chaine> Chaines;
    QList<page::Police> Polices;

    explicit FeuilleEtalon(const page::Dessin& dessin)
    {
        for (const page::ItemTexte& item : support::Textes(dessin)) {
            if (!Polices.contains(item.Police)) {
                Polices.append(item.Police);
            }
            const double base = item.Y + page::MesureAscendante(item.Police);
            Chaines.append({QPointF(item.X, base) * kUnitesParMm, item.Texte,
                            static_cast<int>(Polices.indexOf(item.Police))});
        }
    }

    void Dessine(QPainter& peintre) const
    {
        QList<QFont> fonts;
        for (const page::Police& police : Polices) {
            QFont font(police.Nom);
            font.setPointSizeF(police.Taille);
            font.setBold(police.Gras);
            font.setItalic(police.Italique);
            font.setUnderline(police.Souligne);
            fonts.append(font);
        }
        int enUsage = -1;
        for (const Chaine& chaine : Chaines) {
            if (chaine.Police != enUsage) {
                enUsage = chaine.Police;
                peintre.setFont(fonts[enUsage]);
            }
            peintre.drawText(chaine.Place, chaine.Texte);
        }
    }
};

/// A PDF in memory, A4 without margins.
class Pdf
{
public:
    Pdf()
    {
        tampon_.open(QIODevice::WriteOnly);
        ecrivain_.setPageSize(QPageSize(QPageSize::A4));
        ecrivain_.setPageMargins(QMarginsF(0, 0, 0, 0));
        ecrivain_.setResolution(1200);
        peintre_.begin(&ecrivain_);
    }

    QPainter& Peintre() { return peintre_; }
    void PageSuivante() { ecrivain_.newPage(); }

private:
    QBuffer tampon_;
    QPdfWriter ecrivain_{&tampon_};
    QPainter peintre_;
};

support::PageDeTest& Page()
{
    static support::PageDeTest page;
    if (page.Ordonnance.LstChoix1.Vide()) {
        support::RemplitDeuxZones(page);
    }
    return page;
}

void PeintFeuillets(int nombre)
{
    Pdf pdf;
    for (int feuille = 0; feuille < nombre; ++feuille) {
        if (feuille > 0) {
            pdf.PageSuivante();
        }
        page::Rejoue(Page().PeintFeuille(), pdf.Peintre(), kUnitesParMm);
    }
}

void DessineChaines(const FeuilleEtalon& etalon, int nombre)
{
    Pdf pdf;
    for (int feuille = 0; feuille < nombre; ++feuille) {
        if (feuille > 0) {
            pdf.PageSuivante();
        }
        etalon.Dessine(pdf.Peintre());
    }
}

void Feuillets(benchmark::State& state)
{
    const FeuilleEtalon etalon(Page().PeintFeuille());
    const int nombre = static_cast<int>(state.range(0));
    PeintFeuillets(1);
    DessineChaines(etalon, 1);
    bench::Compare(
        state, [&] { PeintFeuillets(nombre); }, [&] { DessineChaines(etalon, nombre); });
}

// Painting alone, without replay: what the measure and the record cost.
void Peinture(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(Page().PeintFeuille());
    }
}

} // namespace

BENCHMARK(Feuillets)->ArgName("feuilles")->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Feuillets)->ArgName("feuilles")->Arg(kFeuilles)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Peinture)->Unit(benchmark::kMillisecond);

int main(int nombre, char** arguments)
{
    QGuiApplication application(nombre, arguments);
    benchmark::Initialize(&nombre, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
