#pragma once

#include <QString>

namespace storage {

/// Whether that "Medoc.mdb" of ours is of an older layout that has no `Patients`: they stand in the
/// "Ordo.mdb" of the same tree's root then. A file that cannot be opened has them not there.
bool PatientsSontAilleurs(const QString& medoc);

/// Whether the root's "Ordo.mdb" is still needed: a Jet file, which no installer leaves, or what may be the
/// only place of the tree's patients.
bool GardePatients(const QString& ordo, const QString& medoc);

/// Takes the patients of the root's "Ordo.mdb" over into that "Medoc.mdb", in one transaction; its other
/// columns and tables are completed at its next opening. No effect when the root's has none. Throws `Erreur`.
void PrendPatients(const QString& medoc, const QString& ordo);

} // namespace storage
