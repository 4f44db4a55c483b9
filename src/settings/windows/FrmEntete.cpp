#include "settings/windows/FrmEntete.h"

#include "application/Signaux.h"
#include "application/windows/Style.h"
#include "common/Nombres.h"
#include "outside/Boites.h"
#include "outside/Tente.h"
#include "page/windows/VueAjustee.h"
#include "prescription/Editeur.h"
#include "settings/ApercuEntete.h"
#include "settings/EffetDuRang.h"
#include "settings/FichiersReglages.h"
#include "settings/messages.h"
#include "settings/windows/FrmOptions.h"
#include "settings/windows/Pastille.h"
#include "settings/windows/SaisieRangs.h"
#include "startup/Chemins.h"
#include "startup/GestionMedecins.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>

namespace settings {

namespace style = application::style;

FrmEntete::FrmEntete(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres), controles_(contexte.Reglages.SaisieEntete, this)
{
    setObjectName(QStringLiteral("FrmEntete"));
    setWindowTitle(QStringLiteral("   En-tête ordonnance"));
    style::Dimensionne(this, 1240, 700);
    Charge();
    Branche();
}

FrmEntete::~FrmEntete() = default;

void FrmEntete::Branche()
{
    for (int ordre = 0; ordre < 2; ++ordre) {
        connect(controles_.Opt.at(static_cast<size_t>(ordre)), &QRadioButton::clicked, this,
                [this, ordre] { ChangeOrdre(ordre); });
    }
    for (QLineEdit* marge : {controles_.TxtMG, controles_.TxtMH, controles_.TxtMB}) {
        connect(marge, &QLineEdit::textChanged, this, &FrmEntete::SuitModifications);
    }
    connect(controles_.Rangs, &SaisieRangs::Change, this, &FrmEntete::SuitModifications);
    connect(controles_.Rangs, &SaisieRangs::RangCourant, this, [this](int rang) {
        MontreRang();
        controles_.PctFeuille->MontrePied(rang == page::kBasDePage);
    });
    connect(controles_.CmdPolice, &QPushButton::clicked, this, &FrmEntete::ChoisitPolice);
    connect(controles_.CmdCouleur, &QPushButton::clicked, this, &FrmEntete::ChoisitCouleur);
    connect(controles_.CmdEnregistrer, &QPushButton::clicked, this, &FrmEntete::Enregistre);
    connect(controles_.CmdRevient, &QPushButton::clicked, this, &FrmEntete::Revient);
    connect(controles_.CmdImpression, &QPushButton::clicked, this, &FrmEntete::Imprime);
    connect(controles_.CmdQuitter, &QPushButton::clicked, this, &FrmEntete::Quitte);
    connect(controles_.CmdAide, &QPushButton::clicked, this,
            [this] { contexte_.Dehors.Boites.Information(messages::AideEntete()); });
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, controles_.CmdAide, &QPushButton::click);
    connect(&contexte_.Signaux, &application::Signaux::MedecinChange, this, &FrmEntete::Charge);
}

// Rows that could not be read are never written over.
void FrmEntete::Charge()
{
    contexte_.Reglages.SaisieEntete = {};
    gardee_.reset();
    logo_ = prescription::ChargeLogo(contexte_.Reglages.Options);
    const QString& chemin = contexte_.Chemins.CheminMedecin;
    Entete entete = PremiereEntete(contexte_.Reglages);
    if (!chemin.isEmpty()) {
        outside::Tente(contexte_.Dehors.Boites, [&] {
            entete = ChargeEntete(contexte_);
            gardee_ = std::make_unique<Entete>(entete);
            entete = EnteteEnSuspens(contexte_, entete);
        });
    }
    Options ecrites = contexte_.Reglages.Options;
    LitOptions(ecrites, chemin);
    ordreGarde_ = ecrites.ModeEntete;
    controles_.CmdEnregistrer->setEnabled(gardee_ || chemin.isEmpty());
    Montre(entete);
}

void FrmEntete::Montre(const Entete& entete)
{
    montre_ = true;
    controles_.Rangs->Montre(entete.Rangs);
    controles_.TxtMG->setText(common::TexteSimple(entete.MargeGauche));
    controles_.TxtMH->setText(common::TexteSimple(entete.MargeHaute));
    controles_.TxtMB->setText(common::TexteSimple(entete.MargeBas));
    contexte_.Reglages.Look.CouleurEntete = entete.Couleur;
    controles_.LblColor->Montre(entete.Couleur);
    const quint8 ordre = contexte_.Reglages.Options.ModeEntete;
    if (ordre < controles_.Opt.size()) {
        controles_.Opt.at(ordre)->setChecked(true);
    }
    montre_ = false;
    PeintEnregistree();
    SuitModifications();
}

