#pragma once

#include <QDate>
#include <QString>
#include <QStringView>
#include <optional>

namespace banque {

/// The text of a field: blanks of every kind, line feeds and control characters become single blanks, none
/// at the ends.
QString Nettoie(QStringView champ);

/// The whole number of a field of exactly `chiffres` digits, blanks around it apart.
std::optional<qint64> Code(QStringView champ, int chiffres);

/// A whole number of one to nine digits.
std::optional<int> Nombre(QStringView champ);

/// A price in hundredths of a euro. The comma separates thousands too: the last one is the decimal one, and
/// two digits follow it ("1,466,29" is 146629).
std::optional<qint64> Centimes(QStringView champ);

/// A rate in percent, "65%" or "65 %".
std::optional<int> Taux(QStringView champ);

/// jj/mm/aaaa, of a year that a medication can have (1900 to 2100).
std::optional<QDate> DateBarre(QStringView champ);

/// aaaammjj, of the same years.
std::optional<QDate> DateSerree(QStringView champ);

} // namespace banque
