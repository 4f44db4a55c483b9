#include "drugbank/windows/FrmIAM.h"

namespace drugbank {

FrmIAM::FrmIAM(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmIAM"));
    Q_UNUSED(contexte_)
    Q_UNUSED(fenetres_)
}

} // namespace drugbank
