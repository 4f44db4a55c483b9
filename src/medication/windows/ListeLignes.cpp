#include "medication/windows/ListeLignes.h"

#include "medication/windows/DelegueLigne.h"

#include <QMenu>
#include <QMouseEvent>

namespace medication {

ListeLignes::ListeLignes(QWidget* parent) : QListView(parent)
{
    setItemDelegate(new DelegueLigne(this));
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QFont police = font();
    police.setFamily(QStringLiteral("Arial"));
    setFont(police);
}

int ListeLignes::Selection() const
{
    const QModelIndexList choisies = selectionModel()->selectedIndexes();
    return choisies.isEmpty() ? -1 : choisies.front().row();
}

void ListeLignes::Selectionne(int rang)
{
    if (rang < 0) {
        setCurrentIndex({});
        clearSelection();
        return;
    }
    setCurrentIndex(model()->index(rang, 0));
}

void ListeLignes::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    Selectionne(index.isValid() ? index.row() : Selection());
    tenu_ = event->button() == Qt::LeftButton && index.isValid();
    depart_ = event->globalPosition().toPoint();
    Q_EMIT Presse(index.row());
}

void ListeLignes::mouseMoveEvent(QMouseEvent* event)
{
    if (tenu_ && event->buttons() & Qt::LeftButton) {
        Q_EMIT Glisse(depart_, event->globalPosition().toPoint());
    } else {
        QListView::mouseMoveEvent(event);
    }
}

void ListeLignes::mouseReleaseEvent(QMouseEvent* event)
{
    if (tenu_ && event->button() == Qt::LeftButton) {
        tenu_ = false;
        Q_EMIT Lache(event->globalPosition().toPoint());
    }
}

void ListeLignes::mouseDoubleClickEvent(QMouseEvent* event)
{
    tenu_ = false;
    if (event->button() == Qt::LeftButton) {
        Q_EMIT Reprend();
    }
}

bool ListeLignes::ToucheDeRangee(const QKeyEvent& event)
{
    const bool alt = event.modifiers() & Qt::AltModifier;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT Reprend();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (alt) {
            Q_EMIT Deplace(event.key() == Qt::Key_Up ? -1 : 1);
        }
        return alt;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (alt) {
            Q_EMIT Passe();
        }
        return alt;
    default:
        return false;
    }
}

void ListeLignes::keyPressEvent(QKeyEvent* event)
{
    if (ToucheDeRangee(*event)) {
        return;
    }
    const int avant = Selection();
    QListView::keyPressEvent(event);
    if (Selection() != avant || event->key() == Qt::Key_Space) {
        Q_EMIT Presse(Selection());
    }
}

void ListeLignes::contextMenuEvent(QContextMenuEvent* event)
{
    if (Selection() < 0) {
        return;
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("Reprendre la ligne\tEntrée"), this, &ListeLignes::Reprend);
    menu->addAction(QStringLiteral("Monter\tAlt+Haut"), this, [this] { Q_EMIT Deplace(-1); });
    menu->addAction(QStringLiteral("Descendre\tAlt+Bas"), this, [this] { Q_EMIT Deplace(1); });
    menu->addAction(QStringLiteral("Passer dans l'autre zone\tAlt+Droite"), this, &ListeLignes::Passe);
    menu->popup(event->globalPos());
}

} // namespace medication
