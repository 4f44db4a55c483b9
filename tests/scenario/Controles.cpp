#include "scenario/Controles.h"

#include "scenario/Echec.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>
#include <QRegularExpression>
#include <QWindow>

namespace scenario {

namespace {

template <typename Objet> QList<Objet*> Nommes(QWidget* fenetre, const QString& nom)
{
    QList<Objet*> exacts = fenetre->findChildren<Objet*>(nom);
    if (!exacts.isEmpty()) {
        return exacts;
    }
    const QRegularExpression membre(QStringLiteral("^%1\\(\\d+\\)$").arg(QRegularExpression::escape(nom)));
    return fenetre->findChildren<Objet*>(membre);
}

QWidget* ChoisitWidget(QWidget* fenetre, QList<QWidget*> candidats, const QString& nom)
{
    candidats.removeIf([fenetre](const QWidget* widget) { return widget->window() != fenetre; });
    if (candidats.size() > 1) {
        candidats.removeIf([](const QWidget* widget) { return !widget->isVisible(); });
        if (candidats.size() != 1) {
            throw Echec{QStringLiteral("%1 : plusieurs contrôles de ce nom").arg(nom)};
        }
    }
    return candidats.isEmpty() ? nullptr : candidats.first();
}

QAction* TrouveEntree(QWidget* fenetre, const QString& nom)
{
    for (QAction* entree : Nommes<QAction>(fenetre, nom)) {
        return entree;
    }
    for (QMenu* menu : Nommes<QMenu>(fenetre, nom)) {
        return menu->menuAction();
    }
    for (QAction* entree : fenetre->actions()) {
        if (entree->objectName() == nom) {
            return entree;
        }
    }
    return nullptr;
}

bool EntreeActive(const QAction& entree)
{
    for (QObject* porteur : entree.associatedObjects()) {
        if (auto* menu = qobject_cast<QMenu*>(porteur); menu && !menu->isVisible()) {
            Q_EMIT menu->aboutToShow();
        }
    }
    return entree.isEnabled();
}

} // namespace

QWidget* TrouveFenetre(const QString& nom)
{
    QWidget* trouvee = nullptr;
    for (QWidget* fenetre : QApplication::topLevelWidgets()) {
        if (fenetre->objectName() == nom && (!trouvee || fenetre->isVisible())) {
            trouvee = fenetre;
        }
    }
    return trouvee;
}

Controle Trouve(const QString& nom)
{
    const qsizetype point = nom.indexOf(QLatin1Char('.'));
    QWidget* fenetre = TrouveFenetre(nom.left(point));
    if (!fenetre) {
        throw Echec{QStringLiteral("%1 : la fenêtre n'existe pas").arg(nom)};
    }
    if (point < 0) {
        return {fenetre, fenetre, nullptr};
    }
    const QString propre = nom.mid(point + 1);
    if (QAction* entree = TrouveEntree(fenetre, propre)) {
        return {fenetre, nullptr, entree};
    }
    if (QWidget* widget = ChoisitWidget(fenetre, Nommes<QWidget>(fenetre, propre), nom)) {
        return {fenetre, widget, nullptr};
    }
    throw Echec{QStringLiteral("%1 : le contrôle n'existe pas").arg(nom)};
}

/// True for a window that the system keeps above another one as its own, child or not.
bool Appartient(const QWidget* fenetre, const QWidget* modale)
{
    const QWindow* dessus = fenetre->windowHandle();
    const QWindow* dessous = modale->windowHandle();
    return dessus && dessous && dessous->isAncestorOf(dessus, QWindow::IncludeTransients);
}

QWidget* FenetreBloquante(const QWidget* fenetre)
{
    QWidget* modale = QApplication::activeModalWidget();
    const bool libre =
        !modale || modale == fenetre || modale->isAncestorOf(fenetre) || Appartient(fenetre, modale);
    return libre ? nullptr : modale;
}

QString Obstacle(const QString& nom)
{
    const Controle controle = Trouve(nom);
    const QWidget* bloquante = FenetreBloquante(controle.Fenetre);
    if (bloquante && !QApplication::activePopupWidget()) {
        return QStringLiteral("fenêtre bloquée par %1").arg(bloquante->objectName());
    }
    if (controle.Widget && !controle.Widget->isVisible()) {
        return QStringLiteral("le contrôle n'est pas visible");
    }
    return {};
}

QString ObstacleGris(const QString& nom)
{
    const Controle controle = Trouve(nom);
    if (controle.Entree) {
        return EntreeActive(*controle.Entree) ? QString() : QStringLiteral("l'entrée est grisée");
    }
    return controle.Widget->isEnabled() ? QString() : QStringLiteral("le contrôle est grisé");
}

QAbstractItemView* Vue(QWidget* widget)
{
    if (auto* vue = qobject_cast<QAbstractItemView*>(widget)) {
        return vue;
    }
    const QList<QAbstractItemView*> vues =
        widget ? widget->findChildren<QAbstractItemView*>() : QList<QAbstractItemView*>();
    return vues.size() == 1 && !widget->isWindow() ? vues.first() : nullptr;
}

} // namespace scenario
