#include "patients/windows/ChampSelectionne.h"

#include <QFocusEvent>

namespace patients {

void ChampSelectionne::focusInEvent(QFocusEvent* evenement)
{
    QLineEdit::focusInEvent(evenement);
    if (evenement->reason() != Qt::PopupFocusReason) {
        selectAll();
    }
}

} // namespace patients
