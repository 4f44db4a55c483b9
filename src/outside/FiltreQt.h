#pragma once

#include <QString>

namespace outside {

/// The filter of a file dialogue, "Images (*.bmp;*.jpg)|*.bmp;*.jpg", in Qt's form: "Images (*.bmp *.jpg)".
inline QString FiltreQt(const QString& filtre)
{
    const QString description = filtre.section(QLatin1Char('|'), 0, 0).section(QLatin1String(" ("), 0, 0);
    return QStringLiteral("%1 (%2)").arg(
        description, filtre.section(QLatin1Char('|'), 1).replace(QLatin1Char(';'), QLatin1Char(' ')));
}

} // namespace outside
