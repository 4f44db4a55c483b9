#include "application/Signaux.h"
#include "drugbank/Banque.h"
#include "drugbank/windows/FrmCopyright.h"
#include "medication/messages.h"
#include "medication/windows/ChampCherche.h"
#include "medication/windows/ChampMedicament.h"
#include "medication/windows/FrmMedoc.h"
#include "medication/windows/FrmNouveauM.h"
#include "outside/Horloge.h"
#include "outside/Tente.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>

// The picker in its two modes: the local pharmacy, or a drug bank with the doctor's own beside it.
namespace medication {

namespace {

constexpr int kLettresDeBanque = 3; // the shortest text that the bank is asked for

} // namespace

void FrmMedoc::ReliePerso()
{
    connect(c_.CmdNouveau, &QPushButton::clicked, this, &FrmMedoc::OuvreNouveau);
    connect(c_.CmdPerso, &QPushButton::clicked, this, [this] {
        fenetres_.Donne<FrmNouveauM>().NommeBibliotheque();
        OuvreNouveau();
    });
    connect(c_.PctCherch, &QToolButton::clicked, this, &FrmMedoc::ChargeMedicaments);
    connect(c_.mnuDemark, &QAction::triggered, this, &FrmMedoc::DemarqueNoeud);
    connect(c_.ChkDCI, &QCheckBox::clicked, this, [this](bool cochee) {
        contexte_.Choix.ChkDCI = cochee;
        ClicNoeud(NoeudSelectionne());
    });
    connect(c_.CmdVD, &QToolButton::clicked, this,
            [this] { c_.mnuVidal->popup(c_.CmdVD->mapToGlobal(QPoint(0, c_.CmdVD->height()))); });
    for (QAction* entree : c_.mnuVidal->actions()) {
        connect(entree, &QAction::triggered, this, [this, entree] { ChoisitFiltre(entree->data().toInt()); });
    }
    connect(c_.CmdCopyright, &QPushButton::clicked, this,
            [this] { fenetres_.OuvreModale<drugbank::FrmCopyright>(); });
    connect(&contexte_.Signaux, &application::Signaux::PharmacieChange, this, &FrmMedoc::ChargeMedicaments);
    connect(&contexte_.Signaux, &application::Signaux::StatutBanqueChange, this, &FrmMedoc::MontreValidite);
}

void FrmMedoc::OuvreNouveau()
{
    fenetres_.OuvreModale<FrmNouveauM>();
    Active();
}

bool FrmMedoc::ModeBanque() const
{
    return drugbank::EnModeBanque(contexte_.Banque);
}

void FrmMedoc::MontreValidite()
{
    c_.LblDatExp->setText(Validite(contexte_.Banque, contexte_.Dehors.Horloge.Aujourdhui()));
}

void FrmMedoc::ConfigureModeBase()
{
    const bool banque = ModeBanque();
    MontreValidite();
    for (QWidget* controle : c_.DeBanque) {
        controle->setVisible(banque);
    }
    MontreSansBanque();
    if (banque) {
        MontreNonVerifiees();
    } else {
        c_.PctCherch->hide();
        ArreteAnimations();
    }
    PlaceDocument();
    c_.CmdModifier->setText(banque ? QStringLiteral("Enregistrer posologie")
                                   : QStringLiteral("Modifier données Med"));
    c_.CmdModifier->setShortcut(QKeySequence(QStringLiteral("Alt+F")));
    c_.CmdModifier->setAccessibleName(c_.CmdModifier->text());
    c_.CmdNouveau->setEnabled(!banque);
    c_.CmdRetire->setEnabled(!banque);
    for (QAction* entree : c_.mnuVidal->actions()) {
        entree->setChecked(entree->data().toInt() == contexte_.Banque.FiltreBanque);
    }
}

void FrmMedoc::EntreeRecherche()
{
    if (!ModeBanque() || c_.TxtCherche->text().size() >= kLettresDeBanque) {
        ChargeMedicaments();
    }
}

void FrmMedoc::CherchePlusTard()
{
    const QString recherche = c_.TxtCherche->text();
    c_.PctCherch->setVisible(recherche.size() >= kLettresDeBanque);
    if (recherche.size() < kLettresDeBanque) {
        VideDocument();
    }
    if (recherche.trimmed().isEmpty()) {
        ChargeMedicaments();
    }
}

void FrmMedoc::MontreSansBanque()
{
    const bool enCours = contexte_.Banque.BanqueInitialisee == 0;
    c_.LblSansBanque->setText(enCours ? messages::RechercheEnAttente() : messages::RechercheSansBanque());
    const bool cherche = ModeBanque() && !c_.TxtCherche->text().trimmed().isEmpty();
    c_.LblSansBanque->setVisible(cherche && arbre_.rowCount() == 0 &&
                                 !drugbank::BanqueRepond(contexte_.Banque));
}

void FrmMedoc::RattrapeRecherche()
{
    if (c_.LblSansBanque->isHidden()) {
        return;
    }
    MontreSansBanque();
    if (drugbank::BanqueRepond(contexte_.Banque)) {
        EntreeRecherche();
    }
}

void FrmMedoc::ChoisitFiltre(int filtre)
{
    contexte_.Banque.FiltreBanque = filtre;
    ConfigureModeBase();
    ChargeMedicaments();
    c_.TxtCherche->clear();
    c_.TxtCherche->setFocus();
}

void FrmMedoc::ProposeDemarque(const QPoint& point)
{
    const QModelIndex index = c_.TV->indexAt(point);
    const Noeud* noeud = index.isValid() ? arbre_.Lis(index.row()) : nullptr;
    if (noeud && noeud->Utile) {
        // The menu names this pack: it becomes the one in hand, as by a click.
        SelectionneNoeud(index.row());
        ClicNoeud(index.row());
        c_.mnuDemark->setText(messages::Demarque(noeud->Texte).replace(u'&', QStringLiteral("&&")));
        c_.mnuDemarquer->popup(c_.TV->viewport()->mapToGlobal(point));
    }
}

void FrmMedoc::DemarqueNoeud()
{
    outside::Tente(contexte_.Dehors.Boites,
                   [this] { medication::Demarque(contexte_, arbre_, NoeudSelectionne()); });
}

void FrmMedoc::SupprimePersonnelle()
{
    const Noeud* noeud = arbre_.Lis(NoeudSelectionne());
    if (!ModeBanque() || !noeud) {
        return;
    }
    outside::Tente(contexte_.Dehors.Boites, [&] {
        if (pharmacies_.EnService().Retire(*noeud, c_.TxtMedoc->text(), contexte_.Dehors.Boites)) {
            ChargeMedicaments();
            RemplitBoites({});
        }
    });
}

} // namespace medication
