#pragma once

#include "bank/Thesaurus.h"

#include <optional>

namespace banque {

/// The level column of an interaction: one level, or the short names of several.
struct NiveauxLus
{
    Niveau Plus = Niveau::APrendreEnCompte; ///< the highest
    bool Plusieurs = false;
};

/// The level that a text names, and nothing besides it.
std::optional<NiveauxLus> LitNiveaux(QStringView texte);

/// The names of the levels, the highest first, as a doctor reads them: "Contre-indication - A prendre en
/// compte".
QString NomsDesNiveaux(QStringView texte);

/// Where the level stands at the end of a line of two columns; -1 when the line has none.
qsizetype ColonneDuNiveau(const QString& ligne);

/// The lines of one column as running text: a hyphen at a line's end stays and nothing follows it, items of a
/// list and paragraphs begin a line of their own. Blank lines around are dropped.
QString TexteDeColonne(const QStringList& lignes);

/// The members of a list "(a, b (c de), d)"; a bracket that is never closed ends with the text.
QStringList MembresDeListe(const QString& texte);

/// The edition that the cover names, as "septembre 2023"; empty without one.
QString EditionDeCouverture(const QString& texte);

/// The paragraph of the cover that says which interactions local routes have; empty without one.
QString VoiesLocalesDeCouverture(const QString& texte);

} // namespace banque
