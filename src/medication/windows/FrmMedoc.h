#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace medication {

class FrmMedoc : public QDialog
{
    Q_OBJECT

public:
    FrmMedoc(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
};

} // namespace medication
