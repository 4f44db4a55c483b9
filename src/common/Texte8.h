#pragma once

#include <QByteArray>
#include <QString>

namespace common {

/// The text in Windows-1252. A character outside it becomes '?'.
QByteArray VersWindows1252(QStringView texte);

/// True when every character of the text exists in Windows-1252.
bool TientEnWindows1252(QStringView texte);

/// The text of Windows-1252 bytes. The five unused bytes become the control character of the same number.
QString DepuisWindows1252(QByteArrayView octets);

} // namespace common
