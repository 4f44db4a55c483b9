#include "Rapport.h"

#include "ArbreDeTest.h"
#include "Soin.h"
#include "messages.h"

#include "startup/FichiersChemins.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;
using support::ArbreDeTest;
using utile::Arbre;

namespace {

void EcritChemins(const QString& installation, const QString& data, const QString& base, quint8 stockage)
{
    startup::Chemins chemins;
    chemins.CheminInstallation = installation;
    chemins.CheminData = data;
    chemins.CheminBase = base;
    chemins.IndexStockage = stockage;
    startup::EcritCheminData(chemins);
    startup::EcritCheminBase(chemins, {});
}

} // namespace

class TestArbres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TrouveLesBases();
    void NommeCeQuiNEstPasLa();
    void TrouveLeSupport();
    void NommeLeTravailInacheve();
    void SansDonnees();
    void LeProgrammeFaitSonRapport();
    void UnProgrammeTueLaisseUneBaseEntiere();
    void UneReparationTueeLaisseLAncienneOuLaNouvelle();
    void DeuxProgrammesALaFois();
};

void TestArbres::TrouveLesBases()
{
    const ArbreDeTest arbre;
    const QTemporaryDir installation;
    common::CreeDossier(arbre.Chemin(u"Sauvegardes"_s));
    common::CopieFichier(arbre.Medoc().Chemin, arbre.Chemin(u"Sauvegardes/Medoc.mdb"_s));
    common::CopieFichier(arbre.Ordo().Chemin, arbre.Chemin(u"ordo.mdb"_s));
    EcritChemins(installation.path(), arbre.Racine(), arbre.Racine(), 0);
    const auto arbres = utile::TrouveArbres(installation.path(), {});
    QCOMPARE(arbres.size(), 1);
    QStringList chemins;
    for (const auto& base : utile::BasesDe(arbres)) {
        chemins.append(QDir(arbre.Racine()).relativeFilePath(base.Chemin));
    }
    QCOMPARE(chemins, (QStringList{u"Medoc.mdb"_s, u"ordo.mdb"_s, u"DR NEIBRE/Ordo.mdb"_s}));
}

void TestArbres::NommeCeQuiNEstPasLa()
{
    const ArbreDeTest arbre;
    const QTemporaryDir installation;
    EcritChemins(installation.path(), arbre.Racine(), u"/absent/serveur/DataScriptelle"_s, 1);
    const auto arbres = utile::TrouveArbres(installation.path(), {});
    QCOMPARE(arbres.size(), 3);
    const QString rapport = utile::Rapport(arbres, {});
    QVERIFY2(rapport.contains(u"Serveur : /absent/serveur/DataScriptelle n'est pas accessible"_s),
             qPrintable(rapport));
    QVERIFY2(rapport.contains(u"Support amovible n'est pas branché"_s), qPrintable(rapport));
    QCOMPARE(utile::CodeDe(arbres, {}), utile::kAttention);
}

void TestArbres::TrouveLeSupport()
{
    const ArbreDeTest arbre;
    const QTemporaryDir installation;
    const QTemporaryDir clef;
    common::CreeDossier(clef.filePath(u"DataScriptelle"_s));
    EcritChemins(installation.path(), arbre.Racine(), {}, 1);
    const auto arbres = utile::TrouveArbres(installation.path(), {u"/absent"_s, clef.path()});
    QCOMPARE(arbres.size(), 2);
    QCOMPARE(arbres[1].Chemin, clef.filePath(u"DataScriptelle"_s));
    QVERIFY(arbres[1].Present);
}

/// In the middle of it a database may have no file of its name.
void TestArbres::NommeLeTravailInacheve()
{
    const ArbreDeTest arbre;
    const QTemporaryDir installation;
    EcritChemins(installation.path(), arbre.Racine(), {}, 0);
    common::CreeDossier(arbre.Chemin(u"Transfert.pret"_s));
    common::CreeDossier(arbre.Chemin(u"Transfert.ancien"_s));
    common::CopieFichier(arbre.Ordo().Chemin, arbre.Chemin(u"Transfert.pret/Ordo.mdb"_s));
    common::DeplaceFichier(arbre.Medoc().Chemin, arbre.Chemin(u"Transfert.ancien/Medoc.mdb"_s));
    QVERIFY(QFile::remove(arbre.Ordo().Chemin));
    const auto arbres = utile::TrouveArbres(installation.path(), {});
    QVERIFY(utile::BasesDe(arbres).isEmpty());
    QCOMPARE(utile::CodeDe(arbres, {}), utile::kAttention);
    const QString rapport = utile::Rapport(arbres, {});
    QVERIFY2(rapport.contains(u"Démarrez d'abord Scriptelle sur ces données : "_s), qPrintable(rapport));
    QVERIFY2(!rapport.contains(u"aucune base"_s), qPrintable(rapport));
}

