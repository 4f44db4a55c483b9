#pragma once

#include <QString>

namespace patients {

/// The current patient, as every window and painter reads it.
struct Patient
{
    QString PatientCourant; ///< civility, two blanks, name; the name alone without civility
    QString NomSeul;
    QString DateNaissance; ///< as typed
    QString AgePatient;
    QString PoidsPatient = QStringLiteral("0");
    QString PrecautionsPatient; ///< joined by "*"
    QString AdressePatient;
    QString DateOrdo; ///< jj/mm/aaaa; empty: no date is printed
    QString MessagePrecautions;
    QString AgeSaisi;           ///< what was typed for the age of a passing patient
    quint8 OuvreMedocApres = 0; ///< 1: a new prescription starts, the medications follow the patient
    quint8 ModePatient = 0;     ///< 1 of the list or new, 2 passing, 3 entry left or age asked
};

} // namespace patients
