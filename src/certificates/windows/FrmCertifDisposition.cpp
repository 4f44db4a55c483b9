#include "application/windows/Style.h"
#include "certificates/Bandeaux.h"
#include "certificates/Certificat.h"
#include "certificates/messages.h"
#include "certificates/windows/FrmCertif.h"
#include "certificates/windows/ZoneTexte.h"
#include "page/Mesure.h"
#include "patients/windows/ListeChoix.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QVBoxLayout>

// What FrmCertif is made of.
namespace certificates {

namespace style = application::style;

namespace {

// In the order of `Lblmacro`, each with its Alt letter.
constexpr std::array<const char16_t*, kMacros.size()> kLegendes = {u"<&N>",  u"<&DN>", u"<D&J>",  u"<&AD>",
                                                                   u"<D&R>", u"<&EL>", u"<N&Bsp>"};

QHBoxLayout* Rangee()
{
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(style::kDansGroupe);
    return rangee;
}

QPushButton* Bouton(const char* nom, const QString& texte, const char* icone, QWidget* parent)
{
    return style::Bouton(QLatin1String(nom), texte, QLatin1String(icone), parent);
}

/// Room for a rule of the ALD sheet on one line, in the font that the editor begins with.
int LargeurDuTexte(const QWidget& zone)
{
    constexpr int kBordsEtAscenseur = 40;
    const QFontMetrics mesure(page::PoliceQt(Certificat().TxtCert), &zone);
    return mesure.horizontalAdvance(FiletDeBandeau()) + kBordsEtAscenseur;
}

QCheckBox* Case(const char* nom, const QString& texte, QWidget* parent)
{
    auto* coche = new QCheckBox(texte, parent);
    coche->setObjectName(QLatin1String(nom));
    return coche;
}

} // namespace

void FrmCertif::Dispose()
{
    auto* fenetre = style::Fenetre(this);
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(style::kEntreGroupes);
    rangee->addWidget(FaitModeles(), 1);
    rangee->addWidget(FaitTexte(), 3);
    fenetre->addLayout(rangee, 1);
    fenetre->addLayout(FaitPied());
    FaitMenu();
    OrdonneTabulations();
    style::Dimensionne(this, 1160, 720);
}

QWidget* FrmCertif::FaitModeles()
{
    auto* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    LstCertif_ = new patients::ListeChoix(carte);
    LstCertif_->setObjectName(QStringLiteral("LstCertif"));
    LstCertif_->setModel(&modeles_);
    style::Nomme(LstCertif_, QStringLiteral("Modèles de certificats"));
    style::RaccourciVers(LstCertif_, QStringLiteral("F3"));
    CmdNouveau_ = Bouton("CmdNouveau", QStringLiteral("Nou&veau modèle"), "file-earmark-plus", carte);
    CmdEnr_ = Bouton("CmdEnr", QStringLiteral("Enre&gistrer modèle"), "save", carte);
    CmdSupp_ = style::BoutonDestructeur(QStringLiteral("CmdSupp"), QStringLiteral("&Supprimer modèle"),
                                        QStringLiteral("trash3"), carte);
    ChkALD_ = Case("ChkALD", QStringLiteral("A&LD"), carte);
    ChkP_ = Case("ChkP", QStringLiteral("Ecrire l'identité du patient dansle docu&ment"), carte);
    auto* utile =
        style::Legende(QStringLiteral("Label4"),
                       QStringLiteral("(Utile pour prescriptions d'examens complémentaires)"), carte);
    utile->setWordWrap(true);

    colonne->addWidget(style::Titre({}, QStringLiteral("Modèles"), carte));
    colonne->addWidget(LstCertif_, 1);
    for (QPushButton* bouton : {CmdNouveau_, CmdEnr_, CmdSupp_}) {
        style::AligneAGauche(bouton);
        colonne->addWidget(bouton);
    }
    colonne->addSpacing(style::kDansGroupe);
    colonne->addWidget(ChkALD_);
    colonne->addWidget(utile);
    colonne->addWidget(ChkP_);
    return carte;
}

QWidget* FrmCertif::FaitTexte()
{
    auto* carte = style::Carte(this);
    auto* colonne = style::DansCarte(carte);
    TxtCert_ = new ZoneTexte(carte);
    TxtCert_->setObjectName(QStringLiteral("TxtCert"));
    TxtCert_->setMinimumWidth(LargeurDuTexte(*TxtCert_));
    colonne->addLayout(FaitMacros(carte));
    colonne->addLayout(FaitLargeurs(carte));
    auto* titre = Rangee();
    titre->addWidget(style::Titre({}, QStringLiteral("Te&xte"), carte, TxtCert_));
    titre->addStretch();
    titre->addWidget(style::Legende(QStringLiteral("LblMarges"), messages::CoinSuperieurGauche(), carte));
    colonne->addLayout(titre);
    colonne->addWidget(TxtCert_, 1);
    colonne->addLayout(FaitOutils(carte));
    return carte;
}

QBoxLayout* FrmCertif::FaitMacros(QWidget* carte)
{
    auto* rangee = Rangee();
    rangee->addWidget(style::Titre(QStringLiteral("LblMACRO"), QStringLiteral("MACRO"), carte));
    for (size_t i = 0; i < Lblmacro_.size(); ++i) {
        Lblmacro_[i] =
            style::Bouton(QStringLiteral("Lblmacro(%1)").arg(i), QString::fromUtf16(kLegendes[i]), {}, carte);
        Lblmacro_[i]->setToolTip(messages::SurvolMacro());
        style::Serre(Lblmacro_[i]);
        rangee->addWidget(Lblmacro_[i]);
    }
    rangee->addStretch();
    return rangee;
}

QBoxLayout* FrmCertif::FaitLargeurs(QWidget* carte)
{
    auto* rangee = Rangee();
    rangee->addWidget(style::Legende({}, QStringLiteral("Espaces de <NBsp>"), carte));
    for (size_t i = 0; i < Optsp_.size(); ++i) {
        const int largeur = LargeurNBsp(static_cast<int>(i));
        Optsp_[i] = new QRadioButton(QStringLiteral("&%1").arg(largeur), carte);
        Optsp_[i]->setObjectName(QStringLiteral("Optsp(%1)").arg(i));
        style::Nomme(Optsp_[i], QStringLiteral("<NBsp> de %1 espaces").arg(largeur));
        rangee->addWidget(Optsp_[i]);
    }
    Optsp_[kLargeurParDefaut]->setChecked(true);
    rangee->addStretch();
    return rangee;
}

QBoxLayout* FrmCertif::FaitOutils(QWidget* carte)
{
    CmdDecG_ = Bouton("CmdDecG", QStringLiteral("Gauc&he"), "arrow-left", carte);
    CmdDecD_ = Bouton("CmdDecD", QStringLiteral("Droi&te"), "arrow-right", carte);
    CmdAnnule_ = Bouton("CmdAnnule", QStringLiteral("Annuler dé&calage"), "arrow-counterclockwise", carte);
    CmdPP_ = Bouton("CmdPP", QStringLiteral("C&opier sélection"), "files", carte);
    CmdPolice_ = Bouton("CmdPolice", QStringLiteral("&Police pour l'écriture"), "fonts", carte);
    LblF_ = style::Legende(QStringLiteral("LblF"), {}, carte);
    style::Nomme(CmdDecG_, QStringLiteral("Décaler le texte vers la gauche"));
    style::Nomme(CmdDecD_, QStringLiteral("Décaler le texte vers la droite"));
    auto* decalage = Rangee();
    decalage->addWidget(style::Legende({}, QStringLiteral("Décaler le texte "), carte));
    decalage->addWidget(CmdDecG_);
    decalage->addWidget(CmdDecD_);
    decalage->addWidget(CmdAnnule_);
    decalage->addStretch();
    auto* police = Rangee();
    police->addWidget(CmdPolice_);
    police->addWidget(LblF_, 1);
    police->addWidget(CmdPP_);
    auto* colonne = new QVBoxLayout;
    colonne->setSpacing(style::kDansGroupe);
    colonne->addLayout(decalage);
    colonne->addLayout(police);
    return colonne;
}

QBoxLayout* FrmCertif::FaitPied()
{
    CmdAide_ = Bouton("CmdAide", QStringLiteral("Aide &?"), "question-circle", this);
    cmdInfo_ = Bouton("cmdInfo", QStringLiteral("In&fo macros"), "info-circle", this);
    Image1_ = Bouton("Image1", QStringLiteral("Mar&queurs"), "type-bold", this);
    CmdAnn_ = Bouton("CmdAnn", QStringLiteral("Ann&uler"), "x-lg", this);
    CmdEcrire_ = style::BoutonPrincipalRouge(QStringLiteral("CmdEcrire"), QStringLiteral("Ecr&ire"),
                                             QStringLiteral("pencil-square"), this);
    style::Nomme(CmdAide_, QStringLiteral("Les macros et la case ALD"));
    style::Nomme(cmdInfo_, QStringLiteral("Comment insérer une macro"));
    style::Nomme(Image1_, QStringLiteral("Les caractères de formatage"));
    style::Nomme(CmdEcrire_, QStringLiteral("Écrire le certificat sur la page"));
    style::Nomme(CmdAnn_, QStringLiteral("Quitter les certificats"), QStringLiteral("Échap"));
    auto* pied = Rangee();
    pied->addWidget(CmdAide_);
    pied->addWidget(cmdInfo_);
    pied->addWidget(Image1_);
    pied->addStretch();
    pied->addWidget(CmdAnn_);
    pied->addWidget(CmdEcrire_);
    return pied;
}

void FrmCertif::FaitMenu()
{
    menu_ = new QMenu(this);
    menu_->setObjectName(QStringLiteral("mnuEnregistrement"));
    const auto entree = [this](const char* nom, const QString& texte) {
        auto* action = new QAction(texte, this);
        action->setObjectName(QLatin1String(nom));
        menu_->addAction(action);
    };
    entree("mnuEnr", QStringLiteral("&Enregistrer"));
    entree("mnuEnrSous", QStringLiteral("Enregister &sous ..."));
}

void FrmCertif::OrdonneTabulations()
{
    QList<QWidget*> ordre{LstCertif_, CmdNouveau_, CmdEnr_, CmdSupp_, ChkALD_, ChkP_};
    ordre.append(QList<QWidget*>(Lblmacro_.begin(), Lblmacro_.end()));
    ordre.append(QList<QWidget*>(Optsp_.begin(), Optsp_.end()));
    ordre << TxtCert_ << CmdDecG_ << CmdDecD_ << CmdAnnule_ << CmdPolice_ << CmdPP_ << CmdAide_ << cmdInfo_
          << Image1_ << CmdAnn_ << CmdEcrire_;
    style::OrdreTab(ordre);
}

} // namespace certificates
