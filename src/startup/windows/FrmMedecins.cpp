#include "startup/windows/FrmMedecins.h"

namespace startup {

FrmMedecins::FrmMedecins(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmMedecins"));
    Q_UNUSED(contexte_)
    Q_UNUSED(fenetres_)
}

} // namespace startup
