#include "patients/windows/FrmPatient.h"

#include "application/Signaux.h"
#include "medication/windows/FrmMedoc.h"
#include "outside/Tente.h"
#include "patients/Patient.h"
#include "patients/PatientCourant.h"
#include "patients/SaisiePatient.h"
#include "patients/messages.h"
#include "patients/windows/FrmNouveauP.h"
#include "patients/windows/ZoneRecherche.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

#include <QEvent>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTextDocument>

namespace patients {

FrmPatient::FrmPatient(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmPatient"));
    setWindowTitle(QStringLiteral("               Liste des Patients"));
    Dispose();
    Branche();
    if (storage::Bases::MedocExiste(contexte_.Chemins.CheminTravail)) {
        Charge(); // an absent database is told of when the window opens
    }
}

void FrmPatient::Branche()
{
    connect(txtCherche_, &QLineEdit::textChanged, this, &FrmPatient::Cherche);
    const auto tente = [this](void (FrmPatient::*commande)()) {
        return [this, commande] { outside::Tente(contexte_.Dehors.Boites, [&] { (this->*commande)(); }); };
    };
    connect(lstPatient_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FrmPatient::ChoixChange);
    connect(lstPatient_, &QListView::doubleClicked, this, &FrmPatient::Confirme);
    connect(cmdOK_, &QPushButton::clicked, this, &FrmPatient::Confirme);
    connect(cmdAnnule_, &QPushButton::clicked, this, &FrmPatient::reject);
    connect(cmdNouveauPatient_, &QPushButton::clicked, this, &FrmPatient::NouveauPatient);
    connect(cmdPassage_, &QPushButton::clicked, this, &FrmPatient::PatientDePassage);
    connect(cmdModifier_, &QPushButton::clicked, this, tente(&FrmPatient::Modifie));
    connect(cmdSupprime_, &QPushButton::clicked, this, tente(&FrmPatient::Supprime));
    connect(cmdAide_, &QPushButton::clicked, this,
            [this] { contexte_.Dehors.Boites.Information(messages::AideListe()); });
    connect(&contexte_.Signaux, &application::Signaux::PatientsChanges, this, &FrmPatient::Charge);
}

void FrmPatient::Ouvre(bool ouvreMedocApres)
{
    contexte_.Patient.OuvreMedocApres = ouvreMedocApres ? 1 : 0;
    Charge();
    if (exec() == QDialog::Accepted && ConfirmePatient(contexte_)) {
        fenetres_.Donne<medication::FrmMedoc>().exec();
    }
}

void FrmPatient::reject()
{
    AnnulePatient(contexte_.Patient, contexte_.Apercu);
    EffaceChoix();
    QDialog::reject();
}

bool FrmPatient::event(QEvent* evenement)
{
    if (evenement->type() == QEvent::WindowActivate) {
        txtCherche_->setFocus();
    }
    return QDialog::event(evenement);
}

void FrmPatient::Charge()
{
    const QString& chemin = contexte_.Chemins.CheminTravail;
    if (!chemin.isEmpty()) {
        outside::Tente(contexte_.Dehors.Boites, [&] { liste_.Charge(contexte_.Bases.Medoc(chemin)); });
    }
    Deselectionne();
}

int FrmPatient::Rang() const
{
    const QModelIndexList choisis = lstPatient_->selectionModel()->selectedRows();
    return choisis.isEmpty() ? -1 : choisis.front().row();
}

void FrmPatient::Selectionne(int rang)
{
    lstPatient_->setCurrentIndex(liste_.index(rang));
}

void FrmPatient::Deselectionne()
{
    lstPatient_->selectionModel()->clear();
    lblTitre_->clear();
    lblTitre_->setToolTip({});
    lblPatient_->clear();
}

void FrmPatient::EffaceChoix()
{
    Deselectionne();
    txtCherche_->setText(QStringLiteral("  "));
    txtCherche_->selectAll();
}

void FrmPatient::Cherche(const QString& texte)
{
    if (QStringView(texte).trimmed().isEmpty()) {
        Deselectionne();
    } else if (const int rang = liste_.Cherche(texte); rang >= 0) {
        Selectionne(rang);
        lstPatient_->scrollTo(liste_.index(rang), QAbstractItemView::PositionAtTop);
    }
}

void FrmPatient::ChoixChange()
{
    const int rang = Rang();
    if (rang < 0) {
        return;
    }
    try {
        if (!SelectionnePatient(contexte_, liste_.Index(rang), liste_.Texte(rang))) {
            SignaleDisparu();
            return;
        }
    } catch (const common::Erreur& erreur) {
        SignalePanne(erreur);
        return;
    }
    lblTitre_->setText(contexte_.Patient.PatientCourant);
    lblTitre_->setToolTip(Qt::convertFromPlainText(contexte_.Patient.PatientCourant));
    lblPatient_->setText(TexteLblPatient(contexte_.Patient));
}

void FrmPatient::SignalePanne(const common::Erreur& erreur)
{
    // The list tells of its selection just now. The row cannot stay selected, since another patient is the
    // current one.
    QMetaObject::invokeMethod(
        this,
        [this, erreur] {
            Deselectionne();
            outside::DitPanne(contexte_.Dehors.Boites, erreur);
        },
        Qt::QueuedConnection);
}

void FrmPatient::SignaleDisparu()
{
    // The list tells of its selection just now: it is read again once that is over.
    QMetaObject::invokeMethod(
        this,
        [this] {
            Charge();
            contexte_.Dehors.Boites.Information(messages::PatientDisparu());
        },
        Qt::QueuedConnection);
}

void FrmPatient::Confirme()
{
    if (Rang() < 0) {
        contexte_.Dehors.Boites.Information(messages::SelectionnezUnNom());
        return;
    }
    EffaceChoix();
    if (!contexte_.Patient.MessagePrecautions.isEmpty()) {
        contexte_.Dehors.Boites.Simple(contexte_.Patient.MessagePrecautions);
    }
    accept();
}

void FrmPatient::NouveauPatient()
{
    contexte_.Patient.ModePatient = 1;
    EffaceChoix();
    auto& saisie = fenetres_.Donne<FrmNouveauP>();
    if (saisie.exec() == QDialog::Accepted) {
        Selectionne(liste_.Ajoute(saisie.IndexEcrit(), contexte_.Patient.PatientCourant));
    }
    FinDeSaisie();
}

void FrmPatient::PatientDePassage()
{
    contexte_.Patient.ModePatient = 2;
    EffaceChoix();
    auto& saisie = fenetres_.Donne<FrmNouveauP>();
    saisie.RendDateFacultative();
    saisie.exec();
    FinDeSaisie();
    if (contexte_.Patient.ModePatient != 3) {
        EffaceChoix();
        accept();
    }
}

void FrmPatient::Modifie()
{
    const int rang = Rang();
    if (rang < 0) {
        contexte_.Dehors.Boites.Information(messages::QuelPatientModifier());
        return;
    }
    const int index = liste_.Index(rang);
    const auto fiche = LitFiche(contexte_.Bases.Medoc(contexte_.Chemins.CheminTravail), index);
    if (!fiche) {
        SignaleDisparu();
        return;
    }
    auto& saisie = fenetres_.Donne<FrmNouveauP>();
    saisie.Remplit(index, SaisieDe(*fiche));
    saisie.exec();
    FinDeSaisie();
    Charge();
    ChoixChange();
}

void FrmPatient::Supprime()
{
    const int rang = Rang();
    if (rang < 0) {
        contexte_.Dehors.Boites.Information(messages::QuelPatientSupprimer());
        return;
    }
    const QString question = messages::SupprimerPatient(liste_.Texte(rang));
    if (!contexte_.Dehors.Boites.Question(question, outside::Bouton::Non)) {
        return;
    }
    SupprimeFiche(contexte_.Bases.Medoc(contexte_.Chemins.CheminTravail), liste_.Index(rang),
                  contexte_.Patient.PatientCourant, contexte_.Patient.DateNaissance);
    Deselectionne();
    liste_.Retire(rang);
}

void FrmPatient::FinDeSaisie()
{
    fenetres_.Decharge<FrmNouveauP>();
    contexte_.Patient.PrecautionsPatient.clear();
}

} // namespace patients
