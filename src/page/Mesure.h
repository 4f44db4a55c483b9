#pragma once

#include "page/Police.h"

#include <QFont>
#include <QStringList>

namespace page {

/// The one measure of every text, in millimetres: taken at 1200 dpi without hinting, kerning or shaping,
/// so that a text's width is the sum of its characters' and the same on every target.

/// Width of a text in a font; of several lines, that of the widest.
double MesureLargeur(const QString& texte, const Police& police);

/// Advance of one character. A control character takes the room of a blank; one that the font lacks
/// is measured in the font that stands in for it.
double MesureAvance(char32_t caractere, const Police& police);

/// Height of a line in a font: ascent and descent.
double MesureHauteur(const Police& police);

/// From the top of a line to its baseline.
double MesureAscendante(const Police& police);

/// From the baseline down to the top of the underline, and the underline's thickness.
struct Soulignement
{
    double Distance = 0;
    double Epaisseur = 0;
};
Soulignement MesureSoulignement(const Police& police);

/// The font as Qt knows it, with everything switched off that would move a character. Its size is in
/// points; `facteur` multiplies it.
QFont PoliceQt(const Police& police, double facteur = 1);

} // namespace page
