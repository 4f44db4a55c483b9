#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace settings {

/// The header designer: the 24 rows of the letterhead, its colour, margins and block order.
class FrmEntete : public QDialog
{
    Q_OBJECT

public:
    FrmEntete(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    void Quitte();

    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
};

} // namespace settings
