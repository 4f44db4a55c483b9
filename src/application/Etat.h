#pragma once

#include "application/Contexte.h"
#include "application/Signaux.h"
#include "certificates/Certificat.h"
#include "drugbank/Banque.h"
#include "drugbank/Seance.h"
#include "medication/Choix.h"
#include "patients/Patient.h"
#include "prescription/Apercu.h"
#include "prescription/Ordonnance.h"
#include "settings/Reglages.h"
#include "startup/Chemins.h"
#include "startup/Medecins.h"
#include "storage/Bases.h"

namespace application {

/// The whole state of a run. `Application` owns one; a test builds a fresh one in a line.
struct Etat
{
    startup::Chemins Chemins;
    startup::Medecins Medecins;
    patients::Patient Patient;
    prescription::Ordonnance Ordonnance;
    prescription::Apercu Apercu;
    prescription::Impression Impression;
    settings::Reglages Reglages;
    drugbank::Banque Banque;
    drugbank::Seance Seance;
    certificates::Certificat Certificat;
    medication::Choix Choix;
    storage::Bases Bases;
    application::Signaux Signaux;

    /// References to all of it, with the outer edge in use.
    application::Contexte Contexte(const Dehors& dehors)
    {
        return {Chemins, Medecins, Patient,    Ordonnance, Apercu, Impression, Reglages,
                Banque,  Seance,   Certificat, Choix,      Bases,  dehors,     Signaux};
    }
};

} // namespace application
