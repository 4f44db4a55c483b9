#pragma once

#include "outside/Horloge.h"

namespace outside {

class HorlogeSysteme : public Horloge
{
public:
    QDateTime Maintenant() const override;
    void Dans(int ms, QObject* contexte, std::function<void()> suite) override;
};

} // namespace outside
