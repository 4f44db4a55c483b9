#include "bank/LigneDeCommande.h"
#include "bank/messages.h"
#include "common/Fichiers.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

volatile std::sig_atomic_t interrompu = 0;

void Interromps(int)
{
    interrompu = 1;
}

bool SurUnTerminal()
{
#ifdef Q_OS_WIN
    return _isatty(_fileno(stdout)) != 0;
#else
    return ::isatty(STDOUT_FILENO) != 0;
#endif
}

void Ecris(FILE* flux, const QString& texte)
{
    std::fputs(texte.toLocal8Bit().constData(), flux);
    std::fflush(flux);
}

banque::Fin LanceImport(const banque::Demande& demande)
{
    const bool terminal = SurUnTerminal();
    const auto avancement = [terminal](const QString& fichier, qint64 faites, qint64 total) {
        if (terminal) {
            Ecris(stdout, u'\r' + banque::Barre(fichier, faites, total));
        }
        return interrompu == 0;
    };
    const QString finDeBarre = terminal ? QStringLiteral("\n") : QString();
    try {
        const banque::Bilan bilan = banque::Importe(demande, avancement);
        Ecris(stdout, finDeBarre + banque::TexteBilan(bilan));
        return bilan.AUnRefus() ? banque::Fin::AvecRefus : banque::Fin::Importee;
    } catch (const banque::Interruption& interruption) {
        Ecris(stderr, finDeBarre + interruption.Phrase() + u'\n');
        return banque::Fin::Interrompue;
    } catch (const common::Erreur& erreur) {
        Ecris(stderr, finDeBarre + erreur.Phrase() + u'\n');
        return banque::Fin::Echec;
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const auto demande = banque::LitArguments(QCoreApplication::arguments().mid(1));
    if (!demande) {
        Ecris(stderr, banque::Usage());
        return static_cast<int>(banque::Fin::Usage);
    }
    std::signal(SIGINT, Interromps);
    std::signal(SIGTERM, Interromps);
    return static_cast<int>(LanceImport(*demande));
}
