#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace drugbank {

/// The status window of a bank's start. It takes no focus, goes by itself, and offers to give up a start that
/// lasts.
class FrmI : public QDialog
{
    Q_OBJECT

public:
    FrmI(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Shows the status as it stands, above the window in use.
    void Montre();

    /// Only the end of the start closes it.
    void reject() override {}

protected:
    bool event(QEvent* evenement) override;

private:
    void ResteAuDessus();

    application::Contexte& contexte_;
    QLabel* Out_;
    QProgressBar* PG_;
    QPushButton* CmdAnnuler_;
};

} // namespace drugbank
