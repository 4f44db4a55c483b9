#include "startup/GestionMedecins.h"

#include "application/Signaux.h"
#include "certificates/Certificat.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "drugbank/Banque.h"
#include "drugbank/Seance.h"
#include "medication/Choix.h"
#include "outside/Tente.h"
#include "prescription/Editeur.h"
#include "settings/FichiersReglages.h"
#include "startup/Chemins.h"
#include "startup/MedecinIni.h"
#include "startup/Medecins.h"
#include "startup/PolicesAbsentes.h"
#include "startup/messages.h"
#include "storage/Bases.h"

#include <algorithm>

namespace startup {

using application::Contexte;

namespace {

void CreeLogo(const QString& cheminMedecin)
{
    // A doctor without a directory in this tree is told of when he prescribes.
    if (common::DossierExiste(cheminMedecin)) {
        common::Tolere([&] { common::CreeDossier(common::Joint(cheminMedecin, QStringLiteral("Logo"))); });
    }
}

/// The doctor's source of medications; without the helper library it is the personal pharmacy or the open
/// bank.
void ChargeBanque(drugbank::Banque& banque, const QString& cheminMedecin)
{
    const bool lue = settings::LitBaseCfg(banque, cheminMedecin);
    if (!lue || (!banque.ModuleAide && !drugbank::EstPublique(banque))) {
        banque.FiltreBanque = 64;
        banque.TypeBase = QStringLiteral("BIP");
    }
}

/// A look that cannot be read must not stay that of the doctor before.
void ChargeLookOuDitPourquoi(Contexte& contexte)
{
    const page::Police& txtCert = contexte.Certificat.TxtCert;
    contexte.Reglages.Look = {};
    contexte.Reglages.Look.Certif = txtCert;
    if (!storage::Bases::OrdoExiste(contexte.Chemins.CheminMedecin)) {
        return; // a tree in preparation: told of when he prescribes
    }
    outside::Tente(contexte.Dehors.Boites, [&] {
        settings::ChargeLook(contexte.Reglages.Look, contexte.Bases.Ordo(contexte.Chemins.CheminMedecin),
                             txtCert);
    });
}

void SignaleLogo(Contexte& contexte)
{
    const QString defaut = prescription::DefautDuLogo(contexte.Reglages.Options);
    if (!defaut.isEmpty()) {
        contexte.Dehors.Boites.Information(defaut);
    }
}

void Annonce(application::Signaux& signaux)
{
    Q_EMIT signaux.MedecinsChanges();
    Q_EMIT signaux.ReglagesChanges();
    Q_EMIT signaux.MedecinChange();
    Q_EMIT signaux.FaceChange();
}

} // namespace

void LitMedecins(Contexte& contexte)
{
    const QString& dossier = contexte.Chemins.CheminData;
    if (!common::FichierExiste(common::Joint(dossier, QStringLiteral("Medecin.ini")))) {
        return;
    }
    const ContenuMedecinIni contenu = LitMedecinIni(dossier);
    Medecins& medecins = contexte.Medecins;
    medecins.Liste.clear();
    medecins.NbMedecins = contenu.NbMedecins;
    for (const LigneMedecin& ligne : contenu.Lignes) {
        if (ligne.Lisible()) {
            medecins.Liste.append(ligne.Lue);
        }
    }
    medecins.Selection = RangMedecin(medecins, medecins.NumMedecin);
    Q_EMIT contexte.Signaux.MedecinsChanges();
}

int RangMedecin(const Medecins& medecins, int numero)
{
    const auto place = std::ranges::find(medecins.Liste, numero, &Medecin::Numero);
    return place == medecins.Liste.end() ? -1 : static_cast<int>(place - medecins.Liste.begin());
}

void ChangeMedecin(Contexte& contexte, int rang)
{
    Medecins& medecins = contexte.Medecins;
    if (rang < 0 || rang >= medecins.Liste.size()) {
        return;
    }
    const Medecin& medecin = medecins.Liste[rang];
    medecins.Selection = rang;
    medecins.NumMedecin = static_cast<qint16>(medecin.Numero);
    contexte.Choix.NoeudChoisi = medication::kAucunNoeud;
    contexte.Bases.FermeOrdo();
    const QString chemin = common::Joint(contexte.Chemins.CheminTravail, medecin.Nom);
    if (chemin != contexte.Chemins.CheminMedecin) {
        contexte.Certificat.TxtCert = certificates::Certificat().TxtCert;
    }
    contexte.Chemins.CheminMedecin = chemin;
    CreeLogo(contexte.Chemins.CheminMedecin);
    settings::ChargeReglages(contexte.Reglages, contexte.Chemins.CheminMedecin);
    ChargeBanque(contexte.Banque, contexte.Chemins.CheminMedecin);
    contexte.Seance.SuitBase(contexte);
    ChargeLookOuDitPourquoi(contexte);
    Annonce(contexte.Signaux);
    SignaleLogo(contexte);
    SignalePolices(contexte);
}

void DitBaseDuMedecinAbsente(Contexte& contexte)
{
    const QString& chemin = contexte.Chemins.CheminMedecin;
    if (!chemin.isEmpty() && !storage::Bases::OrdoExiste(chemin)) {
        outside::Tente(contexte.Dehors.Boites, [&] { contexte.Bases.Ordo(chemin); });
    }
}

bool ExigeMedecin(Contexte& contexte)
{
    if (contexte.Chemins.CheminMedecin.isEmpty()) {
        contexte.Dehors.Boites.Information(messages::ChoisissezMedecin());
        return false;
    }
    return true;
}

} // namespace startup
