#include "prescription/windows/ChampRecherche.h"

#include "application/windows/Style.h"

#include <QKeyEvent>

namespace prescription {

ChampRecherche::ChampRecherche(QWidget* parent) : QLineEdit(parent)
{
    setObjectName(QStringLiteral("TxtRecherche"));
    addAction(application::style::Icone(QStringLiteral("search")), LeadingPosition);
    setClearButtonEnabled(true);
}

void ChampRecherche::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down) {
        Q_EMIT Bas();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace prescription
