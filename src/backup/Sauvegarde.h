#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <functional>

namespace startup {
struct Chemins;
}

namespace backup {

/// A data tree and where its safety copies are kept.
struct Lieu
{
    QString Arbre;
    QString Dossier;    ///< "Sauvegardes" of the own disk
    QString Complement; ///< of the copies' names: none for the tree of the own disk
};

/// That of the run: the copies of `CheminTravail`.
Lieu LieuDuTravail(const startup::Chemins& chemins);

/// A copy that is there.
struct Sauvegarde
{
    QString Chemin;
    QDateTime Moment; ///< without a time of the day for that of a day
    bool AvantRestauration = false;
};

/// The copies of that tree, the newest first.
QList<Sauvegarde> ListeSauvegardes(const Lieu& lieu);

/// Copies the tree unless that day has its copy already, then removes the copies that are not kept any more.
/// False when there was nothing to do. The former copies stand whatever fails. Throws `Erreur`. May run on a
/// thread of its own.
bool SauveDuJour(const Lieu& lieu, const QDate& jour);

/// Copies the tree as it stands before a copy is put back; the last three of these are kept. Throws `Erreur`.
void SauveAvantRestauration(const Lieu& lieu, const QDateTime& moment);

/// `SauveDuJour` in a thread of its own, which calls `echec` with a sentence when it fails.
void SauveEnFond(const Lieu& lieu, const QDate& jour, const std::function<void(const QString&)>& echec);

/// Returns when no such thread is at work: before anything replaces files of the tree, and at the end.
void AttendLaSauvegarde();

/// What of a tree is meant.
enum class Etendue {
    Sauvegarde, ///< what a practice works with
    Transfert   ///< former databases too, which an upgrade or a conversion has left
};

/// The files of a tree, as paths below it; never its safety copies, drafts and locks. Throws `Erreur` when a
/// directory of it cannot be listed.
QStringList FichiersDeLArbre(const QString& arbre, Etendue etendue);

} // namespace backup
