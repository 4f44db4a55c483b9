#include "Rapport.h"
#include "Soin.h"
#include "messages.h"
#include "windows/FrmUtile.h"

#include "application/windows/Style.h"
#include "outside/windows/HorlogeSysteme.h"
#include "startup/Installation.h"

#include <QApplication>

#include <cstdio>

namespace {

/// Windows and a started server have a display always; elsewhere the environment tells.
bool SansEcran()
{
#ifdef Q_OS_UNIX
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return false;
#endif
}

void Ecrit(const QString& texte, FILE* sortie = stdout)
{
    std::fputs(texte.toUtf8().constData(), sortie);
    std::fflush(sortie);
}

QList<utile::Arbre> Arbres()
{
    return utile::TrouveArbres(startup::TrouveInstallation(QCoreApplication::applicationDirPath()),
                               utile::Volumes());
}

int FaitLeRapport(int nombre, char** arguments)
{
    const QCoreApplication programme(nombre, arguments);
    const QList<utile::Arbre> arbres = Arbres();
    QList<utile::Bilan> bilans;
    utile::SoigneTout(
        utile::BasesDe(arbres), outside::HorlogeSysteme().Maintenant(), [](int) { return true; },
        [&](int, const utile::Bilan& bilan) { bilans.append(bilan); });
    Ecrit(utile::Rapport(arbres, bilans));
    return utile::CodeDe(arbres, bilans);
}

int MontreLaFenetre(int nombre, char** arguments)
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    application::style::ParleFrancais();
    const QApplication programme(nombre, arguments);
    application::style::Installe(*qApp);
    outside::HorlogeSysteme horloge;
    utile::FrmUtile fenetre(Arbres(), horloge);
    fenetre.show();
    return QApplication::exec();
}

} // namespace

int main(int nombre, char** arguments)
{
    const bool demande = nombre == 2 && qstrcmp(arguments[1], "--rapport") == 0;
    if (nombre > 1 && !demande) {
        Ecrit(utile::messages::Usage() + u'\n', stderr);
        return utile::kSansDonnees;
    }
    return demande || SansEcran() ? FaitLeRapport(nombre, arguments) : MontreLaFenetre(nombre, arguments);
}
