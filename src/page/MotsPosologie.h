#pragma once

#include "page/Police.h"

#include <QList>

namespace page {

/// One word of a posology, its markers read.
struct Mot
{
    QString Mesure;        ///< as the line's measure takes it: short words keep the two blanks put in front
    bool Gras = false;     ///< "*" among the last three characters
    bool Souligne = false; ///< "$"
    bool Italique = false; ///< "£"

    /// What is printed: without leading and trailing blanks.
    QString Imprime() const;
};

/// Splits a posology on the single blank and reads each word's markers. Line breaks stay inside their
/// word; blanks in a row make empty words; an empty text is one empty word.
QList<Mot> MotsPosologie(const QString& posologie);

/// A text's font with the marks of one of its words.
Police StyleDuMot(Police police, const Mot& mot);

} // namespace page
