#include "page/FeuilleEssai.h"

#include "common/Dates.h"

namespace page {

namespace {

void AjouteEssai(prescription::Ordonnance& ordonnance, const QString& titre, const QString& posologie)
{
    ordonnance.LstChoix1.Ajoute({QStringLiteral("  ") + titre + QString(100, u' ') + QLatin1Char('1'),
                                 static_cast<int>(ordonnance.OrdoZone1.size())});
    ordonnance.OrdoZone1.append({titre, posologie});
    ++ordonnance.NbMedZone1;
}

patients::Patient PatientEssai(const settings::Options& options, const QDate& aujourdhui)
{
    patients::Patient patient;
    patient.PatientCourant = QStringLiteral("Madame  MARTIN  Jeanne");
    patient.NomSeul = QStringLiteral("MARTIN  Jeanne");
    patient.DateNaissance = QStringLiteral("14/07/1958");
    patient.PoidsPatient = QStringLiteral("62");
    patient.AgePatient = TexteAge(patient.DateNaissance, options, aujourdhui);
    patient.DateOrdo = common::TexteDate(aujourdhui);
    patient.ModePatient = 1;
    return patient;
}

} // namespace

Dessin FeuilleEssai(const settings::Reglages& reglages, const QList<LigneEntete>& entete, const QImage& logo,
                    const QDate& aujourdhui, outside::Boites& boites)
{
    patients::Patient patient = PatientEssai(reglages.Options, aujourdhui);
    prescription::Ordonnance ordonnance;
    AjouteEssai(ordonnance, QStringLiteral("BIRODOGYL cp pelliculé : B/10"),
                QStringLiteral("1 comprimé matin, midi et soir"));
    AjouteEssai(ordonnance, QStringLiteral("EFFERALGAN CODEINE cp efferv séc : 2T/8"),
                QStringLiteral("2 comprimés matin, midi et soir"));
    Modele modele{.Patient = patient,
                  .Ordonnance = ordonnance,
                  .Reglages = reglages,
                  .Entete = entete,
                  .Aujourdhui = aujourdhui};
    Surface cible(Cible::Imprimante);
    cible.ForeColor(reglages.Look.CouleurEntete);
    PeintEntete(cible, modele, logo);
    PeintPatient(cible, modele, boites);
    PeintOrdo(cible, modele);
    return cible.Resultat();
}

} // namespace page
