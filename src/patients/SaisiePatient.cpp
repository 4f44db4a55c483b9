#include "patients/SaisiePatient.h"

#include "common/Dates.h"
#include "outside/Horloge.h"
#include "page/Peintres.h"
#include "patients/Patient.h"
#include "patients/TexteSaisie.h"
#include "patients/messages.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace patients {

namespace {

constexpr quint8 kDeLaListe = 1;
constexpr quint8 kDePassage = 2;

/// The entry with the date that counts: a passing patient's text that is no date is dropped.
SaisiePatient AvecDateRetenue(SaisiePatient saisie, quint8 modePatient)
{
    if (modePatient == kDePassage && !common::DateSaisie(saisie.DateNaissance)) {
        saisie.DateNaissance.clear();
    }
    return saisie;
}

void RetientPatient(application::Contexte& contexte, const Fiche& fiche)
{
    Patient& patient = contexte.Patient;
    patient.PrecautionsPatient = fiche.Precautions;
    patient.PatientCourant = fiche.NomPatient;
    patient.DateNaissance = fiche.Datenais;
    patient.AgePatient =
        page::TexteAge(fiche.Datenais, contexte.Reglages.Options, contexte.Dehors.Horloge.Aujourdhui());
    patient.AdressePatient = fiche.Adresse;
    patient.PoidsPatient = fiche.Poids;
}

void NommePassant(Patient& patient, const QString& titre)
{
    patient.NomSeul = patient.PatientCourant;
    patient.PatientCourant = AvecCivilite(titre, patient.NomSeul);
}

/// The name stays as stored while both its parts do: a name with more than one double blank has more
/// parts than the controls show.
QString NomDe(const SaisiePatient& saisie)
{
    const QString& stocke = saisie.Origine.NomPatient;
    const bool inchange = !stocke.isEmpty() && DecoupeNom(stocke) == NomEtPrenom{saisie.Nom, saisie.Prenom};
    return inchange ? stocke : NomComplet(saisie.Nom, saisie.Prenom);
}

} // namespace

SaisiePatient SaisieDe(const Fiche& fiche)
{
    const NomEtPrenom parties = DecoupeNom(fiche.NomPatient);
    return {.Option = OptionDeCivilite(fiche.Titre),
            .Nom = parties.Nom,
            .Prenom = parties.Prenom,
            .DateNaissance = fiche.Datenais,
            .Poids = fiche.Poids,
            .Precautions = SeparePrecautions(fiche.Precautions),
            .Notes = fiche.Notes,
            .Antecedents = fiche.Antecedents,
            .Adresse = fiche.Adresse,
            .Telephone1 = fiche.Telephone1,
            .Telephone2 = fiche.Telephone2,
            .Origine = fiche};
}

Fiche FicheDe(const SaisiePatient& saisie)
{
    const Fiche& origine = saisie.Origine;
    return {.Titre = saisie.Option < 0 ? origine.Titre : MotDeCivilite(saisie.Option),
            .NomPatient = NomDe(saisie),
            .Datenais = saisie.DateNaissance,
            .Poids = saisie.Poids == origine.Poids ? origine.Poids : PoidsSaisi(saisie.Poids),
            .Precautions = JointPrecautions(saisie.Precautions),
            .Notes = saisie.Notes,
            .Antecedents = saisie.Antecedents,
            .Adresse = saisie.Adresse,
            .Telephone1 = saisie.Telephone1,
            .Telephone2 = saisie.Telephone2};
}

std::optional<Refus> Verifie(const SaisiePatient& saisie, quint8 modePatient)
{
    if (saisie.Nom.isEmpty()) {
        return Refus{Champ::Nom, messages::IndiquezNom()};
    }
    if (saisie.Prenom.isEmpty()) {
        return Refus{Champ::Prenom, messages::IndiquezPrenom()};
    }
    if (modePatient == kDeLaListe && !common::DateSaisie(saisie.DateNaissance)) {
        return Refus{Champ::DateNaissance, messages::IndiquezDateNaissance()};
    }
    return std::nullopt;
}

FinDeSaisie TermineSaisie(application::Contexte& contexte, const SaisiePatient& saisie,
                          std::optional<int> indexChange)
{
    const quint8 mode = contexte.Patient.ModePatient;
    if (const auto refus = Verifie(saisie, mode)) {
        return {.Refus = refus};
    }
    const Fiche fiche = FicheDe(AvecDateRetenue(saisie, mode));
    FinDeSaisie fin;
    if (indexChange) {
        fin.Index = *indexChange;
        if (!ChangeFiche(contexte.Bases.Medoc(contexte.Chemins.CheminTravail), *indexChange, fiche)) {
            return {.Refus = Refus{Champ::Aucun, messages::PatientDisparu()}};
        }
    } else if (mode == kDeLaListe) {
        fin.Index = AjouteFiche(contexte.Bases.Medoc(contexte.Chemins.CheminTravail), fiche);
    }
    RetientPatient(contexte, fiche);
    if (!indexChange && mode == kDePassage) {
        NommePassant(contexte.Patient, fiche.Titre);
    }
    return fin;
}

} // namespace patients
