#include "medication/windows/FrmMedoc.h"

namespace medication {

FrmMedoc::FrmMedoc(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmMedoc"));
    Q_UNUSED(contexte_)
    Q_UNUSED(fenetres_)
}

} // namespace medication
