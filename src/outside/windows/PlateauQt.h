#pragma once

#include "outside/Plateau.h"

#include <QSystemTrayIcon>
#include <memory>

namespace outside {

/// The system's tray. The icon is the program's own.
class PlateauQt : public Plateau
{
public:
    bool Present() const override;
    void Ajoute(const QString& bulle) override;
    void Retire() override;
    void Ecoute(std::function<void(Clic)> receveur) override;

private:
    void Recoit(QSystemTrayIcon::ActivationReason raison);

    std::unique_ptr<QSystemTrayIcon> icone_;
    std::function<void(Clic)> receveur_;
};

} // namespace outside
