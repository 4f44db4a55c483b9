#pragma once

#include <QByteArray>
#include <QStringView>

namespace banque::bibliotheque {

/// The text in Windows-1252. What that set lacks is written out ("≥" as ">=", "α" as "alpha") or loses its
/// accent ("ő" as "o"); what nothing stands for becomes '?'.
QByteArray EnWindows1252(QStringView texte);

} // namespace banque::bibliotheque
