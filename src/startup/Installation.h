#pragma once

#include <QString>

namespace startup {

/// Where `PrepareInstallation` says that the path files are, without copying anything there.
QString TrouveInstallation(const QString& cheminProgramme);

/// The directory for path files, "BasesInstal" and an installer's databases: the program directory when
/// it can be written, else "Scriptelle" of the user's configuration directory, into which what an
/// installer left is copied once per version. Throws `Erreur`.
QString PrepareInstallation(const QString& cheminProgramme);

/// The same with the configuration directory given.
QString PrepareInstallation(const QString& cheminProgramme, const QString& cheminConfiguration);

/// Copies what an installer left in the program directory, once per version of the program; what the run has
/// moved away since does not come back. A version whose "BasesInstal" brings another "Copie de Medoc.mdb"
/// than the one before leaves it beside the program too, which makes the upgrade due. Throws `Erreur`.
void CopieInstallation(const QString& cheminProgramme, const QString& installation);

} // namespace startup
