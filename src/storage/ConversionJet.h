#pragma once

#include "storage/Genre.h"

#include <QString>

namespace storage {

class SuiviConversion;

/// "scriptelle-jet" beside the running program.
QString CheminLecteurJet();

/// How a conversion goes about.
struct ReglagesConversion
{
    QString Lecteur = CheminLecteurJet();
    int SilenceMax = 30 * 1000;  ///< milliseconds without a row before the reader is given up
    int AttenteMax = 120 * 1000; ///< milliseconds for another station's conversion to end
    SuiviConversion* Suivi = nullptr;
};

/// Turns the Jet 3 or Jet 4 file at that path into a database of ours with all its tables and columns that a
/// layout of ours knows: of the current layout, or marked as of an older one. The former file stays beside as
/// "NAME (Jet).mdb"; the new one takes its name when it is whole. A file of another kind, or none, is left
/// alone. Events are delivered meanwhile. Throws `Erreur`, `RefusJet` when a repetition would end the same;
/// nothing is changed then.
void ConvertitSiJet(const QString& chemin, GenreBase genre, const ReglagesConversion& reglages = {});

} // namespace storage
