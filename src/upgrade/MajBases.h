#pragma once

#include "application/Contexte.h"
#include "upgrade/Suivi.h"

#include <QString>
#include <QStringList>

namespace upgrade {

/// What the upgrade shows beside its boxes. A missing function is passed over.
struct EcransMaj
{
    /// Runs the long work under the hourglass, with a bar for what takes more than two seconds.
    std::function<void(Suivi& suivi, const std::function<void()>& travail)> Travaille;
    /// Writes "Redémarrer" into `CmdSuite` of `FrmChoixBase`, which restarts the program when it is shown.
    std::function<void()> AnnonceRedemarrage;
};

/// The databases of a tree that the upgrade takes, as paths below it: "Medoc.mdb", then those of the doctors'
/// directories that have one.
QStringList BasesAMettreAJour(const QString& RepertoireMaJ);

/// Brings the databases of the tree `RepertoireMaJ` to the layout of this version: filled templates take
/// their place, all of them or none. Throws `MajAbandonnee` when the tree is as it was, `Erreur` when the
/// next start is to finish it.
void MajBases(application::Contexte& contexte, const EcransMaj& ecrans, const QString& RepertoireMaJ,
              Suivi suivi = {});

} // namespace upgrade