void TestArbres::SansDonnees()
{
    const QTemporaryDir installation;
    const auto arbres = utile::TrouveArbres(installation.path(), {});
    QVERIFY(arbres.isEmpty());
    QCOMPARE(utile::CodeDe(arbres, {}), utile::kSansDonnees);
    QCOMPARE(utile::Rapport(arbres, {}), utile::messages::AucuneDonnee() + u'\n');
}

void TestArbres::LeProgrammeFaitSonRapport()
{
    const ArbreDeTest arbre;
    arbre.Remplit(300, false);
    support::Gate(arbre.Medoc().Chemin, 40 * 4096, QByteArray(4096, '\xA5'));
    const QTemporaryDir programme;
    const QString utile = programme.filePath(u"Utile"_s);
    QVERIFY(QFile::copy(QStringLiteral(CHEMIN_UTILE), utile));
    EcritChemins(programme.path(), arbre.Racine(), {}, 0);
    QProcess rapport;
    rapport.start(utile, {u"--rapport"_s});
    QVERIFY(rapport.waitForFinished());
    const QString texte = QString::fromUtf8(rapport.readAllStandardOutput());
    QVERIFY2(texte.contains(u"Endommagée -> Réparée, avec des pertes"_s), qPrintable(texte));
    QCOMPARE(rapport.exitCode(), 1);
    QVERIFY(texte.contains(u"Patients : 300 lignes gardées"_s));
    QVERIFY(texte.contains(u"Certificat (police des certificats) : 1 ligne gardée\n"_s));
    QVERIFY(texte.contains(u"L'ancien fichier est gardé"_s));
    rapport.start(utile, {u"--rapport"_s});
    QVERIFY(rapport.waitForFinished());
    QCOMPARE(rapport.exitCode(), 0);
    rapport.start(utile, {u"--autre"_s});
    QVERIFY(rapport.waitForFinished());
    QCOMPARE(rapport.exitCode(), 2);
}

void TestArbres::UnProgrammeTueLaisseUneBaseEntiere()
{
    const QTemporaryDir programme;
    const QString utile = programme.filePath(u"Utile"_s);
    QVERIFY(QFile::copy(QStringLiteral(CHEMIN_UTILE), utile));
    const ArbreDeTest modele;
    modele.Remplit(2000);
    {
        storage::Base base(modele.Medoc().Chemin, storage::GenreBase::Medoc);
        base.SupprimeOu(u"OrdoEnr"_s, u"rowid % 2 = 0"_s, {});
    }
    const auto avant = support::Contenu(modele.Medoc());
    EcritChemins(programme.path(), modele.Racine(), {}, 0);
    const QByteArray octets = support::Octets(modele.Medoc().Chemin);
    for (int attente = 5; attente < 400; attente += 15) {
        common::EcritFichier(modele.Medoc().Chemin, octets);
        QProcess rapport;
        rapport.start(utile, {u"--rapport"_s});
        QVERIFY(rapport.waitForStarted());
        QTest::qWait(attente);
        rapport.kill();
        rapport.waitForFinished();
        QCOMPARE(support::Contenu(modele.Medoc()), avant);
    }
    QProcess dernier;
    dernier.start(utile, {u"--rapport"_s});
    QVERIFY(dernier.waitForFinished());
    QCOMPARE(dernier.exitCode(), 0);
    QVERIFY(QDir(modele.Racine()).entryList({u"*.tmp*"_s}, QDir::Files).isEmpty());
}

namespace {

QStringList Gardees(const ArbreDeTest& arbre)
{
    return QDir(arbre.Racine()).entryList({u"Ancien_*.mdb"_s}, QDir::Files);
}

} // namespace

