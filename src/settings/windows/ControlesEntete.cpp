#include "settings/windows/ControlesEntete.h"

#include "application/windows/Style.h"
#include "application/windows/UnSeulClic.h"
#include "page/windows/VueAjustee.h"
#include "settings/windows/Pastille.h"
#include "settings/windows/SaisieRangs.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace settings {

namespace style = application::style;

namespace {

constexpr int kLargeurMarge = 64;
constexpr int kMoindreLargeurFeuilles = 280;
constexpr int kLargeurFeuilles = 440;
constexpr int kHauteurEntete = 140;

QRadioButton* Option(int rang, const QString& texte, QWidget* carte)
{
    auto* option = new QRadioButton(texte, carte);
    option->setObjectName(QStringLiteral("Opt(%1)").arg(rang));
    option->setAccessibleName(QString(texte).remove(QLatin1Char('&')));
    return option;
}

/// Caption, field and unit of a margin.
QLineEdit* Marge(const QString& nom, const QString& texte, QWidget* carte, QHBoxLayout* ligne)
{
    auto* champ = new QLineEdit(carte);
    champ->setObjectName(nom);
    champ->setFixedWidth(kLargeurMarge);
    ligne->addWidget(style::Legende(QStringLiteral("Lbl") + nom, texte, carte, champ));
    ligne->addWidget(champ);
    ligne->addWidget(style::Legende({}, QStringLiteral("mm"), carte));
    ligne->addSpacing(style::kDansGroupe);
    return champ;
}

} // namespace

ControlesEntete::ControlesEntete(SaisieEntete& saisie, QWidget* fenetre)
{
    QVBoxLayout* page = style::Fenetre(fenetre);
    auto* corps = new QHBoxLayout;
    corps->setSpacing(style::kEntreGroupes);
    corps->addLayout(Gauche(saisie, fenetre), 9);
    corps->addWidget(CarteFeuilles(fenetre), 5);
    page->addLayout(corps, 1);
    page->addLayout(Commandes(fenetre));
    OrdonneTab();
}

QLayout* ControlesEntete::Gauche(SaisieEntete& saisie, QWidget* fenetre)
{
    auto* defilement = new QScrollArea(fenetre);
    Rangs = new SaisieRangs(saisie, defilement);
    defilement->setWidget(Rangs);
    defilement->setWidgetResizable(true);
    defilement->setFocusPolicy(Qt::NoFocus);
    defilement->viewport()->setAutoFillBackground(false);
    Rangs->setAutoFillBackground(false);
    auto* colonne = new QVBoxLayout;
    colonne->setSpacing(style::kEntreGroupes);
    colonne->addWidget(defilement, 1);
    colonne->addWidget(CarteReglages(fenetre));
    return colonne;
}

QWidget* ControlesEntete::CarteReglages(QWidget* fenetre)
{
    QWidget* carte = style::Carte(fenetre);
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(style::kDansGroupe);
    LblEffet = style::Legende(QStringLiteral("LblEffet"), {}, carte);
    groupe->addWidget(LblEffet);
    groupe->addLayout(PoliceEtCouleur(carte));
    groupe->addLayout(Marges(carte));
    groupe->addLayout(Ordre(carte));
    LblOrdre = style::Legende(QStringLiteral("LblOrdre"),
                              QStringLiteral("Le bouton OK des options garde cet ordre."), carte);
    groupe->addWidget(LblOrdre);
    return carte;
}

QLayout* ControlesEntete::PoliceEtCouleur(QWidget* carte)
{
    CmdPolice = style::Bouton(QStringLiteral("CmdPolice"), QStringLiteral("&Police de la ligne"),
                              QStringLiteral("fonts"), carte);
    CmdCouleur = style::Bouton(QStringLiteral("CmdCouleur"), QStringLiteral("&Couleur de l'en-tête"),
                               QStringLiteral("palette"), carte);
    LblColor = new Pastille(carte);
    LblColor->setObjectName(QStringLiteral("LblColor"));
    style::Nomme(LblColor, QStringLiteral("Couleur de l'en-tête"));
    LblPolice = style::Legende(QStringLiteral("LblPolice"), {}, carte);
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(style::kDansGroupe);
    ligne->addWidget(CmdPolice);
    ligne->addWidget(LblPolice, 1);
    ligne->addWidget(CmdCouleur);
    ligne->addWidget(LblColor);
    return ligne;
}

