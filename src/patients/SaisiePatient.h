#pragma once

#include "application/Contexte.h"
#include "patients/Civilite.h"
#include "patients/Fiche.h"

#include <QStringList>

namespace patients {

/// What stands in the controls of `FrmNouveauP`.
struct SaisiePatient
{
    int Option = kSansCivilite; ///< of `Opt`, -1 for none
    QString Nom;
    QString Prenom;
    QString DateNaissance;
    QString Poids;
    QStringList Precautions;
    QString Notes;
    QString Antecedents;
    QString Adresse;
    QString Telephone1;
    QString Telephone2;
    /// The row under change: what the controls cannot show of it and nobody touched stays as stored.
    Fiche Origine;
};

/// The controls for a stored row.
SaisiePatient SaisieDe(const Fiche& fiche);

/// The row for the controls.
Fiche FicheDe(const SaisiePatient& saisie);

enum class Champ { Aucun, Nom, Prenom, DateNaissance };

/// A refused entry: what to say, where the focus goes.
struct Refus
{
    Champ Controle = Champ::Aucun;
    QString Message;
};

/// The first rule that the entry breaks. A date is compulsory with `modePatient` 1 alone.
std::optional<Refus> Verifie(const SaisiePatient& saisie, quint8 modePatient);

/// How an entry ended: refused, or stored under a key (`Index`), or taken for a passing patient (0).
struct FinDeSaisie
{
    std::optional<patients::Refus> Refus;
    int Index = 0;
};

/// Checks the entry, stores it and makes it the current patient. With `indexChange` that row is changed;
/// otherwise `ModePatient` 1 adds a row and 2 stores nothing. A refusal changes nothing, and so does a
/// failure, which throws `Erreur`.
FinDeSaisie TermineSaisie(application::Contexte& contexte, const SaisiePatient& saisie,
                          std::optional<int> indexChange);

} // namespace patients
