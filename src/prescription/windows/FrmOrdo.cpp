#include "prescription/windows/FrmOrdo.h"

namespace prescription {

FrmOrdo::FrmOrdo(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmOrdo"));
    Q_UNUSED(contexte_)
    Q_UNUSED(fenetres_)
}

} // namespace prescription