QLayout* ControlesEntete::Marges(QWidget* carte)
{
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(style::kDansGroupe);
    TxtMG = Marge(QStringLiteral("TxtMG"), QStringLiteral("&Marge gauche"), carte, ligne);
    TxtMH = Marge(QStringLiteral("TxtMH"), QStringLiteral("Marge &haute"), carte, ligne);
    TxtMB = Marge(QStringLiteral("TxtMB"), QStringLiteral("Marge &basse"), carte, ligne);
    ligne->addStretch();
    return ligne;
}

QLayout* ControlesEntete::Ordre(QWidget* carte)
{
    Opt = {Option(0, QStringLiteral("&Adresse avant praticien"), carte),
           Option(1, QStringLiteral("P&raticien avant adresse"), carte)};
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(style::kEntreGroupes);
    ligne->addWidget(Opt[0]);
    ligne->addWidget(Opt[1]);
    ligne->addStretch();
    return ligne;
}

QWidget* ControlesEntete::CarteFeuilles(QWidget* fenetre)
{
    auto* cadre = new QWidget(fenetre);
    auto* colonne = new QVBoxLayout(cadre);
    colonne->setContentsMargins({});
    colonne->setSpacing(style::kDansGroupe);
    PctFeuille = new page::VueAjustee(QStringLiteral("PctFeuille"),
                                      QStringLiteral("Feuille telle qu'elle s'imprimera"), cadre);
    PctEntete =
        new page::VueAjustee(QStringLiteral("PctEntete"), QStringLiteral("En-tête enregistrée"), cadre);
    PctEntete->setFixedHeight(kHauteurEntete);
    colonne->addWidget(style::Titre(QStringLiteral("LblFeuille"),
                                    QStringLiteral("Feuille telle qu'elle s'imprimera"), cadre));
    colonne->addWidget(PctFeuille, 1);
    colonne->addWidget(
        style::Titre(QStringLiteral("LblEntete"), QStringLiteral("En-tête enregistrée"), cadre));
    colonne->addWidget(PctEntete);
    cadre->setMinimumWidth(kMoindreLargeurFeuilles);
    cadre->setMaximumWidth(kLargeurFeuilles);
    return cadre;
}

QLayout* ControlesEntete::Commandes(QWidget* fenetre)
{
    CmdAide = style::Bouton(QStringLiteral("CmdAide"), QStringLiteral("Ai&de"),
                            QStringLiteral("question-circle"), fenetre);
    style::Nomme(CmdAide, QStringLiteral("Aide"), QStringLiteral("F1"));
    CmdImpression = style::Bouton(QStringLiteral("CmdImpression"), QStringLiteral("&Imprimer un essai"),
                                  QStringLiteral("printer"), fenetre);
    CmdImpression->installEventFilter(new application::UnSeulClic(CmdImpression)); // one sheet, not two
    CmdImpression->setToolTip(QStringLiteral("Imprime l'en-tête enregistrée et le bas de page (Alt+I)"));
    CmdQuitter = style::Bouton(QStringLiteral("CmdQuitter"), QStringLiteral("&Quitter"),
                               QStringLiteral("arrow-left"), fenetre);
    CmdQuitter->setToolTip(
        QStringLiteral("Retour aux options, sans enregistrer. Vos modifications se retrouvent ici "
                       "jusqu'à la fermeture de Scriptelle (Alt+Q)"));
    CmdEnregistrer = style::BoutonPrincipal(QStringLiteral("CmdEnregistrer"), QStringLiteral("&Enregistrer"),
                                            QStringLiteral("save"), fenetre);
    LblModifie = style::Avertissement(QStringLiteral("LblModifie"),
                                      QStringLiteral("Modifications non enregistrées"), fenetre);
    CmdRevient = style::Lien(QStringLiteral("CmdRevient"), QStringLiteral("Re&venir à l'en-tête enregistrée"),
                             fenetre);
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(style::kDansGroupe);
    ligne->addWidget(CmdAide);
    ligne->addWidget(CmdImpression);
    ligne->addStretch();
    ligne->addWidget(LblModifie);
    ligne->addWidget(CmdRevient);
    ligne->addSpacing(style::kDansGroupe);
    ligne->addWidget(CmdQuitter);
    ligne->addWidget(CmdEnregistrer);
    return ligne;
}

void ControlesEntete::OrdonneTab() const
{
    QList<QWidget*> ordre;
    for (int rang = 0; rang < storage::kLignesEntete; ++rang) {
        ordre.append(Rangs->Champ(rang));
    }
    ordre += {CmdPolice, CmdCouleur, TxtMG,         TxtMH,      TxtMB,      Opt[0],
              Opt[1],    CmdAide,    CmdImpression, CmdRevient, CmdQuitter, CmdEnregistrer};
    style::OrdreTab(ordre);
}

} // namespace settings
