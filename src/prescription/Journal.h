#pragma once

#include <QString>

namespace prescription {

/// The journal of a doctor: "Journal_" and his signature name in his own directory.
/// Throws `Erreur` when the name cannot be a file of that directory.
QString CheminJournal(const QString& cheminMedecin, const QString& nomSignature);

/// Appends one line to the journal and flushes it to the disk. Characters outside Windows-1252 become '?',
/// line feeds inside the line become blanks: one printing is one line. Throws `Erreur`.
void TientJournal(const QString& chemin, const QString& ligne);

} // namespace prescription
