#pragma once

#include <QString>

namespace certificates {

/// What one shift adds to `DecalageCertif`, in millimetres; the text moves by two blanks.
constexpr double kPasDeDecalage = 2;

/// `CmdDecD`: two blanks before each line of the text, a CR LF behind each.
QString DecaleADroite(const QString& texte);

/// True when every line that is not empty begins with two blanks.
bool PeutDecalerAGauche(const QString& texte);

/// `CmdDecG`: the text without the first two characters of each line, a CR LF behind each.
QString DecaleAGauche(const QString& texte);

} // namespace certificates
