#pragma once

#include <QDate>
#include <QString>
#include <optional>

namespace common {

/// The date that a text as typed stands for: day, month and year separated by '/', '-', '.' or a blank,
/// the year of two or four digits (00 to 29 is 2000 to 2029, 30 to 99 is 1930 to 1999). Nothing when the
/// text is no date: 31/02/2000, "hier", "".
std::optional<QDate> DateSaisie(QStringView texte);

/// jj/mm/aaaa.
QString TexteDate(const QDate& date);

/// "vendredi  20  nov.  2026": day, number, short month and year in French, two blanks between.
QString TexteDateLongue(const QDate& date);

} // namespace common
