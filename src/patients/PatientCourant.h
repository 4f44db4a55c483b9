#pragma once

#include "application/Contexte.h"
#include "patients/Fiche.h"

#include <QDate>

namespace settings {
struct Options;
}

namespace patients {

/// Makes a stored row the current patient, with the message on his precautions. `entree` is the text of
/// his entry in the list.
void RemplitPatient(Patient& patient, const Fiche& fiche, const QString& entree,
                    const settings::Options& options, const QDate& aujourdhui);

/// The same for the row of that key. False when it is gone: nothing changes then. Throws `Erreur`.
bool SelectionnePatient(application::Contexte& contexte, int index, const QString& entree);

/// What `LblPatient` shows: weight and age, as far as they are known.
QString TexteLblPatient(const Patient& patient);

/// What is to be told before a prescription; empty without precautions.
QString ComposePrecautions(const QString& entree, const QString& precautions);

/// No patient is in hand any more, and the preview is a prescription's.
void AnnulePatient(Patient& patient, prescription::Apercu& apercu);

/// A patient of the list, or a passing one, is confirmed: dates the document and paints the preview. True
/// when the choice of medications comes next, as `OuvreMedocApres` asks. Painting may ask once for a passing
/// patient's age.
bool ConfirmePatient(application::Contexte& contexte);

} // namespace patients
