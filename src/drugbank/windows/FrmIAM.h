#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace drugbank {

class FrmIAM : public QDialog
{
    Q_OBJECT

public:
    FrmIAM(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
};

} // namespace drugbank
