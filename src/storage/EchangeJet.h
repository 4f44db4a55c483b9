#pragma once

#include <QDateTime>
#include <QString>

namespace storage {

/// Puts the converted file in the place of the former one, which stays beside as "NAME (Jet).mdb" with its
/// bytes and its time. At no moment there is no file of that name. Throws `Erreur`; both stand as they were
/// then.
void EchangeJet(const QString& chemin, const QString& ebauche);

/// Takes away what conversions of that file left that were killed in the middle. Nobody else may convert it.
void OteRestesJet(const QString& chemin);

/// The file by which the former program says that it has this database open: "Medoc.ldb" beside "Medoc.mdb",
/// made within the last week before `maintenant`; empty when there is none. The former program takes it away
/// when it closes; an older one was left by a program that came to a bad end.
QString VerrouAccess(const QString& chemin, const QDateTime& maintenant);

} // namespace storage
