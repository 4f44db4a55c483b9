#pragma once

#include "medication/Noeud.h"

#include <QList>

namespace medication {

/// Sorts nodes by their text as a French reader does, texts that read the same as they stand; equal ones
/// keep their order.
void Trie(QList<Noeud>& noeuds);

} // namespace medication
