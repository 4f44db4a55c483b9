#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace patients {

class FrmNouveauP : public QDialog
{
    Q_OBJECT

public:
    FrmNouveauP(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
};

} // namespace patients
