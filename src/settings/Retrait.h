#pragma once

#include <QString>

namespace settings {

/// The keys that act on a row's indentation; every other one is the text's.
enum class ToucheDeRang { Espace, Retour, Suppr, Autre };

/// Where the keyboard stands in a row of the letterhead.
struct PlaceDansRang
{
    QString TexteAvant;      ///< the text left of the caret, or of what is selected
    bool Selection = false;  ///< some text is selected
    qint16 EspacesLigne = 0; ///< the row's indentation so far
};

/// What a key does there.
struct EffetDeTouche
{
    qint16 EspacesLigne = 0;
    bool Retenue = false; ///< the text does not get the key
    bool operator==(const EffetDeTouche&) const = default;
};

/// The indentation is a count kept apart from the text. At the row's head, with nothing but blanks left of
/// the caret, a blank adds 1 to it and does not reach the text, a backspace takes 1 away while there is one,
/// and Delete does nothing unless text is selected. Anywhere else the text gets the key.
EffetDeTouche FrappeDansRang(ToucheDeRang touche, const PlaceDansRang& place);

} // namespace settings
