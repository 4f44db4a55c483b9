#include "application/windows/Style.h"
#include "page/windows/VueAjustee.h"
#include "settings/windows/ChampMesure.h"
#include "settings/windows/FrmConfOrdo.h"
#include "settings/windows/LibelleCoupe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace settings {

namespace style = application::style;

namespace {

constexpr int kChiffres = 8;                // width of a margin's box
constexpr int kChiffresFeuille = 6;         // of the sheet's own
constexpr int kLignesDeLaRegle = 3;         // of text, of the rule for the dates
constexpr size_t kPremiereMargePatient = 2; // of the boxes; those before place the prescriptions

int LargeurDeCase(const QWidget& champ, int chiffres = kChiffres)
{
    return chiffres * champ.fontMetrics().horizontalAdvance(QLatin1Char('0'));
}

void AjouteRangee(QGridLayout* grille, QWidget* legende, QWidget* champ)
{
    const int rangee = grille->rowCount();
    champ->setFixedWidth(LargeurDeCase(*champ));
    grille->addWidget(legende, rangee, 0);
    grille->addWidget(champ, rangee, 1);
    grille->setColumnStretch(0, 1);
}

} // namespace

void FrmConfOrdo::Dispose()
{
    auto* fenetre = style::Fenetre(this);
    auto* grille = new QGridLayout;
    grille->setSpacing(style::kEntreGroupes);
    grille->addWidget(FaitPrescriptions(), 0, 0);
    grille->addWidget(FaitPolices(), 1, 0);
    grille->addWidget(FaitPatient(), 0, 1);
    grille->addWidget(FaitEchantillon(), 1, 1);
    grille->addWidget(FaitFeuille(), 0, 2, 2, 1);
    grille->setColumnStretch(2, 1);
    grille->setRowStretch(1, 1);
    fenetre->addLayout(grille, 1);
    fenetre->addLayout(FaitPied());
    OrdonneTabulations();
    style::Dimensionne(this, 1350, 720);
}

ChampMesure* FrmConfOrdo::FaitChamp(const QString& nom, QWidget* carte)
{
    auto* champ = new ChampMesure(carte);
    champ->setObjectName(nom);
    champ->setAlignment(Qt::AlignRight);
    return champ;
}

void FrmConfOrdo::AjouteMarge(QGridLayout* grille, size_t rang, QWidget* carte)
{
    const CaseMarge& marge = CasesMarges()[rang];
    marges_[rang] = FaitChamp(QLatin1String(marge.Nom), carte);
    AjouteRangee(grille, style::Legende({}, QString::fromUtf16(marge.Legende), carte, marges_[rang]),
                 marges_[rang]);
}

QWidget* FrmConfOrdo::FaitPrescriptions()
{
    auto* carte = style::Carte(this);
    auto* grille = style::DansCarte<QGridLayout>(carte);
    grille->addWidget(style::Titre({}, QStringLiteral("Prescriptions"), carte), 0, 0, 1, 2);
    CboM_ = new QComboBox(carte);
    CboM_->setObjectName(QStringLiteral("CboM"));
    AjouteRangee(grille, style::Legende({}, QStringLiteral("Marge &haute prescriptions"), carte, CboM_),
                 CboM_);
    for (size_t rang = 0; rang < kPremiereMargePatient; ++rang) {
        AjouteMarge(grille, rang, carte);
    }
    AjouteSauts(grille, carte);
    grille->setRowStretch(grille->rowCount(), 1);
    return carte;
}

void FrmConfOrdo::AjouteSauts(QGridLayout* grille, QWidget* carte)
{
    CboInt_ = new QComboBox(carte);
    CboInt_->setObjectName(QStringLiteral("CboInt"));
    AjouteRangee(
        grille,
        style::Legende({}, QStringLiteral("&Sauts de lignes entre chaque prescription"), carte, CboInt_),
        CboInt_);
    ChkS_ = new QCheckBox(QStringLiteral("&Un saut de ligne entre titre et posologie"), carte);
    ChkS_->setObjectName(QStringLiteral("ChkS"));
    ChKSLP_ = new QCheckBox(QStringLiteral("Personnaliser les sau&ts de lignes"), carte);
    ChKSLP_->setObjectName(QStringLiteral("ChKSLP"));
    grille->addWidget(ChkS_, grille->rowCount(), 0, 1, 2);
    grille->addWidget(ChKSLP_, grille->rowCount(), 0, 1, 2);
    TxtSLP_ = FaitChamp(QStringLiteral("TxtSLP"), carte);
    AjouteRangee(
        grille, style::Legende({}, QStringLiteral("Hauteur de saut de lig&ne personnalisée"), carte, TxtSLP_),
        TxtSLP_);
    grille->addWidget(style::Legende({}, QStringLiteral("mm"), carte), grille->rowCount() - 1, 2);
}

QBoxLayout* FrmConfOrdo::FaitTailleFeuille(QWidget* carte)
{
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(style::kDansGroupe);
    rangee->addStretch();
    const auto ajoute = [&](const QString& nom, const QString& libelle, const QString& valeur,
                            const QString& touche) {
        ChampMesure* champ = FaitChamp(nom, carte);
        champ->setText(valeur);
        champ->setReadOnly(true);
        champ->setFixedWidth(LargeurDeCase(*champ, kChiffresFeuille));
        rangee->addWidget(style::Legende({}, libelle, carte, champ));
        rangee->addWidget(champ);
        style::RaccourciVers(champ, touche);
        return champ;
    };
    TxtLF_ = ajoute(QStringLiteral("TxtLF"), QStringLiteral("Largeur de feuille : "), QStringLiteral("210"),
                    QStringLiteral("Alt+1"));
    TxtHF_ = ajoute(QStringLiteral("TxtHF"), QStringLiteral("Hauteur de feuille : "), QStringLiteral("297"),
                    QStringLiteral("Alt+2"));
    rangee->addStretch();
    return rangee;
}

