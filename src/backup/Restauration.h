#pragma once

#include "backup/Sauvegarde.h"

namespace backup {

/// Puts a copy back into its tree: first the whole of it is read and its databases are checked, then the tree
/// as it stands is copied, then each file of the copy takes its place. Files that the copy does not know
/// stay, and so does a journal of prescriptions, which only grows. The databases of the run must be closed.
/// Throws `Erreur`: before the first file nothing has changed; from there on `FinitRestauration` goes on.
void Restaure(const Lieu& lieu, const Sauvegarde& sauvegarde, const QDateTime& moment);

/// True while files of that tree are being put back, or an interruption has left some.
bool RestaurationEnCours(const QString& arbre);

/// Goes on with a restoration of that tree that was interrupted. False when there is none. Throws `Erreur`.
bool FinitRestauration(const QString& arbre);

} // namespace backup
