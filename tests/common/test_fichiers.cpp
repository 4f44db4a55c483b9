#include "common/Fichiers.h"
#include "support/BaseDeTest.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace common;
using support::PhraseDEchec;

class TestFichiers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void JointLesChemins_data();
    void JointLesChemins();
    void RefuseDeQuitterLeDossier_data();
    void RefuseDeQuitterLeDossier();
    void JugeLesNoms_data();
    void JugeLesNoms();
    void EcritEtRelit();
    void LitDesOctetsQuelconques();
    void RefuseDeLire();
    void RefuseUnFichierTropGrand();
    void GardeLAncienQuandLEcritureEchoue();
    void Ajoute();
    void DitQueLeDisqueEstPlein();
    void CopieParDessus();
    void GardeLAncienQuandLaCopieEchoue();
    void CopieSurLuiMeme();
    void Deplace();
    void Supprime();
    void CreeLesDossiers();
    void CreeDesDossiersPrives();
    void CopieUnDossier();
    void NeCopiePasUnDossierEnLuiMeme();
    void CopieMalgreUnLienEnBoucle();
    void SupprimeUnDossier();
    void NeSupprimeNiVideNiRacine();
    void VoitLesFichiersDUnDossier();
    void ListeEnLargeur();

private:
    QString Chemin(const QString& nom) const { return dossier_->filePath(nom); }

    std::unique_ptr<QTemporaryDir> dossier_;

private Q_SLOTS:
    void init() { dossier_ = std::make_unique<QTemporaryDir>(); }
};

void TestFichiers::JointLesChemins_data()
{
    QTest::addColumn<QString>("chemin");
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("joint");
    QTest::newRow("simple") << QStringLiteral("/a/b") << QStringLiteral("c") << QStringLiteral("/a/b/c");
    QTest::newRow("barre") << QStringLiteral("/a/b/") << QStringLiteral("c") << QStringLiteral("/a/b/c");
    QTest::newRow("racine") << QStringLiteral("/") << QStringLiteral("c") << QStringLiteral("/c");
    QTest::newRow("lecteur") << QStringLiteral("D:") << QStringLiteral("c") << QStringLiteral("D:/c");
    QTest::newRow("niveaux") << QStringLiteral("/a") << QStringLiteral("b/c") << QStringLiteral("/a/b/c");
    QTest::newRow("sans chemin") << QString() << QStringLiteral("c") << QStringLiteral("c");
    QTest::newRow("sans nom") << QStringLiteral("/a") << QString() << QStringLiteral("/a");
    QTest::newRow("points") << QStringLiteral("/a") << QStringLiteral("b..c") << QStringLiteral("/a/b..c");
}

void TestFichiers::JointLesChemins()
{
    QFETCH(QString, chemin);
    QFETCH(QString, nom);
    QTEST(Joint(chemin, nom), "joint");
}

void TestFichiers::RefuseDeQuitterLeDossier_data()
{
    QTest::addColumn<QString>("nom");
    QTest::newRow("parent") << QStringLiteral("..");
    QTest::newRow("au-dessus") << QStringLiteral("../x");
    QTest::newRow("au milieu") << QStringLiteral("x/../../y");
    QTest::newRow("absolu") << QStringLiteral("/etc/passwd");
}

void TestFichiers::RefuseDeQuitterLeDossier()
{
    QFETCH(QString, nom);
    QVERIFY(PhraseDEchec([&] { Joint(QStringLiteral("/a"), nom); }).contains(nom));
}

void TestFichiers::JugeLesNoms_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<bool>("sur");
    const auto cas = [](const char16_t* nom, bool sur) {
        QTest::newRow(qPrintable(QString::fromUtf16(nom))) << QString::fromUtf16(nom) << sur;
    };
    cas(u"DR NEIBRE", true);
    cas(u"DR D'HÉRÉ-Œ", true);
    cas(u"Journal_DR.log", true);
    cas(u"COM10", true);
    cas(u"CONRAD", true);
    cas(u"", false);
    cas(u"   ", false);
    cas(u".", false);
    cas(u"..", false);
    cas(u"DR ../X", false);
    cas(u"DR ..\\X", false);
    cas(u"a:b", false);
    cas(u"a*b", false);
    cas(u"a?b", false);
    cas(u"a\"b", false);
    cas(u"a<b", false);
    cas(u"a|b", false);
    cas(u"a\nb", false);
    cas(u"point.", false);
    cas(u"blanc ", false);
    cas(u"CON", false);
    cas(u"nul.txt", false);
    cas(u"Lpt1", false);
    QTest::newRow("nul") << (QStringLiteral("a") + QChar(0)) << false;
    QTest::newRow("255 octets") << QString(255, u'a') << true;
    QTest::newRow("256 octets") << QString(128, QChar(0x00E9)) << false;
}

