#include "patients/windows/FrmNouveauP.h"

namespace patients {

FrmNouveauP::FrmNouveauP(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmNouveauP"));
    Q_UNUSED(contexte_)
    Q_UNUSED(fenetres_)
}

} // namespace patients
