#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace drugbank {

/// Where the medications of the bank in use come from.
class FrmCopyright : public QDialog
{
    Q_OBJECT

public:
    FrmCopyright(application::Contexte& contexte, application::Fenetres& fenetres);
};

} // namespace drugbank
