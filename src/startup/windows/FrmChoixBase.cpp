#include "startup/windows/FrmChoixBase.h"

#include "application/windows/Style.h"
#include "startup/ChoixBase.h"
#include "startup/Demarrage.h"
#include "startup/Medecins.h"
#include "upgrade/MajDue.h"

#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

namespace startup {

namespace style = application::style;

namespace {

QString TexteRedemarrer()
{
    return QStringLiteral("Redémarrer");
}

} // namespace

FrmChoixBase::FrmChoixBase(application::Contexte& contexte, application::Fenetres&)
    : contexte_(contexte), fond_(page::Rvb(255, 255, 255), page::Rvb(222, 235, 250), 15)
{
    setObjectName(QStringLiteral("FrmChoixBase"));
    setWindowTitle(QStringLiteral("Scriptelle"));
    auto* disposition = style::Fenetre(this);
    disposition->setContentsMargins(2 * style::kMarge, 2 * style::kMarge, 2 * style::kMarge,
                                    2 * style::kMarge);
    disposition->addWidget(style::Enseigne(this));
    disposition->addWidget(
        style::Legende(QStringLiteral("lblversion"), QStringLiteral("Version [%1]").arg(Version()), this));
    disposition->addWidget(CarteDesChoix());
    disposition->addStretch();
    disposition->addLayout(LigneDesBoutons());
    connect(CboBase_, &QComboBox::currentIndexChanged, this, &FrmChoixBase::ChoisitBase);
    connect(CboMed_, &QComboBox::currentIndexChanged, this,
            [this](int rang) { ChoisitMedecinDuJour(contexte_, rang); });
}

void FrmChoixBase::Selectionne(int rangStockage)
{
    const QSignalBlocker sansBase(CboBase_);
    const QSignalBlocker sansMedecin(CboMed_);
    CboBase_->setCurrentIndex(rangStockage);
    CboMed_->clear();
    for (const Medecin& medecin : contexte_.Medecins.Liste) {
        CboMed_->addItem(medecin.Nom, medecin.Numero);
    }
    CboMed_->setCurrentIndex(contexte_.Medecins.IndexMedecin);
    rangStockage < 0 ? CboBase_->setFocus() : CmdSuite_->setFocus();
}

void FrmChoixBase::AnnonceRedemarrage()
{
    CmdSuite_->setText(TexteRedemarrer());
}

void FrmChoixBase::showEvent(QShowEvent* evenement)
{
    QDialog::showEvent(evenement);
    if (CmdSuite_->text() == TexteRedemarrer()) {
        QTimer::singleShot(0, this, &FrmChoixBase::Redemarre);
    }
}

void FrmChoixBase::paintEvent(QPaintEvent*)
{
    QPainter peintre(this);
    fond_.Montre(peintre);
}

void FrmChoixBase::resizeEvent(QResizeEvent* evenement)
{
    QDialog::resizeEvent(evenement);
    fond_.Ajuste(size());
}

QWidget* FrmChoixBase::CarteDesChoix()
{
    auto* carte = style::Carte(this);
    CboBase_ = new QComboBox(carte);
    CboBase_->setObjectName(QStringLiteral("CboBase"));
    CboBase_->addItems(LignesCboBase());
    CboBase_->setPlaceholderText(QStringLiteral("Choisissez l'emplacement"));
    CboMed_ = new QComboBox(carte);
    CboMed_->setObjectName(QStringLiteral("CboMed"));
    auto* disposition = new QVBoxLayout(carte);
    disposition->addWidget(
        style::Titre(QStringLiteral("Label1"), QStringLiteral("&Où sont vos données ?"), carte, CboBase_));
    disposition->addWidget(CboBase_);
    disposition->addSpacing(style::kEntreGroupes);
    disposition->addWidget(
        style::Titre(QStringLiteral("Label2"), QStringLiteral("Choisissez le &médecin"), carte, CboMed_));
    disposition->addWidget(CboMed_);
    return carte;
}

QLayout* FrmChoixBase::LigneDesBoutons()
{
    auto* annule =
        style::Bouton(QStringLiteral("CmdAnn"), QStringLiteral("&Annuler ..."), QStringLiteral("x-lg"), this);
    CmdSuite_ = style::BoutonPrincipal(QStringLiteral("CmdSuite"), QStringLiteral("&Poursuivre ..."),
                                       QStringLiteral("arrow-right"), this);
    annule->setToolTip(QStringLiteral("Quitter le programme (Échap)"));
    CmdSuite_->setToolTip(QStringLiteral("Ouvrir Scriptelle (Entrée)"));
    connect(annule, &QPushButton::clicked, this, &QDialog::reject);
    connect(CmdSuite_, &QPushButton::clicked, this, &FrmChoixBase::Suit);
    auto* disposition = new QHBoxLayout;
    disposition->addWidget(annule);
    disposition->addStretch();
    disposition->addWidget(CmdSuite_);
    style::OrdreTab({CboBase_, CboMed_, CmdSuite_, annule});
    return disposition;
}

void FrmChoixBase::ChoisitBase(int rang)
{
    ChoisitStockage(contexte_, rang);
    CmdSuite_->setFocus();
}

void FrmChoixBase::Redemarre()
{
    hide();
    upgrade::Redemarre(contexte_);
    reject();
}

void FrmChoixBase::Suit()
{
    switch (ValideChoixBase(contexte_, CboBase_->currentIndex())) {
    case SuiteChoix::Reste:
        return;
    case SuiteChoix::Poursuit:
        return accept();
    case SuiteChoix::Termine:
        return reject();
    }
}

} // namespace startup
