#include "settings/windows/FrmOptions.h"

#include "application/windows/Style.h"
#include "common/Erreur.h"
#include "outside/Boites.h"
#include "settings/windows/OngletImprimantes.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>

namespace settings {

namespace style = application::style;

FrmOptions::FrmOptions(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres), TS_(new QTabBar(this)), cadres_(new QStackedWidget(this)),
      CmdFoc_(new QPushButton(this)), imprimantes_(new OngletImprimantes(contexte, this)),
      instantane_(PrendInstantane(contexte))
{
    setObjectName(QStringLiteral("FrmOptions"));
    setWindowTitle(QStringLiteral("        Options de Scriptelle"));
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
    AjouteOnglet(imprimantes_);
    style::Dimensionne(this, 620, 340);
    connect(TS_, &QTabBar::currentChanged, this, &FrmOptions::MontreCadre);
    connect(TS_, &QTabBar::tabBarClicked, this, [this] { CmdFoc_->setFocus(); });
    MontreCadre(0);
}

void FrmOptions::AjouteOnglet(Onglet* onglet)
{
    auto* cadre = new QWidget(cadres_);
    cadre->setObjectName(QStringLiteral("Frame(%1)").arg(onglet->Numero() - 1));
    const QString membre = QStringLiteral("(%1)").arg(onglet->Numero() - 1);
    const Boutons boutons{style::BoutonPrincipal(QStringLiteral("CmdOK") + membre, QStringLiteral("&OK"),
                                                 QStringLiteral("check-lg"), cadre),
                          style::Bouton(QStringLiteral("CmdAnnule") + membre, QStringLiteral("&Annuler"),
                                        QStringLiteral("x-lg"), cadre)};
    auto* colonne = new QVBoxLayout(cadre);
    colonne->setContentsMargins({});
    colonne->setSpacing(style::kEntreGroupes);
    colonne->addWidget(onglet, 1);
    auto* rangee = new QHBoxLayout;
    rangee->addStretch();
    rangee->addWidget(boutons.Annule);
    rangee->addWidget(boutons.OK);
    colonne->addLayout(rangee);
    TS_->addTab(onglet->Titre());
    cadres_->addWidget(cadre);
    onglets_.append(onglet);
    boutons_.append(boutons);
    connect(boutons.OK, &QPushButton::clicked, this, &FrmOptions::Enregistre);
    connect(boutons.Annule, &QPushButton::clicked, this, &FrmOptions::Annule);
    connect(onglet, &Onglet::FocusVersOK, boutons.OK, qOverload<>(&QWidget::setFocus));
    connect(onglet, &Onglet::PresseOK, this, &FrmOptions::Enregistre);
}

void FrmOptions::Ouvre(int onglet)
{
    Selectionne(onglet);
    if (!isVisible()) {
        exec();
    }
}

bool FrmOptions::OuvrePourPremiereImpression()
{
    Selectionne(imprimantes_->Numero());
    boutons_.at(TS_->currentIndex()).Annule->hide();
    imprimantes_->MontreConfirmation();
    bool acceptee = false; // the window is unloaded by then
    const auto suite = connect(this, &QDialog::accepted, this, [&acceptee] { acceptee = true; });
    exec();
    disconnect(suite);
    return acceptee;
}

void FrmOptions::Selectionne(int onglet)
{
    const auto place = std::ranges::find(onglets_, onglet, &Onglet::Numero);
    TS_->setCurrentIndex(place == onglets_.end() ? 0 : static_cast<int>(place - onglets_.begin()));
}

void FrmOptions::MontreCadre(int rang)
{
    cadres_->setCurrentIndex(rang);
    boutons_.at(rang).OK->setDefault(true);
}

void FrmOptions::Enregistre()
{
    for (Onglet* onglet : std::as_const(onglets_)) {
        if (!onglet->Accepte()) {
            Selectionne(onglet->Numero());
            return;
        }
    }
    for (Onglet* onglet : std::as_const(onglets_)) {
        onglet->Copie();
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QString refus;
    try {
        EnregistreOptions(contexte_);
    } catch (const common::Erreur& erreur) {
        refus = erreur.Phrase();
    }
    QGuiApplication::restoreOverrideCursor();
    if (refus.isEmpty()) {
        Termine();
    } else {
        contexte_.Dehors.Boites.Stop(refus);
    }
}

void FrmOptions::Annule()
{
    RestaureInstantane(contexte_, instantane_);
    Termine();
}

void FrmOptions::Termine()
{
    done(QDialog::Accepted);
    fenetres_.Decharge<FrmOptions>();
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
