#include "settings/windows/FrmConfOrdo.h"

#include "application/windows/Style.h"
#include "settings/windows/FrmOptions.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace settings {

namespace style = application::style;

FrmConfOrdo::FrmConfOrdo(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmConfOrdo"));
    setWindowTitle(QStringLiteral("   Mise enpage de l'ordonnance"));
    auto* retour = style::Bouton(QStringLiteral("CmdRetour"), QStringLiteral("&Retour"),
                                 QStringLiteral("arrow-left"), this);
    style::Fenetre(this)->addWidget(retour);
    connect(retour, &QPushButton::clicked, this, [this] {
        done(QDialog::Accepted);
        fenetres_.Decharge<FrmConfOrdo>();
        fenetres_.Donne<FrmOptions>().Ouvre(1);
    });
}

} // namespace settings
