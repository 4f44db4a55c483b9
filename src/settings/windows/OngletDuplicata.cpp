#include "settings/windows/OngletDuplicata.h"

#include "application/windows/Style.h"
#include "common/Nombres.h"
#include "outside/Boites.h"
#include "settings/Enregistrement.h"
#include "settings/messages.h"
#include "settings/windows/BoiteMillimetres.h"
#include "settings/windows/MotDesCopies.h"
#include "settings/windows/Pastille.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace settings {

namespace style = application::style;

namespace {

constexpr int kHauteurDuMot = 150; ///< two lines of 40 points
constexpr int kHauteurReduite = 84;

} // namespace

OngletDuplicata::OngletDuplicata(application::Contexte& contexte, QWidget* parent)
    : Onglet(parent), contexte_(contexte)
{
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins({});
    page->setSpacing(style::kEntreGroupes);
    page->addWidget(CarteDuMot());
    page->addWidget(CarteDeLaPlace());
    page->addStretch();
    Charge();
    connect(ChkDup_, &QCheckBox::clicked, this, &OngletDuplicata::Inscrit);
    connect(CmdTexte_, &QPushButton::clicked, this, &OngletDuplicata::ChoisitTexte);
    connect(CmdPolice_, &QPushButton::clicked, this, &OngletDuplicata::ChoisitPolice);
    connect(CmdColPol_, &QPushButton::clicked, this, &OngletDuplicata::ChoisitCouleur);
    style::OrdreTab({ChkDup_, CmdTexte_, CmdPolice_, CmdColPol_, TxtDupX_, TxtDupY_});
}

QWidget* OngletDuplicata::CarteDuMot()
{
    auto* carte = style::Carte(this);
    ChkDup_ = new QCheckBox(QStringLiteral("&Inscrire DUPLICATA sur les copies"), carte);
    ChkDup_->setObjectName(QStringLiteral("ChkDup"));
    LblDup_ = new MotDesCopies(carte);
    LblDup_->setObjectName(QStringLiteral("LblDup"));
    LblDup_->setAccessibleName(QStringLiteral("Texte inscrit sur les copies"));
    LblDup_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(style::kEntreGroupes);
    groupe->addWidget(ChkDup_, 0, Qt::AlignLeft);
    groupe->addWidget(LblDup_);
    groupe->addLayout(RangeeDesBoutons(carte));
    return carte;
}

QLayout* OngletDuplicata::RangeeDesBoutons(QWidget* carte)
{
    CmdTexte_ =
        style::Bouton(QStringLiteral("CmdTexte"), QStringLiteral("&Texte"), QStringLiteral("pencil"), carte);
    CmdPolice_ =
        style::Bouton(QStringLiteral("CmdPolice"), QStringLiteral("&Police"), QStringLiteral("fonts"), carte);
    CmdColPol_ = style::Bouton(QStringLiteral("CmdColPol"), QStringLiteral("&Couleur Police"),
                               QStringLiteral("palette"), carte);
    LblColor_ = new Pastille(carte);
    LblColor_->setObjectName(QStringLiteral("LblColor"));
    style::Nomme(LblColor_, QStringLiteral("Couleur du texte des copies"));
    LblPolice_ = style::Legende(QStringLiteral("LblPolice"), QString(), carte);
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(style::kDansGroupe);
    for (QWidget* controle :
         std::initializer_list<QWidget*>{CmdTexte_, CmdPolice_, CmdColPol_, LblColor_, LblPolice_}) {
        QSizePolicy garde = controle->sizePolicy();
        garde.setRetainSizeWhenHidden(true);
        controle->setSizePolicy(garde);
        rangee->addWidget(controle);
    }
    LblPolice_->setWordWrap(true);
    rangee->setStretchFactor(LblPolice_, 1);
    return rangee;
}

