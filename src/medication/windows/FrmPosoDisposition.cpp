#include "application/windows/Style.h"
#include "medication/windows/BoiteCboP.h"
#include "medication/windows/ChampPosologie.h"
#include "medication/windows/FrmPoso.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>

// The layout of the composer.
namespace medication {

namespace style = application::style;

namespace {

constexpr int kLargeur = 880;
constexpr int kHauteur = 480;
constexpr int kRangQuantites = 0; // of the grid, a caption above its box
constexpr int kRangMoments = 3;
constexpr int kLignesTexte = 4;

} // namespace

void FrmPoso::Dispose()
{
    QVBoxLayout* fenetre = style::Fenetre(this);
    lblNomMed_ = style::Titre(QStringLiteral("LblNomMed"), QString(), this);
    lblNomMed_->setTextFormat(Qt::PlainText);
    lblNomMed_->setWordWrap(true);
    fenetre->addWidget(lblNomMed_);
    fenetre->addWidget(FaitChoix());
    fenetre->addWidget(FaitTexte(), 1);
    fenetre->addLayout(FaitPied());
    OrdonneTabulations();
    style::Dimensionne(this, kLargeur, kHauteur);
}

void FrmPoso::PlaceBoite(QGridLayout* grille, int indice, const QString& legende, int rang, int colonne)
{
    QWidget* carte = grille->parentWidget();
    auto* boite = new BoiteCboP(ListeCboP(indice), carte);
    boite->setObjectName(QStringLiteral("CboP(%1)").arg(indice));
    boite->setAccessibleName(LegendeCboP(indice));
    cboP_[size_t(indice)] = boite;
    grille->addWidget(style::Legende(QStringLiteral("LblP(%1)").arg(indice), legende, carte, boite), rang,
                      colonne);
    grille->addWidget(boite, rang + 1, colonne, 1, EstQuantite(indice) ? 2 : 4);
}

QWidget* FrmPoso::FaitChoix()
{
    QWidget* carte = style::Carte(this);
    auto* grille = style::DansCarte<QGridLayout>(carte);
    grille->setHorizontalSpacing(style::kEntreGroupes);
    PlaceBoite(grille, kForme, QStringLiteral("&Forme"), kRangQuantites, 0);
    PlaceBoite(grille, kMatin, QStringLiteral("&Matin"), kRangQuantites, 4);
    PlaceBoite(grille, kMidi, QStringLiteral("Mi&di"), kRangQuantites, 6);
    PlaceBoite(grille, kSoir, QStringLiteral("&Soir"), kRangQuantites, 8);
    PlaceBoite(grille, kCoucher, QStringLiteral("&Coucher"), kRangQuantites, 10);
    PlaceBoite(grille, kRepas, QStringLiteral("&Repas / horaire"), kRangMoments, 0);
    PlaceBoite(grille, kFrequence, QStringLiteral("Fré&quence"), kRangMoments, 4);
    PlaceBoite(grille, kDuree, QStringLiteral("D&urée"), kRangMoments, 8);
    grille->setRowMinimumHeight(kRangMoments - 1, style::kDansGroupe);
    for (int colonne = 0; colonne < grille->columnCount(); ++colonne) {
        grille->setColumnStretch(colonne, 1);
    }
    return carte;
}

QWidget* FrmPoso::FaitTexte()
{
    QWidget* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    txtPoso_ = new ChampPosologie(carte);
    txtPoso_->setObjectName(QStringLiteral("TxtPoso"));
    txtPoso_->setMinimumHeight(kLignesTexte * txtPoso_->fontMetrics().lineSpacing());
    lblX_ = style::Avertissement(QStringLiteral("LblX"), QStringLiteral("Remplacez chaque X par un nombre."),
                                 carte);
    lblX_->hide();
    auto* tete = new QHBoxLayout;
    tete->addWidget(style::Titre({}, QStringLiteral("&Posologie"), carte, txtPoso_));
    tete->addStretch(1);
    tete->addWidget(lblX_);
    colonne->addLayout(tete);
    colonne->addWidget(txtPoso_, 1);
    return carte;
}

QBoxLayout* FrmPoso::FaitPied()
{
    cmdAide_ = style::Bouton(QStringLiteral("CmdAide"), QStringLiteral("Aid&e"),
                             QStringLiteral("question-circle"), this);
    cmdAnnule_ =
        style::Bouton(QStringLiteral("CmdAnnule"), QStringLiteral("A&nnuler"), QStringLiteral("x-lg"), this);
    cmdQuitter_ = style::Bouton(QStringLiteral("CmdQuitter"), QStringLiteral("&Inscrire"),
                                QStringLiteral("pencil"), this);
    cmdEnregistrer_ = style::Bouton(QStringLiteral("CmdEnregistrer"),
                                    QStringLiteral("Ajouter / Enre&gistrer"), QStringLiteral("save"), this);
    cmdAjouter_ = style::BoutonPrincipal(QStringLiteral("CmdAjouter"), QStringLiteral("&Ajouter"),
                                         QStringLiteral("plus-lg"), this);
    cmdAide_->setToolTip(QStringLiteral("Mettre un mot en gras, en souligné, en italique"));
    cmdAnnule_->setToolTip(QStringLiteral("Laisser la posologie comme elle était (Échap)"));
    cmdQuitter_->setToolTip(QStringLiteral("Inscrire la posologie sans ajouter le médicament"));
    cmdEnregistrer_->setToolTip(
        QStringLiteral("Ajouter à l'ordonnance et garder cette posologie pour ce médicament"));
    cmdAjouter_->setToolTip(QStringLiteral("Ajouter à l'ordonnance (Entrée)"));
    auto* pied = new QHBoxLayout;
    pied->setSpacing(style::kDansGroupe);
    pied->addWidget(cmdAide_);
    pied->addStretch(1);
    for (QPushButton* bouton : {cmdAnnule_, cmdQuitter_, cmdEnregistrer_, cmdAjouter_}) {
        pied->addWidget(bouton);
    }
    return pied;
}

void FrmPoso::OrdonneTabulations()
{
    QList<QWidget*> ordre(cboP_.begin(), cboP_.end());
    ordre << txtPoso_ << cmdAjouter_ << cmdEnregistrer_ << cmdQuitter_ << cmdAnnule_ << cmdAide_;
    style::OrdreTab(ordre);
}

} // namespace medication
