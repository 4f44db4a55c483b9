#pragma once

#include "Bilan.h"

#include <QStringList>

namespace startup {
struct Chemins;
}

namespace utile {

/// A place where data of the practice are, or should be.
struct Arbre
{
    QString Libelle;
    QString Chemin; ///< empty for a support that is not plugged in
    bool Present = false;
    QString Absence; ///< what is to be said of one that is not there
    QList<BaseTrouvee> Bases;
    QString Inacheve = {}; ///< see `TravailInacheve`
};

/// The trees that the path files of `CheminInstallation` name: that of the own disk, that of the server, and
/// where the practice works on a support those at the top of `volumes`.
QList<Arbre> TrouveArbres(const QString& cheminInstallation, const QStringList& volumes);

/// What is to be said of a tree in which an upgrade, a transfer or a restoration waits for the next start of
/// Scriptelle, which needs the files as they are; empty when none does.
QString TravailInacheve(const QString& arbre);

/// The tops of the disks that are there now.
QStringList Volumes();

/// All databases of the trees, in their order.
QList<BaseTrouvee> BasesDe(const QList<Arbre>& arbres);

} // namespace utile
