#pragma once

#include <QList>

class QComboBox;
class QLabel;
class QPushButton;
class QWidget;

namespace startup {

class CarteEntete;

/// The controls of `FrmDepart`, laid out beside its painted face.
struct ControlesDepart
{
    explicit ControlesDepart(QWidget* fenetre);

    QComboBox* CboListeMed;
    QLabel* PctLogo;
    QList<QWidget*> Cartes;    ///< the panels beside the face
    QLabel* Conseil;           ///< stands on a face without letterhead
    QLabel* LblSauvegarde;     ///< what kept the safety copy of the day; hidden
    CarteEntete* CartePropose; ///< the offer of a first letterhead; hidden
    QPushButton* CmdNO;
    QPushButton* CmdMedecins;
    QPushButton* CmdOptions;
    QPushButton* CmdOutils;
    QPushButton* CmdAide;
    QPushButton* CmdAP;
    QPushButton* CmdQuitter;

private:
    QWidget* CarteDuMedecin(QWidget* fenetre);
    QWidget* CarteDesActions(QWidget* fenetre);
};

} // namespace startup
