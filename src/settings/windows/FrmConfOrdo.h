#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace settings {

/// The page layout designer: where the parts of the printed page stand, and the fonts of the prescription
/// lines. It stays loaded, hidden between its uses.
class FrmConfOrdo : public QDialog
{
    Q_OBJECT

public:
    FrmConfOrdo(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
};

} // namespace settings
