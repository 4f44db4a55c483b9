#include "medication/windows/DelegueLigne.h"

#include "prescription/LignesZone.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace medication {

QString DelegueLigne::displayText(const QVariant& valeur, const QLocale&) const
{
    return prescription::TitreDeLigne(valeur.toString());
}

bool DelegueLigne::helpEvent(QHelpEvent* event, QAbstractItemView* vue, const QStyleOptionViewItem& option,
                             const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid()) {
        return QStyledItemDelegate::helpEvent(event, vue, option, index);
    }
    QToolTip::showText(event->globalPos(), displayText(index.data(), {}), vue->viewport());
    return true;
}

} // namespace medication
