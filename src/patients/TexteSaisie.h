#pragma once

#include <QString>
#include <QStringList>

namespace patients {

/// Both parts of a stored name.
struct NomEtPrenom
{
    QString Nom;
    QString Prenom;
    bool operator==(const NomEtPrenom&) const = default;
};

/// The first character in upper case, the rest as typed.
QString PremiereMajuscule(const QString& texte);

/// A telephone number in pairs, "06 12 34 56 78", filled with zeros on the left up to ten digits. A text
/// with anything but digits stays as it is; digits beyond ten stay in front.
QString MasqueTelephone(const QString& texte);

/// The weight that a text stands for, in kg as a text: "0" when it is empty, its numeric prefix otherwise.
QString PoidsSaisi(const QString& texte);

/// Surname, two blanks, first name; in each, two blanks become one, left to right in one pass.
QString NomComplet(const QString& nom, const QString& prenom);

/// Parts 0 and 1 of a name split at two blanks; the first name is empty when there is no part 1.
NomEtPrenom DecoupeNom(const QString& nomPatient);

/// The precautions as they are stored: joined by "*", none at the end.
QString JointPrecautions(const QStringList& precautions);
QStringList SeparePrecautions(const QString& precautions);

} // namespace patients
