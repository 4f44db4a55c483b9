#pragma once

#include "certificates/Certificat.h"

#include <QStringList>

namespace certificates {

/// The templates of "Certificats" under the tree of work: "NAME.txt", and "NAME.cfg" with `DecalageCertif`
/// and `CertifALD`. "Tmp.txt" is none of them, whatever its case.

/// Their names, sorted as a French reader does.
QStringList ListeModeles(const QString& cheminTravail);

/// The text of a template; its record goes to `certificat`, where a field that is missing or damaged keeps
/// its value. Throws `Erreur` when the text cannot be read; `certificat` is left as it was then.
QString LitModele(const QString& cheminTravail, const QString& nom, Certificat& certificat);

/// Writes text and record, over those that stand there. Throws `Erreur`; the record is then as before.
void EcritModele(const QString& cheminTravail, const QString& nom, const QString& texte,
                 const Certificat& certificat);

/// Deletes text and record; a missing file is no failure. Throws `Erreur`.
void EffaceModele(const QString& cheminTravail, const QString& nom);

/// Writes "Tmp.txt" whole. Throws `Erreur`.
void EcritTmp(const QString& cheminTravail, const QString& texte);

/// What the save dialogue gave.
struct NomChoisi
{
    QString Nom;   ///< of the template, without extension
    QString Refus; ///< why it cannot be one, in French; empty when it can
};

/// The template that a path of the save dialogue means; a bare name lies in "Certificats".
NomChoisi LitNomChoisi(const QString& cheminTravail, const QString& chemin);

/// True when a template of that name stands.
bool ModeleExiste(const QString& cheminTravail, const QString& nom);

} // namespace certificates
