#include "settings/Echantillon.h"

#include "page/Corps.h"

namespace settings {

namespace {

void PeintLignes(page::Surface& cible, const Reglages& reglages, const QString& titre,
                 const QString& posologie)
{
    cible.Font(reglages.Look.Titre);
    cible.Print();
    cible.Print(titre);
    if (reglages.Options.SautTitrePoso == 1) {
        cible.Print();
    }
    cible.Font(reglages.Look.Poso);
    cible.Print(posologie);
}

} // namespace

void PeintEchantillon(page::Surface& cible, const Reglages& reglages)
{
    cible.Cls();
    cible.ScaleLeft(-reglages.Marges.MargeGaucheOrdo / 2.0);
    PeintLignes(cible, reglages, QStringLiteral("BIRODOGYL cp pelliculé : B/10"),
                QStringLiteral("1 comprimé matin, midi et soir"));
    for (int saut = 0; saut < reglages.Options.SautsPrescription; ++saut) {
        page::SauteIntervalle(cible, reglages);
    }
    PeintLignes(cible, reglages, QStringLiteral("EFFERALGAN CODEINE cp efferv séc : 2T/8"),
                QStringLiteral("2 comprimés matin, midi et soir"));
}

} // namespace settings
