#pragma once

#include "application/windows/Fenetres.h"
#include "common/Erreur.h"
#include "patients/ListePatients.h"

#include <QDialog>

class QBoxLayout;
class QLabel;
class QListView;
class QPushButton;

namespace patients {

class ZoneRecherche;

/// For whom the prescription is: the list of patients, its search and its commands.
class FrmPatient : public QDialog
{
    Q_OBJECT

public:
    FrmPatient(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Shows the window modally and returns once it is left; the preview then stands for the patient
    /// chosen. `ouvreMedocApres`: a new prescription starts, `FrmMedoc` follows a patient chosen.
    void Ouvre(bool ouvreMedocApres);

    /// The window's way out without a patient.
    void reject() override;

protected:
    bool event(QEvent* evenement) override;

private:
    void Dispose();
    QWidget* FaitListe();
    QWidget* FaitChoix();
    QWidget* FaitAutres();
    QBoxLayout* FaitPied();
    void Branche();
    void OrdonneTabulations();

    /// Reads the table again, when there is a data directory; a failure is told and the former rows stay.
    /// Nothing is selected then.
    void Charge();
    /// The row selected, -1 for none.
    int Rang() const;
    void Selectionne(int rang);
    /// Takes selection and labels away; the current patient stays as it is.
    void Deselectionne();
    /// The same, with the search.
    void EffaceChoix();

    void Cherche(const QString& texte);
    void ChoixChange();
    void Confirme();
    void NouveauPatient();
    void PatientDePassage();
    void Modifie();
    void Supprime();
    void FinDeSaisie();
    void SignaleDisparu();
    void SignalePanne(const common::Erreur& erreur);

    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
    ListePatients liste_;
    QListView* lstPatient_ = nullptr;
    ZoneRecherche* txtCherche_ = nullptr;
    QLabel* lblTitre_ = nullptr;
    QLabel* lblPatient_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
    QPushButton* cmdAnnule_ = nullptr;
    QPushButton* cmdNouveauPatient_ = nullptr;
    QPushButton* cmdPassage_ = nullptr;
    QPushButton* cmdModifier_ = nullptr;
    QPushButton* cmdSupprime_ = nullptr;
    QPushButton* cmdAide_ = nullptr;
};

} // namespace patients
