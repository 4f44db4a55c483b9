#pragma once

#include "outside/Horloge.h"

namespace outside {

class HorlogeSysteme : public Horloge
{
public:
    QDateTime Maintenant() const override;
};

} // namespace outside
