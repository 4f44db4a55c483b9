#pragma once

#include <QString>
#include <functional>

namespace outside {

/// The icon beside the clock.
class Plateau
{
public:
    enum class Clic { Gauche, Droit };

    virtual ~Plateau() = default;

    /// Whether the desktop has a place for such icons. Without one nothing hides itself there.
    virtual bool Present() const = 0;
    virtual void Ajoute(const QString& bulle) = 0;
    virtual void Retire() = 0;
    /// The one receiver of the clicks; an empty function takes it off.
    virtual void Ecoute(std::function<void(Clic)> receveur) = 0;
};

} // namespace outside
