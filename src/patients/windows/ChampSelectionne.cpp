#include "patients/windows/ChampSelectionne.h"

namespace patients {

void ChampSelectionne::focusInEvent(QFocusEvent* evenement)
{
    QLineEdit::focusInEvent(evenement);
    selectAll();
}

} // namespace patients
