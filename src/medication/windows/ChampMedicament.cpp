#include "medication/windows/ChampMedicament.h"

#include "application/windows/Style.h"
#include "medication/Commandes.h"

#include <QKeyEvent>

namespace medication {

ChampMedicament::ChampMedicament(QWidget* parent) : QLineEdit(parent)
{
    setMouseTracking(true);
    application::style::GardeUneLigne(this);
}

void ChampMedicament::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier) {
        setText(BasculeBlancs(text()));
        end(false);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void ChampMedicament::mouseMoveEvent(QMouseEvent* event)
{
    if (!hasFocus() && !text().isEmpty()) {
        setFocus(Qt::MouseFocusReason);
    }
    QLineEdit::mouseMoveEvent(event);
}

} // namespace medication
