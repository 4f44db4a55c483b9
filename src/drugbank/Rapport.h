#pragma once

#include "drugbank/Tenu.h"

#include <QList>
#include <QStringList>

namespace drugbank {

/// The text of an interaction search, its lines ended by CR LF; empty when nothing was found.
QString Rapport(const TenuInteractions& resultat);

/// The ids that a search of interactions is made with, from the identifiers at the end of the rows of the
/// first zone, then of the second. Only whole numbers other than "1" are ids; a list whose last row gives
/// none ends in a 0, and one without any is a single 0.
QList<qint32> ProduitsPrescrits(const QStringList& identifiants);

} // namespace drugbank
