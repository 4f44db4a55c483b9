#include "settings/windows/FrmEntete.h"

#include "application/windows/Style.h"
#include "settings/windows/FrmOptions.h"

#include <QVBoxLayout>

namespace settings {

namespace style = application::style;

FrmEntete::FrmEntete(application::Contexte& contexte, application::Fenetres& fenetres)
    : contexte_(contexte), fenetres_(fenetres)
{
    setObjectName(QStringLiteral("FrmEntete"));
    setWindowTitle(QStringLiteral("   En-tête ordonnance"));
    auto* quitte = style::Bouton(QStringLiteral("CmdQuitter"), QStringLiteral("&Quitter"),
                                 QStringLiteral("arrow-left"), this);
    style::Fenetre(this)->addWidget(quitte);
    connect(quitte, &QPushButton::clicked, this, &FrmEntete::Quitte);
}

void FrmEntete::Quitte()
{
    done(QDialog::Accepted);
    fenetres_.Decharge<FrmEntete>();
    fenetres_.Donne<FrmOptions>().Ouvre(1);
}

} // namespace settings
