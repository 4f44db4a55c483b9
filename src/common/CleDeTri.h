#pragma once

#include <QString>
#include <QStringView>
#include <compare>

namespace common {

/// How a French reader sorts names: accents and case count for nothing, "œ" reads as "oe"; a blank comes
/// before a hyphen, and both before the letters.
std::strong_ordering CompareReplie(QStringView a, QStringView b);

/// What a text gives to a sort and to a search, in a few numbers.
struct CleDeTri
{
    quint64 Repliee = 0;    ///< grows with the folded text, as far as its first letters tell
    quint64 Suite = 0;      ///< the same for the letters behind; when both are equal `CompareReplie` decides
    quint64 FinRepliee = 0; ///< the greatest `Repliee` of the texts that begin with this one
    quint64 Majuscule = 0;  ///< the first eight characters in upper case, accents kept
    quint64 Masque = 0;     ///< the bytes of `Majuscule` that this text fills
};

CleDeTri Cle(QStringView texte);

/// The letters that a text is sorted as: without accents and in upper case, "œ" as "OE".
QString Replie(QStringView texte);

/// A single character in upper case; the length of a text never changes by it.
inline QChar Majuscule(QChar c)
{
    return c.unicode() < 0x80 ? (c >= u'a' && c <= u'z' ? QChar(c.unicode() - 0x20) : c) : c.toUpper();
}

/// The text without the blanks around it; what `trimmed` gives, quicker where there are none.
inline QStringView SansBlancs(QStringView texte)
{
    const auto lettre = [](QChar c) { return c > u' ' && c.unicode() < 0x7F; };
    return !texte.isEmpty() && lettre(texte.front()) && lettre(texte.back()) ? texte : texte.trimmed();
}

/// True when the text begins with the other one, both in upper case. Accents are significant.
bool CommencePar(QStringView texte, QStringView debut);

} // namespace common
