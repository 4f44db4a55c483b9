#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace patients {

class FrmPatient : public QDialog
{
    Q_OBJECT

public:
    FrmPatient(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Shows the window modally and returns once it is left; the preview then stands for the patient
    /// chosen. `ouvreMedocApres`: a new prescription starts, `FrmMedoc` follows a patient chosen.
    void Ouvre(bool ouvreMedocApres);

private:
    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
    bool ouvreMedocApres_ = false;
};

} // namespace patients
