#include "application/windows/Style.h"
#include "patients/windows/ChampSelectionne.h"
#include "patients/windows/FrmNouveauP.h"
#include "patients/windows/ListeChoix.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace patients {

namespace style = application::style;

namespace {

QLabel* MarqueRouge(const QString& nomObjet, QWidget* parent)
{
    QLabel* marque = style::Legende(nomObjet, QStringLiteral("*"), parent);
    QPalette palette = marque->palette();
    palette.setColor(QPalette::WindowText, style::Teinte(style::Ton::Rouge));
    marque->setProperty("genre", {});
    marque->setPalette(palette);
    marque->setToolTip(QStringLiteral("À remplir"));
    return marque;
}

QPlainTextEdit* Texte(const QString& nomObjet, QWidget* parent)
{
    auto* texte = new QPlainTextEdit(parent);
    texte->setObjectName(nomObjet);
    texte->setTabChangesFocus(true);
    texte->setMinimumHeight(3 * texte->fontMetrics().lineSpacing());
    return texte;
}

} // namespace

void FrmNouveauP::Dispose()
{
    auto* fenetre = style::Fenetre(this);
    auto* grille = new QGridLayout;
    grille->setSpacing(style::kEntreGroupes);
    grille->addWidget(FaitIdentite(), 0, 0);
    grille->addWidget(FaitCoordonnees(), 1, 0);
    grille->addWidget(FaitPrecautions(), 0, 1);
    grille->addWidget(FaitNotes(), 1, 1);
    grille->setColumnStretch(0, 1);
    grille->setColumnStretch(1, 1);
    grille->setRowStretch(1, 1);
    fenetre->addLayout(grille, 1);
    fenetre->addLayout(FaitPied());
    OrdonneTabulations();
    style::Dimensionne(this, 940, 640);
}

QLineEdit* FrmNouveauP::FaitTxt(int numero, QWidget* carte)
{
    auto* champ = new QLineEdit(carte);
    champ->setObjectName(QStringLiteral("Txt(%1)").arg(numero));
    txt_[size_t(numero)] = champ;
    return champ;
}

QBoxLayout* FrmNouveauP::FaitCivilites(QWidget* carte)
{
    auto* rangee = new QHBoxLayout;
    for (size_t i = 0; i < opt_.size(); ++i) {
        opt_[i] = new QRadioButton(QString::fromUtf16(kCivilites[i].Libelle), carte);
        opt_[i]->setObjectName(QStringLiteral("Opt(%1)").arg(i));
        opt_[i]->setToolTip(MotDeCivilite(static_cast<int>(i)));
        rangee->addWidget(opt_[i]);
    }
    rangee->addStretch(1);
    opt_[kSansCivilite]->setChecked(true);
    return rangee;
}

QWidget* FrmNouveauP::FaitIdentite()
{
    auto* carte = style::Carte(this);
    auto* grille = style::DansCarte<QGridLayout>(carte);
    grille->addWidget(style::Titre({}, QStringLiteral("Identité"), carte), 0, 0, 1, 4);
    grille->addLayout(FaitCivilites(carte), 1, 0, 1, 4);
    grille->addWidget(style::Legende({}, QStringLiteral("&Nom"), carte, FaitTxt(0, carte)), 2, 0);
    grille->addWidget(MarqueRouge({}, carte), 2, 1);
    grille->addWidget(txt_[0], 2, 2, 1, 2);
    grille->addWidget(style::Legende({}, QStringLiteral("&Prénom"), carte, FaitTxt(1, carte)), 3, 0);
    grille->addWidget(MarqueRouge({}, carte), 3, 1);
    grille->addWidget(txt_[1], 3, 2, 1, 2);
    meb_ = new ChampSelectionne(carte);
    meb_->setObjectName(QStringLiteral("MEB"));
    lbl_ = MarqueRouge(QStringLiteral("Lbl"), carte);
    grille->addWidget(style::Legende({}, QStringLiteral("&Date de naissance"), carte, meb_), 4, 0);
    grille->addWidget(lbl_, 4, 1);
    grille->addWidget(meb_, 4, 2);
    grille->addWidget(style::Legende({}, QStringLiteral("jj/mm/aaaa"), carte), 4, 3);
    grille->addWidget(style::Legende({}, QStringLiteral("P&oids"), carte, FaitTxt(3, carte)), 5, 0);
    grille->addWidget(txt_[3], 5, 2);
    grille->addWidget(style::Legende({}, QStringLiteral("kg"), carte), 5, 3);
    grille->setRowStretch(6, 1);
    return carte;
}

