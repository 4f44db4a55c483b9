#pragma once

#include "application/windows/Fenetres.h"
#include "medication/Composition.h"

#include <QDialog>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QPushButton;

namespace medication {

class BoiteCboP;
class ChampPosologie;

/// The composer of a posology: a few choices become a sentence that the doctor can still edit. Shown by
/// `Compose`, hidden and reused.
class FrmPoso : public QDialog
{
    Q_OBJECT

public:
    FrmPoso(application::Contexte& contexte, application::Fenetres& fenetres);

    /// What the doctor decided: the window's tag.
    enum class Etiquette : quint8 { Rien = 0, Ajoute = 1, Enregistre = 2 };
    struct Reponse
    {
        FrmPoso::Etiquette Etiquette = Etiquette::Rien;
        std::optional<QString> TxtPoso; ///< nothing when the posology of the medication stays
    };

    /// Shows the window modal over a medication's name and posology. `enregistrable`: it is one that
    /// can be stored.
    Reponse Compose(const QString& nom, const QString& txtPoso, bool enregistrable);

private:
    void Dispose();
    QWidget* FaitChoix();
    void PlaceBoite(QGridLayout* grille, int indice, const QString& legende, int rang, int colonne);
    QWidget* FaitTexte();
    QBoxLayout* FaitPied();
    void OrdonneTabulations();
    void Branche();

    void Change(int indice, const QString& texte);
    /// Brings the controls in line with the composition.
    void Montre();
    void Rend(Etiquette etiquette);

    application::Contexte& contexte_;
    Composition composition_;
    Reponse reponse_;
    std::array<BoiteCboP*, kNbCboP> cboP_ = {};
    QLabel* lblNomMed_ = nullptr;
    QLabel* lblX_ = nullptr; ///< a number is still to be given
    ChampPosologie* txtPoso_ = nullptr;
    QPushButton* cmdAide_ = nullptr;
    QPushButton* cmdAnnule_ = nullptr;
    QPushButton* cmdQuitter_ = nullptr;
    QPushButton* cmdEnregistrer_ = nullptr;
    QPushButton* cmdAjouter_ = nullptr;
};

} // namespace medication
