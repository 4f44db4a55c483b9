#include "prescription/windows/MenusOrdo.h"

#include "application/windows/Style.h"

namespace prescription {

namespace {

QMenu* CreeMenu(const QString& nom, const QString& titre, QWidget* fenetre)
{
    auto* menu = new QMenu(titre, fenetre);
    menu->setObjectName(nom);
    return menu;
}

QAction* Entree(QMenu* menu, const char* nom, const QString& texte, const QString& icone,
                const std::function<void()>& action)
{
    auto* entree = new QAction(texte, menu->parentWidget());
    if (!icone.isEmpty()) {
        entree->setIcon(application::style::Icone(icone));
    }
    entree->setObjectName(QLatin1String(nom));
    QObject::connect(entree, &QAction::triggered, menu, [action] { action(); });
    menu->addAction(entree);
    return entree;
}

} // namespace

MenusOrdo::MenusOrdo(QWidget* fenetre, const ActionsMenus& actions)
    : MnuAideInv_(CreeMenu(QStringLiteral("MnuAideInv"), QStringLiteral("aide"), fenetre)),
      mnuInvisible_(CreeMenu(QStringLiteral("mnuInvisible"), QStringLiteral("MenuInvisible"), fenetre))
{
    Entree(MnuAideInv_, "mnuAideOld", QStringLiteral("&Aide"), QStringLiteral("question-circle"),
           actions.AideAncienne);
    Entree(MnuAideInv_, "mnuAideNew", QStringLiteral("&Nouvelle version"), QStringLiteral("file-earmark-pdf"),
           actions.AideNouvelle);
    Entree(mnuInvisible_, "mnuOptions", QStringLiteral("&Options"), QStringLiteral("gear"), actions.Options);
    mnuInvisible_->addSeparator();
    mnuHauteurN_ =
        Entree(mnuInvisible_, "mnuHauteurN", QStringLiteral("Saut de ligne &normal"), {}, actions.HauteurN);
    Entree(mnuInvisible_, "mnuHauteurP", QStringLiteral("Hauteur de saut de ligne &personnalisée"),
           QStringLiteral("rulers"), actions.HauteurP);
    mnuInvisible_->addSeparator();
    Entree(mnuInvisible_, "mnuAP", QStringLiteral("A p&ropos"), QStringLiteral("info-circle"),
           actions.APropos);
    Entree(mnuInvisible_, "mnuMinimiser", QStringLiteral("&Minimiser"), QStringLiteral("dash-lg"),
           actions.Minimise);
    QAction* quitter = Entree(mnuInvisible_, "mnuQuitter", QStringLiteral("&Quitter"),
                              QStringLiteral("power"), actions.Quitte);
    application::style::EntreeParDefaut(mnuInvisible_, quitter);
}

} // namespace prescription
