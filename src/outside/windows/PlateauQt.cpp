#include "outside/windows/PlateauQt.h"

#include <QApplication>

namespace outside {

bool PlateauQt::Present() const
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void PlateauQt::Ajoute(const QString& bulle)
{
    icone_ = std::make_unique<QSystemTrayIcon>(QApplication::windowIcon());
    icone_->setToolTip(bulle);
    QObject::connect(icone_.get(), &QSystemTrayIcon::activated, icone_.get(),
                     [this](QSystemTrayIcon::ActivationReason raison) { Recoit(raison); });
    icone_->show();
}

void PlateauQt::Retire()
{
    if (icone_) {
        icone_->hide();
        // A click on the icon's own menu may be what removes it.
        icone_.release()->deleteLater();
    }
}

void PlateauQt::Ecoute(std::function<void(Clic)> receveur)
{
    receveur_ = std::move(receveur);
}

void PlateauQt::Recoit(QSystemTrayIcon::ActivationReason raison)
{
    if (!receveur_) {
        return;
    }
    if (raison == QSystemTrayIcon::Trigger) {
        receveur_(Clic::Gauche);
    } else if (raison == QSystemTrayIcon::Context) {
        receveur_(Clic::Droit);
    }
}

} // namespace outside
