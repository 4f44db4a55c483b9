#pragma once

#include <QMenu>
#include <functional>

namespace prescription {

/// What the entries of the desk's pop-up menus do.
struct ActionsMenus
{
    std::function<void()> Options;
    std::function<void()> HauteurN;
    std::function<void()> HauteurP;
    std::function<void()> AideAncienne;
    std::function<void()> AideNouvelle;
    std::function<void()> APropos;
    std::function<void()> Minimise;
    std::function<void()> Quitte;
};

/// The two pop-up menus of `FrmOrdo`: `MnuAideInv` of `CmdAide` and `mnuInvisible` of the sheet.
class MenusOrdo
{
public:
    MenusOrdo(QWidget* fenetre, const ActionsMenus& actions);

    QMenu& Aide() { return *MnuAideInv_; }
    QMenu& Feuille() { return *mnuInvisible_; }
    /// The way back to the plain line height is offered only while a personal one is in force.
    void PermetHauteurN(bool oui) { mnuHauteurN_->setEnabled(oui); }

private:
    QMenu* MnuAideInv_;
    QMenu* mnuInvisible_;
    QAction* mnuHauteurN_;
};

} // namespace prescription
