#include "medication/windows/FrmNouveauM.h"

#include "application/windows/Style.h"
#include "application/windows/UnSeulClic.h"
#include "drugbank/Banque.h"
#include "medication/NouveauMedicament.h"
#include "medication/messages.h"
#include "outside/Tente.h"
#include "patients/windows/ListeChoix.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace medication {

namespace style = application::style;

FrmNouveauM::FrmNouveauM(application::Contexte& contexte, application::Fenetres&) : contexte_(contexte)
{
    setObjectName(QStringLiteral("FrmNouveauM"));
    setWindowTitle(QStringLiteral("   Nouveau médicament"));
    Dispose();
    Branche();
    ConfigureModeBase();
    outside::Tente(contexte_.Dehors.Boites, [this] { ChargePersonnelle(contexte_, liste_); });
    txtNom_->setFocus();
}

void FrmNouveauM::Dispose()
{
    QVBoxLayout* fenetre = style::Fenetre(this);
    auto* colonnes = new QHBoxLayout;
    colonnes->setSpacing(style::kEntreGroupes);
    colonnes->addWidget(FaitSaisie(), 3);
    colonnes->addWidget(FaitListe(), 2);
    fenetre->addLayout(colonnes, 1);
    lblAS_ = style::Lien(QStringLiteral("lblAS"), QStringLiteral("A &savoir ..."), this);
    cmdAnnuler_ = style::Bouton(QStringLiteral("CmdAnnuler"), QStringLiteral("&Annuler / Quitter"),
                                QStringLiteral("x-lg"), this);
    cmdOK_ = style::BoutonPrincipal(QStringLiteral("CmdOK"), QStringLiteral("&Enregistrer"),
                                    QStringLiteral("check-lg"), this);
    auto* pied = new QHBoxLayout;
    pied->setSpacing(style::kDansGroupe);
    pied->addWidget(lblAS_);
    pied->addStretch(1);
    pied->addWidget(cmdAnnuler_);
    pied->addWidget(cmdOK_);
    fenetre->addLayout(pied);
    style::OrdreTab({txtNom_, txtPoso_, lstP_, cmdSupp_, lblAS_, cmdAnnuler_, cmdOK_});
    style::Dimensionne(this, 860, 480);
}

QWidget* FrmNouveauM::FaitSaisie()
{
    QWidget* carte = style::Carte(this);
    txtNom_ = new QLineEdit(carte);
    txtNom_->setObjectName(QStringLiteral("TxtNom"));
    style::GardeUneLigne(txtNom_);
    lblTitre_ =
        style::Titre(QStringLiteral("LblTitre"), QStringLiteral("&Nom du médicament    "), carte, txtNom_);
    txtPoso_ = new QPlainTextEdit(carte);
    txtPoso_->setObjectName(QStringLiteral("TxtPoso"));
    txtPoso_->setTabChangesFocus(true);
    lblPoso_ = style::Titre(QStringLiteral("LblPoso"), QStringLiteral("&Posologie"), carte, txtPoso_);
    QVBoxLayout* disposition = style::DansCarte(carte);
    disposition->addWidget(lblTitre_);
    disposition->addWidget(txtNom_);
    disposition->addSpacing(style::kDansGroupe);
    disposition->addWidget(lblPoso_);
    disposition->addWidget(txtPoso_, 1);
    return carte;
}

QWidget* FrmNouveauM::FaitListe()
{
    QWidget* carte = style::Carte(this);
    lstP_ = new patients::ListeChoix(carte);
    lstP_->setObjectName(QStringLiteral("LstP"));
    lstP_->setModel(&liste_);
    lblPharma_ =
        style::Titre(QStringLiteral("LblPharma"), QStringLiteral("P&HARMACIE PERSONNELLE"), carte, lstP_);
    cmdSupp_ = style::Bouton(QStringLiteral("CmdSupp"), QStringLiteral("S&upprimer"),
                             QStringLiteral("trash3"), carte);
    QVBoxLayout* disposition = style::DansCarte(carte);
    disposition->addWidget(lblPharma_);
    disposition->addWidget(lstP_, 1);
    disposition->addWidget(cmdSupp_, 0, Qt::AlignLeft);
    return carte;
}

void FrmNouveauM::Branche()
{
    connect(cmdOK_, &QPushButton::clicked, this, &FrmNouveauM::Enregistre);
    auto* unSeul = new application::UnSeulClic(this);
    cmdOK_->installEventFilter(unSeul);
    installEventFilter(unSeul);
    connect(cmdAnnuler_, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdSupp_, &QPushButton::clicked, this,
            [this] { contexte_.Dehors.Boites.Information(messages::CommentSupprimer()); });
    connect(lblAS_, &QPushButton::clicked, this, &FrmNouveauM::DitAstuces);
}

void FrmNouveauM::ConfigureModeBase()
{
    if (drugbank::EnModeBanque(contexte_.Banque)) {
        return;
    }
    lblPharma_->setText(QStringLiteral("P&HARMACIE  SCRIPTELLE"));
    lstP_->setAccessibleName(QStringLiteral("PHARMACIE  SCRIPTELLE"));
    renvoi_ = style::Legende(
        {}, QStringLiteral("Les médicaments enregistrés se trouvent dans la liste de la pharmacie."),
        lstP_->viewport());
    renvoi_->setWordWrap(true);
    renvoi_->setAlignment(Qt::AlignCenter);
    (new QVBoxLayout(lstP_->viewport()))->addWidget(renvoi_);
    lblAS_->hide();
    cmdSupp_->hide();
}

void FrmNouveauM::NommeBibliotheque()
{
    setWindowTitle(QStringLiteral("   Pharmacie personnelle"));
    lblTitre_->setText(QStringLiteral("&Bibliothèque personnelle : Titre"));
    lblPoso_->setText(QStringLiteral("Commentaires ou &posologie"));
    txtNom_->setAccessibleName(QStringLiteral("Bibliothèque personnelle : Titre"));
    txtPoso_->setAccessibleName(QStringLiteral("Commentaires ou posologie"));
}

void FrmNouveauM::Enregistre()
{
    FinNouveau fin = FinNouveau::Refus;
    outside::Tente(contexte_.Dehors.Boites, [&] {
        fin = EnregistreNouveau(contexte_, liste_, {txtNom_->text(), txtPoso_->toPlainText()});
    });
    if (fin == FinNouveau::VideSaisie) {
        txtNom_->clear();
        txtPoso_->clear();
    } else if (fin == FinNouveau::GardeSaisie) {
        const QString nom = fontMetrics().elidedText(txtNom_->text().trimmed(), Qt::ElideRight,
                                                     renvoi_->contentsRect().width());
        renvoi_->setText(messages::Enregistre(nom));
    }
    txtNom_->setFocus();
    txtNom_->selectAll();
}

void FrmNouveauM::Supprime()
{
    const QModelIndexList choisies = lstP_->selectionModel()->selectedRows();
    if (!choisies.isEmpty()) {
        outside::Tente(contexte_.Dehors.Boites,
                       [&] { SupprimePersonnelle(contexte_, liste_, choisies.front().row()); });
    }
}

void FrmNouveauM::DitAstuces()
{
    contexte_.Dehors.Boites.Information(messages::RechercheVide());
    contexte_.Dehors.Boites.Information(messages::MemesAstuces());
}

void FrmNouveauM::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F5) {
        Supprime();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace medication
