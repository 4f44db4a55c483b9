#pragma once

#include <QModelIndex>
#include <QVariant>

class QAbstractItemView;

namespace scenario {

/// The rows that a view shows, in the order shown: of a tree the open nodes from top to bottom.
QList<QModelIndex> Rangees(QAbstractItemView* vue);

/// The whole text of a row; columns are separated by a tabulation.
QString TexteRangee(QAbstractItemView* vue, const QModelIndex& index);

/// The place in `textes` of what the script names: a number from 0, or a trimmed text, whole or as far as it
/// is in sight. Throws `Echec`.
int RangVoulu(const QStringList& textes, const QVariant& voulu);

/// The row of a view that the script names. Throws `Echec`.
QModelIndex RangeeVoulue(QAbstractItemView* vue, const QVariant& voulu);

/// The selected row, -1 for none.
int RangChoisi(QAbstractItemView* vue);

} // namespace scenario
