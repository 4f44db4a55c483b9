#pragma once

#include <QDateTime>
#include <QObject>
#include <functional>

namespace outside {

/// The wall clock.
class Horloge
{
public:
    virtual ~Horloge() = default;
    virtual QDateTime Maintenant() const = 0;
    QDate Aujourdhui() const { return Maintenant().date(); }
    /// Runs `suite` from the event loop after that many milliseconds, unless `contexte` is deleted before.
    virtual void Dans(int ms, QObject* contexte, std::function<void()> suite) = 0;
};

} // namespace outside
