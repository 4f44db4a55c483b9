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

/// The file that a save dialogue means when its name lacks the ending of the filter's first pattern: the same
/// with that ending. Empty when the name has it, so that the dialogue has seen the whole name.
inline QString NomComplete(const QString& chemin, const QString& filtre)
{
    const QString fin = filtre.section(QLatin1Char('|'), 1).section(QLatin1Char(';'), 0, 0).mid(1);
    return chemin.endsWith(fin, Qt::CaseInsensitive) ? QString() : chemin + fin;
}

} // namespace outside
