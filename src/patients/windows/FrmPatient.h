#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace patients {

class FrmPatient : public QDialog
{
    Q_OBJECT

public:
    FrmPatient(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
};

} // namespace patients
