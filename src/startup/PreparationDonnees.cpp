#include "startup/PreparationDonnees.h"

#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "outside/Boites.h"
#include "startup/InscriptionMedecin.h"
#include "startup/messages.h"
#include "storage/PatientsAnciens.h"

#include <QFileInfo>

namespace startup {

using common::FichierExiste;
using common::Joint;

namespace {

void DeplaceSiAbsent(const Chemins& chemins, const QString& nom)
{
    const QString source = Joint(chemins.CheminInstallation, nom);
    const QString destination = Joint(chemins.CheminData, nom);
    if (FichierExiste(source) && !FichierExiste(destination)) {
        common::DeplaceFichier(source, destination);
    }
}

void DeplaceParDessus(const Chemins& chemins, const QString& nom)
{
    const QString source = Joint(chemins.CheminInstallation, nom);
    if (FichierExiste(source)) {
        common::DeplaceFichier(source, Joint(chemins.CheminData, nom));
    }
}

void SupprimeSiEnDouble(const Chemins& chemins, const QString& nom)
{
    const QString source = Joint(chemins.CheminInstallation, nom);
    const QString destination = Joint(chemins.CheminData, nom);
    const bool enDouble = FichierExiste(source) && FichierExiste(destination);
    if (enDouble && QFileInfo(source).canonicalFilePath() != QFileInfo(destination).canonicalFilePath()) {
        common::SupprimeFichier(source);
    }
}

} // namespace

void DeplaceInstallation(const Chemins& chemins)
{
    DeplaceSiAbsent(chemins, QStringLiteral("Ordo.mdb"));
    DeplaceSiAbsent(chemins, QStringLiteral("Medoc.mdb"));
    SupprimeSiEnDouble(chemins, QStringLiteral("Medoc.mdb"));
    DeplaceParDessus(chemins, QStringLiteral("Copie de Ordo.mdb"));
    DeplaceParDessus(chemins, QStringLiteral("Copie de Medoc.mdb"));
}

void DeplaceCommun(application::Contexte& contexte)
{
    const Chemins& chemins = contexte.Chemins;
    const QString commun = Joint(chemins.CheminInstallation, QStringLiteral("Commun"));
    if (!common::DossierExiste(commun)) {
        return;
    }
    contexte.Dehors.Boites.Information(
        messages::DeplacementDonnees(common::CheminAffiche(chemins.CheminData)));
    common::CopieDossier(commun, chemins.CheminData);
    common::SupprimeDossier(commun);
}

void NettoieCheminData(const Chemins& chemins)
{
    const QString ordo = Joint(chemins.CheminData, QStringLiteral("Ordo.mdb"));
    // None of these is needed any more; the next start tries again.
    for (const QString& nom : {QStringLiteral("Copie de Ordo.mdb"), QStringLiteral("Ancien_Ordo.mdb")}) {
        common::Tolere([&] { common::SupprimeFichier(Joint(chemins.CheminData, nom)); });
    }
    if (FichierExiste(ordo) &&
        !storage::GardePatients(ordo, Joint(chemins.CheminData, QStringLiteral("Medoc.mdb")))) {
        common::Tolere([&] { common::CopieFichier(ModeleOrdo(chemins), ordo); });
        common::Tolere([&] { common::SupprimeFichier(ordo); });
    }
}

} // namespace startup
