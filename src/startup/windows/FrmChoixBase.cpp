#include "startup/windows/FrmChoixBase.h"

namespace startup {

FrmChoixBase::FrmChoixBase(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmChoixBase"));
    Q_UNUSED(contexte_)
    Q_UNUSED(fenetres_)
}

} // namespace startup
