#include "settings/ApercuEntete.h"

#include "common/Erreur.h"
#include "outside/Boites.h"
#include "outside/Horloge.h"
#include "page/FeuilleEssai.h"
#include "prescription/Editeur.h"
#include "prescription/Envoi.h"
#include "prescription/messages.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

#include <algorithm>

namespace settings {

namespace {

constexpr double kLargeurFeuille = 210;
constexpr double kHauteurA4 = 297;
constexpr double kHauteurA5 = 210;
constexpr double kMoindreHauteur = 45; // of the picture, millimetres as all here
constexpr double kSousLeTexte = 4;
constexpr double kLargeurDuHaut = 110;
constexpr double kHauteurDuHaut = 32;

double BasDuTexte(const page::Dessin& dessin)
{
    double bas = 0;
    for (const page::Item& item : dessin.Items) {
        if (const auto* texte = std::get_if<page::ItemTexte>(&item)) {
            bas = std::max(bas, texte->Y + texte->Hauteur);
        }
    }
    return bas;
}

page::Modele ModeleEntete(application::Contexte& contexte, const Reglages& reglages,
                          const QList<page::LigneEntete>& lignes)
{
    return {.Patient = contexte.Patient,
            .Ordonnance = contexte.Ordonnance,
            .Reglages = reglages,
            .Entete = lignes,
            .Aujourdhui = contexte.Dehors.Horloge.Aujourdhui()};
}

/// The row of the foot, placed from the bottom of the doctor's sheet; the pen keeps its X.
void EcritPied(page::Surface& cible, const Reglages& reglages, const QList<page::LigneEntete>& lignes)
{
    const page::LigneEntete* pied = page::LigneBasDePage(lignes);
    if (!pied) {
        return;
    }
    const double hauteur = reglages.Options.FormatA4 == 1 ? kHauteurA4 : kHauteurA5;
    cible.Font(pied->PoliceApres(cible.Font()));
    cible.CurrentY(hauteur - reglages.Marges.MargeBasEntete);
    cible.Print(pied->Texte);
}

page::Dessin FeuilleDEssai(application::Contexte& contexte, const QList<page::LigneEntete>& lignes)
{
    page::Surface cible(page::Cible::Imprimante);
    page::PeintEntete(cible, ModeleEntete(contexte, contexte.Reglages, lignes),
                      prescription::ChargeLogo(contexte.Reglages.Options));
    EcritPied(cible, contexte.Reglages, lignes);
    return cible.Resultat();
}

} // namespace

page::Dessin DessinEntete(application::Contexte& contexte)
{
    QList<page::LigneEntete> lignes;
    prescription::ModelePage(contexte, lignes);
    page::Surface cible(page::Cible::Autre, kLargeurFeuille, kHauteurA4);
    page::PeintEntete(cible, ModeleEntete(contexte, contexte.Reglages, lignes), QImage());
    page::Dessin dessin = cible.Resultat();
    dessin.Hauteur = std::clamp(BasDuTexte(dessin) + kSousLeTexte, kMoindreHauteur, kHauteurA4);
    return dessin;
}

page::Dessin HautDeFeuille(application::Contexte& contexte, const RangsEntete& rangs, quint8 ordre)
{
    Reglages reglages = contexte.Reglages;
    reglages.Options.ModeEntete = ordre;
    page::Surface cible(page::Cible::Imprimante, kLargeurDuHaut, kHauteurDuHaut);
    const QList<page::LigneEntete> lignes = LignesDe(rangs);
    page::PeintEntete(cible, ModeleEntete(contexte, reglages, lignes), QImage());
    return cible.Resultat();
}

page::Dessin FeuilleAvec(application::Contexte& contexte, const Entete& entete, const QImage& logo)
{
    Reglages reglages = contexte.Reglages;
    reglages.Look.CouleurEntete = entete.Couleur;
    reglages.Marges.MargeGaucheEntete = entete.MargeGauche;
    reglages.Marges.MargeHauteEntete = entete.MargeHaute;
    reglages.Marges.MargeBasEntete = entete.MargeBas;
    return page::FeuilleEssai(reglages, LignesDe(entete.Rangs), logo, contexte.Dehors.Horloge.Aujourdhui(),
                              contexte.Dehors.Boites);
}

bool ImprimeEntete(application::Contexte& contexte)
{
    QList<page::LigneEntete> lignes;
    try {
        lignes = page::LitEntete(contexte.Bases.Ordo(contexte.Chemins.CheminMedecin));
    } catch (const common::Erreur& erreur) {
        contexte.Dehors.Boites.Stop(prescription::messages::EnteteIllisible(erreur.Phrase()));
        return false;
    }
    const QString imprimante = prescription::ImprimanteEnUsage(contexte);
    return prescription::Envoie(contexte, imprimante,
                                {.Titre = QStringLiteral("En-tête"),
                                 .Pages = {FeuilleDEssai(contexte, lignes)},
                                 .CheminPdf = prescription::DossierPdf(contexte.Chemins)});
}

} // namespace settings