QWidget* OngletDuplicata::CarteDeLaPlace()
{
    auto* carte = style::Carte(this);
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(style::kDansGroupe);
    const auto pose = [&](const char* nom, const QString& legende, const QString& nomAccessible) {
        auto* boite = new BoiteMillimetres(nom, carte);
        rangee->addWidget(
            style::Legende(QStringLiteral("Lbl") + QLatin1String(nom).mid(3), legende, carte, boite));
        style::Nomme(boite, nomAccessible);
        rangee->addWidget(boite);
        rangee->addSpacing(style::kEntreGroupes);
        return boite;
    };
    TxtDupX_ = pose("TxtDupX", QStringLiteral("&X ="), QStringLiteral("Place horizontale du texte, en mm"));
    TxtDupY_ = pose("TxtDupY", QStringLiteral("&Y ="), QStringLiteral("Place verticale du texte, en mm"));
    rangee->addStretch();
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(style::kDansGroupe);
    groupe->addWidget(style::Legende(
        QStringLiteral("LblPlace"), QStringLiteral("Coordonnnées, en mm, du coin sup gche du TEXTE"), carte));
    groupe->addLayout(rangee);
    return carte;
}

void OngletDuplicata::Charge()
{
    const Dupli& dupli = contexte_.Reglages.Dupli;
    MontrePolice(PoliceDupli(dupli));
    MontreCouleur(CouleurDupli(dupli));
    ChkDup_->setChecked(dupli.DupliActif == 1);
    Inscrit(dupli.DupliActif == 1);
}

void OngletDuplicata::Inscrit(bool oui)
{
    const Dupli& dupli = contexte_.Reglages.Dupli;
    LblDup_->setText(oui ? dupli.DupliTexte : QString());
    TxtDupX_->setText(oui ? QString::number(dupli.DupliX) : QString());
    TxtDupY_->setText(oui ? QString::number(dupli.DupliY) : QString());
    for (QWidget* controle : std::initializer_list<QWidget*>{CmdTexte_, CmdPolice_, CmdColPol_}) {
        controle->setEnabled(oui);
        controle->setVisible(oui);
    }
    LblPolice_->setVisible(oui);
    LblColor_->setVisible(oui);
    TxtDupX_->setEnabled(oui);
    TxtDupY_->setEnabled(oui);
}

void OngletDuplicata::ChoisitTexte()
{
    const QString texte = contexte_.Dehors.Boites
                              .Demande({.Invite = messages::InviteDupli(),
                                        .Valeur = LblDup_->text(),
                                        .Titre = messages::TitreDupli()})
                              .value_or(QString());
    if (!texte.isEmpty()) {
        LblDup_->setText(TexteTenu(texte));
    }
}

void OngletDuplicata::ChoisitPolice()
{
    if (const auto police = contexte_.Dehors.Boites.ChoisitPolice(LblDup_->Police())) {
        MontrePolice(*police);
    }
}

void OngletDuplicata::ChoisitCouleur()
{
    if (const auto couleur = contexte_.Dehors.Boites.ChoisitCouleur(LblDup_->Couleur())) {
        MontreCouleur(*couleur);
    }
}

void OngletDuplicata::MontrePolice(const page::Police& police)
{
    LblDup_->MontrePolice(police);
    QString taille = common::TexteSimple(police.Taille);
    LblPolice_->setText(messages::LblPolice(police.Nom, taille.replace(QLatin1Char('.'), QLatin1Char(','))));
}

void OngletDuplicata::MontreCouleur(page::Couleur couleur)
{
    LblDup_->MontreCouleur(couleur);
    LblColor_->Montre(couleur);
}

void OngletDuplicata::Adapte(QSize fenetre)
{
    LblDup_->setFixedHeight(fenetre.height() < kFenetreBasse ? kHauteurReduite : kHauteurDuMot);
}

void OngletDuplicata::Lit(SaisieOptions& saisie) const
{
    saisie.ChkDup = ChkDup_->isChecked();
    saisie.LblDup = LblDup_->text();
    saisie.PoliceDupli = LblDup_->Police();
    saisie.CouleurDupli = LblDup_->Couleur();
    saisie.TxtDupX = TxtDupX_->text();
    saisie.TxtDupY = TxtDupY_->text();
}

} // namespace settings