void TestFichiers::JugeLesNoms()
{
    QFETCH(QString, nom);
    QTEST(NomDeFichierSur(nom), "sur");
}

void TestFichiers::EcritEtRelit()
{
    const QString chemin = Chemin(QStringLiteral("a.cfg"));
    EcritFichier(chemin, "un");
    EcritFichier(chemin, "deux");
    QCOMPARE(LitFichier(chemin), QByteArray("deux"));
    QCOMPARE(QDir(dossier_->path()).entryList(QDir::Files), QStringList{QStringLiteral("a.cfg")});
    EcritFichier(chemin, {});
    QCOMPARE(LitFichier(chemin), QByteArray());
    QVERIFY(FichierExiste(chemin));
}

void TestFichiers::LitDesOctetsQuelconques()
{
    QByteArray octets(300000, '\0');
    for (qsizetype i = 0; i < octets.size(); ++i) {
        octets[i] = static_cast<char>(i * 31);
    }
    EcritFichier(Chemin(QStringLiteral("b")), octets);
    QCOMPARE(LitFichier(Chemin(QStringLiteral("b"))), octets);
}

void TestFichiers::RefuseDeLire()
{
    const QString absent = PhraseDEchec([&] { LitFichier(Chemin(QStringLiteral("absent.cfg"))); });
    QCOMPARE(absent,
             QStringLiteral("Impossible de lire le fichier « absent.cfg » : le fichier n'existe pas."));
    const QString dossier = PhraseDEchec([&] { LitFichier(dossier_->path()); });
    QVERIFY(dossier.contains(QStringLiteral("ce n'est pas un fichier")));
}

void TestFichiers::RefuseUnFichierTropGrand()
{
    QFile creux(Chemin(QStringLiteral("grand")));
    QVERIFY(creux.open(QIODevice::WriteOnly) && creux.resize(64LL * 1024 * 1024));
    creux.close();
    QCOMPARE(LitFichier(creux.fileName()).size(), 64LL * 1024 * 1024);
    QVERIFY(creux.resize(64LL * 1024 * 1024 + 1));
    QVERIFY(PhraseDEchec([&] { LitFichier(creux.fileName()); }).contains(QStringLiteral("trop grand")));
}

void TestFichiers::GardeLAncienQuandLEcritureEchoue()
{
    const QString occupe = Chemin(QStringLiteral("occupe"));
    CreeDossier(occupe);
    EcritFichier(Joint(occupe, QStringLiteral("dedans")), "x");
    const QString phrase = PhraseDEchec([&] { EcritFichier(occupe, "y"); });
    QVERIFY(phrase.startsWith(QStringLiteral("Impossible d'enregistrer le fichier « occupe »")));
    QVERIFY(FichierExiste(Joint(occupe, QStringLiteral("dedans"))));
    const QString sansDossier = Chemin(QStringLiteral("absent/a.cfg"));
    QVERIFY(PhraseDEchec([&] { EcritFichier(sansDossier, "y"); }).contains(QStringLiteral("« a.cfg »")));
}

void TestFichiers::Ajoute()
{
    const QString chemin = Chemin(QStringLiteral("Journal_DR.log"));
    AjouteAuFichier(chemin, "un\r\n");
    AjouteAuFichier(chemin, "deux\r\n");
    QCOMPARE(LitFichier(chemin), QByteArray("un\r\ndeux\r\n"));
    QVERIFY(PhraseDEchec([&] { AjouteAuFichier(dossier_->path(), "x"); }).startsWith(QLatin1String("Imp")));
}

void TestFichiers::DitQueLeDisqueEstPlein()
{
    const QString plein = QStringLiteral("/dev/full");
    if (!QFile::exists(plein)) {
        return; // this system has no disk that is always full
    }
    QCOMPARE(PhraseDEchec([&] { AjouteAuFichier(plein, "x"); }),
             QStringLiteral("Impossible d'enregistrer le fichier « full » : le disque est plein."));
}

