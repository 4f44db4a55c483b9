#include "patients/windows/FrmPatient.h"

namespace patients {

FrmPatient::FrmPatient(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmPatient"));
    Q_UNUSED(contexte_)
    Q_UNUSED(fenetres_)
}

void FrmPatient::Ouvre(bool ouvreMedocApres)
{
    ouvreMedocApres_ = ouvreMedocApres;
    exec();
}

} // namespace patients
