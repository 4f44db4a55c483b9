#pragma once

#include <QDateTime>

namespace outside {

/// The wall clock.
class Horloge
{
public:
    virtual ~Horloge() = default;
    virtual QDateTime Maintenant() const = 0;
    QDate Aujourdhui() const { return Maintenant().date(); }
};

} // namespace outside
