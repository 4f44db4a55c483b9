#include "certificates/windows/FrmCertif.h"

#include "certificates/Commandes.h"
#include "certificates/Modeles.h"
#include "certificates/windows/ZoneTexte.h"
#include "outside/Tente.h"
#include "page/Mesure.h"
#include "settings/Reglages.h"
#include "startup/Chemins.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>

// What FrmCertif shows, and how it opens and closes; its commands stand in FrmCertifCommandes.cpp.
namespace certificates {

FrmCertif::FrmCertif(application::Contexte& contexte, application::Fenetres&)
    : contexte_(contexte), fond_(page::Rvb(255, 255, 255), page::Rvb(222, 235, 250), 15)
{
    setObjectName(QStringLiteral("FrmCertif"));
    setWindowTitle(QStringLiteral("Certificats"));
    Dispose();
    suivi_.emplace(
        *TxtCert_->document(),
        [this] {
            return MiseEnPage{contexte_.Certificat.DecalageCertif, contexte_.Certificat.CertifALD, Modele()};
        },
        [this](const MiseEnPage& miseEnPage) { RemetMiseEnPage(miseEnPage); });
    Branche();
    Charge();
}

FrmCertif::~FrmCertif() = default;

void FrmCertif::Ouvre()
{
    if (isVisible()) {
        raise();
        activateWindow();
        return;
    }
    Actualise();
    exec();
}

void FrmCertif::Reprend()
{
    Actualise();
    std::optional<QString> texte;
    if (Tente([&] { texte = TexteDeLaPage(contexte_); }) && texte) {
        Selectionne(contexte_.Certificat.IndexCertif);
        RemetTexte(*texte);
    }
    MontreMiseEnPage();
    Ouvre();
}

void FrmCertif::reject()
{
    QuitteCertificats(contexte_);
    QDialog::reject();
}

bool FrmCertif::event(QEvent* evenement)
{
    if (evenement->type() == QEvent::WindowActivate) {
        contexte_.Certificat.ChargeCertif = 0;
    }
    return QDialog::event(evenement);
}

void FrmCertif::paintEvent(QPaintEvent*)
{
    QPainter peintre(this);
    fond_.Montre(peintre);
}

void FrmCertif::resizeEvent(QResizeEvent* evenement)
{
    QDialog::resizeEvent(evenement);
    fond_.Ajuste(size());
}

void FrmCertif::Charge()
{
    for (QPushButton* bouton : {CmdAnnule_, CmdEcrire_, CmdDecG_, CmdDecD_, CmdEnr_}) {
        bouton->setEnabled(false);
    }
    MontreListe(ListeModeles(contexte_.Chemins.CheminTravail));
    Selectionne(-1);
    MontreReglages();
    LstCertif_->setFocus();
}

/// What another window or another station may have changed meanwhile.
void FrmCertif::Actualise()
{
    const QString choisi = Modele();
    const QStringList noms = ListeModeles(contexte_.Chemins.CheminTravail);
    if (noms != modeles_.stringList()) {
        MontreListe(noms);
        Selectionne(static_cast<int>(noms.indexOf(choisi)));
    }
    MontreReglages();
}

void FrmCertif::MontreListe(const QStringList& noms)
{
    SuitLaListe(contexte_.Certificat, modeles_.stringList(), noms);
    const QSignalBlocker silence(LstCertif_->selectionModel());
    modeles_.setStringList(noms);
}

void FrmCertif::MontreReglages()
{
    ChkP_->setChecked(contexte_.Certificat.IdentiteCertif == 1);
    TxtCert_->setFont(page::PoliceQt(contexte_.Certificat.TxtCert));
    LblF_->setText(LibellePolice(contexte_.Reglages.Look.Certif));
}

/// The box and the shift's buttons as `CertifALD` tells.
void FrmCertif::MontreMiseEnPage()
{
    const bool ald = contexte_.Certificat.CertifALD != 0;
    CmdDecG_->setEnabled(!ald);
    CmdDecD_->setEnabled(!ald);
    contexte_.Certificat.ChargeCertif = 1;
    ChkALD_->setChecked(ald);
    contexte_.Certificat.ChargeCertif = 0;
}

void FrmCertif::RemetMiseEnPage(const MiseEnPage& miseEnPage)
{
    contexte_.Certificat.DecalageCertif = miseEnPage.DecalageCertif;
    contexte_.Certificat.CertifALD = miseEnPage.CertifALD;
    Selectionne(miseEnPage.Modele.isEmpty()
                    ? -1
                    : static_cast<int>(modeles_.stringList().indexOf(miseEnPage.Modele)));
    MontreMiseEnPage();
}

void FrmCertif::RemetTexte(const QString& texte)
{
    suivi_->Change([&] { TxtCert_->Remplace(texte); });
}

int FrmCertif::Rang() const
{
    const QModelIndexList choisis = LstCertif_->selectionModel()->selectedRows();
    return choisis.isEmpty() ? -1 : choisis.front().row();
}

/// Shows a choice without reading the template.
void FrmCertif::Selectionne(int rang)
{
    const QSignalBlocker silence(LstCertif_->selectionModel());
    LstCertif_->selectionModel()->clear();
    if (rang >= 0 && rang < modeles_.rowCount()) {
        LstCertif_->selectionModel()->setCurrentIndex(modeles_.index(rang),
                                                      QItemSelectionModel::ClearAndSelect);
        LstCertif_->scrollTo(modeles_.index(rang));
    }
    LstCertif_->viewport()->update();
    suivi_->Note();
}

bool FrmCertif::eventFilter(QObject* objet, QEvent* evenement)
{
    if (objet == LstCertif_->viewport() && evenement->type() == QEvent::MouseButtonPress) {
        rangAvant_ = Rang();
    }
    return QDialog::eventFilter(objet, evenement);
}

} // namespace certificates
