#include "settings/windows/FrmConfOrdo.h"

#include "application/Signaux.h"
#include "common/Tolere.h"
#include "outside/Boites.h"
#include "outside/Horloge.h"
#include "page/FeuilleEssai.h"
#include "page/Gabarit.h"
#include "page/windows/VueAjustee.h"
#include "prescription/Editeur.h"
#include "settings/Echantillon.h"
#include "settings/HauteurSaut.h"
#include "settings/windows/ChampMesure.h"
#include "settings/windows/FrmOptions.h"
#include "settings/windows/LibelleCoupe.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

namespace settings {

namespace {

/// Shows the item of that text; a value that is none of the items gets one of its own, in its place.
void Selectionne(QComboBox* liste, const QStringList& items, const QString& texte)
{
    QStringList tous = items;
    if (!texte.isEmpty() && !tous.contains(texte)) {
        const auto place = std::ranges::find_if(
            tous, [&](const QString& item) { return LitMarge(item, 0) > LitMarge(texte, 0); });
        tous.insert(place, texte);
    }
    liste->clear();
    liste->addItems(tous);
    liste->setCurrentIndex(static_cast<int>(tous.indexOf(texte)));
}

QStringList Echelle(int premier, int dernier, int pas)
{
    QStringList items;
    for (int nombre = premier; nombre <= dernier; nombre += pas) {
        items.append(QString::number(nombre));
    }
    return items;
}

} // namespace

FrmConfOrdo::FrmConfOrdo(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres), stockes_(contexte.Reglages)
{
    setObjectName(QStringLiteral("FrmConfOrdo"));
    setWindowTitle(QStringLiteral("   Mise enpage de l'ordonnance"));
    contexte_.Reglages.ConfOrdoActive = 0;
    Dispose();
    Charge();
    Branche();
}

void FrmConfOrdo::Branche()
{
    BrancheTextes();
    connect(CboInt_, &QComboBox::activated, this, &FrmConfOrdo::Peint);
    connect(CboInt_, &QComboBox::activated, this, &FrmConfOrdo::Suit);
    connect(CboM_, &QComboBox::activated, this, [this] {
        ChoisitMargeHaute(contexte_, CboM_->currentText());
        Suit();
    });
    connect(ChkS_, &QCheckBox::clicked, this, &FrmConfOrdo::Peint);
    connect(ChkS_, &QCheckBox::clicked, this, &FrmConfOrdo::Suit);
    connect(ChKSLP_, &QCheckBox::clicked, this, &FrmConfOrdo::CliqueChKSLP);
    connect(CmdPolice_, &QPushButton::clicked, this, &FrmConfOrdo::ChoisitPolice);
    connect(CmdEnregistrer_, &QPushButton::clicked, this, &FrmConfOrdo::Enregistre);
    connect(CmdRetour_, &QPushButton::clicked, this, &FrmConfOrdo::Retourne);
    connect(&contexte_.Signaux, &application::Signaux::ReglagesChanges, this, &FrmConfOrdo::SuitReglages);
    connect(&contexte_.Signaux, &application::Signaux::ApercuChange, this,
            &FrmConfOrdo::MontreSautPersonnalise);
}

void FrmConfOrdo::BrancheTextes()
{
    for (ChampMesure* marge : marges_) {
        connect(marge, &ChampMesure::textChanged, this, &FrmConfOrdo::Suit);
    }
    connect(marges_[0], &ChampMesure::Quitte, this, &FrmConfOrdo::Peint);
    connect(TxtSLP_, &ChampMesure::textChanged, this, &FrmConfOrdo::Suit);
    // A box cannot open while the focus is on its way.
    connect(TxtSLP_, &ChampMesure::Quitte, this, [this] { sortieTxtSLP_ = true; });
    connect(
        TxtSLP_, &ChampMesure::Quitte, this,
        [this] {
            if (sortieTxtSLP_ && isVisible()) {
                FinitTxtSLP();
            }
        },
        Qt::QueuedConnection);
    for (size_t rang = 0; rang < Txt_.size(); ++rang) {
        connect(Txt_[rang], &ChampMesure::Pris, this, [this, rang] { DesigneTexte(rang); });
    }
}

void FrmConfOrdo::showEvent(QShowEvent* evenement)
{
    QDialog::showEvent(evenement);
    if (evenement->spontaneous()) {
        return;
    }
    const QString& medecin = contexte_.Chemins.CheminMedecin;
    stockes_ = ReglagesStockes(contexte_);
    logo_ = prescription::ChargeLogo(contexte_.Reglages.Options);
    entete_.clear();
    // The sheet then stands without its letterhead; its database is told of where it matters.
    common::Tolere([&] { entete_ = page::LitEntete(contexte_.Bases.Ordo(medecin)); });
    DesigneTexte(0);
    Charge();
    contexte_.Reglages.ConfOrdoActive = 1;
    CboM_->setFocus();
    Peint();
    Suit();
}

void FrmConfOrdo::hideEvent(QHideEvent* evenement)
{
    QDialog::hideEvent(evenement);
    if (!evenement->spontaneous()) {
        contexte_.Reglages.ConfOrdoActive = 0;
    }
}

void FrmConfOrdo::closeEvent(QCloseEvent* evenement)
{
    evenement->ignore();
}

void FrmConfOrdo::Charge()
{
    const SaisieMiseEnPage saisie = ChargeMiseEnPage(contexte_);
    Selectionne(CboInt_, Echelle(1, 4, 1), saisie.CboInt);
    Selectionne(CboM_, Echelle(60, 150, 10), saisie.CboM);
    ChkS_->setChecked(saisie.ChkS);
    MontreMarges(saisie);
    MontreSautPersonnalise();
    polices_ = saisie.Txt;
    for (size_t rang = 0; rang < polices_.size(); ++rang) {
        MontrePolice(rang);
        LblMed_[rang]->setText(DecritPolice(polices_[rang]));
    }
}

void FrmConfOrdo::MontreMarges(const SaisieMiseEnPage& saisie)
{
    for (size_t rang = 0; rang < marges_.size(); ++rang) {
        marges_[rang]->setText(saisie.*CasesMarges()[rang].Texte);
    }
}

void FrmConfOrdo::MontreSautPersonnalise()
{
    const SaisieMiseEnPage saisie = ChargeMiseEnPage(contexte_);
    ChKSLP_->setChecked(saisie.ChKSLP);
    TxtSLP_->setEnabled(saisie.ChKSLP);
    TxtSLP_->setText(saisie.TxtSLP);
}

void FrmConfOrdo::MontrePolice(size_t rang)
{
    QFont police = page::PoliceQt(polices_[rang]);
    police.setUnderline(polices_[rang].Souligne);
    Txt_[rang]->setFont(police);
    Txt_[rang]->setMinimumHeight(std::min(Txt_[rang]->sizeHint().height(), Txt_[rang]->maximumHeight()));
    Txt_[rang]->home(false);
}

SaisieMiseEnPage FrmConfOrdo::Saisie() const
{
    SaisieMiseEnPage saisie;
    saisie.CboInt = CboInt_->currentText();
    saisie.CboM = CboM_->currentText();
    saisie.ChkS = ChkS_->isChecked();
    saisie.ChKSLP = ChKSLP_->isChecked();
    saisie.TxtSLP = TxtSLP_->text();
    for (size_t rang = 0; rang < marges_.size(); ++rang) {
        saisie.*CasesMarges()[rang].Texte = marges_[rang]->text();
    }
    saisie.Txt = polices_;
    return saisie;
}

void FrmConfOrdo::SuitReglages()
{
    if (!isVisible()) {
        Charge();
        return;
    }
    stockes_ = ReglagesStockes(contexte_);
    MontreSautPersonnalise();
    Peint();
    Suit();
}

void FrmConfOrdo::Peint()
{
    PctMeP_->Montre(DessinEchantillon(ReglagesSaisis(contexte_.Reglages, Saisie())));
}

void FrmConfOrdo::Suit()
{
    if (!isVisible()) {
        return;
    }
    const Reglages saisis = ReglagesSaisis(contexte_.Reglages, Saisie());
    const page::Dessin feuille = page::FeuilleEssai(
        saisis, entete_, logo_, contexte_.Dehors.Horloge.Aujourdhui(), contexte_.Dehors.Boites);
    PctFeuille_->Montre(feuille);
    PctFeuille_->MarqueBas(page::LignesPerdues(feuille, saisis) > 0 ? page::LimiteDuCorps(saisis) : 0);
    LblModifie_->setVisible(MiseEnPageModifiee(stockes_, Saisie()));
}

void FrmConfOrdo::DesigneTexte(size_t rang)
{
    contexte_.Reglages.TxtCourant = static_cast<int>(rang);
    CmdPolice_->setText(rang == 0 ? QStringLiteral("Modi&fier la police du médicament")
                                  : QStringLiteral("Modi&fier la police de la posologie"));
    CmdPolice_->setAccessibleName(CmdPolice_->text().remove(QLatin1Char('&')));
}

void FrmConfOrdo::ChoisitPolice()
{
    const auto rang = static_cast<size_t>(contexte_.Reglages.TxtCourant);
    if (const auto police = contexte_.Dehors.Boites.ChoisitPolice(polices_[rang])) {
        polices_[rang] = *police;
        MontrePolice(rang);
        LblMed_[rang]->setText(DecritPoliceChoisie(*police));
        Peint();
        Suit();
    }
}

void FrmConfOrdo::CliqueChKSLP(bool coche)
{
    if (sortieTxtSLP_ && !FinitTxtSLP()) {
        ChKSLP_->setChecked(true);
        return;
    }
    ChangeSautPersonnalise(contexte_, coche);
}

bool FrmConfOrdo::FinitTxtSLP()
{
    sortieTxtSLP_ = false;
    if (!TxtSLP_->isEnabled()) {
        return true;
    }
    const bool quitte = QuitteTxtSLP(contexte_, TxtSLP_->text());
    TxtSLP_->setText(contexte_.Reglages.TxtSLP);
    if (!quitte) {
        TxtSLP_->setFocus(Qt::OtherFocusReason);
    }
    return quitte;
}

void FrmConfOrdo::Enregistre()
{
    if (!FinitTxtSLP()) {
        return;
    }
    Peint();
    const BilanMiseEnPage bilan = EnregistreMiseEnPage(contexte_, Saisie());
    if (bilan.TropGrand) {
        marges_[static_cast<size_t>(bilan.TropGrand - CasesMarges().begin())]->setFocus();
        return;
    }
    stockes_ = ReglagesStockes(contexte_);
    if (bilan.Enregistree) {
        MontreMarges(ChargeMiseEnPage(contexte_));
    }
    Suit();
}

void FrmConfOrdo::Retourne()
{
    if (!FinitTxtSLP()) {
        return;
    }
    prescription::Repeint(contexte_);
    done(QDialog::Accepted);
    contexte_.Reglages.TxtSLP = TexteSautPersonnalise(contexte_.Reglages);
    Charge();
    fenetres_.Donne<FrmOptions>().Ouvre(1);
}

} // namespace settings
