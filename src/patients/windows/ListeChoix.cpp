#include "patients/windows/ListeChoix.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace patients {

ListeChoix::ListeChoix(QWidget* parent) : QListView(parent)
{
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ListeChoix::keyboardSearch(const QString& texte)
{
    if (!texte.trimmed().isEmpty()) {
        QListView::keyboardSearch(texte);
    }
}

void ListeChoix::focusInEvent(QFocusEvent* evenement)
{
    QListView::focusInEvent(evenement);
    if (selectionModel() && !selectionModel()->hasSelection()) {
        selectionModel()->clearCurrentIndex();
    }
}

bool ListeChoix::viewportEvent(QEvent* evenement)
{
    if (evenement->type() == QEvent::ToolTip) {
        const auto* aide = static_cast<QHelpEvent*>(evenement);
        const QModelIndex index = indexAt(aide->pos());
        if (index.isValid() && sizeHintForIndex(index).width() > viewport()->width()) {
            // As rich text a long one is broken into lines.
            QToolTip::showText(aide->globalPos(), Qt::convertFromPlainText(index.data().toString().trimmed()),
                               this);
            return true;
        }
    }
    return QListView::viewportEvent(evenement);
}

QItemSelectionModel::SelectionFlags ListeChoix::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* evenement) const
{
    const auto commande = QListView::selectionCommand(index, evenement);
    return commande.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate : commande;
}

} // namespace patients
