#include "settings/windows/FrmOptions.h"

#include "application/windows/Sablier.h"
#include "application/windows/Style.h"
#include "common/Erreur.h"
#include "common/Tolere.h"
#include "outside/Boites.h"
#include "settings/LogoOptions.h"
#include "settings/windows/FrmConfOrdo.h"
#include "settings/windows/FrmEntete.h"
#include "settings/windows/OngletConfiguration.h"
#include "settings/windows/OngletDuplicata.h"
#include "settings/windows/OngletGeneral.h"
#include "settings/windows/OngletImprimantes.h"
#include "settings/windows/OngletInteractions.h"
#include "settings/windows/OngletLogo.h"
#include "settings/windows/OngletPharmacies.h"
#include "startup/GestionMedecins.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

namespace settings {

namespace style = application::style;

namespace {

constexpr int kLargeur = 820;           ///< first size, in pixels at 100 %
constexpr int kLargeurDesOnglets = 770; ///< with their full room
constexpr int kHauteur = 560;

} // namespace

FrmOptions::FrmOptions(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres), instantane_(PrendInstantane(contexte)),
      TS_(new QTabBar(this)), cadres_(new QStackedWidget(this)), CmdFoc_(new QPushButton(this))
{
    setObjectName(QStringLiteral("FrmOptions"));
    setWindowTitle(QStringLiteral("        Options de Scriptelle"));
    setModal(true);
    Dispose();
    AjouteOnglets();
    style::Dimensionne(this, kLargeur, kHauteur);
    connect(TS_, &QTabBar::currentChanged, this, &FrmOptions::MontreCadre);
    connect(TS_, &QTabBar::tabBarClicked, this, [this] { CmdFoc_->setFocus(); });
    MontreCadre(0);
}

FrmOptions::~FrmOptions()
{
    if (terminee_) {
        return; // the state of the run may be gone by now
    }
    // The program ends with the dialogue open: nothing was confirmed, and no one is left to be told.
    common::Tolere([&] { RendLogos(contexte_.Reglages); });
}

void FrmOptions::Dispose()
{
    TS_->setObjectName(QStringLiteral("TS"));
    TS_->setExpanding(false);
    TS_->setDrawBase(false);
    style::Nomme(TS_, QStringLiteral("Rubriques des options"));
    CmdFoc_->setObjectName(QStringLiteral("CmdFoc"));
    CmdFoc_->setFixedSize(0, 0);
    CmdFoc_->setAutoDefault(false);
    CmdFoc_->setFocusPolicy(Qt::ClickFocus);
    QVBoxLayout* page = style::Fenetre(this);
    page->addWidget(TS_);
    page->addWidget(cadres_, 1);
}

void FrmOptions::AjouteOnglets()
{
    auto* configuration = new OngletConfiguration(contexte_, this);
    imprimantes_ = new OngletImprimantes(contexte_, this);
    AjouteOnglet(configuration);
    AjouteOnglet(new OngletGeneral(contexte_, this));
    AjouteOnglet(imprimantes_);
    AjouteOnglet(new OngletPharmacies(contexte_, this));
    AjouteOnglet(new OngletInteractions(contexte_, this));
    AjouteOnglet(new OngletLogo(contexte_, this));
    AjouteOnglet(new OngletDuplicata(contexte_, this));
    connect(configuration, &OngletConfiguration::EnteteDemandee, this,
            &FrmOptions::OuvreConcepteur<FrmEntete>);
    connect(configuration, &OngletConfiguration::MiseEnPageDemandee, this,
            &FrmOptions::OuvreConcepteur<FrmConfOrdo>);
}

void FrmOptions::AjouteOnglet(Onglet* onglet)
{
    auto* cadre = new QWidget(cadres_);
    cadre->setObjectName(QStringLiteral("Frame(%1)").arg(onglet->Numero() - 1));
    auto* colonne = new QVBoxLayout(cadre);
    colonne->setContentsMargins({});
    colonne->setSpacing(style::kEntreGroupes);
    colonne->addWidget(style::Defilement(onglet, cadre), 1);
    const Boutons boutons = AjouteBoutons(cadre, onglet->Numero() - 1);
    TS_->addTab(onglet->Titre());
    cadres_->addWidget(cadre);
    onglets_.append(onglet);
    boutons_.append(boutons);
    connect(boutons.OK, &QPushButton::clicked, this, &FrmOptions::Enregistre);
    connect(boutons.Annule, &QPushButton::clicked, this, &FrmOptions::Annule);
    connect(onglet, &Onglet::FocusVersFoc, this, &FrmOptions::PrendFocus);
    connect(onglet, &Onglet::FocusVersOK, boutons.OK, qOverload<>(&QWidget::setFocus));
    connect(onglet, &Onglet::PresseOK, this, &FrmOptions::Enregistre);
}

FrmOptions::Boutons FrmOptions::AjouteBoutons(QWidget* cadre, int membre)
{
    const QString indice = QStringLiteral("(%1)").arg(membre);
    const Boutons boutons{style::BoutonPrincipal(QStringLiteral("CmdOK") + indice, QStringLiteral("&OK"),
                                                 QStringLiteral("check-lg"), cadre),
                          style::Bouton(QStringLiteral("CmdAnnule") + indice, QStringLiteral("&Annuler"),
                                        QStringLiteral("x-lg"), cadre)};
    auto* rangee = new QHBoxLayout;
    rangee->addStretch();
    rangee->addWidget(boutons.Annule);
    rangee->addWidget(boutons.OK);
    static_cast<QVBoxLayout*>(cadre->layout())->addLayout(rangee);
    return boutons;
}

void FrmOptions::Ouvre(int onglet)
{
    if (concepteur_ && concepteur_->isVisible()) {
        concepteur_->raise();
        concepteur_->activateWindow();
        return;
    }
    Selectionne(onglet);
    if (boucle_) {
        concepteur_ = nullptr;
        show();
    } else if (!isVisible()) {
        Execute();
    }
}

bool FrmOptions::OuvrePourPremiereImpression()
{
    Selectionne(imprimantes_->Numero());
    for (const Boutons& boutons : std::as_const(boutons_)) {
        boutons.Annule->hide();
    }
    imprimantes_->MontreConfirmation();
    bool acceptee = false; // the window is unloaded by then
    const auto suite = connect(this, &QDialog::accepted, this, [&acceptee] { acceptee = true; });
    Execute();
    disconnect(suite);
    return acceptee;
}

void FrmOptions::Execute()
{
    QEventLoop boucle;
    const QPointer<FrmOptions> ouverte(this); // it unloads itself at its end
    boucle_ = &boucle;
    show();
    boucle.exec(QEventLoop::DialogExec);
    if (ouverte) {
        boucle_ = nullptr;
    }
}

void FrmOptions::setVisible(bool visible)
{
    QDialog::setVisible(visible);
    if (!visible && boucle_ && !concepteur_) {
        boucle_->quit();
    }
}

template <typename Concepteur> void FrmOptions::OuvreConcepteur()
{
    if (!startup::ExigeMedecin(contexte_)) {
        return;
    }
    auto& concepteur = fenetres_.Donne<Concepteur>();
    concepteur_ = &concepteur;
    hide();
    concepteur.exec();
    concepteur_ = nullptr;
    if (!isVisible() && boucle_) {
        boucle_->quit(); // the program ends
    }
}

void FrmOptions::Selectionne(int onglet)
{
    TS_->setCurrentIndex(onglet - 1);
}

void FrmOptions::MontreCadre(int rang)
{
    cadres_->setCurrentIndex(rang);
    boutons_.at(rang).OK->setDefault(true);
}

void FrmOptions::PrendFocus(QWidget* controle)
{
    setTabOrder(controle, CmdFoc_); // Tab goes on behind the control
    CmdFoc_->setFocus();
}

void FrmOptions::Enregistre()
{
    SaisieOptions saisie;
    for (const Onglet* onglet : std::as_const(onglets_)) {
        onglet->Lit(saisie);
    }
    if (const auto refus = RefusDeLaSaisie(saisie)) {
        Refuse(*refus);
        return;
    }
    QString panne;
    try {
        const application::Sablier sablier;
        EnregistreOptions(contexte_, saisie);
    } catch (const common::Erreur& erreur) {
        panne = erreur.Phrase();
    }
    if (panne.isEmpty()) {
        Termine();
    } else {
        contexte_.Dehors.Boites.Stop(panne);
    }
}

void FrmOptions::Refuse(const RefusOptions& refus)
{
    contexte_.Dehors.Boites.Montre({.Genre = refus.Genre, .Texte = refus.Texte});
    Selectionne(refus.Onglet);
    if (auto* controle = findChild<QWidget*>(refus.Controle)) {
        controle->setFocus();
    }
}

void FrmOptions::Annule()
{
    RestaureInstantane(contexte_, instantane_);
    Termine();
}

void FrmOptions::Termine()
{
    terminee_ = true;
    done(QDialog::Accepted);
    fenetres_.Decharge<FrmOptions>();
}

void FrmOptions::resizeEvent(QResizeEvent* evenement)
{
    QDialog::resizeEvent(evenement);
    style::SerreOnglets(TS_, width() < kLargeurDesOnglets);
    for (Onglet* onglet : std::as_const(onglets_)) {
        onglet->Adapte(size());
    }
}

void FrmOptions::closeEvent(QCloseEvent* evenement)
{
    evenement->ignore();
}

void FrmOptions::reject()
{
    QPushButton* annule = boutons_.at(TS_->currentIndex()).Annule;
    if (annule->isVisible()) {
        annule->click();
    }
}

} // namespace settings
