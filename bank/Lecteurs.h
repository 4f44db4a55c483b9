#pragma once

#include "bank/Fiches.h"
#include "bank/LecteurLignes.h"

#include <QStringList>

namespace banque {

/// Why a line is refused, or what was put right in it.
struct Motifs
{
    QString Refus;
    QStringList Corrections;
};

/// Each reads one line of its file into a record; false when the line is refused, with the reason. A value
/// that cannot be read and can be missed is left empty, and said.
bool Lit(const Ligne& ligne, Specialite& fiche, Motifs& motifs);
bool Lit(const Ligne& ligne, Presentation& fiche, Motifs& motifs);
bool Lit(const Ligne& ligne, Composant& fiche, Motifs& motifs);
bool Lit(const Ligne& ligne, Membre& fiche, Motifs& motifs);
bool Lit(const Ligne& ligne, Condition& fiche, Motifs& motifs);
bool Lit(const Ligne& ligne, Disponibilite& fiche, Motifs& motifs);
bool Lit(const Ligne& ligne, Mitm& fiche, Motifs& motifs);
bool Lit(const Ligne& ligne, LienAvis& fiche, Motifs& motifs);
bool Lit(const Ligne& ligne, Avis& fiche, Motifs& motifs);

} // namespace banque
