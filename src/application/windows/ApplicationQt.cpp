#include "application/windows/ApplicationQt.h"

#include "application/messages.h"
#include "common/Erreur.h"

#include <utility>

namespace application {

bool ApplicationQt::notify(QObject* objet, QEvent* evenement)
{
    try {
        return QApplication::notify(objet, evenement);
    } catch (const common::Erreur& erreur) {
        Recoit(erreur.Phrase(), erreur.Lieu());
    } catch (const std::exception& erreur) {
        Recoit(messages::ErreurInterne(QString::fromUtf8(erreur.what())), {});
    }
    return false;
}

void ApplicationQt::Recoit(const QString& phrase, const QString& lieu)
{
    if (const Receveur receveur = std::exchange(receveur_, {})) {
        receveur(phrase, lieu);
    }
}

} // namespace application
