#pragma once

#include <QByteArrayView>
#include <QString>

namespace storage {

/// The first bytes of every file of the database engine.
constexpr QByteArrayView kMarqueDuMoteur("SQLite format 3", 16);

/// Whether the file is one of the database engine, by its first bytes. They are asked of the engine, not
/// read here: a program that closes a file which it has open as a database too loses the locks on it, where
/// the system counts them by program. False when it cannot be opened. Safe from every thread.
bool EstUneBase(const QString& chemin);

} // namespace storage
