#include "certificates/Modeles.h"
#include "certificates/Texte.h"
#include "certificates/messages.h"
#include "common/Fichiers.h"
#include "support/BaseDeTest.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace certificates;
using support::PhraseDEchec;

class TestModeles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ListeTriee();
    void ListeSansRepertoire();
    void LitCfg_data();
    void LitCfg();
    void ExtensionsEnCapitales();
    void UnTexteAbsentNeChangeRien();
    void EcritLesOctets();
    void RelitCeQuIlEcrit_data();
    void RelitCeQuIlEcrit();
    void UnTexteRefuseRendLeCfg();
    void GardeUnCfgAbime();
    void Efface();
    void NomChoisi_data();
    void NomChoisi();
    void RefuseUnAutreDossier();

private:
    QString Fichier(const QString& nom) const
    {
        return common::Joint(CheminCertificats(dossier_->path()), nom);
    }
    void Pose(const QString& nom, const QByteArray& octets) const
    {
        common::EcritFichier(Fichier(nom), octets);
    }

    std::unique_ptr<QTemporaryDir> dossier_;
};

void TestModeles::init()
{
    dossier_ = std::make_unique<QTemporaryDir>();
    common::CreeDossier(CheminCertificats(dossier_->path()));
}

void TestModeles::ListeTriee()
{
    for (const char* nom : {"Sport.txt", "école.txt", "Arrêt.TXT", "tmp.TXT", "Tmp.txt", "TMP.txt",
                            "Arrêt.cfg", "notes.doc", "Tmp2.txt", "abstxt"}) {
        Pose(QString::fromUtf8(nom), "x");
    }
    common::CreeDossier(Fichier(QStringLiteral("Dossier.txt")));
    QCOMPARE(ListeModeles(dossier_->path()), QStringList({QStringLiteral("Arrêt"), QStringLiteral("école"),
                                                          QStringLiteral("Sport"), QStringLiteral("Tmp2")}));
}

void TestModeles::ListeSansRepertoire()
{
    QVERIFY(ListeModeles(dossier_->filePath(QStringLiteral("absent"))).isEmpty());
}

void TestModeles::LitCfg_data()
{
    QTest::addColumn<QByteArray>("cfg");
    QTest::addColumn<double>("decalage");
    QTest::addColumn<int>("ald");
    QTest::newRow("whole") << QByteArray("4,0\r\n") << 4.0 << 0;
    QTest::newRow("left") << QByteArray("-2,0\r\n") << -2.0 << 0;
    QTest::newRow("none") << QByteArray() << 6.0 << 1;
    QTest::newRow("empty") << QByteArray("") << 6.0 << 1;
    QTest::newRow("short") << QByteArray("4\r\n") << 4.0 << 1;
    QTest::newRow("no number") << QByteArray("quatre,0\r\n") << 6.0 << 1;
    QTest::newRow("off the sheet") << QByteArray("5000,0\r\n") << 6.0 << 0;
    QTest::newRow("beyond measure") << QByteArray("-1e30,0\r\n") << 6.0 << 0;
    QTest::newRow("out of range") << QByteArray("4,999\r\n") << 4.0 << 1;
}

void TestModeles::LitCfg()
{
    QFETCH(QByteArray, cfg);
    Pose(QStringLiteral("Sport.txt"), "Texte");
    if (!cfg.isNull()) {
        Pose(QStringLiteral("Sport.cfg"), cfg);
    }
    Certificat certificat;
    certificat.DecalageCertif = 6;
    certificat.CertifALD = 1;
    QCOMPARE(LitModele(dossier_->path(), QStringLiteral("Sport"), certificat), QStringLiteral("Texte"));
    QTEST(certificat.DecalageCertif, "decalage");
    QTEST(static_cast<int>(certificat.CertifALD), "ald");
}

