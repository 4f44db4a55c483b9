#include "medication/windows/FrmMedoc.h"

#include "application/Signaux.h"
#include "application/windows/Style.h"
#include "common/Tolere.h"
#include "drugbank/Banque.h"
#include "drugbank/windows/FrmIAM.h"
#include "medication/messages.h"
#include "medication/windows/ChampCherche.h"
#include "medication/windows/ChampMedicament.h"
#include "medication/windows/ChampPosologie.h"
#include "medication/windows/ImageAnimee.h"
#include "medication/windows/ListeLignes.h"
#include "outside/Tente.h"
#include "page/Mesure.h"
#include "settings/Reglages.h"
#include "startup/Chemins.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>

namespace medication {

namespace {

constexpr int kLargeur = 1280;
constexpr int kHauteur = 720;

} // namespace

FrmMedoc::FrmMedoc(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres), pharmacies_(contexte)
{
    setObjectName(QStringLiteral("FrmMedoc"));
    setWindowTitle(QStringLiteral("   Médicaments de la pharmacie"));
    c_ = ConstruitMedoc(this);
    application::style::Dimensionne(this, kLargeur, kHauteur);
    if (!contexte_.Chemins.CheminTravail.isEmpty()) {
        const page::Police& titre = contexte_.Reglages.Look.Titre;
        const page::Police& poso = contexte_.Reglages.Look.Poso;
        c_.TxtMedoc->setFont(page::PoliceQt({titre.Nom, titre.Taille, titre.Gras}));
        c_.TxtPoso->setFont(page::PoliceQt({poso.Nom, poso.Taille, poso.Gras}));
    }
    RelieRecherche();
    RelieLignes();
    RelieOffres();
    RelieSignaux();
    ReliePerso();
    RelieDocument();
    RelieGeneriques();
    RelieInteractions();
    SuitOrdonnance();
}

void FrmMedoc::RelieRecherche()
{
    c_.TV->setModel(&arbre_);
    c_.TV->installEventFilter(this);
    c_.TV->viewport()->installEventFilter(this);
    connect(c_.TV, &QTreeView::clicked, this, [this](const QModelIndex& index) { ClicNoeud(index.row()); });
    connect(c_.TV->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (focusWidget() == c_.TV) { // by the arrow keys: the boxes follow, the focus stays
            LitNoeud(NoeudSelectionne());
        }
    });
    connect(c_.TV, &QTreeView::doubleClicked, this, [this] {
        if (contexte_.Ordonnance.ChkALD == 0) {
            Ajoute(Zone::Un);
        }
    });
    connect(c_.TxtCherche, &QLineEdit::textChanged, this, &FrmMedoc::RechercheChange);
    connect(c_.TxtCherche, &ChampCherche::Entree, this, &FrmMedoc::EntreeRecherche);
    connect(c_.TxtCherche, &ChampCherche::Bas, this, &FrmMedoc::DescendDansArbre);
    connect(c_.TxtCherche, &ChampCherche::Presse, this, [this] {
        if (PresseRecherche(contexte_.Choix)) {
            c_.TxtCherche->selectAll();
        }
    });
    connect(c_.LblPoso, &QPushButton::clicked, this, &FrmMedoc::ComposePosologie);
    connect(c_.CmdModifier, &QPushButton::clicked, this, &FrmMedoc::ModifieMedicament);
    connect(c_.CmdRetire, &QPushButton::clicked, this, &FrmMedoc::RetireMedicament);
    connect(c_.CmdAide, &QPushButton::clicked, this,
            [this] { contexte_.Dehors.Boites.Information(messages::Aide()); });
}

void FrmMedoc::RelieLignes()
{
    RelieListe(Zone::Un);
    RelieListe(Zone::Deux);
    connect(c_.CmdAjouter1, &QPushButton::clicked, this, [this] { Ajoute(Zone::Un); });
    connect(c_.CmdAjouter2, &QPushButton::clicked, this, [this] { Ajoute(Zone::Deux); });
    connect(c_.ImgUp, &QToolButton::clicked, this, [this] { DeplaceLigne(ZoneSource(), -1); });
    connect(c_.ImgDown, &QToolButton::clicked, this, [this] { DeplaceLigne(ZoneSource(), 1); });
    connect(c_.CmdSaut, &QPushButton::clicked, this, [this] {
        SauteLigne(contexte_);
        c_.TxtCherche->setFocus();
    });
    connect(c_.CmdClear, &QPushButton::clicked, this, &FrmMedoc::ToutEfface);
    connect(c_.LblOrdoMem, &QPushButton::clicked, this, &FrmMedoc::OuvreMemorisees);
    connect(c_.CmdAnnule, &QPushButton::clicked, this, [this] {
        ToutEfface();
        hide();
    });
    connect(c_.CmdOrdo, &QPushButton::clicked, this, &FrmMedoc::CreeOrdonnance);
}

