#pragma once

#include "startup/Medecins.h"

#include <QByteArray>
#include <QStringList>

namespace startup {

/// A line of "Medecin.ini" as it stands, and the doctor that it gives: none when it cannot be read.
struct LigneMedecin
{
    QString Brute;
    Medecin Lue;
    bool Lisible() const { return !Lue.Nom.isEmpty(); }
};

/// The content of "Medecin.ini".
struct ContenuMedecinIni
{
    qint16 NbMedecins = 0;
    QList<LigneMedecin> Lignes;
    bool Abime = false; ///< empty, binary, or with something that cannot be read
};

/// Reads Windows-1252 bytes; never fails. The doctor's text is the first of the pieces between hyphens, his
/// number the last. A line without a hyphen, or whose text cannot name a directory, is not readable.
ContenuMedecinIni AnalyseMedecinIni(const QByteArray& octets);

/// The bytes of the file.
QByteArray TexteMedecinIni(int nbMedecins, const QStringList& lignes);

/// Reads the file of a directory; a missing one is empty and not damaged. Throws `Erreur`.
ContenuMedecinIni LitMedecinIni(const QString& dossier);

/// Writes the file of a directory; a damaged former one is kept as "Medecin.ini.abime". Throws `Erreur`.
void EcritMedecinIni(const QString& dossier, int nbMedecins, const QStringList& lignes);

/// Rewrites the file of a directory with the whole list. Lines of the former file stay: as they stand
/// for the doctors of the list, behind them for everything else. Throws `Erreur`.
void EcritListeMedecins(const QString& dossier, const Medecins& medecins);

/// The highest number handed out, by the state and by the file of a directory. Throws `Erreur`.
int DernierNumero(const QString& dossier, const Medecins& medecins);

/// Removes the lines of that doctor from the file of a directory. Throws `Erreur`.
void RetireDeMedecinIni(const QString& dossier, const Medecin& medecin);

} // namespace startup
