#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace startup {

class FrmMedecins : public QDialog
{
    Q_OBJECT

public:
    FrmMedecins(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
};

} // namespace startup
