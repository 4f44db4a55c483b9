#pragma once

#include "certificates/Texte.h"
#include "common/Fichiers.h"
#include "storage/Schema.h"
#include "support/Monde.h"

/// A doctor at work: his directory and database, a patient, one printer confirmed.
struct Cabinet : support::Monde
{
    Cabinet()
    {
        common::CreeDossier(Etat.Chemins.CheminTravail);
        PoseMedecin();
        storage::CreeBase(common::Joint(Etat.Chemins.CheminMedecin, QStringLiteral("Ordo.mdb")),
                          storage::GenreBase::Ordo);
        Etat.Medecins.NomMedecinSignature = QStringLiteral("Docteur NEIBRE");
        Etat.Reglages.Options.Imprimante = QStringLiteral("Bureau");
        Etat.Impression.EtatImprimante = 2;
        Etat.Patient.PatientCourant = QStringLiteral("Monsieur  MARTIN  Paul");
        Etat.Patient.NomSeul = QStringLiteral("MARTIN  Paul");
        Etat.Patient.DateNaissance = QStringLiteral("20/03/1953");
        Etat.Patient.ModePatient = 1;
        Etat.Patient.DateOrdo = QStringLiteral("20/11/2026");
    }

    /// Adds a medication to the first zone.
    void Prescrit(const QString& titre, const QString& posologie = QStringLiteral("1 matin"))
    {
        Etat.Ordonnance.OrdoZone1.append({titre, posologie});
        Etat.Ordonnance.LstChoix1.Ajoute(
            {QStringLiteral("  ") + titre, static_cast<int>(Etat.Ordonnance.OrdoZone1.size()) - 1});
    }

    /// Hands a certificate's text over to the page.
    void PoseCertificat(const QString& texte)
    {
        common::CreeDossier(certificates::CheminCertificats(Etat.Chemins.CheminTravail));
        certificates::EcritTexte(certificates::CheminTmp(Etat.Chemins.CheminTravail), texte);
        Etat.Apercu.ModeApercu = 1;
    }

    /// Enough lines for the body to run past the sheet.
    void Deborde()
    {
        for (int ligne = 0; ligne < 40; ++ligne) {
            Prescrit(QStringLiteral("MEDICAMENT %1").arg(ligne));
        }
    }
};
