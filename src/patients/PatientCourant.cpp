#include "patients/PatientCourant.h"

#include "common/Dates.h"
#include "outside/Horloge.h"
#include "page/Peintres.h"
#include "patients/Civilite.h"
#include "patients/Patient.h"
#include "patients/TexteSaisie.h"
#include "patients/messages.h"
#include "prescription/Apercu.h"
#include "prescription/Editeur.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace patients {

void RemplitPatient(Patient& patient, const Fiche& fiche, const QString& entree,
                    const settings::Options& options, const QDate& aujourdhui)
{
    patient.ModePatient = 1;
    patient.PatientCourant = AvecCivilite(fiche.Titre, fiche.NomPatient);
    patient.NomSeul = fiche.NomPatient;
    patient.DateNaissance = fiche.Datenais;
    patient.PoidsPatient = fiche.Poids;
    patient.AgePatient = page::TexteAge(fiche.Datenais, options, aujourdhui);
    patient.PrecautionsPatient = fiche.Precautions;
    patient.AdressePatient = fiche.Adresse;
    patient.MessagePrecautions = ComposePrecautions(entree, fiche.Precautions);
}

bool SelectionnePatient(application::Contexte& contexte, int index, const QString& entree)
{
    const auto fiche = LitFiche(contexte.Bases.Medoc(contexte.Chemins.CheminTravail), index);
    if (!fiche) {
        return false;
    }
    RemplitPatient(contexte.Patient, *fiche, entree, contexte.Reglages.Options,
                   contexte.Dehors.Horloge.Aujourdhui());
    return true;
}

QString TexteLblPatient(const Patient& patient)
{
    if (patient.PoidsPatient == QLatin1String("0")) {
        return patient.AgePatient;
    }
    const QString poids = patient.PoidsPatient + QStringLiteral(" kg");
    return patient.AgePatient.isEmpty() ? poids : poids + QStringLiteral(" - ") + patient.AgePatient;
}

QString ComposePrecautions(const QString& entree, const QString& precautions)
{
    if (precautions.isEmpty()) {
        return {};
    }
    QString message = messages::PrecautionsPour(entree.trimmed());
    for (const QString& precaution : SeparePrecautions(precautions)) {
        message += messages::UnePrecaution(precaution);
    }
    return message;
}

void AnnulePatient(Patient& patient, prescription::Apercu& apercu)
{
    patient.PatientCourant.clear();
    patient.NomSeul.clear();
    patient.AgeSaisi.clear();
    patient.DateNaissance.clear();
    patient.AgePatient.clear();
    patient.DateOrdo.clear();
    patient.PoidsPatient = QStringLiteral("0");
    apercu.ModeApercu = 0;
}

bool ConfirmePatient(application::Contexte& contexte)
{
    contexte.Patient.DateOrdo = common::TexteDate(contexte.Dehors.Horloge.Aujourdhui());
    if (contexte.Apercu.ModeApercu == 1) {
        prescription::EffaceApercu(contexte);
        return false;
    }
    if (contexte.Apercu.ModeApercu != 0) {
        return false;
    }
    prescription::RepeintPatient(contexte);
    if (contexte.Patient.OuvreMedocApres == 1) {
        return true;
    }
    prescription::Repeint(contexte);
    return false;
}

} // namespace patients