void FrmMedoc::RelieListe(Zone zone)
{
    ListeLignes* liste = Liste(zone);
    liste->setModel(&Lignes(contexte_.Ordonnance, zone));
    connect(liste, &ListeLignes::Presse, this, [this, zone](int rang) { PresseLigne(zone, rang); });
    connect(liste, &ListeLignes::Reprend, this, [this, zone] { ReprendLigne(zone); });
    connect(liste, &ListeLignes::Deplace, this, [this, zone](int sens) { DeplaceLigne(zone, sens); });
    connect(liste, &ListeLignes::Passe, this, [this, zone] { PasseLigne(zone); });
    connect(liste, &ListeLignes::Glisse, this,
            [this, zone](const QPoint& depart, const QPoint& point) { GlisseLigne(zone, depart, point); });
    connect(liste, &ListeLignes::Lache, this, [this, zone](const QPoint& point) { LacheLigne(zone, point); });
}

void FrmMedoc::RelieSignaux()
{
    connect(c_.ChkALD, &QCheckBox::clicked, this, [this](bool cochee) {
        contexte_.Ordonnance.ChkALD = cochee;
        MontreZones();
    });
    connect(c_.ChkDup, &QCheckBox::clicked, this, [this](bool cochee) {
        CocheDup(contexte_.Ordonnance, cochee);
        CocheCases();
    });
    connect(c_.ChkTri, &QCheckBox::clicked, this, [this](bool cochee) {
        CocheTri(contexte_.Ordonnance, cochee);
        CocheCases();
    });
    connect(&contexte_.Ordonnance.LstChoix2, &QAbstractItemModel::modelReset, this,
            &FrmMedoc::MontreHorsPage);
    connect(&contexte_.Signaux, &application::Signaux::DocumentVide, c_.TxtCherche, &QLineEdit::clear);
    connect(&contexte_.Signaux, &application::Signaux::DocumentVide, this, &FrmMedoc::ArreteAnimations);
    connect(&contexte_.Signaux, &application::Signaux::OrdonnanceChange, this, &FrmMedoc::SuitOrdonnance);
    connect(&contexte_.Signaux, &application::Signaux::MedecinChange, this, &FrmMedoc::VideArbre);
}

void FrmMedoc::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    Active();
}

void FrmMedoc::Active()
{
    Choix& choix = contexte_.Choix;
    if (!ModeBanque() || choix.NoeudChoisi == kAucunNoeud) {
        VideDocument();
    }
    c_.ChkMono->setChecked(contexte_.Reglages.Options.EtatChkMono == 1);
    ConfigureModeBase();
    RattrapeInteractions();
    RattrapeRecherche();
    if (choix.BaseChangee != 2 || choix.TypeBaseArbre != contexte_.Banque.TypeBase) {
        ChargeMedicaments();
    }
    if (choix.NoeudChoisi != kAucunNoeud) {
        SelectionneNoeud(choix.NoeudChoisi - 1);
    } else {
        c_.TxtCherche->setFocus();
    }
}

void FrmMedoc::ChargeMedicaments()
{
    c_.CmdModifier->setEnabled(false);
    VideDocument();
    outside::Tente(contexte_.Dehors.Boites, [this] {
        medication::ChargeMedicaments(contexte_.Choix, pharmacies_.EnService(), arbre_,
                                      c_.TxtCherche->text());
        contexte_.Choix.BaseChangee = 2;
        contexte_.Choix.TypeBaseArbre = contexte_.Banque.TypeBase;
    });
    MontreSansBanque();
}

void FrmMedoc::VideArbre()
{
    arbre_.Remplit({});
    contexte_.Choix.NoeudChoisi = kAucunNoeud;
    contexte_.Choix.BaseChangee = 1;
}

int FrmMedoc::NoeudSelectionne() const
{
    const QModelIndexList choisis = c_.TV->selectionModel()->selectedRows();
    return choisis.isEmpty() ? -1 : choisis.front().row();
}

void FrmMedoc::SelectionneNoeud(int rang)
{
    const QModelIndex index = arbre_.index(rang, 0);
    if (index.isValid()) {
        c_.TV->setCurrentIndex(index);
    }
}

Saisie FrmMedoc::Boites() const
{
    return {c_.TxtMedoc->text(), c_.TxtPoso->toPlainText()};
}

