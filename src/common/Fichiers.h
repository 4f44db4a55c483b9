#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace common {

/// Joins a path and names below it. The result uses '/', which every system of ours reads.
/// A name never leaves its directory: see `NomDeFichierSur`.
QString Joint(const QString& chemin, const QString& nom);

/// The path as the system writes it, for everything that a doctor reads or a path file stores.
QString CheminAffiche(const QString& chemin);

/// True when the text can name a file or directory on every system and cannot leave its parent.
bool NomDeFichierSur(QStringView nom);

bool FichierExiste(const QString& chemin);
bool DossierExiste(const QString& chemin);

/// True when the directory holds at least one file; sub-directories do not count.
bool DossierContientFichier(const QString& chemin);

/// The whole file. Throws `Erreur` when it cannot be read or is larger than 64 MiB.
QByteArray LitFichier(const QString& chemin);

/// Writes the whole file, or leaves the former one as it was. Throws `Erreur`.
void EcritFichier(const QString& chemin, const QByteArray& contenu);

/// Appends to a file, creating it, and flushes it to the disk. Throws `Erreur`.
void AjouteAuFichier(const QString& chemin, const QByteArray& contenu);

/// Copies a file over another; the former one stays until the copy is whole. Throws `Erreur`.
void CopieFichier(const QString& source, const QString& destination);

/// Copy, then delete of the source. Throws `Erreur`.
void DeplaceFichier(const QString& source, const QString& destination);

/// Flushes a file to the disk and puts it in the place of another one of the same directory, at one stroke.
/// Throws `Erreur`; both stand as they were then.
void MetEnPlace(const QString& ebauche, const QString& destination);

/// Throws `Erreur`; a missing file is no failure.
void SupprimeFichier(const QString& chemin);

/// Creates a directory and its missing parents. Throws `Erreur`.
void CreeDossier(const QString& chemin);

/// The same, readable by its owner alone (0700) for each directory it creates.
void CreeDossierPrive(const QString& chemin);

/// Copies a directory with all below it over another one. Throws `Erreur`.
void CopieDossier(const QString& source, const QString& destination);

/// Deletes a directory with all below it. Throws `Erreur`.
void SupprimeDossier(const QString& chemin);

/// The directory and every one below it, breadth first. Hidden ones and those that cannot be read are passed
/// over.
QStringList ListeDirectories(const QString& racine);

} // namespace common