void TestModeles::ExtensionsEnCapitales()
{
    Pose(QStringLiteral("Sport.TXT"), "Texte");
    Pose(QStringLiteral("Sport.CFG"), "8,0\r\n");
    Certificat certificat;
    QCOMPARE(LitModele(dossier_->path(), QStringLiteral("Sport"), certificat), QStringLiteral("Texte"));
    QCOMPARE(certificat.DecalageCertif, 8.0);
    EcritModele(dossier_->path(), QStringLiteral("Sport"), QStringLiteral("Autre"), certificat);
    QCOMPARE(ListeModeles(dossier_->path()), QStringList{QStringLiteral("Sport")});
    EffaceModele(dossier_->path(), QStringLiteral("Sport"));
    QVERIFY(!common::DossierContientFichier(CheminCertificats(dossier_->path())));
}

void TestModeles::UnTexteAbsentNeChangeRien()
{
    Pose(QStringLiteral("Sport.cfg"), "8,1\r\n");
    Certificat certificat;
    const QString phrase =
        PhraseDEchec([&] { LitModele(dossier_->path(), QStringLiteral("Sport"), certificat); });
    QVERIFY2(phrase.contains(QLatin1String("Sport.txt")), qPrintable(phrase));
    QCOMPARE(certificat.DecalageCertif, 0.0);
    QCOMPARE(certificat.CertifALD, 0);
}

void TestModeles::EcritLesOctets()
{
    Certificat certificat;
    certificat.DecalageCertif = 4;
    EcritModele(dossier_->path(), QStringLiteral("Sport"), QStringLiteral("    été\r\n    fin\""),
                certificat);
    QCOMPARE(common::LitFichier(Fichier(QStringLiteral("Sport.txt"))),
             QByteArray("    \xE9t\xE9\r\n    fin\""));
    QCOMPARE(common::LitFichier(Fichier(QStringLiteral("Sport.cfg"))), QByteArray("4,0\r\n"));
}

void TestModeles::RelitCeQuIlEcrit_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("nothing") << "";
    QTest::newRow("no line end at the end") << "a\r\nb";
    QTest::newRow("blank lines at the end") << "a\r\n\r\n\r\n";
    QTest::newRow("a lone line feed") << "a\nb\r\n";
    QTest::newRow("outside Windows-1252") << "Ł 37,2 °C ≥ 38 🙂\r\n";
    QTest::newRow("one megabyte") << QStringLiteral("Je soussigné certifie\r\n").repeated(46'000);
}

void TestModeles::RelitCeQuIlEcrit()
{
    QFETCH(QString, texte);
    Certificat certificat;
    EcritModele(dossier_->path(), QStringLiteral("Essai"), texte, certificat);
    QCOMPARE(LitModele(dossier_->path(), QStringLiteral("Essai"), certificat), texte);
}

void TestModeles::UnTexteRefuseRendLeCfg()
{
    common::CreeDossier(Fichier(QStringLiteral("Sport.txt"))); // nothing can be written there
    Pose(QStringLiteral("Sport.cfg"), "8,1\r\n");
    const Certificat certificat;
    QVERIFY(!PhraseDEchec([&] {
                 EcritModele(dossier_->path(), QStringLiteral("Sport"), QStringLiteral("a"), certificat);
             }).isEmpty());
    QCOMPARE(common::LitFichier(Fichier(QStringLiteral("Sport.cfg"))), QByteArray("8,1\r\n"));
    common::CreeDossier(Fichier(QStringLiteral("Autre.txt")));
    QVERIFY(!PhraseDEchec([&] {
                 EcritModele(dossier_->path(), QStringLiteral("Autre"), QStringLiteral("a"), certificat);
             }).isEmpty());
    QVERIFY(!common::FichierExiste(Fichier(QStringLiteral("Autre.cfg"))));
}