void TestFichiers::CopieParDessus()
{
    const QString source = Chemin(QStringLiteral("s"));
    const QString destination = Chemin(QStringLiteral("d"));
    EcritFichier(source, QByteArray(3000000, 'x'));
    EcritFichier(destination, "ancien");
    CopieFichier(source, destination);
    QCOMPARE(LitFichier(destination), LitFichier(source));
    EcritFichier(source, {});
    CopieFichier(source, destination);
    QCOMPARE(LitFichier(destination), QByteArray());
}

void TestFichiers::GardeLAncienQuandLaCopieEchoue()
{
    const QString destination = Chemin(QStringLiteral("d"));
    EcritFichier(destination, "ancien");
    QVERIFY(PhraseDEchec([&] {
                CopieFichier(Chemin(QStringLiteral("absent")), destination);
            }).contains(QStringLiteral("« absent »")));
    QVERIFY(!PhraseDEchec([&] { CopieFichier(dossier_->path(), destination); }).isEmpty());
    QCOMPARE(LitFichier(destination), QByteArray("ancien"));
}

void TestFichiers::CopieSurLuiMeme()
{
    const QString chemin = Chemin(QStringLiteral("s"));
    EcritFichier(chemin, "contenu");
    CopieFichier(chemin, chemin);
    QCOMPARE(LitFichier(chemin), QByteArray("contenu"));
    DeplaceFichier(chemin, chemin);
    QCOMPARE(LitFichier(chemin), QByteArray("contenu"));
}

void TestFichiers::Deplace()
{
    EcritFichier(Chemin(QStringLiteral("s")), "contenu");
    EcritFichier(Chemin(QStringLiteral("d")), "ancien");
    DeplaceFichier(Chemin(QStringLiteral("s")), Chemin(QStringLiteral("d")));
    QCOMPARE(LitFichier(Chemin(QStringLiteral("d"))), QByteArray("contenu"));
    QVERIFY(!FichierExiste(Chemin(QStringLiteral("s"))));
    QVERIFY(!PhraseDEchec([&] {
                 DeplaceFichier(Chemin(QStringLiteral("s")), Chemin(QStringLiteral("s")));
             }).isEmpty());
}

void TestFichiers::Supprime()
{
    const QString chemin = Chemin(QStringLiteral("s"));
    EcritFichier(chemin, "x");
    SupprimeFichier(chemin);
    QVERIFY(!FichierExiste(chemin));
    SupprimeFichier(chemin);
    QVERIFY(PhraseDEchec([&] { SupprimeFichier(dossier_->path()); }).startsWith(QLatin1String("Impossible")));
}

void TestFichiers::CreeLesDossiers()
{
    const QString chemin = Chemin(QStringLiteral("DataVelmont/DataScriptelle"));
    CreeDossier(chemin);
    CreeDossier(chemin);
    QVERIFY(DossierExiste(chemin));
    EcritFichier(Chemin(QStringLiteral("f")), "x");
    for (const char* chemin : {"f", "f/sous/dossier"}) {
        QVERIFY(PhraseDEchec([&] {
                    CreeDossier(Chemin(QString::fromLatin1(chemin)));
                }).endsWith(QStringLiteral(": un fichier porte le nom « f ».")));
    }
}

void TestFichiers::CreeDesDossiersPrives()
{
    const QString parent = Chemin(QStringLiteral("DataVelmont"));
    const QString chemin = Joint(parent, QStringLiteral("DataScriptelle"));
    CreeDossierPrive(chemin);
    CreeDossierPrive(chemin);
    const auto prive = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    const auto autres = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup |
                        QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
    for (const QString& dossier : {parent, chemin}) {
        QCOMPARE(QFile::permissions(dossier) & (prive | autres), prive);
    }
}

void TestFichiers::CopieUnDossier()
{
    const QString source = Chemin(QStringLiteral("source"));
    const QString destination = Chemin(QStringLiteral("destination"));
    CreeDossier(Joint(source, QStringLiteral("DR A/Logo")));
    CreeDossier(destination);
    EcritFichier(Joint(source, QStringLiteral("Medoc.mdb")), "nouveau");
    EcritFichier(Joint(source, QStringLiteral(".cache")), "c");
    EcritFichier(Joint(source, QStringLiteral("DR A/Logo/l.png")), "logo");
    EcritFichier(Joint(destination, QStringLiteral("Medoc.mdb")), "ancien");
    EcritFichier(Joint(destination, QStringLiteral("reste")), "reste");
    CopieDossier(source, destination);
    QCOMPARE(LitFichier(Joint(destination, QStringLiteral("Medoc.mdb"))), QByteArray("nouveau"));
    QCOMPARE(LitFichier(Joint(destination, QStringLiteral(".cache"))), QByteArray("c"));
    QCOMPARE(LitFichier(Joint(destination, QStringLiteral("DR A/Logo/l.png"))), QByteArray("logo"));
    QCOMPARE(LitFichier(Joint(destination, QStringLiteral("reste"))), QByteArray("reste"));
}

