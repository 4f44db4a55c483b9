#pragma once

#include <QWidget>

namespace settings {

/// One tab of `FrmOptions`: its controls, and what they mean at `CmdOK`.
class Onglet : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Its place in the strip, from 1; the members of the buttons' arrays count from 0.
    virtual int Numero() const = 0;
    virtual QString Titre() const = 0;
    /// False, after its message, when a value of the tab stops the saving.
    virtual bool Accepte() = 0;
    /// Copies the controls to the settings variables.
    virtual void Copie() = 0;

Q_SIGNALS:
    /// A control of the tab gives the focus to `CmdOK`.
    void FocusVersOK();
    /// A control of the tab presses `CmdOK`.
    void PresseOK();
};

} // namespace settings
