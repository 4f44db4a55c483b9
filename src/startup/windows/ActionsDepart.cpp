#include "application/Signaux.h"
#include "backup/windows/FrmRestaure.h"
#include "drugbank/windows/FrmMajBanque.h"
#include "medication/windows/FrmMedoc.h"
#include "prescription/Editeur.h"
#include "prescription/windows/FrmJournal.h"
#include "prescription/windows/FrmOrdo.h"
#include "settings/EntetePropose.h"
#include "settings/windows/FrmOptions.h"
#include "startup/Chemins.h"
#include "startup/Documents.h"
#include "startup/GestionMedecins.h"
#include "startup/windows/CarteEntete.h"
#include "startup/windows/FrmAPROPOS.h"
#include "startup/windows/FrmDepart.h"
#include "startup/windows/FrmMedecins.h"

#include "transfer/Transfert.h"
#include "transfer/windows/FrmTransfert.h"

#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>

// What the buttons and menu entries do.
namespace startup {

namespace {

enum OngletOptions { kConfiguration = 1, kOptionsGenerales = 2, kPharmacies = 4, kLogo = 6 };

template <typename F> void Cache(application::Fenetres& fenetres)
{
    if (F* presente = fenetres.Presente<F>()) {
        presente->hide();
    }
}

void Deroule(QMenu* menu, const QPushButton* bouton)
{
    menu->popup(bouton->mapToGlobal(QPoint(0, bouton->height())));
}

} // namespace

void FrmDepart::BrancheControles()
{
    connect(controles_.CboListeMed, &QComboBox::activated, this,
            [this](int rang) { ChangeMedecin(contexte_, rang); });
    connect(controles_.CmdNO, &QPushButton::clicked, this, &FrmDepart::EditeOrdonnances);
    connect(controles_.CmdMedecins, &QPushButton::clicked, this,
            [this] { fenetres_.OuvreModale<FrmMedecins>(); });
    connect(controles_.CmdOptions, &QPushButton::clicked, this, [this] { OuvreOptions(kConfiguration); });
    connect(controles_.CmdOutils, &QPushButton::clicked, this,
            [this] { Deroule(menus_.mnuOutils, controles_.CmdOutils); });
    connect(controles_.CmdAide, &QPushButton::clicked, this,
            [this] { Deroule(menus_.MnuAideInv, controles_.CmdAide); });
    connect(controles_.CmdAP, &QPushButton::clicked, this, [this] { fenetres_.OuvreModale<FrmAPROPOS>(); });
    connect(controles_.CmdQuitter, &QPushButton::clicked, this, &QWidget::close);
    connect(controles_.CartePropose->CmdUtiliseEntete, &QPushButton::clicked, this,
            [this] { settings::UtiliseEntete(contexte_); });
    connect(controles_.CartePropose->CmdLaisseEntete, &QPushButton::clicked, this,
            [this] { settings::LaisseEntete(contexte_); });
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, [this] { OuvreAide(contexte_); });
    BrancheMenus();
    BranchePlateau();
}

void FrmDepart::BrancheMenus()
{
    const auto suit = [this](QAction* entree, auto action) {
        connect(entree, &QAction::triggered, this, action);
    };
    suit(menus_.mnuRepare, [this] { Repare(); });
    suit(menus_.mnuTransfertDonn, [this] { TransfereDonnees(); });
    suit(menus_.mnuLogo, [this] { OuvreOptionsDuMedecin(kLogo); });
    suit(menus_.mnuBase, [this] { OuvreOptionsDuMedecin(kPharmacies); });
    suit(menus_.mnuRestaure, [this] { fenetres_.OuvreModale<backup::FrmRestaure>(); });
    suit(menus_.mnuMajBanque, [this] { fenetres_.OuvreModale<drugbank::FrmMajBanque>(); });
    suit(menus_.mnuJournal, [this] { fenetres_.OuvreModale<prescription::FrmJournal>(); });
    suit(menus_.mnuAideOld, [this] { OuvreAide(contexte_); });
    suit(menus_.mnuAideNew, [this] { OuvreNouvelleAide(contexte_); });
    suit(menus_.mnuAideOldIT, [this] { OuvreAide(contexte_); });
    suit(menus_.mnuAideNewIT, [this] { OuvreNouvelleAide(contexte_); });
}

void FrmDepart::BranchePlateau()
{
    const auto suit = [this](QAction* entree, auto action) {
        connect(entree, &QAction::triggered, this, action);
    };
    suit(menus_.mnuOrdonnance, [this] { fenetres_.Donne<prescription::FrmOrdo>().showMaximized(); });
    suit(menus_.mnuMinimiser, [this] {
        auto& ordo = fenetres_.Donne<prescription::FrmOrdo>();
        ordo.setWindowState(ordo.windowState() | Qt::WindowMinimized);
    });
    suit(menus_.mnuAccueil, [this] { Accueille(); });
    suit(menus_.mnuOptions, [this] { OuvreOptionsDuPlateau(); });
    suit(menus_.mnuHauteurN, [this] { prescription::RetablitHauteurNormale(contexte_); });
    suit(menus_.mnuHauteurP, [this] { prescription::FixeHauteurPersonnelle(contexte_); });
    suit(menus_.mnuAPropos, [this] { fenetres_.OuvreModale<FrmAPROPOS>(); });
    suit(menus_.mnuQuitter, [this] { close(); });
}

void FrmDepart::EditeOrdonnances()
{
    fenetres_.Donne<prescription::FrmOrdo>().show();
    Reduit();
}

void FrmDepart::Accueille()
{
    Cache<medication::FrmMedoc>(fenetres_);
    Cache<prescription::FrmOrdo>(fenetres_);
    Restaure();
}

void FrmDepart::Repare()
{
    if (transfer::DemandeReparation(contexte_)) {
        close();
        transfer::LanceReparation(contexte_);
    }
}

void FrmDepart::TransfereDonnees()
{
    transfer::FrmTransfert suivi(this);
    const bool fin = transfer::TransfereDonnees(contexte_, [&](int fichier, int nombre) {
        setCursor(Qt::WaitCursor);
        suivi.Avance(fichier, nombre);
    });
    suivi.hide();
    unsetCursor();
    if (fin) {
        close();
    }
}

void FrmDepart::OuvreOptions(int onglet)
{
    setCursor(Qt::WaitCursor);
    fenetres_.Donne<settings::FrmOptions>().Ouvre(onglet);
    unsetCursor();
}

void FrmDepart::OuvreOptionsDuMedecin(int onglet)
{
    if (ExigeMedecin(contexte_)) {
        OuvreOptions(onglet);
    }
}

void FrmDepart::OuvreOptionsDuPlateau()
{
    Cache<medication::FrmMedoc>(fenetres_);
    hide();
    auto& ordo = fenetres_.Donne<prescription::FrmOrdo>();
    ordo.setCursor(Qt::WaitCursor);
    const bool sansMedecin = contexte_.Chemins.CheminMedecin.isEmpty();
    fenetres_.Donne<settings::FrmOptions>().Ouvre(sansMedecin ? kConfiguration : kOptionsGenerales);
    if (auto* presente = fenetres_.Presente<prescription::FrmOrdo>()) {
        presente->unsetCursor();
    }
}

} // namespace startup
