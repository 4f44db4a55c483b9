#pragma once

class QAction;
class QMenu;
class QString;
class QWidget;

namespace startup {

/// The three pop-up menus of `FrmDepart`, entries under their names; their window connects them.
struct MenusDepart
{
    explicit MenusDepart(QWidget* fenetre);

    QMenu* mnuOutils;
    QAction* mnuRepare;
    QAction* mnuLogo;
    QAction* mnuBase;
    QAction* mnuTransfertDonn;
    QAction* mnuMAJClef;
    QAction* mnuMajBanque;
    QAction* mnuRestaure;
    QAction* mnuJournal;

    QMenu* MnuAideInv;
    QAction* mnuAideOld;
    QAction* mnuAideNew;

    QMenu* mnuInvisible;
    QAction* mnuOrdonnance;
    QAction* mnuMinimiser;
    QAction* mnuAccueil;
    QAction* mnuOptions;
    QAction* mnuHauteurN;
    QAction* mnuHauteurP;
    QAction* mnuAideOldIT;
    QAction* mnuAideNewIT;
    QAction* mnuAPropos;
    QAction* mnuQuitter;

private:
    void RemplitOutils();
    void RemplitAide();
    void RemplitInvisible();
};

} // namespace startup
