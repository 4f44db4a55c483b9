#include "startup/windows/FrmDepart.h"

namespace startup {

FrmDepart::FrmDepart(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmDepart"));
    Q_UNUSED(contexte_)
    Q_UNUSED(fenetres_)
}

} // namespace startup
