#include "medication/windows/ListeGeneriques.h"

#include "application/windows/Style.h"

#include <QMouseEvent>

namespace medication {

ListeGeneriques::ListeGeneriques(QWidget* parent) : QListView(parent)
{
    setObjectName(QStringLiteral("LstGen"));
    setFont(application::style::PoliceFixe());
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
}

void ListeGeneriques::VaAuPremierPack()
{
    setFocus();
    int rang = 0;
    while (rang < model()->rowCount() - 1 && model()->index(rang, 0).data().toString().isEmpty()) {
        ++rang;
    }
    setCurrentIndex(model()->index(rang, 0));
}

void ListeGeneriques::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid()) {
        setCurrentIndex(index);
    }
}

void ListeGeneriques::mouseReleaseEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid() && index == currentIndex()) {
        Q_EMIT Prise(index.row());
    }
}

void ListeGeneriques::mouseMoveEvent(QMouseEvent* event)
{
    setToolTip(indexAt(event->position().toPoint()).data().toString().trimmed());
}

void ListeGeneriques::leaveEvent(QEvent* event)
{
    setToolTip({});
    QListView::leaveEvent(event);
}

void ListeGeneriques::keyPressEvent(QKeyEvent* event)
{
    const bool prend =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (prend && selectionModel()->isSelected(currentIndex())) {
        Q_EMIT Prise(currentIndex().row());
        return;
    }
    QListView::keyPressEvent(event);
}

} // namespace medication
