#pragma once

#include "patients/Patient.h"

namespace page {

/// One word of a certificate, its macros replaced in the order "<N>", "<DN>", "<DJ>", "<AD>", "<DR>", "<EL>".
/// An address may bring several lines.
QString AvecMacros(QString mot, const patients::Patient& patient, const QString& nomSignature);

} // namespace page
