#include "common/Fichiers.h"
#include "startup/Demarrage.h"
#include "startup/Installation.h"

#include <QTemporaryDir>
#include <QTest>

using namespace startup;
using common::Joint;

namespace {

QString N(const char* nom)
{
    return QString::fromUtf8(nom);
}

/// A program directory as a package leaves it, and an empty configuration directory.
struct Paquet
{
    QTemporaryDir Dossier;
    QString Programme = Joint(Dossier.path(), N("programme"));
    QString Configuration = Joint(Dossier.path(), N("config"));

    Paquet()
    {
        common::CreeDossier(Joint(Programme, N("BasesInstal")));
        for (const char* nom : {"Ordo.mdb", "Medoc.mdb", "Copie de Medoc.mdb", "BasesInstal/Ordo.mdb"}) {
            common::EcritFichier(Joint(Programme, N(nom)), nom);
        }
    }
};

} // namespace

class TestInstallation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void programmeInscriptible();
    void programmeProtege();
    void copieUneFoisParVersion();
    void modeleChange();
    void version();
};

void TestInstallation::programmeInscriptible()
{
    Paquet paquet;
    QCOMPARE(PrepareInstallation(paquet.Programme, paquet.Configuration), paquet.Programme);
    QVERIFY(!common::DossierExiste(paquet.Configuration));
}

void TestInstallation::programmeProtege()
{
    Paquet paquet;
    const QString installation =
        PrepareInstallation(Joint(paquet.Programme, N("absent")), paquet.Configuration);
    QCOMPARE(installation, Joint(paquet.Configuration, N("Scriptelle")));
    QCOMPARE(common::LitFichier(Joint(installation, N("Installation.cfg"))),
             '"' + Version().toLatin1() + "\"\r\n");
}

void TestInstallation::copieUneFoisParVersion()
{
    Paquet paquet;
    const QString installation = paquet.Configuration;
    common::CreeDossier(installation);
    CopieInstallation(paquet.Programme, installation);
    for (const char* nom : {"Ordo.mdb", "Medoc.mdb", "Copie de Medoc.mdb", "BasesInstal/Ordo.mdb"}) {
        QCOMPARE(common::LitFichier(Joint(installation, N(nom))), QByteArray(nom));
    }
    common::SupprimeFichier(Joint(installation, N("Medoc.mdb")));
    CopieInstallation(paquet.Programme, installation);
    QVERIFY(!common::FichierExiste(Joint(installation, N("Medoc.mdb"))));
    common::EcritFichier(Joint(installation, N("Installation.cfg")), "\"1.0.0\"\r\n");
    CopieInstallation(paquet.Programme, installation);
    QVERIFY(common::FichierExiste(Joint(installation, N("Medoc.mdb"))));
}

/// A first installation has nothing to upgrade, nor has a version with the templates of the one before.
void TestInstallation::modeleChange()
{
    Paquet paquet;
    const QString livre = Joint(paquet.Programme, N("BasesInstal/Copie de Medoc.mdb"));
    const QString declencheur = Joint(paquet.Configuration, N("Copie de Medoc.mdb"));
    const auto installe = [&](const char* version) {
        common::EcritFichier(Joint(paquet.Configuration, N("Installation.cfg")), version);
        CopieInstallation(paquet.Programme, paquet.Configuration);
    };
    common::SupprimeFichier(Joint(paquet.Programme, N("Copie de Medoc.mdb")));
    common::EcritFichier(livre, "modele 1");
    common::CreeDossier(paquet.Configuration);
    CopieInstallation(paquet.Programme, paquet.Configuration);
    QVERIFY(!common::FichierExiste(declencheur));
    installe("\"1.0.0\"\r\n");
    QVERIFY(!common::FichierExiste(declencheur));
    common::EcritFichier(livre, "modele 2");
    installe("\"1.0.0\"\r\n");
    QCOMPARE(common::LitFichier(declencheur), QByteArray("modele 2"));
    common::SupprimeFichier(declencheur);
    CopieInstallation(paquet.Programme, paquet.Configuration);
    QVERIFY(!common::FichierExiste(declencheur));
}

void TestInstallation::version()
{
    QCOMPARE(Version(), N("2.3.25"));
}

QTEST_GUILESS_MAIN(TestInstallation)
#include "test_installation.moc"
