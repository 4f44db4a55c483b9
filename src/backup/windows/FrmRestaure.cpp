#include "backup/windows/FrmRestaure.h"

#include "application/Relance.h"
#include "application/Sauvegarde.h"
#include "application/Signaux.h"
#include "application/windows/Sablier.h"
#include "application/windows/Style.h"
#include "backup/Restauration.h"
#include "backup/messages.h"
#include "common/Erreur.h"
#include "outside/Boites.h"
#include "outside/Horloge.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace backup {

namespace style = application::style;

namespace {

QString Ligne(const Sauvegarde& sauvegarde)
{
    return sauvegarde.AvantRestauration
               ? messages::LigneAvant(sauvegarde.Moment.toString(QStringLiteral("dd/MM/yyyy 'à' HH:mm")))
               : messages::LigneDuJour(sauvegarde.Moment.toString(QStringLiteral("dd/MM/yyyy")));
}

} // namespace

FrmRestaure::FrmRestaure(application::Contexte& contexte, application::Fenetres&)
    : contexte_(contexte), lieu_(LieuDuTravail(contexte.Chemins))
{
    setObjectName(QStringLiteral("FrmRestaure"));
    setWindowTitle(QStringLiteral("Restaurer une sauvegarde"));
    Dispose();
    Branche();
    Remplit();
}

void FrmRestaure::Branche()
{
    connect(CmdAnnuler_, &QPushButton::clicked, this, &FrmRestaure::reject);
    connect(CmdOK_, &QPushButton::clicked, this, &FrmRestaure::Restaure);
    connect(LstSauvegardes_, &QListWidget::itemSelectionChanged, this,
            [this] { CmdOK_->setEnabled(LstSauvegardes_->currentRow() >= 0); });
}

void FrmRestaure::Dispose()
{
    QWidget* carte = style::Carte(this);
    QVBoxLayout* colonne = style::DansCarte(carte);
    LstSauvegardes_ = new QListWidget(carte);
    LstSauvegardes_->setObjectName(QStringLiteral("LstSauvegardes"));
    LstSauvegardes_->setUniformItemSizes(true);
    LstSauvegardes_->setAccessibleName(QStringLiteral("Sauvegardes"));
    colonne->addWidget(
        style::Titre({}, QStringLiteral("&Sauvegardes de vos données"), carte, LstSauvegardes_));
    colonne->addWidget(LstSauvegardes_, 1);
    QLabel* lieu =
        style::Legende(QStringLiteral("LblLieu"), messages::Lieu(lieu_.Arbre, lieu_.Dossier), carte);
    lieu->setWordWrap(true);
    colonne->addWidget(lieu);
    CmdAnnuler_ =
        style::Bouton(QStringLiteral("CmdAnnuler"), QStringLiteral("&Annuler"), QStringLiteral("x-lg"), this);
    CmdOK_ = style::BoutonPrincipal(QStringLiteral("CmdOK"), QStringLiteral("&Restaurer"),
                                    QStringLiteral("clock-history"), this);
    CmdOK_->setEnabled(false);
    auto* pied = new QHBoxLayout;
    pied->setSpacing(style::kDansGroupe);
    pied->addStretch(1);
    pied->addWidget(CmdAnnuler_);
    pied->addWidget(CmdOK_);
    QVBoxLayout* fenetre = style::Fenetre(this);
    fenetre->addWidget(carte, 1);
    fenetre->addLayout(pied);
    style::OrdreTab({LstSauvegardes_, CmdAnnuler_, static_cast<QWidget*>(CmdOK_)});
    style::Dimensionne(this, 560, 460);
}

void FrmRestaure::Remplit()
{
    AttendLaSauvegarde(); // that of today may be on its way
    sauvegardes_ = ListeSauvegardes(lieu_);
    for (const Sauvegarde& sauvegarde : std::as_const(sauvegardes_)) {
        LstSauvegardes_->addItem(Ligne(sauvegarde));
    }
    if (sauvegardes_.isEmpty()) {
        LstSauvegardes_->setEnabled(false);
        LstSauvegardes_->addItem(messages::AucuneSauvegarde());
    } else {
        LstSauvegardes_->setCurrentRow(0);
    }
}

void FrmRestaure::Restaure()
{
    const Sauvegarde choisie = sauvegardes_.at(LstSauvegardes_->currentRow());
    const QString ligne = Ligne(choisie);
    if (!contexte_.Dehors.Boites.Question(messages::DemandeRestauration(ligne, lieu_.Arbre),
                                          outside::Bouton::Non) ||
        !Remet(choisie, ligne)) {
        return;
    }
    accept();
    application::Relance(contexte_);
    Q_EMIT contexte_.Signaux.FinDemandee();
}

bool FrmRestaure::Remet(const Sauvegarde& sauvegarde, const QString& ligne)
{
    outside::Boites& boites = contexte_.Dehors.Boites;
    contexte_.Bases.FermeMedoc();
    contexte_.Bases.FermeOrdo();
    try {
        const application::Sablier sablier;
        backup::Restaure(lieu_, sauvegarde, contexte_.Dehors.Horloge.Maintenant());
    } catch (const common::Erreur& erreur) {
        const bool commencee = RestaurationEnCours(lieu_.Arbre);
        boites.Stop(commencee ? messages::RestaurationInterrompue(erreur.Phrase()) +
                                    application::ConserveOrdonnance(contexte_)
                              : messages::RestaurationRefusee(erreur.Phrase()));
        return commencee;
    }
    boites.Information(messages::Restauree(ligne) + application::ConserveOrdonnance(contexte_));
    return true;
}

} // namespace backup
