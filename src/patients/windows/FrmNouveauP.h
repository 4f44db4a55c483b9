#pragma once

#include "application/windows/Fenetres.h"
#include "patients/SaisiePatient.h"

#include <QDialog>
#include <QStringListModel>
#include <array>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListView;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace patients {

/// The entry of one patient: a new one, a change, or a passing one. It is loaded fresh for each use;
/// `ModePatient` is set before.
class FrmNouveauP : public QDialog
{
    Q_OBJECT

public:
    FrmNouveauP(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Fills the controls from a stored row, which "Enregistrer" then changes.
    void Remplit(int index, const SaisiePatient& saisie);
    /// Takes the red mark beside the date away, for a passing patient.
    void RendDateFacultative();
    /// The key of the row stored by the last `CmdOK`.
    int IndexEcrit() const { return indexEcrit_; }

    /// `CmdAnnuler`, Escape and the close box: nothing is stored.
    void reject() override;

private:
    void Dispose();
    QWidget* FaitIdentite();
    QBoxLayout* FaitCivilites(QWidget* carte);
    QWidget* FaitCoordonnees();
    QWidget* FaitPrecautions();
    QWidget* FaitNotes();
    QBoxLayout* FaitPied();
    QLineEdit* FaitTxt(int numero, QWidget* carte);
    void OrdonneTabulations();
    void Branche();

    SaisiePatient Saisie() const;
    /// Puts the text of `Txt(numero)` in its form.
    void MetEnForme(size_t numero);
    void AjoutePrecautions();
    void RetirePrecaution();
    void Valide();
    void MontreRefus(const Refus& refus);

    application::Contexte& contexte_;
    Fiche origine_;
    std::optional<int> indexChange_;
    int indexEcrit_ = 0;
    QStringListModel precautions_;
    std::array<QRadioButton*, 6> opt_ = {};
    std::array<QLineEdit*, 5> txt_ = {}; // surname, first name, both telephones (2, 4), weight (3)
    QLineEdit* meb_ = nullptr;
    QLabel* lbl_ = nullptr;
    QListView* lstCi_ = nullptr;
    QPushButton* cmdCI_ = nullptr;
    QPlainTextEdit* txtAdr_ = nullptr;
    QPlainTextEdit* txtAtcd_ = nullptr;
    QPlainTextEdit* txtAdrV_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
    QPushButton* cmdAnnuler_ = nullptr;
};

} // namespace patients
