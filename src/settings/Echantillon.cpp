#include "settings/Echantillon.h"

#include "page/Corps.h"

#include <algorithm>

namespace settings {

namespace {

constexpr double kLargeur = 100; // of the sample's paper, millimetres
constexpr double kHauteur = 56;
constexpr double kBord = 4; // kept free beyond what is written

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

page::Dessin DessinEchantillon(const Reglages& reglages)
{
    page::Surface cible(page::Cible::Autre, kLargeur, kHauteur);
    PeintEchantillon(cible, reglages);
    page::Dessin dessin = cible.Resultat();
    for (const page::Item& item : std::as_const(dessin.Items)) {
        if (const auto* texte = std::get_if<page::ItemTexte>(&item)) {
            dessin.Largeur = std::max(dessin.Largeur, texte->X + texte->Largeur + kBord);
            dessin.Hauteur = std::max(dessin.Hauteur, texte->Y + texte->Hauteur + kBord);
        }
    }
    const page::Dessin feuille;
    dessin.Largeur = std::min(dessin.Largeur, feuille.Largeur);
    dessin.Hauteur = std::min(dessin.Hauteur, feuille.Hauteur);
    return dessin;
}

} // namespace settings
