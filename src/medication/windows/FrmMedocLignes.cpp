#include "medication/messages.h"
#include "medication/windows/ChampCherche.h"
#include "medication/windows/ChampMedicament.h"
#include "medication/windows/FrmMedoc.h"
#include "medication/windows/ListeLignes.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>

// The lower part of the picker: the lines of the prescription.
namespace medication {

namespace {

constexpr int kSeuilGlisser = 20; // pixels right of or below the press

} // namespace

void FrmMedoc::Ajoute(Zone zone)
{
    const Noeud* noeud = arbre_.Lis(NoeudSelectionne());
    switch (medication::Ajoute(contexte_, pharmacies_.EnService(), zone, Boites(), noeud)) {
    case Suite::Recherche:
        c_.TxtCherche->setFocus();
        break;
    case Suite::SansNoeud:
        c_.TxtMedoc->clear();
        break;
    case Suite::Termine:
        TermineAjout();
        break;
    }
}

void FrmMedoc::TermineAjout()
{
    CalculeInteractions();
    FocusRecherche();
    RemplitBoites({});
    c_.CmdModifier->setEnabled(false);
    MontreFleches({});
    VideGeneriques();
    VideDocument();
}

void FrmMedoc::FocusRecherche()
{
    c_.TxtCherche->setFocus();
    c_.TxtCherche->selectAll();
}

void FrmMedoc::PresseLigne(Zone zone, int rang)
{
    const auto montree = medication::PresseLigne(contexte_.Ordonnance, contexte_.Choix, zone, rang);
    if (!montree) {
        return;
    }
    Liste(Autre(zone))->Selectionne(-1);
    MontreFleches(FlechesDe(Lignes(contexte_.Ordonnance, zone), rang));
    RemplitBoites(*montree);
    c_.CmdModifier->setEnabled(false);
}

void FrmMedoc::ReprendLigne(Zone zone)
{
    const int rang = Liste(zone)->Selection();
    const auto reprise = medication::ReprendLigne(contexte_.Ordonnance, contexte_.Choix, zone, rang);
    if (!reprise) {
        return;
    }
    Liste(zone)->Selectionne(-1);
    RemplitBoites(*reprise);
    c_.CmdModifier->setEnabled(false);
    MontreFleches({});
    CalculeInteractions();
    c_.TxtCherche->setFocus();
}

void FrmMedoc::DeplaceLigne(Zone zone, int sens)
{
    ListeLignes* liste = Liste(zone);
    prescription::LignesZone& lignes = Lignes(contexte_.Ordonnance, zone);
    const int rang = liste->Selection();
    const int vers = rang + sens;
    if (rang < 0 || vers < 0 || vers >= lignes.Lignes().size()) {
        return;
    }
    lignes.Deplace(rang, vers);
    liste->Selectionne(vers);
    MontreFleches(FlechesDe(lignes, vers));
}

void FrmMedoc::PasseLigne(Zone zone)
{
    const int rang = Liste(zone)->Selection();
    if (contexte_.Ordonnance.ChkALD == 0 ||
        !medication::PasseLigne(contexte_.Ordonnance, contexte_.Choix, zone, rang, Boites())) {
        return;
    }
    Liste(zone)->Selectionne(-1);
    RemplitBoites({});
    MontreFleches({});
}

void FrmMedoc::GlisseLigne(Zone zone, const QPoint& depart, const QPoint& point)
{
    if (contexte_.Ordonnance.ChkALD == 0) {
        return;
    }
    const int rang = Liste(zone)->Selection();
    c_.Txt->setText(
        prescription::TitreDeLigne(Lignes(contexte_.Ordonnance, zone).Lignes().value(rang).Texte));
    c_.Txt->adjustSize();
    c_.Txt->move(mapFromGlobal(point));
    c_.Txt->raise();
    const QPoint ecart = point - depart;
    if (ecart.x() > kSeuilGlisser || ecart.y() > kSeuilGlisser) {
        c_.Txt->show();
    }
}

void FrmMedoc::LacheLigne(Zone zone, const QPoint& point)
{
    c_.Txt->hide();
    const auto sous = [&](const ListeLignes* liste) {
        return liste->isVisible() && liste->rect().contains(liste->mapFromGlobal(point));
    };
    if (contexte_.Ordonnance.ChkALD == 0 || sous(Liste(zone))) {
        return;
    }
    if (sous(Liste(Autre(zone)))) {
        PasseLigne(zone);
        return;
    }
    c_.LstChoix1->Selectionne(-1);
    c_.LstChoix2->Selectionne(-1);
}

void FrmMedoc::ToutEfface()
{
    EffaceTout(contexte_);
    ArreteAnimations();
    c_.TxtCherche->clear();
    RemplitBoites({});
    c_.CmdModifier->setEnabled(false);
    MontreFleches({});
    VideDocument();
    c_.TxtCherche->setFocus();
    CalculeInteractions();
}

void FrmMedoc::CreeOrdonnance()
{
    VideGeneriques();
    PrepareOrdonnance(contexte_);
    hide();
    MontreOrdonnance(contexte_);
}

void FrmMedoc::SuitOrdonnance()
{
    RemplitBoites({});
    c_.CmdModifier->setEnabled(false);
    MontreFleches({});
    MontreZones();
    CocheCases();
}

void FrmMedoc::MontreZones()
{
    const bool ald = contexte_.Ordonnance.ChkALD != 0;
    c_.CmdAjouter1->setText(ald ? QStringLiteral("&Ajouter ALD") : QStringLiteral("&Ajouter"));
    for (QWidget* controle : {static_cast<QWidget*>(c_.CmdAjouter2), static_cast<QWidget*>(c_.LstChoix2),
                              static_cast<QWidget*>(c_.ZoneALD), static_cast<QWidget*>(c_.ZoneNonALD)}) {
        controle->setVisible(ald);
    }
    MontreHorsPage();
}

void FrmMedoc::MontreHorsPage()
{
    c_.LblHorsPage->setVisible(ZoneHorsPage(contexte_.Ordonnance));
}

void FrmMedoc::CocheCases()
{
    const prescription::Ordonnance& ordonnance = contexte_.Ordonnance;
    c_.ChkALD->setChecked(ordonnance.ChkALD != 0);
    c_.ChkDup->setChecked(ordonnance.ChkDup != 0);
    c_.ChkTri->setChecked(ordonnance.ChkTri != 0);
}

void FrmMedoc::MontreFleches(const Fleches& fleches)
{
    c_.ImgUp->setVisible(fleches.ImgUp);
    c_.ImgDown->setVisible(fleches.ImgDown);
}

} // namespace medication
