#pragma once

#include <QList>

class QAction;
class QCheckBox;
class QDialog;
class QLabel;
class QMenu;
class QPushButton;
class QToolButton;
class QTreeView;
class QWidget;

namespace drugbank {
class PanneauDocument;
}

namespace medication {

class ChampCherche;
class ChampMedicament;
class ChampPosologie;
class ImageAnimee;
class ListeLignes;
class ListeOffres;

/// The controls of the picker, laid out in its window, which owns them.
struct ControlesMedoc
{
    medication::ChampCherche* TxtCherche = nullptr;
    QTreeView* TV = nullptr;
    QPushButton* CmdNouveau = nullptr;
    QPushButton* CmdRetire = nullptr;

    medication::ChampMedicament* TxtMedoc = nullptr;
    medication::ChampPosologie* TxtPoso = nullptr;
    ListeOffres* LstOffres = nullptr;
    QPushButton* LblPoso = nullptr;
    QPushButton* CmdModifier = nullptr;
    QPushButton* CmdAjouter1 = nullptr;
    QPushButton* CmdAjouter2 = nullptr;
    QPushButton* CmdAide = nullptr;

    QCheckBox* ChkALD = nullptr;
    QCheckBox* ChkDup = nullptr;
    QCheckBox* ChkTri = nullptr;
    QLabel* ZoneALD = nullptr; ///< headings of the two lists, shown with both of them
    QLabel* ZoneNonALD = nullptr;
    ListeLignes* LstChoix1 = nullptr;
    ListeLignes* LstChoix2 = nullptr;
    QLabel* LblHorsPage = nullptr; ///< lines of the second zone stand by while the page has one
    QToolButton* ImgUp = nullptr;
    QToolButton* ImgDown = nullptr;
    QLabel* Txt = nullptr; ///< the row under the mouse while it is dragged
    QPushButton* CmdSaut = nullptr;
    QPushButton* CmdClear = nullptr;
    QPushButton* LblOrdoMem = nullptr;
    QPushButton* CmdAnnule = nullptr;
    QPushButton* CmdOrdo = nullptr;

    QToolButton* PctCherch = nullptr;
    QToolButton* CmdVD = nullptr;
    QMenu* mnuVidal = nullptr;     ///< its entries bear their filter as data
    QMenu* mnuDemarquer = nullptr; ///< of a pack prescribed before
    QAction* mnuDemark = nullptr;
    QPushButton* CmdPerso = nullptr;
    QCheckBox* ChkDCI = nullptr;
    QCheckBox* ChkMono = nullptr;
    QLabel* LblDatExp = nullptr;
    QPushButton* CmdCopyright = nullptr;
    drugbank::PanneauDocument* Document = nullptr;
    QPushButton* HlbG = nullptr;
    ImageAnimee* AniGIFG = nullptr; ///< while the pack has generics
    QPushButton* HlbI = nullptr;
    ImageAnimee* AniGIFI = nullptr;    ///< while the prescription has interactions
    QLabel* LblSansBanque = nullptr;   ///< no bank answered the search
    QLabel* LblNonVerifiees = nullptr; ///< no bank answered about the lines
    QList<QWidget*> DeBanque;          ///< what the bank mode shows and the local mode hides
};

ControlesMedoc ConstruitMedoc(QDialog* fenetre);

} // namespace medication
