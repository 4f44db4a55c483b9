#include "common/Fichiers.h"
#include "support/BaseDeTest.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using namespace common;
using support::PhraseDEchec;

/// A limit on the size of a file stands for the disk that fills up.
class TestDisquePlein : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void GardeLeFichier();
};

void TestDisquePlein::GardeLeFichier()
{
#ifdef Q_OS_UNIX
    const QTemporaryDir dossier;
    const QString chemin = Joint(dossier.path(), QStringLiteral("Options.cfg"));
    const QString source = Joint(dossier.path(), QStringLiteral("source"));
    EcritFichier(chemin, "ancien");
    EcritFichier(source, "nouveau, et plus long");
    const auto signalAvant = ::signal(SIGXFSZ, SIG_IGN);
    rlimit avant{};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &avant), 0);
    const rlimit court{3, avant.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &court), 0);
    const QString ecriture = PhraseDEchec([&] { EcritFichier(chemin, "nouveau"); });
    const QString copie = PhraseDEchec([&] { CopieFichier(source, chemin); });
    ::setrlimit(RLIMIT_FSIZE, &avant);
    ::signal(SIGXFSZ, signalAvant);
    QVERIFY2(ecriture.contains(QLatin1String("Options.cfg")), qPrintable(ecriture));
    QVERIFY2(copie.contains(QLatin1String("Options.cfg")), qPrintable(copie));
    QCOMPARE(LitFichier(chemin), QByteArray("ancien"));
    QCOMPARE(QDir(dossier.path()).entryList(QDir::Files).size(), 2);
#else
    QSKIP("this system has no limit on the size of a file");
#endif
}

QTEST_GUILESS_MAIN(TestDisquePlein)
#include "test_disque_plein.moc"
