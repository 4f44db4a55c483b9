#pragma once

#include <QString>
#include <optional>

namespace common {

/// The number that a text begins with, 0 without one. Blanks are passed over, the decimal sign is the
/// point, and an exponent counts: "72,5" gives 72, " 3 " gives 3, "1e2x" gives 100.
double Val(QStringView texte);

/// `Val` as a whole number, rounded to the nearest (halves to the even one) and held within the range.
int ValEntier(QStringView texte, int minimum, int maximum);

/// A number in its shortest decimal form, with a point and no exponent: 10, 4, 12.5.
QString TexteNombre(double valeur);

/// The same for a 32-bit value, at most seven significant digits.
QString TexteSimple(float valeur);

/// The number of a text whose decimal sign is the comma; nothing when the text is not wholly a number.
std::optional<double> NombreAVirgule(QStringView texte);

} // namespace common
