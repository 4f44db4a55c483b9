#pragma once

#include <QList>
#include <QString>

namespace startup {

struct Medecin
{
    QString Nom; ///< list text and name of the directory, "DR NEIBRE"
    int Numero = 0;
    bool operator==(const Medecin&) const = default;
};

/// The doctors of the installation, in the order that every list shows.
struct Medecins
{
    qint16 NbMedecins = 0; ///< highest number handed out so far
    qint16 NumMedecin = 0; ///< of the current doctor, 0 for none
    qint16 NumMedecinDefaut = 1;
    qint16 IndexMedecin = 0;
    QString NomMedecinSignature;
    QList<Medecin> Liste;
    int Selection = -1;           ///< selected row of the lists, -1 for none
    QStringList PolicesSignalees; ///< the directories whose missing fonts this run has told of
};

} // namespace startup
