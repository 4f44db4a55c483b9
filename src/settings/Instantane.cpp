#include "application/Signaux.h"
#include "drugbank/Banque.h"
#include "outside/Tente.h"
#include "patients/Patient.h"
#include "prescription/Editeur.h"
#include "settings/EffetsOptions.h"
#include "settings/LogoOptions.h"
#include "settings/SaisieOptions.h"
#include "startup/Chemins.h"
#include "startup/DemarrageAuto.h"
#include "startup/GestionMedecins.h"
#include "startup/Medecins.h"

#include <QFileInfo>

// What the options dialogue keeps of the variables while it is open.
namespace settings {

namespace {

constexpr quint8 Options::*kCommutateurs[] = {
    &Options::LanceDemarrage,    &Options::BarreMenu,    &Options::AfficheRegle,
    &Options::AfficheAge,        &Options::AffichePoids, &Options::IncrementeMedicaments,
    &Options::TotalMedicaments,  &Options::LogoActif,    &Options::PositionLogo,
    &Options::ReliefMedUtilises, &Options::TenirJournal, &Options::AfficheDDN,
    &Options::ImprimeDate,       &Options::SouligneNom,  &Options::FormatA4};

constexpr qint16 Options::*kMesuresLogo[] = {&Options::LogoHauteur, &Options::LogoLargeur, &Options::LogoX,
                                             &Options::LogoY};

void RendLeMedecin(application::Contexte& contexte, const QString& chemin)
{
    const QList<startup::Medecin>& liste = contexte.Medecins.Liste;
    const QString nom = QFileInfo(chemin).fileName();
    for (int rang = 0; rang < liste.size(); ++rang) {
        if (liste.at(rang).Nom == nom) {
            startup::ChangeMedecin(contexte, rang);
            return;
        }
    }
}

void RendLesOptions(Options& options, const Options& anciennes)
{
    for (const auto commutateur : kCommutateurs) {
        options.*commutateur = anciennes.*commutateur;
    }
    for (const auto mesure : kMesuresLogo) {
        options.*mesure = anciennes.*mesure;
    }
    options.FichierLogo = anciennes.FichierLogo;
}

} // namespace

Instantane PrendInstantane(application::Contexte& contexte)
{
    contexte.Reglages.EnCours = {.BaseInitiale = contexte.Banque.TypeBase};
    return {contexte.Reglages.Options, contexte.Banque.ProduitBanque, contexte.Banque.TypeBase,
            contexte.Chemins.CheminMedecin};
}

void RestaureInstantane(application::Contexte& contexte, const Instantane& instantane)
{
    RendLesOptions(contexte.Reglages.Options, instantane.Options);
    outside::Tente(contexte.Dehors.Boites, [&] { RendLogos(contexte.Reglages); });
    startup::RegleDemarrageSysteme(contexte);
    contexte.Banque.ProduitBanque = instantane.ProduitBanque;
    contexte.Banque.TypeBase = instantane.TypeBase;
    if (!contexte.Patient.DateNaissance.isEmpty()) {
        RecalculeAge(contexte);
    }
    if (contexte.Chemins.CheminMedecin != instantane.CheminMedecin) {
        RendLeMedecin(contexte, instantane.CheminMedecin);
    }
    Q_EMIT contexte.Signaux.ReglagesChanges();
    prescription::Repeint(contexte);
}

} // namespace settings
