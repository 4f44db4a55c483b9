#include "medication/windows/ChampCherche.h"

#include <QKeyEvent>

namespace medication {

namespace {

bool EstMinuscule(const QString& texte)
{
    return texte.size() == 1 && texte[0] >= u'a' && texte[0] <= u'z';
}

} // namespace

ChampCherche::ChampCherche(QWidget* parent) : QLineEdit(parent)
{
    setMouseTracking(true);
}

void ChampCherche::keyPressEvent(QKeyEvent* event)
{
    const bool commande = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT Entree();
    } else if (event->key() == Qt::Key_Down) {
        Q_EMIT Bas();
    } else if (!commande && EstMinuscule(event->text())) {
        insert(event->text().toUpper());
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void ChampCherche::mousePressEvent(QMouseEvent* event)
{
    QLineEdit::mousePressEvent(event);
    Q_EMIT Presse();
}

void ChampCherche::mouseMoveEvent(QMouseEvent* event)
{
    if (!hasFocus()) {
        setFocus(Qt::MouseFocusReason);
    }
    QLineEdit::mouseMoveEvent(event);
}

} // namespace medication
