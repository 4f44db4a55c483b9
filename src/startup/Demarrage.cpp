#include "startup/Demarrage.h"

#include "application/Signaux.h"
#include "backup/Restauration.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "drugbank/Banque.h"
#include "drugbank/Seance.h"
#include "outside/Plateau.h"
#include "outside/Tente.h"
#include "settings/FichiersReglages.h"
#include "startup/DialoguesStockage.h"
#include "startup/FichiersChemins.h"
#include "startup/GestionMedecins.h"
#include "startup/PremierMedecin.h"
#include "startup/PreparationDonnees.h"
#include "startup/messages.h"
#include "transfer/CopieArbre.h"
#include "upgrade/MajDue.h"

#include <algorithm>

namespace startup {

using application::Contexte;
using common::FichierExiste;
using common::Joint;
using common::Tolere;

namespace {

/// A tree that has vanished is not made again: its doctor would take the empty one for his data.
void ExigeCheminData(const Chemins& chemins)
{
    if (!common::DossierExiste(chemins.CheminData)) {
        throw common::Erreur(messages::CheminDataDisparu(), common::CheminAffiche(chemins.CheminData));
    }
}

/// A template that the tree has just received goes to the doctor too, when there is one and he has none.
void CopieChezMedecin(const Chemins& chemins, const QString& nom)
{
    const QString& medecin = chemins.CheminMedecin;
    if (!medecin.isEmpty() && !FichierExiste(Joint(medecin, nom))) {
        common::CopieFichier(Joint(chemins.CheminData, nom), Joint(medecin, nom));
    }
}

/// What was taking its place in the tree when the program ended: a transfer, a copy that was put back. False
/// when that fails, which the doctor is told: nobody works in a tree of two halves.
bool FinitLesRemises(Contexte& contexte, const QString& arbre)
{
    return outside::Tente(contexte.Dehors.Boites, [&] {
        transfer::FinitTransfert(arbre);
        backup::FinitRestauration(arbre);
    });
}

void CorrigePositionLogo(settings::Options& options)
{
    if (options.PositionLogo != 2) {
        options.PositionLogo = 1;
    }
}

void CreeOptions(Contexte& contexte)
{
    settings::EcritOptions(contexte.Reglages.Options, contexte.Chemins.CheminData);
    CorrigePositionLogo(contexte.Reglages.Options);
    contexte.Dehors.Boites.Information(messages::Bienvenue());
    CopieChezMedecin(contexte.Chemins, QStringLiteral("Options.cfg"));
}

void MetOptionsAJour(Contexte& contexte)
{
    settings::EcritOptions(contexte.Reglages.Options, contexte.Chemins.CheminData);
    CorrigePositionLogo(contexte.Reglages.Options);
}

void PrepareMarges(Contexte& contexte)
{
    contexte.Reglages.Marges = {};
    if (!FichierExiste(Joint(contexte.Chemins.CheminData, QStringLiteral("Marges.cfg")))) {
        settings::EcritMarges(contexte.Reglages.Marges, contexte.Chemins.CheminData);
        CopieChezMedecin(contexte.Chemins, QStringLiteral("Marges.cfg"));
    }
}

void PrepareDupli(Contexte& contexte, const QString& police)
{
    settings::Dupli& dupli = contexte.Reglages.Dupli;
    dupli = {};
    if (!police.isEmpty()) {
        dupli.DupliPolice = police;
    }
    if (!FichierExiste(Joint(contexte.Chemins.CheminData, QStringLiteral("Dupli.cfg")))) {
        settings::EcritDupli(dupli, contexte.Chemins.CheminData);
        CopieChezMedecin(contexte.Chemins, QStringLiteral("Dupli.cfg"));
    }
}

/// The row of `CboBase` to begin with: none at the first start, which must be answered by hand.
int LitChoixDeStockage(Contexte& contexte)
{
    const auto lecture = LitCheminBase(contexte.Chemins, contexte.Medecins);
    if (lecture == settings::Lecture::Absente) {
        contexte.Medecins.NumMedecinDefaut = 1;
        EcritCheminBase(contexte.Chemins, contexte.Medecins);
        return -1;
    }
    const bool connu = lecture != settings::Lecture::Abimee && contexte.Chemins.IndexStockage <= 2;
    return connu ? contexte.Chemins.IndexStockage : -1;
}

void ChercheMedecinParDefaut(Contexte& contexte)
{
    LitMedecins(contexte);
    Medecins& medecins = contexte.Medecins;
    medecins.IndexMedecin =
        static_cast<qint16>(std::max(0, RangMedecin(medecins, medecins.NumMedecinDefaut)));
}

void RegleCheminMedecin(Contexte& contexte)
{
    Medecins& medecins = contexte.Medecins;
    if (medecins.IndexMedecin >= medecins.Liste.size()) {
        contexte.Chemins.CheminMedecin.clear();
        return;
    }
    const QString nom = medecins.Liste[medecins.IndexMedecin].Nom;
    contexte.Chemins.CheminMedecin = Joint(contexte.Chemins.CheminTravail, nom);
    medecins.NomMedecinSignature = QString(nom).replace(QLatin1String("DR"), QLatin1String("Docteur"));
}

void OuvreBanque(Contexte& contexte)
{
    drugbank::Banque& banque = contexte.Banque;
    banque.FiltreBanque = 64;
    banque.ProduitBanque = 2;
    if (!contexte.Chemins.CheminMedecin.isEmpty()) {
        settings::LitBaseCfg(banque, contexte.Chemins.CheminMedecin);
    }
    contexte.Seance.Charge(contexte);
}

void AjouteIcone(Contexte& contexte)
{
    if (contexte.Reglages.Options.IconeHorloge == 1 && contexte.Dehors.Plateau.Present()) {
        contexte.Dehors.Plateau.Ajoute(QStringLiteral("Scriptelle"));
    }
}

void Appelle(const std::function<void()>& ecran)
{
    if (ecran) {
        ecran();
    }
}

} // namespace

QString Version()
{
    return QStringLiteral(SCRIPTELLE_VERSION);
}

Demarrage::Demarrage(Contexte& contexte, Ecrans ecrans) : contexte_(contexte), ecrans_(std::move(ecrans)) {}

bool Demarrage::Execute()
{
    if (!PrepareDonnees() || !RegleTravail()) {
        return false;
    }
    TermineChargement();
    return true;
}

bool Demarrage::PrepareDonnees()
{
    Chemins& chemins = contexte_.Chemins;
    common::CreeDossier(Joint(chemins.CheminInstallation, QStringLiteral("BasesInstal")));
    LitCheminData(chemins);
    if (!chemins.CheminData.contains(QLatin1String("DataScriptelle")) && !DemandeCheminData(contexte_)) {
        return false;
    }
    ExigeCheminData(chemins);
    if (!FinitLesRemises(contexte_, chemins.CheminData)) {
        return false;
    }
    upgrade::ReprendMaj(contexte_, chemins.CheminData);
    DeplaceInstallation(chemins);
    DeplaceCommun(contexte_);
    common::CreeDossierPrive(Joint(chemins.CheminData, QStringLiteral("Certificats")));
    const bool inscrit = FichierExiste(Joint(chemins.CheminData, QStringLiteral("Medecin.ini")));
    if (!inscrit && !InscritPremierMedecin(contexte_)) {
        return false;
    }
    return upgrade::FaitMajDue(contexte_, ecrans_.Maj) != upgrade::SuiteMaj::Renonce;
}

bool Demarrage::RegleTravail()
{
    settings::Options& options = contexte_.Reglages.Options;
    options = {};
    const bool ancienne = settings::LitOptions(options, contexte_.Chemins.CheminData);
    premier_ = !ancienne;
    try {
        ancienne ? MetOptionsAJour(contexte_) : CreeOptions(contexte_);
        return RegleDepuisOptions();
    } catch (const common::Erreur&) {
        // The load goes on once from the rewriting, with the variables as they stand.
        MetOptionsAJour(contexte_);
        return RegleDepuisOptions();
    }
}

bool Demarrage::RegleDepuisOptions()
{
    Q_EMIT contexte_.Signaux.ReglagesChanges();
    PrepareMarges(contexte_);
    PrepareDupli(contexte_, ecrans_.PoliceFenetre);
    const int rangStockage = LitChoixDeStockage(contexte_);
    ChercheMedecinParDefaut(contexte_);
    if (ecrans_.MontreChoixBase && !ecrans_.MontreChoixBase(rangStockage)) {
        return false;
    }
    RegleCheminTravail(contexte_);
    if (!FinitLesRemises(contexte_, contexte_.Chemins.CheminTravail)) {
        return false;
    }
    RegleCheminMedecin(contexte_);
    return true;
}

void Demarrage::TermineChargement()
{
    OuvreBanque(contexte_);
    Tolere([&] { Appelle(ecrans_.ChargeConfOrdo); }); // the look is told of by the change of doctor
    ChangeMedecin(contexte_, contexte_.Medecins.IndexMedecin);
    AjouteIcone(contexte_);
    if (contexte_.Reglages.Options.ReduitLancement == 1) {
        Tolere([&] { Appelle(ecrans_.Minimise); }); // the window is then shown at its size
    }
    if (!contexte_.Medecins.Liste.isEmpty()) {
        outside::Tente(contexte_.Dehors.Boites, [&] { Appelle(ecrans_.ChargeFenetres); });
        Q_EMIT contexte_.Signaux.FaceChange();
    }
    NettoieCheminData(contexte_.Chemins);
}

} // namespace startup