QWidget* FrmConfOrdo::FaitPatient()
{
    auto* carte = style::Carte(this);
    auto* grille = style::DansCarte<QGridLayout>(carte);
    grille->addWidget(style::Titre({}, QStringLiteral("Patient et dates"), carte), 0, 0, 1, 2);
    for (size_t rang = kPremiereMargePatient; rang < marges_.size(); ++rang) {
        AjouteMarge(grille, rang, carte);
    }
    QLabel* regle = style::Legende(
        QStringLiteral("LblDates"),
        QStringLiteral("Lorsque les marges  d'impression de la date du jour ou de la date de naissance / Age "
                       "sont fixées à 0, la date du jour ou la date de naissance s'impriment au dessous du "
                       "nom."),
        carte);
    regle->setWordWrap(true);
    regle->setMinimumHeight(kLignesDeLaRegle * regle->fontMetrics().lineSpacing());
    grille->addWidget(regle, grille->rowCount(), 0, 1, 2);
    grille->setRowStretch(grille->rowCount(), 1);
    return carte;
}

QWidget* FrmConfOrdo::FaitPolices()
{
    auto* carte = style::Carte(this);
    auto* grille = style::DansCarte<QGridLayout>(carte);
    CmdPolice_ = style::Bouton(QStringLiteral("CmdPolice"), QStringLiteral("Modi&fier la police"),
                               QStringLiteral("fonts"), carte);
    grille->addWidget(style::Titre({}, QStringLiteral("Polices"), carte), 0, 0);
    const std::array titres = {QStringLiteral("&Médicament"), QStringLiteral("P&osologie")};
    const std::array exemples = {QStringLiteral("    BIRODOGYL cp pelliculé : B/10"),
                                 QStringLiteral("    1 comprimé matin , midi et soir")};
    for (size_t rang = 0; rang < Txt_.size(); ++rang) {
        const int rangee = 1 + 3 * static_cast<int>(rang);
        Txt_[rang] = new ChampMesure(exemples[rang], carte);
        Txt_[rang]->setObjectName(QStringLiteral("Txt(%1)").arg(rang));
        Txt_[rang]->setReadOnly(true);
        Txt_[rang]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        Txt_[rang]->setMaximumHeight(2 * style::kHauteurBouton);
        LblMed_[rang] = new LibelleCoupe(QStringLiteral("LblMed(%1)").arg(rang), carte);
        grille->addWidget(style::Legende({}, titres[rang], carte, Txt_[rang]), rangee, 0);
        grille->addWidget(LblMed_[rang], rangee, 1);
        grille->addWidget(Txt_[rang], rangee + 1, 0, 1, 2);
    }
    grille->addWidget(CmdPolice_, grille->rowCount(), 0, 1, 2, Qt::AlignRight);
    grille->setColumnStretch(1, 1);
    grille->setRowStretch(grille->rowCount(), 1);
    return carte;
}

QWidget* FrmConfOrdo::FaitEchantillon()
{
    auto* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    PctMeP_ = new page::VueAjustee(QStringLiteral("PctMeP"), QStringLiteral("Exemple de prescription"), carte,
                                   page::Ajustement::Entiere);
    colonne->addWidget(style::Titre({}, QStringLiteral("Exemple"), carte));
    colonne->addWidget(PctMeP_, 1);
    return carte;
}

QWidget* FrmConfOrdo::FaitFeuille()
{
    auto* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    const QString titre = QStringLiteral("Feuille telle qu'elle s'imprimera");
    PctFeuille_ = new page::VueAjustee(QStringLiteral("PctFeuille"), titre, carte, page::Ajustement::Entiere);
    colonne->addWidget(style::Titre({}, titre, carte));
    colonne->addWidget(PctFeuille_, 1);
    colonne->addLayout(FaitTailleFeuille(carte));
    return carte;
}

QBoxLayout* FrmConfOrdo::FaitPied()
{
    auto* pied = new QHBoxLayout;
    pied->setSpacing(style::kDansGroupe);
    LblModifie_ = style::Avertissement(QStringLiteral("LblModifie"),
                                       QStringLiteral("Modifications non enregistrées"), this);
    LblModifie_->hide();
    CmdRetour_ = style::Bouton(QStringLiteral("CmdRetour"), QStringLiteral("&Retour"),
                               QStringLiteral("arrow-left"), this);
    CmdEnregistrer_ = style::BoutonPrincipal(QStringLiteral("CmdEnregistrer"), QStringLiteral("&Enregistrer"),
                                             QStringLiteral("save"), this);
    pied->addWidget(LblModifie_);
    pied->addStretch(1);
    pied->addWidget(CmdRetour_);
    pied->addWidget(CmdEnregistrer_);
    return pied;
}

void FrmConfOrdo::OrdonneTabulations()
{
    QList<QWidget*> ordre = {CboM_, marges_[0], marges_[1], CboInt_, ChkS_, ChKSLP_, TxtSLP_};
    ordre.append(QList<QWidget*>(marges_.begin() + kPremiereMargePatient, marges_.end()));
    ordre << Txt_[0] << Txt_[1] << CmdPolice_ << TxtLF_ << TxtHF_ << CmdRetour_ << CmdEnregistrer_;
    style::OrdreTab(ordre);
}

} // namespace settings
