#include "startup/Installation.h"

#include "common/Fichiers.h"
#include "settings/Enregistrement.h"
#include "startup/Demarrage.h"

#include <QStandardPaths>
#include <QTemporaryFile>

namespace startup {

using common::Joint;

namespace {

bool PeutEcrire(const QString& dossier)
{
    QTemporaryFile essai(Joint(dossier, QStringLiteral("Scriptelle.XXXXXX")));
    return essai.open();
}

QString Configuration()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

QString ParConfiguration(const QString& cheminConfiguration)
{
    return Joint(cheminConfiguration, QStringLiteral("Scriptelle"));
}

QString FichierVersion(const QString& installation)
{
    return Joint(installation, QStringLiteral("Installation.cfg"));
}

bool DejaCopiee(const QString& installation)
{
    QString version;
    settings::LitEnregistrement(FichierVersion(installation), std::tie(version));
    return version == Version();
}

void CopieSiPresent(const QString& source, const QString& destination, const QString& nom)
{
    if (common::FichierExiste(Joint(source, nom))) {
        common::CopieFichier(Joint(source, nom), Joint(destination, nom));
    }
}

QString Modele(const QString& dossier)
{
    return Joint(dossier, QStringLiteral("BasesInstal/Copie de Medoc.mdb"));
}

/// Whether a new version lies over an earlier one whose template is another: the databases are to be
/// upgraded.
bool ModeleChange(const QString& cheminProgramme, const QString& installation)
{
    const bool premiere = !common::FichierExiste(FichierVersion(installation));
    if (premiere || !common::FichierExiste(Modele(cheminProgramme))) {
        return false;
    }
    return !common::FichierExiste(Modele(installation)) ||
           common::LitFichier(Modele(cheminProgramme)) != common::LitFichier(Modele(installation));
}

} // namespace

QString TrouveInstallation(const QString& cheminProgramme)
{
    return PeutEcrire(cheminProgramme) ? cheminProgramme : ParConfiguration(Configuration());
}

QString PrepareInstallation(const QString& cheminProgramme)
{
    return PrepareInstallation(cheminProgramme, Configuration());
}

QString PrepareInstallation(const QString& cheminProgramme, const QString& cheminConfiguration)
{
    if (PeutEcrire(cheminProgramme)) {
        return cheminProgramme;
    }
    const QString installation = ParConfiguration(cheminConfiguration);
    common::CreeDossierPrive(installation);
    CopieInstallation(cheminProgramme, installation);
    return installation;
}

void CopieInstallation(const QString& cheminProgramme, const QString& installation)
{
    if (DejaCopiee(installation)) {
        return;
    }
    if (ModeleChange(cheminProgramme, installation)) {
        common::CopieFichier(Modele(cheminProgramme),
                             Joint(installation, QStringLiteral("Copie de Medoc.mdb")));
    }
    const QString bases = QStringLiteral("BasesInstal");
    if (common::DossierExiste(Joint(cheminProgramme, bases))) {
        common::CopieDossier(Joint(cheminProgramme, bases), Joint(installation, bases));
    }
    for (const QString& nom : {QStringLiteral("Ordo.mdb"), QStringLiteral("Medoc.mdb"),
                               QStringLiteral("Copie de Ordo.mdb"), QStringLiteral("Copie de Medoc.mdb")}) {
        CopieSiPresent(cheminProgramme, installation, nom);
    }
    const QString version = Version();
    settings::EcritEnregistrement(FichierVersion(installation), std::tie(version));
}

} // namespace startup
