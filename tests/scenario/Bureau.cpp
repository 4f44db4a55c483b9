#include "scenario/Bureau.h"

#include "scenario/Controles.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>

namespace scenario {

namespace {

bool PeutEtreActive(const QWidget* fenetre)
{
    return fenetre && fenetre->isVisible() && !fenetre->isMinimized() && !FenetreBloquante(fenetre);
}

bool EstFenetre(const QWidget* widget)
{
    return widget->isWindow() && widget->windowType() != Qt::Popup && widget->windowType() != Qt::ToolTip;
}

} // namespace

Bureau::Bureau(QObject* parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool Bureau::eventFilter(QObject* objet, QEvent* evenement)
{
    auto* widget = qobject_cast<QWidget*>(objet);
    if (!widget || !EstFenetre(widget)) {
        return false;
    }
    if (evenement->type() == QEvent::WindowActivate) {
        ordre_.removeIf([widget](const auto& autre) { return !autre || autre == widget; });
        ordre_.prepend(widget);
    } else if (evenement->type() == QEvent::Hide || evenement->type() == QEvent::WindowStateChange) {
        QMetaObject::invokeMethod(
            this, [this] { Reactive(); }, Qt::QueuedConnection);
    }
    return false;
}

void Bureau::Reactive()
{
    if (PeutEtreActive(QApplication::activeWindow())) {
        return;
    }
    if (QWidget* modale = QApplication::activeModalWidget(); PeutEtreActive(modale)) {
        modale->activateWindow();
        return;
    }
    const auto place = std::ranges::find_if(ordre_, [](const auto& w) { return PeutEtreActive(w); });
    if (place != ordre_.end()) {
        (*place)->activateWindow();
    }
}

} // namespace scenario
