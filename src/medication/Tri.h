#pragma once

#include "medication/Noeud.h"

#include <QList>
#include <QString>

namespace medication {

/// Each character in its capital, one for one.
QString Capitales(QStringView texte);

/// The key of the alphabetical order: capitals without accents, "Œ" as "OE".
/// The key of a text begins with the key of each beginning of the text.
QString CleTri(QStringView texte);

/// Sorts nodes by their text: by `CleTri`, then by the text as it stands; equal ones keep their order.
void Trie(QList<Noeud>& noeuds);

} // namespace medication
