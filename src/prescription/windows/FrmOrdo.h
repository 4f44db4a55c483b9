#pragma once

#include "application/windows/Fenetres.h"

namespace prescription {

class FrmOrdo : public QWidget
{
    Q_OBJECT

public:
    FrmOrdo(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
};

} // namespace prescription
