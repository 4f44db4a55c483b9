#include "application/windows/UnSeulClic.h"

#include <QKeyEvent>

namespace application {

namespace {

bool EntreeTenue(QEvent* evenement)
{
    if (evenement->type() != QEvent::KeyPress) {
        return false;
    }
    const auto* touche = static_cast<QKeyEvent*>(evenement);
    return touche->isAutoRepeat() && (touche->key() == Qt::Key_Return || touche->key() == Qt::Key_Enter);
}

} // namespace

bool UnSeulClic::eventFilter(QObject* objet, QEvent* evenement)
{
    return evenement->type() == QEvent::MouseButtonDblClick || EntreeTenue(evenement) ||
           QObject::eventFilter(objet, evenement);
}

} // namespace application
