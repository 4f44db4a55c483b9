#pragma once

#include "certificates/Certificat.h"
#include "outside/Boites.h"
#include "page/LignesEntete.h"
#include "page/Surface.h"
#include "patients/Patient.h"
#include "prescription/Ordonnance.h"
#include "settings/Reglages.h"

#include <QDate>

namespace page {

/// What the painters read and change. Plain references, so that a test paints from fresh structs.
struct Modele
{
    patients::Patient& Patient; ///< `PeintPatient` changes `ModePatient`, `AgeSaisi`, `DateNaissance`
    prescription::Ordonnance& Ordonnance; ///< `PeintOrdo` rebuilds `LigneJournal`
    const settings::Reglages& Reglages;
    const QList<LigneEntete>& Entete;
    QDate Aujourdhui;
    quint8 ModeApercu = 0;
    bool AvecTravail = true; ///< `CheminTravail` is not empty: the footer is drawn
    bool AvecMedecin = true; ///< `CheminMedecin` is not empty: the main window shows a header
};

/// The doctor's letterhead: 22 rows and the logo.
void PeintEntete(Surface& cible, const Modele& modele, const QImage& logo);

/// The patient block. Leaves the pen under the date line. May ask once for a passing patient's age.
void PeintPatient(Surface& cible, Modele& modele, outside::Boites& boites);

/// Body, count box, footer and journal line; with `ModeApercu` 1 only footer and journal line.
void PeintOrdo(Surface& cible, Modele& modele);

/// What the page of a certificate needs beside the model.
struct TexteCertificat
{
    const certificates::Certificat& Certificat; ///< shift, patient block and the zone headings' font
    QString Texte;                              ///< of "Tmp.txt", any line ends
    QString& TxtSLP;                            ///< the painting puts "0" in an empty one
};

/// A certificate with its macros replaced, below the patient block if it bears one.
void PeintCertificat(Surface& cible, Modele& modele, const TexteCertificat& certificat,
                     outside::Boites& boites);

/// The ruler in centimetres above the preview.
void PeintRegle(Surface& cible);

/// A graded background from one colour to the other, in lines of one pixel. `debut` and `fin` are the
/// pixels left out at both ends.
void PeintFond(Surface& cible, int rouge1, int vert1, int bleu1, int rouge2, int vert2, int bleu2, int debut,
               int fin, bool vertical);

/// The text of the age line from a birth date as typed; see `AfficheAge` and `AfficheDDN`.
QString TexteAge(const QString& date, const settings::Options& options, const QDate& aujourdhui);

/// How many printed lines of the body lie below the footer's line or the sheet's end; 0 when all is well.
int LignesPerdues(const Dessin& dessin, const settings::Reglages& reglages);

} // namespace page
