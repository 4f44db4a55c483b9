#pragma once

#include <QString>
#include <array>

namespace patients {

/// One choice of `Opt(0)` to `Opt(5)`: the word that is stored, the abbreviation
/// beside the button with its Alt letter.
struct Civilite
{
    const char16_t* Mot;
    const char16_t* Libelle;
};

constexpr std::array<Civilite, 6> kCivilites = {{{u"Monsieur", u"&M."},
                                                 {u"Madame", u"Mm&e"},
                                                 {u"Mademoiselle", u"Ml&le"},
                                                 {u"Enfant", u"En&fant"},
                                                 {u"Nourrisson", u"Nou&rrisson"},
                                                 {u"", u"Pas de &civilité"}}};
constexpr int kSansCivilite = 5;

/// The option of a stored word; -1 for a word that no option has.
int OptionDeCivilite(const QString& titre);

/// The word of an option; empty for "Pas de civilité" and for no option.
QString MotDeCivilite(int option);

/// The word, two blanks and the name; the name alone without a word.
QString AvecCivilite(const QString& titre, const QString& nom);

} // namespace patients
