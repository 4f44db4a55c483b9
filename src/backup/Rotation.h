#pragma once

#include <QDate>
#include <QList>
#include <QSet>

namespace backup {

/// The days whose copies are kept: the last 7 that have one, the last of each of the last 4 weeks and of the
/// last 12 months that have one. Days behind `aujourdhui`, of a clock that was wrong, are kept and count
/// for nothing.
QSet<QDate> JoursGardes(QList<QDate> jours, const QDate& aujourdhui);

} // namespace backup
