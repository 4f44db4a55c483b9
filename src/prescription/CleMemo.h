#pragma once

#include <QString>

namespace prescription {

/// What tells one memorised prescription from another: its title and its owner.
struct CleMemo
{
    QString Titre;
    QString NomPatient = QStringLiteral("*"); ///< "*" for all patients
    QString Datenais = QStringLiteral("0");   ///< "0" for all patients

    bool Generique() const { return NomPatient == QLatin1String("*"); }
    bool operator==(const CleMemo&) const = default;
};

} // namespace prescription