void TestModeles::GardeUnCfgAbime()
{
    Pose(QStringLiteral("Sport.txt"), "a");
    Pose(QStringLiteral("Sport.cfg"), QByteArray("\x01\x02", 2));
    EcritModele(dossier_->path(), QStringLiteral("Sport"), QStringLiteral("b"), Certificat());
    QCOMPARE(common::LitFichier(Fichier(QStringLiteral("Sport.cfg"))), QByteArray("0,0\r\n"));
    QCOMPARE(common::LitFichier(Fichier(QStringLiteral("Sport.cfg.abime"))), QByteArray("\x01\x02", 2));
}

void TestModeles::Efface()
{
    Pose(QStringLiteral("Sport.txt"), "a");
    Pose(QStringLiteral("Sport.cfg"), "4,0\r\n");
    Pose(QStringLiteral("Sportif.txt"), "b");
    EffaceModele(dossier_->path(), QStringLiteral("Sport"));
    EffaceModele(dossier_->path(), QStringLiteral("Sport"));
    QCOMPARE(QDir(CheminCertificats(dossier_->path())).entryList(QDir::Files),
             QStringList{QStringLiteral("Sportif.txt")});
}

void TestModeles::NomChoisi_data()
{
    QTest::addColumn<QString>("reponse"); // '/' for "Certificats" before it
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("refus");
    const QString refuse = messages::NomRefuse(QStringLiteral("[nom]"));
    const QString reserve = messages::NomReserve(QStringLiteral("[nom]"));
    QTest::newRow("without ending") << "/Sport"
                                    << "Sport"
                                    << "";
    QTest::newRow("with it") << "/Sport.txt"
                             << "Sport"
                             << "";
    QTest::newRow("in capitals") << "/Sport.TXT"
                                 << "Sport"
                                 << "";
    QTest::newRow("another ending") << "/Sport.doc"
                                    << "Sport.doc"
                                    << "";
    QTest::newRow("bare") << "Sport"
                          << "Sport"
                          << "";
    QTest::newRow("Tmp") << "/tmp.TXT"
                         << "tmp" << reserve;
    QTest::newRow("bare Tmp") << "Tmp"
                              << "Tmp" << reserve;
    QTest::newRow("nothing") << "/.txt"
                             << "" << refuse;
    QTest::newRow("hidden from the list") << "/....txt"
                                          << "..." << refuse;
    QTest::newRow("a device") << "/con"
                              << "con" << refuse;
    QTest::newRow("a device with its ending") << "/LPT1.txt"
                                              << "LPT1" << refuse;
    QTest::newRow("a colon") << "C:Sport"
                             << "C:Sport" << refuse;
    QTest::newRow("a star") << "/S*rt"
                            << "S*rt" << refuse;
}

void TestModeles::NomChoisi()
{
    QFETCH(QString, reponse);
    QFETCH(QString, nom);
    QFETCH(QString, refus);
    const certificates::NomChoisi choix = LitNomChoisi(
        dossier_->path(), reponse.startsWith(u'/') ? CheminCertificats(dossier_->path()) + reponse : reponse);
    QCOMPARE(choix.Nom, nom);
    QCOMPARE(choix.Refus, refus.replace(QLatin1String("[nom]"), nom));
}

void TestModeles::RefuseUnAutreDossier()
{
    const QString certificats = CheminCertificats(dossier_->path());
    const QString refus = messages::HorsDuDossier(common::CheminAffiche(certificats));
    for (const QString& chemin :
         {dossier_->path() + QStringLiteral("/Sport"), certificats + QStringLiteral("/../Sport.txt"),
          certificats + QStringLiteral("/Sous/Sport.txt"), QStringLiteral("/Sport.txt"),
          QStringLiteral("..\\Sport")}) {
        QCOMPARE(LitNomChoisi(dossier_->path(), chemin).Refus, refus);
    }
    QVERIFY(LitNomChoisi(dossier_->path(), certificats + QStringLiteral("/../Certificats/Sport"))
                .Refus.isEmpty());
}

QTEST_APPLESS_MAIN(TestModeles)
#include "test_modeles.moc"