QWidget* FrmNouveauP::FaitCoordonnees()
{
    auto* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    txtAdrV_ = Texte(QStringLiteral("TxtAdrV"), carte);
    colonne->addWidget(style::Titre({}, QStringLiteral(" &Adresse"), carte, txtAdrV_));
    colonne->addWidget(txtAdrV_, 1);
    auto* telephones = new QHBoxLayout;
    telephones->setSpacing(style::kDansGroupe);
    telephones->addWidget(style::Legende({}, QStringLiteral("Télép&hone"), carte, FaitTxt(2, carte)));
    telephones->addWidget(txt_[2]);
    telephones->addWidget(FaitTxt(4, carte));
    style::Nomme(txt_[4], QStringLiteral("Second numéro de téléphone"));
    style::RaccourciVers(txt_[4], QStringLiteral("Alt+2"));
    colonne->addLayout(telephones);
    return carte;
}

QWidget* FrmNouveauP::FaitPrecautions()
{
    auto* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    lstCi_ = new ListeChoix(carte);
    lstCi_->setObjectName(QStringLiteral("LstCi"));
    lstCi_->setModel(&precautions_);
    lstCi_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    lstCi_->setMinimumHeight(3 * style::kHauteurRangee);
    lstCi_->setToolTip(QStringLiteral("Double-cliquez sur une précaution pour la supprimer (Suppr)"));
    cmdCI_ = style::Bouton(QStringLiteral("CmdCI"), QStringLiteral("A&jouter une précaution"),
                           QStringLiteral("plus-lg"), carte);
    colonne->addWidget(style::Titre({}, QStringLiteral("Précau&tions"), carte, lstCi_));
    colonne->addWidget(lstCi_, 1);
    colonne->addWidget(cmdCI_, 0, Qt::AlignLeft);
    return carte;
}

QWidget* FrmNouveauP::FaitNotes()
{
    auto* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    txtAtcd_ = Texte(QStringLiteral("TxtAtcd"), carte);
    txtAdr_ = Texte(QStringLiteral("TxtAdr"), carte);
    colonne->addWidget(style::Titre({}, QStringLiteral("Antécédent&s"), carte, txtAtcd_));
    colonne->addWidget(txtAtcd_, 1);
    colonne->addWidget(
        style::Titre({}, QStringLiteral("Données di&verses (notes, données cliniques ...)"), carte, txtAdr_));
    colonne->addWidget(txtAdr_, 1);
    return carte;
}

QBoxLayout* FrmNouveauP::FaitPied()
{
    auto* pied = new QHBoxLayout;
    pied->setSpacing(style::kDansGroupe);
    cmdAnnuler_ =
        style::Bouton(QStringLiteral("CmdAnnuler"), QStringLiteral("Ann&uler"), QStringLiteral("x-lg"), this);
    cmdOK_ = style::BoutonPrincipal(QStringLiteral("CmdOK"), QStringLiteral("OK"), QStringLiteral("check-lg"),
                                    this);
    style::Nomme(cmdOK_, QStringLiteral("Valider la saisie"), QStringLiteral("Entrée"));
    style::Nomme(cmdAnnuler_, QStringLiteral("Abandonner la saisie"), QStringLiteral("Échap"));
    pied->addWidget(MarqueRouge({}, this));
    pied->addWidget(style::Legende({}, QStringLiteral("à remplir"), this));
    pied->addStretch(1);
    pied->addWidget(cmdAnnuler_);
    pied->addWidget(cmdOK_);
    return pied;
}

void FrmNouveauP::OrdonneTabulations()
{
    QList<QWidget*> ordre(opt_.begin(), opt_.end());
    ordre << txt_[0] << txt_[1] << meb_ << txt_[3] << lstCi_ << cmdCI_ << txtAdrV_ << txt_[2] << txt_[4]
          << txtAtcd_ << txtAdr_ << cmdAnnuler_ << cmdOK_;
    style::OrdreTab(ordre);
}

} // namespace patients