void TestArbres::UneReparationTueeLaisseLAncienneOuLaNouvelle()
{
    const QTemporaryDir programme;
    const QString utile = programme.filePath(u"Utile"_s);
    QVERIFY(QFile::copy(QStringLiteral(CHEMIN_UTILE), utile));
    const ArbreDeTest arbre;
    arbre.Remplit(2000);
    support::Gate(arbre.Medoc().Chemin, 40 * 4096, QByteArray(4096, '\xA5'));
    const QByteArray abimee = support::Octets(arbre.Medoc().Chemin);
    EcritChemins(programme.path(), arbre.Racine(), {}, 0);
    QCOMPARE(utile::Soigne(arbre.Medoc(), QDateTime::currentDateTime()).Issue, utile::Issue::Pertes);
    const auto reparee = support::Contenu(arbre.Medoc());
    int anciennes = 0;
    int nouvelles = 0;
    for (int attente = 5; attente < 4000 && nouvelles < 3; attente += 10 + attente / 10) {
        common::EcritFichier(arbre.Medoc().Chemin, abimee);
        QProcess rapport;
        rapport.start(utile, {u"--rapport"_s});
        QVERIFY(rapport.waitForStarted());
        rapport.waitForFinished(attente);
        rapport.kill();
        rapport.waitForFinished();
        const bool ancienne = support::Octets(arbre.Medoc().Chemin) == abimee;
        QVERIFY(ancienne || support::Contenu(arbre.Medoc()) == reparee);
        ++(ancienne ? anciennes : nouvelles);
        for (const QString& garde : Gardees(arbre)) {
            QCOMPARE(support::Octets(arbre.Chemin(garde)), abimee);
        }
    }
    QVERIFY(anciennes > 0 && nouvelles > 0);
    QProcess dernier;
    dernier.start(utile, {u"--rapport"_s});
    QVERIFY(dernier.waitForFinished());
    QCOMPARE(dernier.exitCode(), 0);
    QVERIFY(QDir(arbre.Racine()).entryList({u"*.tmp*"_s, u"*.lock"_s}, QDir::Files).isEmpty());
}

void TestArbres::DeuxProgrammesALaFois()
{
    const QTemporaryDir programme;
    const QString utile = programme.filePath(u"Utile"_s);
    QVERIFY(QFile::copy(QStringLiteral(CHEMIN_UTILE), utile));
    const ArbreDeTest arbre;
    arbre.Remplit(1000, false);
    support::Gate(arbre.Medoc().Chemin, 40 * 4096, QByteArray(4096, '\xA5'));
    const QByteArray abimee = support::Octets(arbre.Medoc().Chemin);
    EcritChemins(programme.path(), arbre.Racine(), {}, 0);
    for (int attente = 0; attente < 200; attente += 40) {
        common::EcritFichier(arbre.Medoc().Chemin, abimee);
        const qsizetype gardees = Gardees(arbre).size();
        std::array<QProcess, 2> programmes;
        QStringList textes;
        for (QProcess& un : programmes) {
            un.start(utile, {u"--rapport"_s});
            QVERIFY(un.waitForStarted());
            QTest::qSleep(attente);
        }
        for (QProcess& un : programmes) {
            QVERIFY(un.waitForFinished());
            textes.append(QString::fromUtf8(un.readAllStandardOutput()));
        }
        const QString ensemble = textes.join(u'\n');
        const auto reparations = ensemble.count(u"Endommagée -> Réparée"_s);
        QCOMPARE(Gardees(arbre).size(), gardees + reparations);
        if (reparations == 0) { // each has seen the other at its first look
            QVERIFY2(ensemble.count(u"Medoc.mdb : Utilisée -> Inchangée"_s) == 2, qPrintable(ensemble));
            QCOMPARE(support::Octets(arbre.Medoc().Chemin), abimee);
            continue;
        }
        QVERIFY2(reparations == 1, qPrintable(ensemble));
        QCOMPARE(utile::Soigne(arbre.Medoc(), QDateTime::currentDateTime()).Issue, utile::Issue::Saine);
    }
}

QTEST_GUILESS_MAIN(TestArbres)
#include "test_arbres.moc"
