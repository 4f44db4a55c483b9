#include "scenario/Joueur.h"

#include "application/windows/ApplicationQt.h"
#include "scenario/Bureau.h"
#include "scenario/Fichiers.h"
#include "scenario/Langage.h"
#include "scenario/Surveillance.h"

#include <QLocale>
#include <QThread>
#include <QThreadPool>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace scenario {

namespace {

/// What no handler caught goes to the program under test, of every start.
void TendFilet(application::ApplicationQt& boucle, Session& session)
{
    boucle.SurErreur([&](const QString& phrase, const QString& lieu) {
        session.ErreurNonGardee(phrase, lieu);
        TendFilet(boucle, session);
    });
}

constexpr int kFinInattendue = 3;

/// Ends this process some time after its limit, should nobody watch it any more.
void LimiteDuree(int secondes)
{
    std::thread([secondes] {
        std::this_thread::sleep_for(std::chrono::seconds(secondes));
        std::_Exit(kFinInattendue);
    }).detach();
}

/// A screen of the smallest size that the program is made for, 96 dots an inch.
void PrepareEcran(const Monde& monde)
{
    const QByteArray plateforme = qgetenv("QT_QPA_PLATFORM");
    if (!plateforme.isEmpty() && plateforme != "offscreen") {
        return;
    }
    const QString chemin = monde.Maison() + QStringLiteral("/ecran.json");
    Ecrit(chemin, R"({"screens": [{"name": "ecran", "x": 0, "y": 0, "width": 1366, "height": 768,
 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + chemin.toLocal8Bit());
}

/// Drops what the offscreen platform says of itself.
void Note(QtMsgType, const QMessageLogContext&, const QString& texte)
{
    if (!texte.startsWith(QLatin1String("This plugin does not support"))) {
        std::fprintf(stderr, "%s\n", qPrintable(texte));
    }
}

void Conclut(Session& session, Rapport& rapport)
{
    rapport.Termine();
    // A handler that waits in a modal window cannot return any more, and one that threw has left the
    // toolkit's own event behind: nothing is taken down then.
    if (QThread::currentThread()->loopLevel() > 1 || session.Boites.Ouverte() || session.AEuUneErreur()) {
        std::_Exit(0);
    }
    QCoreApplication::exit(0);
}

int JoueUn(const Commande& commande, int argc, char** argv, Fabrique& fabrique)
{
    const Monde monde(commande.Monde);
    qInstallMessageHandler(Note);
    LimiteDuree(commande.Limite + 10);
    PrepareEcran(monde);
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    application::ApplicationQt application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    fabrique.Prepare(application);

    Session session(monde, commande.Sortie, fabrique);
    TendFilet(application, session);
    Bureau bureau;
    Relais relais;
    relais.SurAction = [&] { session.Horloge.Repart(); };
    relais.Presse = [&] {
        const bool enFond = QThreadPool::globalInstance()->activeThreadCount() > 0; // the copy of the day
        return enFond || session.Horloge.Presse();
    };
    session.Horloge.Calme = [&] { return relais.Calme(); };
    Rapport rapport(commande.Fichiers.first());
    const std::unique_ptr<QThread> fil(QThread::create([&] {
        Langage langage(session, relais, rapport, commande.Attente);
        langage.Joue(commande.Fichiers.first());
    }));
    QObject::connect(fil.get(), &QThread::finished, &relais, [&] { Conclut(session, rapport); });
    fil->start();
    const int code = QApplication::exec();
    if (!fil->isFinished()) {
        std::_Exit(kFinInattendue); // the program ended the event loop under the script
    }
    fil->wait();
    return code;
}

} // namespace

int Principal(int argc, char** argv, Fabrique& fabrique)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    QString faute;
    const std::optional<Commande> commande = LitCommande(arguments, faute);
    if (!commande) {
        std::fprintf(stderr, "%s\n", qPrintable(faute));
        return 2;
    }
    if (commande->Un) {
        return JoueUn(*commande, argc, argv, fabrique);
    }
    QCoreApplication application(argc, argv);
    return Surveille(*commande);
}

} // namespace scenario
