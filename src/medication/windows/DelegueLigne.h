#pragma once

#include <QStyledItemDelegate>

namespace medication {

/// Shows the title in a row of a zone, without the blanks and the identifier behind it.
class DelegueLigne : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& valeur, const QLocale& langue) const override;
    /// The whole title as tool tip.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* vue, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};

} // namespace medication
