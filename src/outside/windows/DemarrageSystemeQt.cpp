#include "outside/windows/DemarrageSystemeQt.h"

#include "common/Fichiers.h"
#include "common/Tolere.h"

#include <QSettings>
#include <QStandardPaths>

namespace outside {

namespace {

#ifdef Q_OS_WIN

constexpr QLatin1String kRuches[] = {QLatin1String("HKEY_LOCAL_MACHINE"), QLatin1String("HKEY_CURRENT_USER")};

QSettings CleDemarrage(QLatin1String ruche)
{
    return {ruche + QLatin1String("\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"),
            QSettings::NativeFormat};
}

bool Ecrit(QLatin1String ruche, const QString& programme)
{
    QSettings cle = CleDemarrage(ruche);
    cle.setValue(QStringLiteral("Scriptelle"), QStringLiteral("\"%1\"").arg(programme));
    cle.sync();
    return cle.status() == QSettings::NoError;
}

#else

QString DossierDemarrage()
{
    return common::Joint(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                         QStringLiteral("autostart"));
}

QString FichierDemarrage()
{
    return common::Joint(DossierDemarrage(), QStringLiteral("Scriptelle.desktop"));
}

#endif

} // namespace

QString EntreeDeDemarrage(const QString& programme)
{
    QString commande;
    for (const QChar caractere : programme) {
        if (caractere == QLatin1Char('%')) {
            commande += QLatin1String("%%");
        } else if (caractere == QLatin1Char('\\')) {
            commande += QLatin1String("\\\\\\\\"); // escaped once for the quotes, once for the value
        } else if (QStringLiteral("\"`$").contains(caractere)) {
            commande += QLatin1String("\\\\") + caractere;
        } else {
            commande += caractere;
        }
    }
    return QStringLiteral("[Desktop Entry]\nType=Application\nName=Scriptelle\nExec=\"%1\"\n").arg(commande);
}

#ifdef Q_OS_WIN

void DemarrageSystemeQt::Active(const QString& programme)
{
    // The machine's key needs rights that a doctor's account seldom has; his own key serves as well.
    for (const QLatin1String ruche : kRuches) {
        if (Ecrit(ruche, programme)) {
            return;
        }
    }
}

void DemarrageSystemeQt::Desactive()
{
    for (const QLatin1String ruche : kRuches) {
        CleDemarrage(ruche).remove(QStringLiteral("Scriptelle"));
    }
}

#else

void DemarrageSystemeQt::Active(const QString&)
{
    // Start with the desktop is a comfort: its failure is not worth a message.
    common::Tolere([&] {
        common::CreeDossier(DossierDemarrage());
        common::EcritFichier(FichierDemarrage(), EntreeDeDemarrage(programmeEnCours_).toUtf8());
    });
}

void DemarrageSystemeQt::Desactive()
{
    // As above.
    common::Tolere([] { common::SupprimeFichier(FichierDemarrage()); });
}

#endif

} // namespace outside
