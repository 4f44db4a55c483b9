#include "startup/windows/FrmAPROPOS.h"

namespace startup {

FrmAPROPOS::FrmAPROPOS(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmAPROPOS"));
    Q_UNUSED(contexte_)
    Q_UNUSED(fenetres_)
}

} // namespace startup
