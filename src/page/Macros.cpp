#include "page/Macros.h"

namespace page {

QString AvecMacros(QString mot, const patients::Patient& patient, const QString& nomSignature)
{
    return mot.replace(QLatin1String("<N>"), patient.PatientCourant)
        .replace(QLatin1String("<DN>"), patient.DateNaissance)
        .replace(QLatin1String("<DJ>"), patient.DateOrdo)
        .replace(QLatin1String("<AD>"), patient.AdressePatient)
        .replace(QLatin1String("<DR>"), nomSignature)
        .replace(QLatin1String("<EL>"), QStringLiteral("(Signature électronique)"));
}

} // namespace page
