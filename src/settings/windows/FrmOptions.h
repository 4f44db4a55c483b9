#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace settings {

class FrmOptions : public QDialog
{
    Q_OBJECT

public:
    FrmOptions(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
};

} // namespace settings
