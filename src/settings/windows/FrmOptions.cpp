#include "settings/windows/FrmOptions.h"

namespace settings {

FrmOptions::FrmOptions(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmOptions"));
    Q_UNUSED(contexte_)
    Q_UNUSED(fenetres_)
}

} // namespace settings
