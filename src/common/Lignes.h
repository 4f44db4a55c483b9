#pragma once

#include <QStringList>

namespace common {

/// The parts of a text between its line ends: CR LF, LF and CR part them. At least one.
QStringList PartiesDeTexte(const QString& texte);

/// The lines as a reader of text files gives them: a line end at the end of the text begins none.
QStringList LignesDeTexte(const QString& texte);

} // namespace common
