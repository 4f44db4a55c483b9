// The real program over the program directory given, up to FrmChoixBase painted for the first time.
#include "PremierePeinture.h"

#include "application/windows/Application.h"
#include "application/windows/ApplicationQt.h"
#include "application/windows/Style.h"
#include "outside/windows/DehorsQt.h"

#include <memory>

namespace {

/// Waits for a window by its name, then for its first painting.
class Guetteur : public QObject
{
public:
    bool eventFilter(QObject* objet, QEvent* evenement) override
    {
        if (!fin_ && evenement->type() == QEvent::Show &&
            objet->objectName() == QLatin1String("FrmChoixBase")) {
            fin_ = std::make_unique<bench::FinALaPremierePeinture>(qobject_cast<QWidget*>(objet), false);
        }
        return false;
    }

private:
    std::unique_ptr<bench::FinALaPremierePeinture> fin_;
};

} // namespace

int main(int nombre, char** arguments)
{
    application::ApplicationQt boucle(nombre, arguments);
    application::style::Installe(boucle);
    Guetteur guetteur;
    boucle.installEventFilter(&guetteur);
    outside::DehorsQt dehors;
    const QString programme = QString::fromLocal8Bit(arguments[1]);
    application::Application application(dehors.References(), programme, programme);
    QTimer::singleShot(0, &application, [&] { application.Demarre(); });
    return QCoreApplication::exec();
}
