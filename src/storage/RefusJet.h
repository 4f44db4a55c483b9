#pragma once

#include "storage/Pannes.h"

namespace storage {

/// A Jet file that is not converted, and would not be at the next try either: as long as it stays as it is,
/// its reading need not be repeated.
class RefusJet : public common::Erreur
{
public:
    RefusJet(QString (*message)(const QString& nom), const QString& chemin)
        : common::Erreur(Panne(message, chemin))
    {}
};

} // namespace storage