void FrmMedoc::RemplitBoites(const Saisie& saisie)
{
    c_.TxtMedoc->setText(saisie.TxtMedoc);
    c_.TxtPoso->setPlainText(saisie.TxtPoso);
}

void FrmMedoc::RechercheChange()
{
    c_.AniGIFG->Arrete();
    c_.TxtCherche->end(false);
    RemplitBoites({});
    // The boxes no longer hold the medication last read.
    c_.CmdModifier->setEnabled(false);
    if (ModeBanque()) {
        CherchePlusTard();
    } else {
        SelectionneNoeud(arbre_.Cherche(c_.TxtCherche->text()));
    }
}

void FrmMedoc::PresseArbre()
{
    c_.LstChoix1->Selectionne(-1);
    c_.LstChoix2->Selectionne(-1);
    MontreFleches({});
    FocusRecherche();
}

void FrmMedoc::ClicNoeud(int rang)
{
    if (LitNoeud(rang)) {
        c_.TxtMedoc->setFocus();
        c_.TxtMedoc->end(false);
    }
}

void FrmMedoc::DescendDansArbre()
{
    const int rang = std::max(NoeudSelectionne(), 0);
    SelectionneNoeud(rang);
    c_.TV->setFocus();
    LitNoeud(rang);
}

bool FrmMedoc::LitNoeud(int rang)
{
    std::optional<Saisie> lue;
    outside::Tente(contexte_.Dehors.Boites, [&] {
        lue = ChoisitNoeud(contexte_.Choix, pharmacies_.EnService(), arbre_.Lis(rang), rang);
    });
    if (lue) {
        RemplitBoites(*lue);
        c_.CmdModifier->setEnabled(true);
        if (!pharmacies_.EnService().InfoPack(*arbre_.Lis(rang)).isEmpty()) {
            RechercheGeneriques();
        }
        SuitDocument(rang);
    }
    return lue.has_value();
}

void FrmMedoc::ModifieMedicament()
{
    if (NoeudSelectionne() >= 0) {
        outside::Tente(contexte_.Dehors.Boites,
                       [this] { EnregistreSaisie(contexte_, pharmacies_.EnService(), arbre_, Boites()); });
    }
}

void FrmMedoc::RetireMedicament()
{
    const int rang = NoeudSelectionne();
    if (const Noeud* noeud = arbre_.Lis(rang)) {
        const Noeud choisi = *noeud;
        outside::Tente(contexte_.Dehors.Boites, [&] {
            if (pharmacies_.EnService().Retire(choisi, choisi.Texte, contexte_.Dehors.Boites)) {
                arbre_.Retire(rang);
                c_.TV->clearSelection();
                contexte_.Choix.NoeudChoisi = kAucunNoeud;
            }
        });
    }
    RemplitBoites({});
    c_.CmdModifier->setEnabled(false);
}

void FrmMedoc::MontreNotes()
{
    std::optional<QString> notes;
    // A hint that cannot be read is as good as none.
    common::Tolere([&] { notes = pharmacies_.EnService().Notes(contexte_.Choix.NoeudLu.Etiquette); });
    if (notes) {
        fenetres_.Donne<drugbank::FrmIAM>().Montre(*notes);
    }
}

void FrmMedoc::closeEvent(QCloseEvent* event)
{
    event->ignore();
}

void FrmMedoc::reject()
{
    if (RienEnMain(contexte_.Ordonnance, Boites())) {
        ToutEfface();
        hide();
    } else {
        QToolTip::showText(c_.CmdAnnule->mapToGlobal(QPoint()), messages::AnnulerPourQuitter(), c_.CmdAnnule);
    }
}

void FrmMedoc::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F2) {
        MontreNotes();
        return;
    }
    if (event->key() == Qt::Key_F5) {
        SupprimePersonnelle();
        return;
    }
    QDialog::keyPressEvent(event);
}

bool FrmMedoc::eventFilter(QObject* objet, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && objet == c_.TV->viewport()) {
        PresseArbre();
        const auto* souris = static_cast<QMouseEvent*>(event);
        if (souris->button() == Qt::RightButton) {
            ProposeDemarque(souris->position().toPoint());
        }
    }
    if (event->type() == QEvent::KeyPress && objet == c_.TV) {
        const int touche = static_cast<QKeyEvent*>(event)->key();
        if (touche == Qt::Key_Return || touche == Qt::Key_Enter || touche == Qt::Key_Space) {
            SelectionneNoeud(std::max(c_.TV->currentIndex().row(), 0));
            ClicNoeud(NoeudSelectionne());
            return true;
        }
    }
    return QDialog::eventFilter(objet, event);
}

} // namespace medication
