#pragma once

#include <QtGlobal>

namespace outside {

/// What closes a line of a text file in the system's manner.
#ifdef Q_OS_WIN
inline constexpr char kFinDeLigne[] = "\r\n";
#else
inline constexpr char kFinDeLigne[] = "\n";
#endif

} // namespace outside
