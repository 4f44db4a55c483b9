#pragma once

#include <QString>
#include <optional>

namespace storage {
class Base;
}

namespace patients {

/// One row of `Patients` but its key, columns 1 to 10 in their order. A null reads as the empty text.
struct Fiche
{
    QString Titre;
    QString NomPatient;
    QString Datenais;
    QString Poids = QStringLiteral("0");
    QString Precautions;
    QString Notes;
    QString Antecedents;
    QString Adresse;
    QString Telephone1;
    QString Telephone2;
    bool operator==(const Fiche&) const = default;
};

/// The row of a key; nothing when it is gone. An absent weight reads as "0". Throws `Erreur`.
std::optional<Fiche> LitFiche(storage::Base& medoc, int index);

/// Adds a row and gives its key. Throws `Erreur`; nothing is stored then.
int AjouteFiche(storage::Base& medoc, const Fiche& fiche);

/// Changes columns 1 to 10 of the row; false when it is gone. Throws `Erreur`; the row then stays as it was.
bool ChangeFiche(storage::Base& medoc, int index, const Fiche& fiche);

/// Deletes the row, and the memorised prescriptions of `patientCourant` born on `dateNaissance`, all or
/// nothing. Models for all patients stay. Throws `Erreur`.
void SupprimeFiche(storage::Base& medoc, int index, const QString& patientCourant,
                   const QString& dateNaissance);

} // namespace patients
