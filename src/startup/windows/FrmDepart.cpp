#include "startup/windows/FrmDepart.h"

#include "application/Signaux.h"
#include "application/windows/Style.h"
#include "page/Peintres.h"
#include "page/Rejeu.h"
#include "prescription/Editeur.h"
#include "prescription/windows/FrmOrdo.h"
#include "settings/ApercuEntete.h"
#include "settings/EntetePropose.h"
#include "settings/Reglages.h"
#include "startup/GestionMedecins.h"
#include "startup/Medecins.h"
#include "startup/windows/CarteEntete.h"
#include "startup/windows/FondPeint.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>
#include <algorithm>

namespace startup {

namespace style = application::style;

namespace {

constexpr QSize kPlaceDuLogo(120, 48);

bool AvecTexte(const page::Dessin& dessin)
{
    return std::ranges::any_of(
        dessin.Items, [](const page::Item& item) { return std::holds_alternative<page::ItemTexte>(item); });
}

} // namespace

FrmDepart::FrmDepart(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres), controles_(this), menus_(this)
{
    setObjectName(QStringLiteral("FrmDepart"));
    setWindowTitle(QStringLiteral("   Scriptelle"));
    style::Dimensionne(this, 1040, 660);
    BrancheControles();
    BrancheSignaux();
    MontreMedecins();
    SuitReglages();
    RelitLogo();
}

void FrmDepart::Ouvre()
{
    if (!reduite_) {
        show();
        activateWindow();
    } else if (!PeutSeCacher()) {
        showMinimized();
    }
}

bool FrmDepart::PeutSeCacher() const
{
    const auto* ordo = fenetres_.Presente<prescription::FrmOrdo>();
    return contexte_.Dehors.Plateau.Present() &&
           (contexte_.Reglages.Options.IconeHorloge == 1 || (ordo && ordo->isVisible()));
}

void FrmDepart::Reduit()
{
    setWindowState(windowState() | Qt::WindowMinimized);
}

void FrmDepart::Restaure()
{
    showNormal();
    raise();
    activateWindow();
}

void FrmDepart::paintEvent(QPaintEvent*)
{
    QPainter peintre(this);
    if (sansMedecin_) {
        PeintBouts(peintre, page::Rvb(190, 220, 250), page::Rvb(90, 120, 150));
    } else {
        PeintBouts(peintre, page::Rvb(255, 255, 255), page::Rvb(222, 235, 250));
    }
    page::Rejoue(face_, peintre, page::kPixelsParMillimetre);
}

void FrmDepart::resizeEvent(QResizeEvent* evenement)
{
    QWidget::resizeEvent(evenement);
    if (!isMinimized()) {
        PeintFace();
    }
}

void FrmDepart::changeEvent(QEvent* evenement)
{
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::ActivationChange && isActiveWindow()) {
        unsetCursor();
        update();
        controles_.CboListeMed->setFocus();
    }
    if (evenement->type() != QEvent::WindowStateChange) {
        return;
    }
    reduite_ = isMinimized();
    if (!reduite_) {
        PeintFace();
    } else if (PeutSeCacher()) {
        QTimer::singleShot(0, this, [this] { setVisible(isVisible() && !reduite_); });
    }
}

void FrmDepart::closeEvent(QCloseEvent* evenement)
{
    evenement->accept();
    Q_EMIT contexte_.Signaux.FinDemandee();
}

void FrmDepart::BrancheSignaux()
{
    using application::Signaux;
    connect(&contexte_.Signaux, &Signaux::MedecinsChanges, this, &FrmDepart::MontreMedecins);
    connect(&contexte_.Signaux, &Signaux::ReglagesChanges, this, &FrmDepart::SuitReglages);
    connect(&contexte_.Signaux, &Signaux::FaceChange, this, [this] {
        RevetSansMedecin(false);
        RelitLogo();
    });
    connect(&contexte_.Signaux, &Signaux::FaceSansMedecin, this, [this] {
        RevetSansMedecin(true);
        PeintFace();
    });
    connect(&contexte_.Signaux, &Signaux::SauvegardeEchouee, this, [this](const QString& phrase) {
        controles_.LblSauvegarde->setText(phrase);
        controles_.LblSauvegarde->show();
    });
    contexte_.Dehors.Plateau.Ecoute([this](outside::Plateau::Clic clic) { RecoitClic(clic); });
}

void FrmDepart::MontreMedecins()
{
    QComboBox* liste = controles_.CboListeMed;
    const QSignalBlocker sansChange(liste);
    liste->clear();
    for (const Medecin& medecin : contexte_.Medecins.Liste) {
        liste->addItem(medecin.Nom, medecin.Numero);
    }
    liste->setCurrentIndex(contexte_.Medecins.Selection);
}

void FrmDepart::SuitReglages()
{
    const settings::Options& options = contexte_.Reglages.Options;
    menus_.mnuHauteurN->setEnabled(options.SautPersonnalise == 1);
    menus_.mnuJournal->setEnabled(options.TenirJournal != 0);
}

void FrmDepart::RelitLogo()
{
    logo_ = prescription::ChargeLogo(contexte_.Reglages.Options);
    const double densite = devicePixelRatioF();
    QPixmap image = QPixmap::fromImage(logo_);
    if (!image.isNull()) {
        image = image.scaled(kPlaceDuLogo * densite, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        image.setDevicePixelRatio(densite);
    }
    controles_.PctLogo->setPixmap(image);
    PeintFace();
}

void FrmDepart::RevetSansMedecin(bool oui)
{
    sansMedecin_ = oui;
    for (qsizetype rang = 0; rang < controles_.Cartes.size(); ++rang) {
        style::TeinteSansMedecin(controles_.Cartes.at(rang), static_cast<int>(rang), oui);
    }
}

void FrmDepart::PeintSansMedecin()
{
    page::Surface surface(page::Cible::Depart, width() / page::kPixelsParMillimetre,
                          height() / page::kPixelsParMillimetre);
    page::PeintFond(surface, 190, 220, 250, 90, 120, 150, 15, 18, true);
    face_ = surface.Resultat();
    controles_.Conseil->hide();
    controles_.CartePropose->hide();
    update();
}

void FrmDepart::PeintFace()
{
    if (sansMedecin_) {
        PeintSansMedecin();
        return;
    }
    page::Surface surface(page::Cible::Depart, width() / page::kPixelsParMillimetre,
                          height() / page::kPixelsParMillimetre);
    QList<page::LigneEntete> entete;
    const page::Modele modele = prescription::ModelePage(contexte_, entete);
    page::PeintEntete(surface, modele, logo_);
    face_ = surface.Resultat();
    controles_.Conseil->setVisible(!AvecTexte(face_));
    ProposeEntete(entete);
    update();
}

void FrmDepart::ProposeEntete(const QList<page::LigneEntete>& stockee)
{
    const bool propose = settings::EnteteAProposer(contexte_, stockee);
    if (propose) {
        const QString medecin = settings::NomDuMedecinCourant(contexte_);
        controles_.CartePropose->Montre(
            settings::HautDeFeuille(contexte_, settings::RangsProposes(medecin), settings::kOrdrePropose));
    }
    controles_.CartePropose->setVisible(propose);
}

void FrmDepart::RecoitClic(outside::Plateau::Clic clic)
{
    if (!reduite_) {
        return;
    }
    if (clic == outside::Plateau::Clic::Gauche) {
        menus_.mnuOrdonnance->trigger();
    } else {
        menus_.mnuInvisible->popup(QCursor::pos());
    }
}

} // namespace startup
