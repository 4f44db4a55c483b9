#pragma once

#include "application/Etat.h"
#include "common/Fichiers.h"
#include "storage/Schema.h"
#include "support/BoitesScript.h"
#include "support/DehorsFeint.h"

#include <QTemporaryDir>

namespace support {

/// A fresh state with an empty directory of its own and the outer edge of tests. The directories of
/// `Chemins` stand below it, none is made: "programme" and "DataVelmont/DataScriptelle".
struct Monde
{
    QTemporaryDir Dossier;
    BoitesScript Boites;
    ImprimantesFeintes Imprimantes;
    HorlogeFixe Horloge;
    PlateauFeint Plateau;
    DemarrageSystemeFeint DemarrageSysteme;
    LanceurFeint Lanceur;
    application::Etat Etat;
    application::Contexte Contexte{
        Etat.Contexte({Boites, Imprimantes, Horloge, Plateau, DemarrageSysteme, Lanceur})};

    Monde()
    {
        Etat.Chemins.CheminProgramme = Chemin(QStringLiteral("programme"));
        Etat.Chemins.CheminInstallation = Etat.Chemins.CheminProgramme;
        Etat.Chemins.CheminData = Chemin(QStringLiteral("DataVelmont/DataScriptelle"));
        Etat.Chemins.CheminTravail = Etat.Chemins.CheminData;
    }

    /// A path below the directory of this world.
    QString Chemin(const QString& nom) const { return common::Joint(Dossier.path(), nom); }

    /// Leaves the program directory as a fresh installation does: the databases and "BasesInstal".
    void Installe() const
    {
        const QString programme = Etat.Chemins.CheminProgramme;
        const QString bases = common::Joint(programme, QStringLiteral("BasesInstal"));
        common::CreeDossier(bases);
        storage::CreeBase(common::Joint(programme, QStringLiteral("Medoc.mdb")), storage::GenreBase::Medoc);
        storage::CreeBase(common::Joint(programme, QStringLiteral("Ordo.mdb")), storage::GenreBase::Ordo);
        storage::CreeBase(common::Joint(bases, QStringLiteral("Ordo.mdb")), storage::GenreBase::Ordo);
    }

    /// Makes the directory of a doctor of `CheminTravail` the current one, with a row in the list.
    void PoseMedecin(const QString& nom = QStringLiteral("DR NEIBRE"))
    {
        Etat.Chemins.CheminMedecin = common::Joint(Etat.Chemins.CheminTravail, nom);
        common::CreeDossier(Etat.Chemins.CheminMedecin);
        Etat.Medecins.NbMedecins = 1;
        Etat.Medecins.NumMedecin = 1;
        Etat.Medecins.Liste = {{nom, 1}};
        Etat.Medecins.Selection = 0;
    }
};

} // namespace support
