#pragma once

#include "application/windows/Fenetres.h"

namespace startup {

class FrmDepart : public QWidget
{
    Q_OBJECT

public:
    FrmDepart(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
};

} // namespace startup
