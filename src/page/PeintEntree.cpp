#include "page/Corps.h"
#include "page/Gabarit.h"
#include "page/MarqueursTitre.h"
#include "page/MotsPosologie.h"

namespace page {

namespace {

double Retrait(const Surface& cible, const QString& titre, const settings::Marges& marges)
{
    if (!LitTitre(titre).Centre) {
        return 0;
    }
    return kCentreFeuille - cible.TextWidth(titre) / 2 - marges.MargeGaucheOrdo;
}

void PeintTitre(Surface& cible, const QString& titre, const settings::Options& options, SuiteDuCorps& suite)
{
    const TitreLu lu = LitTitre(titre);
    if (options.IncrementeMedicaments == 1 && lu.Compte) {
        cible.PrintSuite(QStringLiteral("%1- ").arg(++suite.Numero));
    }
    if (!titre.isEmpty()) {
        cible.Print(lu.Texte);
        suite.Titres += titre + QLatin1Char('*');
    }
}

// The words of one posology. What a line has collected is measured, never the pen's place.
class Flot
{
public:
    Flot(Surface& cible, const page::Police& police, double retrait, double largeur)
        : cible_(cible), police_(police), retrait_(retrait), largeur_(largeur)
    {}

    void Ecrit(const Mot& mot);

private:
    void Place(const Mot& mot);

    Surface& cible_;
    page::Police police_;
    double retrait_;
    double largeur_;
    QString ligne_;
    bool premier_ = true;
};

void Flot::Place(const Mot& mot)
{
    if (cible_.TextWidth(ligne_ + mot.Mesure) < largeur_ - retrait_) {
        ligne_ += mot.Mesure + QLatin1Char(' ');
        if (premier_) {
            cible_.CurrentX(retrait_);
        }
    } else {
        ligne_ = mot.Mesure + QLatin1Char(' ');
        cible_.PrintSuite(QStringLiteral("\n"));
        cible_.CurrentX(retrait_);
    }
    premier_ = false;
}

void Flot::Ecrit(const Mot& mot)
{
    cible_.Font(StyleDuMot(police_, mot));
    Place(mot);
    cible_.PrintSuite(mot.Imprime());
    cible_.Font(police_);
    cible_.PrintSuite(QStringLiteral(" "));
}

} // namespace

void SauteIntervalle(Surface& cible, const settings::Reglages& reglages)
{
    if (reglages.Options.SautPersonnalise == 1) {
        cible.CurrentY(cible.CurrentY() + reglages.Marges.HauteurSaut);
    } else {
        cible.Print();
    }
}

void PeintEntree(Surface& cible, const prescription::Entree& entree, const settings::Reglages& reglages,
                 SuiteDuCorps& suite)
{
    cible.Font(reglages.Look.Titre);
    const QString titre = TitreNormal(entree.Titre);
    const double retrait = Retrait(cible, titre, reglages.Marges);
    cible.CurrentX(retrait);
    PeintTitre(cible, titre, reglages.Options, suite);
    if (reglages.Options.SautTitrePoso == 1) {
        cible.Print();
    }
    cible.Font(reglages.Look.Poso);
    Flot flot(cible, reglages.Look.Poso, retrait, reglages.Marges.LongueurLigne);
    for (const Mot& mot : MotsPosologie(entree.Posologie)) {
        flot.Ecrit(mot);
    }
    cible.Print();
    for (int saut = 0; saut < reglages.Options.SautsPrescription; ++saut) {
        SauteIntervalle(cible, reglages);
    }
}

} // namespace page
