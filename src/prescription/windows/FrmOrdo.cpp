#include "prescription/windows/FrmOrdo.h"

#include "application/Signaux.h"
#include "certificates/windows/FrmCertif.h"
#include "medication/windows/FrmMedoc.h"
#include "outside/Plateau.h"
#include "patients/windows/FrmPatient.h"
#include "prescription/Apercu.h"
#include "prescription/CommandeCertificat.h"
#include "prescription/Commandes.h"
#include "prescription/Editeur.h"
#include "prescription/Impression.h"
#include "prescription/Memoire.h"
#include "prescription/windows/BarreCommandes.h"
#include "prescription/windows/VueFeuille.h"
#include "settings/Reglages.h"
#include "settings/windows/FrmOptions.h"
#include "startup/Chemins.h"
#include "startup/GestionMedecins.h"
#include "startup/windows/FrmAPROPOS.h"
#include "startup/windows/FrmDepart.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>

namespace prescription {

FrmOrdo::FrmOrdo(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres), commandes_(CommandesDuDocument() + CommandesDuProgramme()),
      PctMenu1_(new BarreCommandes(QStringLiteral("PctMenu1"), Qt::Vertical, commandes_, this)),
      PctMenu2_(new BarreCommandes(QStringLiteral("PctMenu2"), Qt::Horizontal, commandes_, this)),
      vue_(new VueFeuille(this)), menus_(this, ActionsDesMenus())
{
    setObjectName(QStringLiteral("FrmOrdo"));
    setWindowTitle(QStringLiteral("Scriptelle - Ordonnance"));
    contexte_.Apercu.DispositionFaite = 0;
    Dispose();
    Raccourcis(commandes_);
    EcouteSignaux();
    SuitMedecins();
    SuitReglages();
    SuitApercu();
    SuitOrdonnance();
}

void FrmOrdo::EcouteSignaux()
{
    const application::Signaux* signaux = &contexte_.Signaux;
    connect(signaux, &application::Signaux::MedecinsChanges, this, &FrmOrdo::SuitMedecins);
    connect(signaux, &application::Signaux::MedecinChange, this, &FrmOrdo::SuitMedecins);
    connect(signaux, &application::Signaux::MedecinChange, this, &FrmOrdo::SuitReglages);
    connect(signaux, &application::Signaux::ReglagesChanges, this, &FrmOrdo::SuitReglages);
    connect(signaux, &application::Signaux::ApercuChange, this, &FrmOrdo::SuitApercu);
    connect(signaux, &application::Signaux::ApercuChange, this, &FrmOrdo::SuitOrdonnance);
    connect(signaux, &application::Signaux::OrdonnanceChange, this, &FrmOrdo::SuitOrdonnance);
    connect(signaux, &application::Signaux::MemoireChange, this, &FrmOrdo::SuitOrdonnance);
    connect(CboMed_, &QComboBox::activated, this,
            [this](int rang) { ChangeMedecinDeLEditeur(contexte_, rang, isActiveWindow()); });
    connect(ChkCiv_, &QCheckBox::clicked, this, [this](bool coche) {
        ImprimeCivilite(contexte_, coche);
        BarreEnUsage().BoutonDe(QStringLiteral("CmdImprime"))->setFocus();
    });
    connect(vue_, &VueFeuille::MenuDemande, this,
            [this](const QPoint& place) { menus_.Feuille().popup(place); });
}

void FrmOrdo::Execute(const QString& nom)
{
    BarreEnUsage().BoutonDe(nom)->click();
}

BarreCommandes& FrmOrdo::BarreEnUsage() const
{
    return contexte_.Reglages.Options.BarreMenu == 0 ? *PctMenu1_ : *PctMenu2_;
}

void FrmOrdo::Nouvelle()
{
    if (CommenceOrdonnance(contexte_)) {
        fenetres_.Donne<patients::FrmPatient>().Ouvre(true);
    }
}

void FrmOrdo::Patient()
{
    if (startup::ExigeMedecin(contexte_)) {
        fenetres_.Donne<patients::FrmPatient>().Ouvre(false);
        Repeint(contexte_);
    }
}

void FrmOrdo::Pharma()
{
    if (startup::ExigeMedecin(contexte_)) {
        RevientAuxMedicaments(contexte_);
        fenetres_.Donne<medication::FrmMedoc>().exec();
    }
}

void FrmOrdo::Date()
{
    if (startup::ExigeMedecin(contexte_)) {
        DemandeDate(contexte_);
    }
}

void FrmOrdo::Certificat()
{
    EtapeCertificat etape = CommenceCertificat(contexte_);
    if (etape == EtapeCertificat::Patient) {
        fenetres_.Donne<patients::FrmPatient>().Ouvre(false);
        etape = PoursuitCertificat(contexte_);
    }
    if (etape == EtapeCertificat::Nouveau) {
        fenetres_.Donne<certificates::FrmCertif>().Ouvre();
    } else if (etape == EtapeCertificat::Reprise) {
        fenetres_.Donne<certificates::FrmCertif>().Reprend();
    }
}

void FrmOrdo::Imprime()
{
    if (!startup::ExigeMedecin(contexte_)) {
        return;
    }
    if (contexte_.Impression.EtatImprimante == 0 &&
        !fenetres_.Donne<settings::FrmOptions>().OuvrePourPremiereImpression()) {
        return;
    }
    SuitImprimante();
    if (ImprimeDocument(contexte_) && contexte_.Reglages.Options.MinimiseImpression == 1) {
        showMinimized();
    }
}

void FrmOrdo::Supprime()
{
    if (SupprimeOrdonnanceMemorisee(contexte_)) {
        Nouvelle();
    }
}

void FrmOrdo::Accueil()
{
    hide();
    fenetres_.Donne<startup::FrmDepart>().Restaure();
}

void FrmOrdo::MontreAide()
{
    const QPushButton* bouton = BarreEnUsage().BoutonDe(QStringLiteral("CmdAide"));
    menus_.Aide().popup(bouton->mapToGlobal(QPoint(0, bouton->height())));
}

void FrmOrdo::OuvreOptions()
{
    setCursor(Qt::WaitCursor);
    fenetres_.Donne<settings::FrmOptions>().Ouvre(contexte_.Chemins.CheminMedecin.isEmpty() ? 1 : 2);
    unsetCursor();
}

void FrmOrdo::APropos()
{
    fenetres_.OuvreModale<startup::FrmAPROPOS>();
}

bool FrmOrdo::event(QEvent* evenement)
{
    if (evenement->type() == QEvent::WindowActivate) {
        Active();
    }
    return QWidget::event(evenement);
}

void FrmOrdo::Active()
{
    OuvreLaBanque(contexte_);
    vue_->RevientEnHaut();
    if (contexte_.Apercu.ModeApercu == 2) {
        QTimer::singleShot(0, this, [this] { Execute(QStringLiteral("CmdPharma")); });
    }
}

void FrmOrdo::changeEvent(QEvent* evenement)
{
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::WindowStateChange && isMinimized()) {
        QTimer::singleShot(0, this, &FrmOrdo::SuitReduction);
    }
}