Entete FrmEntete::Lit() const
{
    return {.Rangs = controles_.Rangs->Lit(),
            .Couleur = contexte_.Reglages.Look.CouleurEntete,
            .MargeGauche = MargeTapee(controles_.TxtMG->text()),
            .MargeHaute = MargeTapee(controles_.TxtMH->text()),
            .MargeBas = MargeTapee(controles_.TxtMB->text())};
}

void FrmEntete::PeintEnregistree()
{
    controles_.PctEntete->Montre(DessinEntete(contexte_));
}

void FrmEntete::SuitModifications()
{
    if (montre_) {
        return;
    }
    MontreRang();
    const Entete saisie = Lit();
    const bool modifiee = gardee_ && saisie != *gardee_;
    controles_.LblModifie->setVisible(modifiee);
    controles_.CmdRevient->setVisible(modifiee);
    controles_.LblOrdre->setVisible(ordreGarde_ != contexte_.Reglages.Options.ModeEntete);
    controles_.PctFeuille->Montre(FeuilleAvec(contexte_, saisie, logo_));
}

void FrmEntete::MontreRang()
{
    const int rang = contexte_.Reglages.SaisieEntete.LigneCourante;
    controles_.LblPolice->setText(controles_.Rangs->NomPolice(rang));
    controles_.LblEffet->setText(EffetDuRang(controles_.Rangs->Lit(), rang));
}

void FrmEntete::ChangeOrdre(int ordre)
{
    contexte_.Reglages.Options.ModeEntete = static_cast<quint8>(ordre);
    PeintEnregistree();
    SuitModifications();
    controles_.CmdEnregistrer->setFocus();
}

void FrmEntete::ChoisitPolice()
{
    const int rang = contexte_.Reglages.SaisieEntete.LigneCourante;
    if (const auto police = contexte_.Dehors.Boites.ChoisitPolice(controles_.Rangs->Police(rang))) {
        controles_.Rangs->PosePolice(rang, *police);
    }
}

void FrmEntete::ChoisitCouleur()
{
    outside::Boites& boites = contexte_.Dehors.Boites;
    boites.Information(messages::CouleurDeTouteLEntete());
    page::Couleur& couleur = contexte_.Reglages.Look.CouleurEntete;
    couleur = boites.ChoisitCouleur(couleur).value_or(couleur);
    controles_.LblColor->Montre(couleur);
    SuitModifications();
}

void FrmEntete::Enregistre()
{
    if (!startup::ExigeMedecin(contexte_)) {
        return;
    }
    const Entete entete = Lit();
    try {
        EnregistreEntete(contexte_, entete);
    } catch (const common::Erreur& erreur) {
        contexte_.Dehors.Boites.Stop(
            messages::EnteteNonEnregistree(outside::messages::Panne(erreur.Phrase(), erreur.Lieu())));
        return;
    }
    gardee_ = std::make_unique<Entete>(entete);
    controles_.LblColor->Montre(entete.Couleur);
    PeintEnregistree();
    SuitModifications();
    contexte_.Dehors.Boites.Information(messages::EnteteEnregistree());
}

void FrmEntete::Revient()
{
    if (contexte_.Dehors.Boites.Question(messages::RevenirAEnteteEnregistree(), outside::Bouton::Non)) {
        Montre(*gardee_);
    }
}

void FrmEntete::Imprime()
{
    if (startup::ExigeMedecin(contexte_)) {
        ImprimeEntete(contexte_);
    }
}

void FrmEntete::Quitte()
{
    if (gardee_) {
        SuspendEntete(contexte_, Lit(), *gardee_);
    }
    done(QDialog::Accepted);
    fenetres_.Decharge<FrmEntete>();
    fenetres_.Donne<FrmOptions>().Ouvre(1);
}

void FrmEntete::changeEvent(QEvent* evenement)
{
    QDialog::changeEvent(evenement);
    if (evenement->type() == QEvent::ActivationChange && isActiveWindow()) {
        PeintEnregistree();
    }
}

void FrmEntete::closeEvent(QCloseEvent* evenement)
{
    evenement->ignore();
}

// Escape would drop what is typed: `CmdQuitter` is the way out.
void FrmEntete::reject() {}

} // namespace settings
