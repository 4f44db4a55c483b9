#pragma once

#include <QString>

namespace certificates {

/// "Certificats" under the tree of work.
QString CheminCertificats(const QString& cheminTravail);
/// Its "Tmp.txt": the text that is being shifted, and the one handed to the page.
QString CheminTmp(const QString& cheminTravail);

/// The text of a file of "Certificats", its line ends as they stand. Throws `Erreur`.
QString LitTexte(const QString& chemin);
/// Writes a text whole, as it is: in Windows-1252, or in UTF-8 with its mark when it holds a character
/// outside it. Throws `Erreur`.
void EcritTexte(const QString& chemin, const QString& texte);

} // namespace certificates
