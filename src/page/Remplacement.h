#pragma once

#include <QString>

namespace page {

/// The family that this computer draws instead of one that it lacks; empty when it has the family, or one
/// that is made with the same widths, so that no line changes.
QString PoliceDeRemplacement(const QString& famille);

} // namespace page
