#pragma once

#include <QString>

namespace startup {

/// Where a run works. Paths have no trailing separator.
struct Chemins
{
    /// Where the program and what an installation leaves stand; only read from.
    QString CheminProgramme;
    /// Where the path files, "BasesInstal" and an installer's databases are kept: the program directory
    /// when it can be written, the user's configuration directory otherwise.
    QString CheminInstallation;
    QString CheminData;
    QString CheminBase;
    QString CheminTravail;
    /// The current doctor's directory; empty while no doctor is chosen.
    QString CheminMedecin;
    quint8 TypeStockage = 0; ///< 1 own disk, 2 removable support, 3 server
    quint8 IndexStockage = 0;
};

} // namespace startup
