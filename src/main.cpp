#include "application/windows/Application.h"
#include "application/windows/ApplicationQt.h"
#include "application/windows/Style.h"
#include "common/Erreur.h"
#include "outside/windows/DehorsQt.h"
#include "startup/Installation.h"

#include <QTimer>

int main(int nombre, char** arguments)
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    application::style::ParleFrancais();
    application::ApplicationQt boucle(nombre, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    application::style::Installe(boucle);

    outside::DehorsQt dehors;
    try {
        const QString programme = QCoreApplication::applicationDirPath();
        application::Application application(dehors.References(), programme,
                                             startup::PrepareInstallation(programme));
        QObject::connect(&application, &application::Application::Termine, &boucle,
                         [] { QCoreApplication::exit(); });
        boucle.SurErreur(
            [&](const QString& phrase, const QString& lieu) { application.ArretSurErreur(phrase, lieu); });
        QTimer::singleShot(0, &application, [&] { application.Demarre(); });
        return QCoreApplication::exec();
    } catch (const common::Erreur& erreur) {
        dehors.Boites.Stop(erreur.Phrase() + QLatin1Char('\n') + erreur.Lieu());
        return 1;
    }
}