void FrmOrdo::SuitReduction()
{
    if (!isMinimized()) {
        return;
    }
    if (contexte_.Reglages.Options.IconeHorloge == 0) {
        showMaximized();
    } else if (contexte_.Dehors.Plateau.Present()) {
        hide();
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
}

void FrmOrdo::closeEvent(QCloseEvent* evenement)
{
    evenement->accept();
    Q_EMIT contexte_.Signaux.FinDemandee();
}

void FrmOrdo::contextMenuEvent(QContextMenuEvent* evenement)
{
    if (evenement->reason() == QContextMenuEvent::Keyboard) {
        menus_.Feuille().popup(evenement->globalPos());
    }
}

void FrmOrdo::keyPressEvent(QKeyEvent* evenement)
{
    switch (evenement->key()) {
    case Qt::Key_PageUp:
        vue_->Page(-1);
        return;
    case Qt::Key_PageDown:
        vue_->Page(1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* bouton = qobject_cast<QPushButton*>(focusWidget())) {
            bouton->click();
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(evenement);
}

void FrmOrdo::showEvent(QShowEvent* evenement)
{
    QWidget::showEvent(evenement);
    if (!focusWidget()) {
        BarreEnUsage().BoutonDe(QStringLiteral("CmdNouvelle"))->setFocus();
    }
}

} // namespace prescription
