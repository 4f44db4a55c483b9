#include "settings/windows/ChampMesure.h"

#include <QFocusEvent>

namespace settings {

namespace {

bool EstPassager(const QFocusEvent& evenement)
{
    return evenement.reason() == Qt::PopupFocusReason || evenement.reason() == Qt::ActiveWindowFocusReason;
}

} // namespace

void ChampMesure::focusInEvent(QFocusEvent* evenement)
{
    QLineEdit::focusInEvent(evenement);
    if (evenement->reason() == Qt::PopupFocusReason) {
        return;
    }
    selectAll();
    prisALaSouris_ = evenement->reason() == Qt::MouseFocusReason;
    Q_EMIT Pris();
}

void ChampMesure::focusOutEvent(QFocusEvent* evenement)
{
    QLineEdit::focusOutEvent(evenement);
    if (!EstPassager(*evenement)) {
        Q_EMIT Quitte();
    }
}

void ChampMesure::mousePressEvent(QMouseEvent* evenement)
{
    QLineEdit::mousePressEvent(evenement);
    if (prisALaSouris_) {
        selectAll();
        prisALaSouris_ = false;
    }
}

} // namespace settings
