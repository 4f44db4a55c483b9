#pragma once

#include "settings/SaisieOptions.h"

#include <QWidget>

namespace settings {

/// Below that height of the window, in pixels, a tab that shows a picture makes it smaller.
constexpr int kFenetreBasse = 480;

/// One tab of `FrmOptions`: its controls, and what they hold at `CmdOK`.
class Onglet : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Its place in the strip, from 1; the members of the buttons' arrays count from 0.
    virtual int Numero() const = 0;
    virtual QString Titre() const = 0;
    /// Puts in what the controls hold; those that act at once have nothing to say.
    virtual void Lit(SaisieOptions& saisie) const = 0;
    /// Lays the tab out for a window of that size, in pixels.
    virtual void Adapte(QSize /*fenetre*/) {}

Q_SIGNALS:
    /// A control acted on the page and gives the focus away.
    void FocusVersFoc(QWidget* controle);
    /// A control of the tab gives the focus to `CmdOK`.
    void FocusVersOK();
    /// A control of the tab presses `CmdOK`.
    void PresseOK();
};

} // namespace settings
