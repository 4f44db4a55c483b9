#pragma once

#include "application/Contexte.h"

#include <QVariant>

namespace application {

/// A variable of the program's state by its name ("CheminTravail", "NbMedZone1", "PoliceTitre", ...).
/// A flag is 0 or 1. An invalid QVariant for a name that the state does not have.
QVariant Valeur(const Contexte& contexte, const QString& nom);

} // namespace application
