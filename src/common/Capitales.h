#pragma once

#include <QString>

namespace common {

/// The text in capitals, letter by letter: its length never changes. The micro sign, and the Greek letter
/// that is typed for it, stay: their capital reads as an M, and "25 µg" as a dose a thousand times greater.
QString EnCapitales(QString texte);

} // namespace common
