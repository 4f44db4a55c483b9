#include "page/Mesure.h"

#include "common/Lignes.h"
#include "page/Caracteres.h"

#include <QFontMetricsF>
#include <QImage>
#include <algorithm>
#include <array>
#include <memory>
#include <unordered_map>

namespace page {

namespace {

constexpr double kPointsParPouce = 1200;
constexpr double kMillimetresParPoint = 25.4 / kPointsParPouce;
constexpr float kTailleMinimale = 0.5F; // in points; a stored 0 or 30000 must not stop the painting
constexpr float kTailleMaximale = 1000;

struct MesuresDePolice
{
    double Ascendante = 0;
    double Hauteur = 0;
    page::Soulignement Soulignement;
    std::array<double, 256> Latines; // advances, negative while unknown
    std::unordered_map<char32_t, double> Autres;
};

struct Hachage
{
    size_t operator()(const Police& police) const
    {
        return qHashMulti(0, police.Nom, police.Taille, police.Gras, police.Italique);
    }
};

QFontMetricsF MetriquesDeReference(const Police& police)
{
    QImage reference(1, 1, QImage::Format_ARGB32);
    const int parMetre = qRound(kPointsParPouce / 0.0254);
    reference.setDotsPerMeterX(parMetre);
    reference.setDotsPerMeterY(parMetre);
    return {PoliceQt(police), &reference};
}

// Some bold fonts put their underline on the baseline, where it would stick to the letters.
double SousLaLigne(const Police& police, const QFontMetricsF& metriques)
{
    constexpr double emParPoint = kPointsParPouce / 72;
    constexpr double jourMinimal = 0.05; // of the em
    return std::max(metriques.underlinePos(), police.Taille * emParPoint * jourMinimal);
}

std::unique_ptr<MesuresDePolice> MesurePolice(const Police& police)
{
    const QFontMetricsF metriques = MetriquesDeReference(police);
    auto mesures = std::make_unique<MesuresDePolice>();
    mesures->Ascendante = metriques.ascent() * kMillimetresParPoint;
    mesures->Hauteur = (metriques.ascent() + metriques.descent()) * kMillimetresParPoint;
    mesures->Soulignement = {SousLaLigne(police, metriques) * kMillimetresParPoint,
                             metriques.lineWidth() * kMillimetresParPoint};
    mesures->Latines.fill(-1);
    return mesures;
}

// Measuring a character asks the font system and costs a thousand times the sum that uses it, while the
// answer never changes: it is kept for the life of the thread. Nothing else of the program can see it.
MesuresDePolice& Mesures(const Police& police)
{
    thread_local std::unordered_map<Police, std::unique_ptr<MesuresDePolice>, Hachage> connues;
    thread_local Police derniere;
    thread_local MesuresDePolice* dernieres = nullptr;
    if (dernieres == nullptr || !(derniere == police)) {
        auto& mesures = connues[police];
        if (!mesures) {
            mesures = MesurePolice(police);
        }
        derniere = police;
        dernieres = mesures.get();
    }
    return *dernieres;
}

double AvanceDeReference(char32_t caractere, const Police& police)
{
    const char32_t mesure = caractere < U' ' ? U' ' : caractere;
    return MetriquesDeReference(police).horizontalAdvance(QString::fromUcs4(&mesure, 1)) *
           kMillimetresParPoint;
}

double Avance(MesuresDePolice& mesures, char32_t caractere, const Police& police)
{
    double& avance = caractere < mesures.Latines.size()
                         ? mesures.Latines[caractere]
                         : mesures.Autres.try_emplace(caractere, -1).first->second;
    if (avance < 0) {
        avance = std::max(0.0, AvanceDeReference(caractere, police));
    }
    return avance;
}

double LargeurDeLigne(QStringView ligne, const Police& police)
{
    MesuresDePolice& mesures = Mesures(police);
    double largeur = 0;
    for (qsizetype place = 0; place < ligne.size();) {
        largeur += Avance(mesures, LitCaractere(ligne, place), police);
    }
    return largeur;
}

bool EstFinDeLigne(QChar caractere)
{
    return caractere == QLatin1Char('\n') || caractere == QLatin1Char('\r');
}

} // namespace

double MesureLargeur(const QString& texte, const Police& police)
{
    if (std::ranges::none_of(texte, EstFinDeLigne)) {
        return LargeurDeLigne(texte, police);
    }
    double largeur = 0;
    for (const QString& ligne : common::PartiesDeTexte(texte)) {
        largeur = std::max(largeur, LargeurDeLigne(ligne, police));
    }
    return largeur;
}

double MesureAvance(char32_t caractere, const Police& police)
{
    return Avance(Mesures(police), caractere, police);
}

double MesureHauteur(const Police& police)
{
    return Mesures(police).Hauteur;
}

double MesureAscendante(const Police& police)
{
    return Mesures(police).Ascendante;
}

Soulignement MesureSoulignement(const Police& police)
{
    return Mesures(police).Soulignement;
}

QFont PoliceQt(const Police& police, double facteur)
{
    QFont font(police.Nom);
    font.setPointSizeF(std::clamp(police.Taille, kTailleMinimale, kTailleMaximale) * facteur);
    font.setBold(police.Gras);
    font.setItalic(police.Italique);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

} // namespace page
