#include "prescription/windows/ListeTitres.h"

#include "application/windows/Style.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>

namespace prescription {

ListeTitres::ListeTitres(const QString& nom, const QString& vide, QWidget* parent)
    : QListView(parent), vide_(vide)
{
    setObjectName(nom);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

int ListeTitres::Selection() const
{
    const QModelIndexList choisies = selectionModel()->selectedRows();
    return choisies.isEmpty() ? -1 : choisies.front().row();
}

void ListeTitres::Selectionne(int rang)
{
    if (rang < 0) {
        setCurrentIndex({});
        clearSelection();
        return;
    }
    setCurrentIndex(model()->index(rang, 0));
}

// The focus alone chooses nothing.
void ListeTitres::focusInEvent(QFocusEvent* event)
{
    QListView::focusInEvent(event);
    if (Selection() < 0) {
        selectionModel()->clearCurrentIndex();
    }
}

void ListeTitres::mousePressEvent(QMouseEvent* event)
{
    if (Clique(*event)) {
        Q_EMIT Presse();
    }
}

void ListeTitres::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (Clique(*event)) {
        Q_EMIT DoubleClic();
    }
}

bool ListeTitres::Clique(const QMouseEvent& event)
{
    if (event.button() == Qt::RightButton) {
        Q_EMIT Ferme();
        return false;
    }
    const QModelIndex index = indexAt(event.position().toPoint());
    if (event.button() != Qt::LeftButton || !index.isValid()) {
        return false;
    }
    Selectionne(index.row());
    return true;
}

void ListeTitres::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up && Selection() <= 0) {
        Q_EMIT Haut();
        return;
    }
    QListView::keyPressEvent(event);
}

void ListeTitres::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (model() && model()->rowCount() == 0) {
        QPainter peintre(viewport());
        peintre.setPen(application::style::Teinte(application::style::Ton::Discret));
        const int retrait = application::style::kEntreGroupes;
        peintre.drawText(viewport()->rect().adjusted(retrait, retrait, -retrait, -retrait),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                         cherchee_ ? QStringLiteral("Aucun titre ne correspond") : vide_);
    }
}

bool ListeTitres::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* aide = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(aide->pos());
        if (index.isValid() && sizeHintForIndex(index).width() > viewport()->width()) {
            // As rich text a long one is broken into lines.
            QToolTip::showText(aide->globalPos(), Qt::convertFromPlainText(index.data().toString()), this);
            return true;
        }
    }
    return QListView::viewportEvent(event);
}

} // namespace prescription