void TestFichiers::NeCopiePasUnDossierEnLuiMeme()
{
    const QString source = Chemin(QStringLiteral("source"));
    CreeDossier(source);
    EcritFichier(Joint(source, QStringLiteral("a")), "a");
    QVERIFY(!PhraseDEchec([&] { CopieDossier(source, source); }).isEmpty());
    QVERIFY(!PhraseDEchec([&] { CopieDossier(source, source + QStringLiteral("/dedans")); }).isEmpty());
    QVERIFY(!DossierExiste(source + QStringLiteral("/dedans")));
    CopieDossier(source, source + QStringLiteral("bis"));
    QVERIFY(FichierExiste(source + QStringLiteral("bis/a")));
    QVERIFY(!PhraseDEchec([&] { CopieDossier(Chemin(QStringLiteral("absent")), source); }).isEmpty());
}

void TestFichiers::CopieMalgreUnLienEnBoucle()
{
    const QString source = Chemin(QStringLiteral("source"));
    CreeDossier(Joint(source, QStringLiteral("a")));
    EcritFichier(Joint(source, QStringLiteral("a/f")), "f");
    QVERIFY(QFile::link(source, Joint(source, QStringLiteral("a/boucle"))));
    CopieDossier(source, Chemin(QStringLiteral("copie")));
    QCOMPARE(LitFichier(Chemin(QStringLiteral("copie/a/f"))), QByteArray("f"));
    QVERIFY(!DossierExiste(Chemin(QStringLiteral("copie/a/boucle/a"))));
    QCOMPARE(ListeDirectories(source).size(), 2);
}

void TestFichiers::SupprimeUnDossier()
{
    const QString chemin = Chemin(QStringLiteral("d"));
    CreeDossier(Joint(chemin, QStringLiteral("e/f")));
    EcritFichier(Joint(chemin, QStringLiteral("e/f/g")), "g");
    SupprimeDossier(chemin);
    QVERIFY(!DossierExiste(chemin));
}

void TestFichiers::NeSupprimeNiVideNiRacine()
{
    QVERIFY(!PhraseDEchec([&] { SupprimeDossier(QString()); }).isEmpty());
    const QString fichier = Chemin(QStringLiteral("f"));
    EcritFichier(fichier, "x");
    QVERIFY(!PhraseDEchec([&] { SupprimeDossier(fichier); }).isEmpty());
    QVERIFY(FichierExiste(fichier));
}

void TestFichiers::VoitLesFichiersDUnDossier()
{
    const QString dossier = Chemin(QStringLiteral("DataScriptelle"));
    QVERIFY(!DossierContientFichier(dossier));
    CreeDossier(Joint(dossier, QStringLiteral("DR A")));
    QVERIFY(!DossierContientFichier(dossier));
    EcritFichier(Joint(dossier, QStringLiteral("DR A/Ordo.mdb")), "x");
    QVERIFY(!DossierContientFichier(dossier));
    EcritFichier(Joint(dossier, QStringLiteral("Medoc.mdb")), "x");
    QVERIFY(DossierContientFichier(dossier));
}

void TestFichiers::ListeEnLargeur()
{
    const QString racine = Chemin(QStringLiteral("r"));
    for (const char16_t* nom : {u"b/z", u"a/y/x", u".cache/c", u"c"}) {
        CreeDossier(Joint(racine, QString::fromUtf16(nom)));
    }
    EcritFichier(Joint(racine, QStringLiteral("fichier")), "x");
    QStringList relatifs;
    for (const QString& chemin : ListeDirectories(racine + u'/')) {
        relatifs.append(chemin.mid(racine.size()));
    }
    QCOMPARE(relatifs.join(u' '), QStringLiteral(" /a /b /c /a/y /b/z /a/y/x"));
    QCOMPARE(ListeDirectories(Chemin(QStringLiteral("absent"))).size(), 1);
}

QTEST_GUILESS_MAIN(TestFichiers)
#include "test_fichiers.moc"
