#include "certificates/windows/FrmCertif.h"

namespace certificates {

FrmCertif::FrmCertif(application::Contexte& contexte, application::Fenetres&) : contexte_(contexte)
{
    setObjectName(QStringLiteral("FrmCertif"));
    setWindowTitle(QStringLiteral("Certificats"));
}

void FrmCertif::Ouvre()
{
    if (!isVisible()) {
        exec();
    }
}

void FrmCertif::Reprend()
{
    Ouvre();
}

} // namespace certificates
