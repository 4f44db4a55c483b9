#pragma once

#include "outside/Imprimantes.h"

#include <QDateTime>

namespace outside {

class Boites;
class Horloge;
class Lanceur;

/// The file that a job of that time is written to: "2026-11-20 14-05 MARTIN Paul.pdf", with " (2)" and so
/// on behind it while such a file exists. What cannot stand in a file name becomes a blank.
QString CheminDuPdf(const Travail& travail, const QDateTime& maintenant);

/// Writes a job as a PDF file, whole or not at all: A4 portrait, fonts embedded, the job's title in it.
/// Throws `Erreur`.
void EcritPdf(const Travail& travail, const QString& chemin);

/// What the printer "Fichier PDF" does: writes the job and opens it with the system's viewer; a file
/// that nothing opens is named in a message. Gives the file's path. Throws `Erreur`.
QString ImprimeEnPdf(const Travail& travail, const Horloge& horloge, Lanceur& lanceur, Boites& boites);

} // namespace outside
