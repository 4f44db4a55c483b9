#pragma once

#include <QGuiApplication>

namespace application {

/// The busy pointer as long as it lives.
struct Sablier
{
    Sablier() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Sablier() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(Sablier)
};

} // namespace application
