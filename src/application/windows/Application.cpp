#include "application/windows/Application.h"

#include "application/Sauvegarde.h"
#include "application/windows/BarreAttente.h"
#include "application/windows/Sablier.h"
#include "backup/Sauvegarde.h"
#include "drugbank/windows/FrmI.h"
#include "medication/windows/FrmPoso.h"
#include "outside/Boites.h"
#include "outside/Horloge.h"
#include "outside/Plateau.h"
#include "patients/windows/FrmPatient.h"
#include "settings/windows/FrmConfOrdo.h"
#include "startup/windows/FrmChoixBase.h"
#include "startup/windows/FrmDepart.h"

#include <QApplication>

namespace application {

namespace {

/// The hourglass and, in the long run, the bar of the upgrade.
void Travaille(upgrade::Suivi& suivi, const std::function<void()>& travail)
{
    const Sablier sablier;
    BarreAttente barre;
    suivi.Montre = [&](int milliemes, const QString& mot) { barre.Montre(milliemes, mot); };
    barre.Montre(0, {});
    travail();
    suivi.Montre = {};
}

} // namespace

Application::Application(const Dehors& dehors, const QString& cheminProgramme,
                         const QString& cheminInstallation)
    : contexte_(etat_.Contexte(dehors)), fenetres_(contexte_), conversion_(fenetres_)
{
    etat_.Chemins.CheminProgramme = cheminProgramme;
    etat_.Chemins.CheminInstallation = cheminInstallation;
    etat_.Bases.Suit(&conversion_);
    connect(&etat_.Signaux, &Signaux::FinDemandee, this, &Application::Arrete);
    connect(&etat_.Signaux, &Signaux::StatutBanqueChange, this, &Application::SuitBanque);
}

Application::~Application()
{
    contexte_.Dehors.Plateau.Ecoute({});
    backup::AttendLaSauvegarde();
}

bool Application::Demarre()
{
    startup::Demarrage demarrage(contexte_, Ecrans());
    if (!demarrage.Execute() || arretee_) {
        Arrete();
        return false;
    }
    fenetres_.Donne<startup::FrmDepart>().Ouvre();
    if (!demarrage.Premier()) {
        SauveDuJour();
    }
    return true;
}

void Application::SauveDuJour()
{
    const backup::Lieu lieu = backup::LieuDuTravail(contexte_.Chemins);
    const QDate jour = contexte_.Dehors.Horloge.Aujourdhui();
    backup::SauveEnFond(lieu, jour, [this](const QString& phrase) {
        QMetaObject::invokeMethod(
            &etat_.Signaux, [this, phrase] { Q_EMIT etat_.Signaux.SauvegardeEchouee(phrase); },
            Qt::QueuedConnection);
    });
}

void Application::ArretSurErreur(const QString& phrase, const QString& lieu)
{
    contexte_.Dehors.Boites.Stop(FermeSurErreur(contexte_, phrase, lieu));
    Arrete();
}

startup::Ecrans Application::Ecrans()
{
    return {.PoliceFenetre = QApplication::font().family(),
            .MontreChoixBase = [this](int rang) { return MontreChoixBase(rang); },
            .Maj = {.Travaille = Travaille,
                    .AnnonceRedemarrage =
                        [this] { fenetres_.Donne<startup::FrmChoixBase>().AnnonceRedemarrage(); }},
            .ChargeConfOrdo = [this] { fenetres_.Donne<settings::FrmConfOrdo>(); },
            .Minimise = [this] { fenetres_.Donne<startup::FrmDepart>().Reduit(); },
            .ChargeFenetres = [this] { ChargeFenetres(); }};
}

bool Application::MontreChoixBase(int rangStockage)
{
    auto& fenetre = fenetres_.Donne<startup::FrmChoixBase>();
    fenetre.Selectionne(rangStockage);
    const bool suite = fenetre.exec() == QDialog::Accepted;
    fenetres_.Decharge<startup::FrmChoixBase>();
    return suite && !arretee_;
}

void Application::ChargeFenetres()
{
    fenetres_.Donne<patients::FrmPatient>();
    fenetres_.Donne<medication::FrmPoso>();
    QApplication::processEvents();
}

void Application::SuitBanque()
{
    if (etat_.Banque.Statut.Visible && !arretee_) {
        fenetres_.Donne<drugbank::FrmI>().Montre();
    } else {
        fenetres_.Decharge<drugbank::FrmI>();
    }
}

void Application::Arrete()
{
    if (arretee_) {
        return;
    }
    arretee_ = true;
    if (drugbank::AUneSession(etat_.Banque.TypeBase)) {
        etat_.Seance.Ferme(contexte_);
    }
    contexte_.Dehors.Plateau.Retire();
    fenetres_.CacheTout();
    Q_EMIT Termine();
}

} // namespace application
