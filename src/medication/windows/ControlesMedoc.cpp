#include "medication/windows/ControlesMedoc.h"

#include "application/windows/Style.h"
#include "drugbank/windows/PanneauDocument.h"
#include "medication/messages.h"
#include "medication/windows/CaseEtiquetee.h"
#include "medication/windows/ChampCherche.h"
#include "medication/windows/ChampMedicament.h"
#include "medication/windows/ChampPosologie.h"
#include "medication/windows/EtiquetteMuette.h"
#include "medication/windows/ImageAnimee.h"
#include "medication/windows/ListeLignes.h"
#include "medication/windows/ListeOffres.h"

#include <QAction>
#include <QActionGroup>
#include <QBoxLayout>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QToolButton>
#include <QTreeView>

namespace medication {

namespace {

namespace style = application::style;

constexpr int kLargeurRecherche = 2; // shares of the width
constexpr int kLargeurOrdonnance = 5;
constexpr int kLargeurEgale = 1000; // of the lists and of the document, shared out of what there is
constexpr int kLignesPoso = 2;      // the posology shows at least these

QHBoxLayout* Rang(std::initializer_list<QWidget*> gauche, std::initializer_list<QWidget*> droite)
{
    auto* rang = new QHBoxLayout;
    rang->setContentsMargins({});
    rang->setSpacing(style::kDansGroupe);
    for (QWidget* controle : gauche) {
        rang->addWidget(controle);
    }
    rang->addStretch();
    for (QWidget* controle : droite) {
        rang->addWidget(controle);
    }
    return rang;
}

void ConstruitArbre(ControlesMedoc& c, QWidget* parent)
{
    c.TV = new QTreeView(parent);
    c.TV->setObjectName(QStringLiteral("TV"));
    c.TV->setHeaderHidden(true);
    c.TV->setRootIsDecorated(false);
    c.TV->setUniformRowHeights(true);
    c.TV->setEditTriggers(QAbstractItemView::NoEditTriggers);
    c.TV->setFocusPolicy(Qt::TabFocus);
    c.TV->setTextElideMode(Qt::ElideRight);
}

/// A letter of its own for what shows no word to underline; the tip names it.
template <typename Controle> void Lettre(Controle* bouton, const QString& nom, const QString& touche)
{
    bouton->setShortcut(QKeySequence(touche));
    style::Nomme(bouton, nom, touche);
}

template <typename Controle> Controle* DeBanque(ControlesMedoc& c, Controle* controle)
{
    controle->hide();
    c.DeBanque.append(controle);
    return controle;
}

/// A word that opens a window of the bank by mouse and by keyboard.
QPushButton* Panneau(ControlesMedoc& c, const QString& nom, const QString& texte, const QString& touche,
                     QWidget* parent)
{
    auto* panneau = DeBanque(c, style::Lien(nom, texte, parent));
    Lettre(panneau, texte.trimmed(), touche);
    return panneau;
}

void BoutonsRecherche(ControlesMedoc& c, QWidget* parent)
{
    c.PctCherch = style::BoutonIcone(QStringLiteral("PctCherch"), QStringLiteral("Chercher dans la banque"),
                                     QStringLiteral("arrow-right"), parent);
    Lettre(c.PctCherch, QStringLiteral("Chercher dans la banque"), QStringLiteral("Alt+B"));
    c.PctCherch->hide();
    c.CmdVD = DeBanque(c, style::BoutonIcone(QStringLiteral("CmdVD"), QStringLiteral("Pages du Vidal"),
                                             QStringLiteral("sliders"), parent));
    Lettre(c.CmdVD, QStringLiteral("Pages du Vidal"), QStringLiteral("Alt+Z"));
}

void Menus(ControlesMedoc& c, QWidget* parent)
{
    c.mnuVidal = new QMenu(QStringLiteral("Vidal"), parent);
    c.mnuVidal->setObjectName(QStringLiteral("mnuVidal"));
    auto* filtres = new QActionGroup(c.mnuVidal);
    for (const auto& [filtre, texte] :
         {std::pair(64, QStringLiteral("Pages &Vidal")), std::pair(128, QStringLiteral("Pages &Saumon")),
          std::pair(255, QStringLiteral("&Toutes"))}) {
        QAction* entree = c.mnuVidal->addAction(texte);
        entree->setObjectName(QStringLiteral("mnu%1").arg(filtre));
        entree->setData(filtre);
        entree->setCheckable(true);
        filtres->addAction(entree);
    }
    c.mnuDemarquer = new QMenu(QStringLiteral("Demarquer"), parent);
    c.mnuDemarquer->setObjectName(QStringLiteral("mnuDemarquer"));
    c.mnuDemark = c.mnuDemarquer->addAction(QStringLiteral("Marquer comme utilisation non fréquente"));
    c.mnuDemark->setObjectName(QStringLiteral("mnuDemark"));
}

QPushButton* BoutonPerso(QWidget* parent)
{
    const QString texte = QStringLiteral("Pharmacie personnelle");
    auto* bouton = style::Bouton(QStringLiteral("CmdPerso"), texte, QStringLiteral("bookmark-plus"), parent);
    Lettre(bouton, texte, QStringLiteral("Alt+K"));
    auto* legende = new EtiquetteMuette(texte, bouton);
    legende->setObjectName(QStringLiteral("Lbl2"));
    auto* disposition = new QHBoxLayout(bouton);
    disposition->setContentsMargins({});
    disposition->addWidget(legende);
    return bouton;
}

CaseEtiquetee* Case(const char* nom, const char* nomEtiquette, const QString& texte, const QString& touche,
                    QWidget* parent)
{
    auto* boite = new CaseEtiquetee(QLatin1String(nom), QLatin1String(nomEtiquette), texte, parent);
    Lettre(boite, texte, touche);
    return boite;
}

// Below the tree, what a drug bank brings. The local mode keeps it out of sight.
void PiedBanque(ControlesMedoc& c, QWidget* parent, QVBoxLayout* colonne)
{
    c.CmdPerso = DeBanque(c, BoutonPerso(parent));
    c.ChkDCI = DeBanque(
        c, Case("ChkDCI", "lblDCI", QStringLiteral("Prescrire en DCI"), QStringLiteral("Alt+Q"), parent));
    c.ChkMono = DeBanque(c, Case("ChkMono", "Lblmono", QStringLiteral("Afficher monographies"),
                                 QStringLiteral("Alt+Y"), parent));
    c.LblDatExp = DeBanque(c, style::Legende(QStringLiteral("LblDatExp"), {}, parent));
    c.CmdCopyright =
        DeBanque(c, style::Bouton(QStringLiteral("CmdCopyright"), QStringLiteral("Copyright"), {}, parent));
    c.CmdCopyright->setShortcut(QKeySequence(QStringLiteral("Alt+X")));
    c.CmdCopyright->setToolTip(QStringLiteral("Voir d'où viennent les médicaments (Alt+X)"));
    style::Serre(c.CmdCopyright);
    auto* Lbl1 = DeBanque(c, style::Legende(QStringLiteral("Lbl1"), {}, parent));
    auto* Lbl5 = DeBanque(c, style::Legende(QStringLiteral("Lbl5"), {}, parent));
    colonne->addWidget(c.CmdPerso);
    colonne->addLayout(Rang({c.ChkDCI}, {c.ChkMono}));
    colonne->addLayout(Rang({c.LblDatExp, Lbl1}, {Lbl5, c.CmdCopyright}));
}

QLayout* ColonneRecherche(ControlesMedoc& c, QDialog* f)
{
    c.TxtCherche = new ChampCherche(f);
    c.TxtCherche->setObjectName(QStringLiteral("TxtCherche"));
    c.TxtCherche->addAction(style::Icone(QStringLiteral("search")), QLineEdit::LeadingPosition);
    ConstruitArbre(c, f);
    c.CmdNouveau =
        style::Bouton(QStringLiteral("CmdNouveau"), QStringLiteral("Nou&veau"), QStringLiteral("plus-lg"), f);
    c.CmdRetire = style::BoutonDestructeur(QStringLiteral("CmdRetire"), QStringLiteral("&Retirer"),
                                           QStringLiteral("trash3"), f);
    auto* colonne = new QVBoxLayout;
    colonne->setSpacing(style::kDansGroupe);
    BoutonsRecherche(c, f);
    colonne->addLayout(
        Rang({style::Titre({}, QStringLiteral("Recherche ra&pide"), f, c.TxtCherche)}, {c.CmdVD}));
    auto* recherche = new QHBoxLayout;
    recherche->setSpacing(style::kDansGroupe);
    recherche->addWidget(c.TxtCherche, 1);
    recherche->addWidget(c.PctCherch);
    colonne->addLayout(recherche);
    colonne->addSpacing(style::kDansGroupe);
    colonne->addWidget(style::Titre({}, QStringLiteral("P&harmacie"), f, c.TV));
    colonne->addWidget(c.TV, 1);
    c.LblSansBanque = style::Avertissement(QStringLiteral("LblSansBanque"), {}, f);
    c.LblSansBanque->setWordWrap(true);
    c.LblSansBanque->hide();
    colonne->addWidget(c.LblSansBanque);
    auto* boutons = new QHBoxLayout;
    boutons->addWidget(c.CmdNouveau, 1);
    boutons->addWidget(c.CmdRetire, 1);
    colonne->addLayout(boutons);
    PiedBanque(c, f, colonne);
    return colonne;
}

void BoutonsMedicament(ControlesMedoc& c, QWidget* parent)
{
    c.LblPoso = style::Bouton(QStringLiteral("LblPoso"), QStringLiteral("A&jouter une Posologie"),
                              QStringLiteral("pencil"), parent);
    style::SouligneSousLaSouris(c.LblPoso);
    c.CmdModifier = style::Bouton(QStringLiteral("CmdModifier"), QStringLiteral("Modifier données Med"),
                                  QStringLiteral("save"), parent);
    c.CmdModifier->setEnabled(false);
    c.CmdAjouter1 = style::BoutonPrincipal(QStringLiteral("CmdAjouter1"), QStringLiteral("&Ajouter"),
                                           QStringLiteral("plus-lg"), parent);
    c.CmdAjouter2 = style::Bouton(QStringLiteral("CmdAjouter2"), QStringLiteral("Ajouter &non ALD"),
                                  QStringLiteral("plus-lg"), parent);
    c.CmdAide = style::Bouton(QStringLiteral("CmdAide"), QStringLiteral("Aid&e"),
                              QStringLiteral("question-circle"), parent);
}

QWidget* CarteMedicament(ControlesMedoc& c, QDialog* f)
{
    QWidget* carte = style::Carte(f);
    c.TxtMedoc = new ChampMedicament(carte);
    c.TxtMedoc->setObjectName(QStringLiteral("TxtMedoc"));
    c.TxtMedoc->setToolTip(QStringLiteral("F2 : notes du médicament ; F4 : blancs après le nom"));
    c.TxtPoso = new ChampPosologie(carte);
    c.TxtPoso->setObjectName(QStringLiteral("TxtPoso"));
    c.TxtPoso->setAccessibleName(QStringLiteral("Posologie"));
    c.TxtPoso->setMinimumHeight(kLignesPoso * c.TxtPoso->fontMetrics().lineSpacing() +
                                2 * style::kDansGroupe);
    style::RaccourciVers(c.TxtPoso, QStringLiteral("Alt+G"));
    c.LstOffres = new ListeOffres(carte);
    c.LstOffres->setObjectName(QStringLiteral("LstOffres"));
    c.LstOffres->setAccessibleName(QStringLiteral("Posologies déjà écrites"));
    c.TxtPoso->PoseOffres(c.LstOffres);
    BoutonsMedicament(c, carte);
    QVBoxLayout* disposition = style::DansCarte(carte);
    QLabel* titre = style::Titre({}, QStringLiteral("Mé&dicament choisi"), carte, c.TxtMedoc);
    c.HlbG =
        Panneau(c, QStringLiteral("HlbG"), QStringLiteral(" Génériques"), QStringLiteral("Alt+5"), carte);
    c.AniGIFG = new ImageAnimee(QStringLiteral("AniGIFG"), QStringLiteral("capsule"), false,
                                QStringLiteral("Ce médicament a des génériques"), carte);
    disposition->addLayout(Rang({titre}, {c.AniGIFG, c.HlbG, c.CmdAide}));
    disposition->addWidget(c.TxtMedoc);
    disposition->addWidget(c.TxtPoso, 1);
    disposition->addWidget(c.LstOffres);
    disposition->addLayout(Rang({c.LblPoso, c.CmdModifier}, {c.CmdAjouter2, c.CmdAjouter1}));
    return carte;
}

QToolButton* Fleche(const QString& nom, const QString& texte, const QString& icone, QWidget* parent)
{
    QToolButton* bouton = style::BoutonIcone(nom, texte, icone, parent);
    QSizePolicy place = bouton->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    bouton->setSizePolicy(place);
    bouton->hide();
    return bouton;
}

ListeLignes* Liste(const QString& nom, const QString& accessible, QWidget* parent)
{
    auto* liste = new ListeLignes(parent);
    liste->setObjectName(nom);
    liste->setAccessibleName(accessible);
    return liste;
}

QLayout* Listes(ControlesMedoc& c, QWidget* carte)
{
    c.ZoneALD = style::Legende({}, QStringLiteral("Zone ALD"), carte);
    c.ZoneNonALD = style::Legende({}, QStringLiteral("Zone non ALD"), carte);
    c.LstChoix1 = Liste(QStringLiteral("LstChoix1"), QStringLiteral("Lignes de l'ordonnance"), carte);
    c.LstChoix2 = Liste(QStringLiteral("LstChoix2"), QStringLiteral("Lignes de la zone non ALD"), carte);
    c.LblHorsPage = style::Avertissement(QStringLiteral("LblHorsPage"), messages::HorsPage(), carte);
    c.LblHorsPage->hide();
    c.LblNonVerifiees = style::Avertissement(QStringLiteral("LblNonVerifiees"),
                                             messages::InteractionsNonVerifieesCourt(), carte);
    c.LblNonVerifiees->hide();
    style::RaccourciVers(c.LstChoix1, QStringLiteral("Alt+1"));
    style::RaccourciVers(c.LstChoix2, QStringLiteral("Alt+2"));
    c.ImgUp = Fleche(QStringLiteral("ImgUp"), QStringLiteral("Monter la ligne (Alt+Haut)"),
                     QStringLiteral("arrow-up"), carte);
    c.ImgDown = Fleche(QStringLiteral("ImgDown"), QStringLiteral("Descendre la ligne (Alt+Bas)"),
                       QStringLiteral("arrow-down"), carte);
    auto* listes = new QVBoxLayout;
    listes->addWidget(c.ZoneALD);
    listes->addWidget(c.LstChoix1, 1);
    listes->addWidget(c.ZoneNonALD);
    listes->addWidget(c.LstChoix2, 1);
    listes->addWidget(c.LblHorsPage);
    listes->addWidget(c.LblNonVerifiees);
    return listes;
}

/// The lists, and beside them the document of the medication in hand.
QWidget* Zones(ControlesMedoc& c, QWidget* carte)
{
    auto* zones = new QSplitter(carte);
    zones->setChildrenCollapsible(false);
    zones->setHandleWidth(style::kEntreGroupes);
    auto* listes = new QWidget(zones);
    QLayout* disposition = Listes(c, listes);
    disposition->setContentsMargins({});
    listes->setLayout(disposition);
    c.Document = new drugbank::PanneauDocument(zones);
    c.Document->hide();
    zones->setStretchFactor(0, 1);
    zones->setStretchFactor(1, 1);
    zones->setSizes({kLargeurEgale, kLargeurEgale});
    return zones;
}

void BoutonsOrdonnance(ControlesMedoc& c, QWidget* carte)
{
    c.CmdSaut = style::Bouton(QStringLiteral("CmdSaut"), QStringLiteral("&Saut de ligne"),
                              QStringLiteral("arrow-return-left"), carte);
    c.CmdClear = style::BoutonDestructeur(QStringLiteral("CmdClear"), QStringLiteral("&Tout effacer"),
                                          QStringLiteral("eraser"), carte);
    c.LblOrdoMem = style::Bouton(QStringLiteral("LblOrdoMem"), QStringLiteral("&Ordonnances Mémorisées"),
                                 QStringLiteral("book"), carte);
    style::SouligneSousLaSouris(c.LblOrdoMem);
    c.CmdAnnule =
        style::Bouton(QStringLiteral("CmdAnnule"), QStringLiteral("Ann&uler"), QStringLiteral("x-lg"), carte);
    c.CmdOrdo = style::Bouton(QStringLiteral("CmdOrdo"), QStringLiteral("&Créer Ordonnance"),
                              QStringLiteral("file-earmark-text"), carte);
}

QWidget* CarteOrdonnance(ControlesMedoc& c, QDialog* f)
{
    QWidget* carte = style::Carte(f);
    QLabel* titre = style::Titre({}, QStringLiteral("Ordonnance"), carte);
    c.ChkALD = new CaseEtiquetee(QStringLiteral("ChkALD"), QStringLiteral("Label7"),
                                 QStringLiteral("Ordonnance A&LD"), carte);
    c.ChkDup = new CaseEtiquetee(QStringLiteral("ChkDup"), QStringLiteral("Label6"),
                                 QStringLiteral("&Imprimer duplicata"), carte);
    c.ChkTri = new CaseEtiquetee(QStringLiteral("ChkTri"), QStringLiteral("Label9"),
                                 QStringLiteral("I&mprimer triplicata"), carte);
    QVBoxLayout* disposition = style::DansCarte(carte);
    QWidget* zones = Zones(c, carte);
    c.HlbI =
        Panneau(c, QStringLiteral("HlbI"), QStringLiteral(" Interactions"), QStringLiteral("Alt+6"), carte);
    c.AniGIFI = new ImageAnimee(QStringLiteral("AniGIFI"), QStringLiteral("exclamation-triangle"), true,
                                QStringLiteral("L'ordonnance a des interactions"), carte);
    QHBoxLayout* cases = Rang({titre, c.HlbI, c.AniGIFI, c.ImgUp, c.ImgDown}, {c.ChkALD, c.ChkDup, c.ChkTri});
    cases->setSpacing(style::kEntreGroupes);
    disposition->addLayout(cases);
    disposition->addWidget(zones, 1);
    BoutonsOrdonnance(c, carte);
    disposition->addLayout(Rang({c.CmdSaut, c.CmdClear, c.LblOrdoMem}, {c.CmdAnnule, c.CmdOrdo}));
    return carte;
}

void OrdonneTabulation(const ControlesMedoc& c)
{
    QList<QWidget*> ordre = {
        c.TxtCherche,  c.PctCherch,    c.TV,      c.TxtMedoc,   c.TxtPoso,   c.LblPoso,  c.CmdModifier,
        c.CmdAjouter1, c.CmdAjouter2,  c.HlbG,    c.ChkALD,     c.ChkDup,    c.ChkTri,   c.LstChoix1,
        c.LstChoix2,   c.HlbI,         c.ImgUp,   c.ImgDown,    c.CmdSaut,   c.CmdClear, c.LblOrdoMem,
        c.CmdAnnule,   c.CmdOrdo,      c.CmdAide, c.CmdNouveau, c.CmdRetire, c.CmdPerso, c.ChkDCI,
        c.ChkMono,     c.CmdCopyright, c.CmdVD};
    ordre += c.Document->Controles();
    style::OrdreTab(ordre);
}

} // namespace

ControlesMedoc ConstruitMedoc(QDialog* fenetre)
{
    ControlesMedoc c;
    auto* colonnes = new QHBoxLayout;
    colonnes->setSpacing(style::kEntreGroupes);
    colonnes->addLayout(ColonneRecherche(c, fenetre), kLargeurRecherche);
    auto* droite = new QVBoxLayout;
    droite->setSpacing(style::kEntreGroupes);
    droite->addWidget(CarteMedicament(c, fenetre), 2);
    droite->addWidget(CarteOrdonnance(c, fenetre), 3);
    colonnes->addLayout(droite, kLargeurOrdonnance);
    style::Fenetre(fenetre)->addLayout(colonnes);
    c.Txt = new QLabel(fenetre);
    c.Txt->setObjectName(QStringLiteral("Txt"));
    c.Txt->setFrameShape(QFrame::Box);
    c.Txt->setAutoFillBackground(true);
    c.Txt->setAttribute(Qt::WA_TransparentForMouseEvents);
    c.Txt->hide();
    Menus(c, fenetre);
    OrdonneTabulation(c);
    return c;
}

} // namespace medication
