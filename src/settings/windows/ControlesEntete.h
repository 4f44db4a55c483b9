#pragma once

#include <array>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QLayout;
class QWidget;

namespace page {
class VueAjustee;
}

namespace settings {

class Pastille;
struct SaisieEntete;
class SaisieRangs;

/// The controls of `FrmEntete`: the rows and settings at the left, the two sheets at the right.
struct ControlesEntete
{
    ControlesEntete(SaisieEntete& saisie, QWidget* fenetre);

    SaisieRangs* Rangs;
    std::array<QRadioButton*, 2> Opt;
    QLineEdit* TxtMG;
    QLineEdit* TxtMH;
    QLineEdit* TxtMB;
    Pastille* LblColor;
    QLabel* LblPolice;  ///< the font of the row in hand
    QLabel* LblEffet;   ///< what the row in hand does on paper
    QLabel* LblOrdre;   ///< the block order is not lasting yet
    QLabel* LblModifie; ///< the controls differ from what is stored
    page::VueAjustee* PctEntete;
    page::VueAjustee* PctFeuille;
    QPushButton* CmdPolice;
    QPushButton* CmdCouleur;
    QPushButton* CmdEnregistrer;
    QPushButton* CmdRevient; ///< back to what is stored
    QPushButton* CmdImpression;
    QPushButton* CmdQuitter;
    QPushButton* CmdAide;

private:
    QWidget* CarteReglages(QWidget* fenetre);
    QLayout* Ordre(QWidget* carte);
    QLayout* Marges(QWidget* carte);
    QLayout* PoliceEtCouleur(QWidget* carte);
    QLayout* Gauche(SaisieEntete& saisie, QWidget* fenetre);
    QWidget* CarteFeuilles(QWidget* fenetre);
    QLayout* Commandes(QWidget* fenetre);
    void OrdonneTab() const;
};

} // namespace settings
