#include "jet/CopieJet.h"
#include "storage/Bases.h"
#include "storage/PatientsAnciens.h"

#include <QDateTime>
#include <QTest>

#include <filesystem>

using support::CopieJet;
using support::DonneesJet;

namespace {

void Date(const QString& chemin, const QDateTime& heure)
{
    QFile fichier(chemin);
    QVERIFY(fichier.open(QIODevice::ReadWrite));
    QVERIFY(fichier.setFileTime(heure, QFileDevice::FileModificationTime));
}

QStringList DeuxFichiers()
{
    return {QStringLiteral("Medoc (Jet).mdb"), QStringLiteral("Medoc.mdb")};
}

} // namespace

/// What stands beside a Jet file before and after its conversion. Needs the Jet files beside the project.
class TestEchangeJet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void GardeLHeureDeLOriginal();
    void AttendQueLAncienProgrammeFerme_data();
    void AttendQueLAncienProgrammeFerme();
    void PasseSurUnVieuxVerrou();
    void OteCeQuUneConversionTueeALaisse();
    void ReprendUnEchangeCoupe_data();
    void ReprendUnEchangeCoupe();
    void PrendLesPatientsDeLaRacine();
    void ResteSansPatientsQuandLaRacineNEnAPas();
    void GardeLesSeulsPatients();
};

void TestEchangeJet::initTestCase()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
}

void TestEchangeJet::GardeLHeureDeLOriginal()
{
    const CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    const QDateTime heure(QDate(2009, 3, 14), QTime(15, 9, 26));
    Date(copie.Chemin(), heure);
    QCOMPARE(copie.Convertit(), QString());
    QCOMPARE(QFileInfo(copie.Garde()).lastModified(), heure);
    QCOMPARE(common::LitFichier(copie.Garde()), copie.Contenu());
}

void TestEchangeJet::AttendQueLAncienProgrammeFerme_data()
{
    QTest::addColumn<QString>("verrou");
    QTest::newRow("courant") << QStringLiteral("Medoc.ldb");
    QTest::newRow("capitales") << QStringLiteral("MEDOC.LDB");
}

void TestEchangeJet::AttendQueLAncienProgrammeFerme()
{
    QFETCH(QString, verrou);
    const CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    const QString ouvert = common::Joint(copie.Dossier(), verrou);
    common::EcritFichier(ouvert, QByteArray(64, ' '));
    storage::Bases bases;
    const QString phrase = support::PhraseDEchec([&] { bases.Medoc(copie.Dossier()); });
    QVERIFY2(phrase.contains(QStringLiteral("semble ouverte dans l'ancien programme")), qPrintable(phrase));
    QVERIFY2(phrase.contains(verrou), qPrintable(phrase));
    QCOMPARE(common::LitFichier(copie.Chemin()), copie.Contenu());
    QCOMPARE(copie.Fichiers().size(), 2);
    common::SupprimeFichier(ouvert);
    QCOMPARE(bases.Medoc(copie.Dossier()).Table(QStringLiteral("Patients")).RecordCount(), 30);
}

void TestEchangeJet::PasseSurUnVieuxVerrou()
{
    const CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    const QString verrou = common::Joint(copie.Dossier(), QStringLiteral("Medoc.ldb"));
    common::EcritFichier(verrou, QByteArray(64, ' '));
    Date(verrou, QFileInfo(copie.Chemin()).lastModified().addDays(-8));
    QCOMPARE(copie.Convertit(), QString());
    QVERIFY(QFileInfo::exists(verrou));
}

void TestEchangeJet::OteCeQuUneConversionTueeALaisse()
{
    const CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    const QString autre = QStringLiteral("Medoc.mdb.notes.tmp");
    for (const QString& nom : {QStringLiteral("Medoc.mdb.0f8fad5b-d9cb-469f-a165-70867728950e.tmp"),
                               QStringLiteral("Medoc (Jet).mdb.AbCdEf"), autre}) {
        common::EcritFichier(common::Joint(copie.Dossier(), nom), "reste");
    }
    QCOMPARE(copie.Convertit(), QString());
    QCOMPARE(copie.Fichiers(), QStringList(DeuxFichiers() << autre));
}

void TestEchangeJet::ReprendUnEchangeCoupe_data()
{
    QTest::addColumn<bool>("lien");
    QTest::newRow("link") << true;
    QTest::newRow("copy") << false;
}

/// The program was killed between the second name and the exchange.
void TestEchangeJet::ReprendUnEchangeCoupe()
{
    QFETCH(bool, lien);
    const CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    if (lien) {
        std::filesystem::create_hard_link(QFile(copie.Chemin()).filesystemFileName(),
                                          QFile(copie.Garde()).filesystemFileName());
    } else {
        common::CopieFichier(copie.Chemin(), copie.Garde());
    }
    QCOMPARE(copie.Convertit(), QString());
    QCOMPARE(copie.Fichiers(), DeuxFichiers());
    QCOMPARE(common::LitFichier(copie.Garde()), copie.Contenu());
}

/// A tree of version 1 that no template stands beside: its patients are in the root's "Ordo.mdb".
void TestEchangeJet::PrendLesPatientsDeLaRacine()
{
    for (const QString& jeu : {QStringLiteral("ancien"), QStringLiteral("ancien_jet3")}) {
        const CopieJet medoc(jeu + QStringLiteral("/Medoc.mdb"));
        const QString ordo = common::Joint(medoc.Dossier(), QStringLiteral("Ordo.mdb"));
        common::CopieFichier(DonneesJet::Chemin(jeu + QStringLiteral("/Ordo.mdb")), ordo);
        const QByteArrayList attendues = DonneesJet::Lignes(jeu + QStringLiteral("/Ordo.Patients.tsv"));
        for (int fois = 0; fois < 2; ++fois) {
            storage::Bases bases;
            storage::Jeu patients = bases.Medoc(medoc.Dossier()).Table(QStringLiteral("Patients"));
            QCOMPARE(patients.RecordCount(), attendues.size() - 1);
            qsizetype rang = 1;
            for (patients.MoveFirst(); !patients.Fin(); patients.MoveNext()) {
                const QByteArrayList attendue = attendues[rang++].split('\t');
                QCOMPARE(patients.Texte(0).toUtf8(), attendue[0]);
                QCOMPARE(patients.Texte(2).toUtf8(), attendue[2]);
                QVERIFY(patients.EstNull(10));
            }
            QCOMPARE(bases.Medoc(medoc.Dossier()).Table(QStringLiteral("OrdoEnr")).RecordCount(), 96);
        }
        QCOMPARE(common::LitFichier(common::Joint(medoc.Dossier(), QStringLiteral("Ordo (Jet).mdb"))),
                 common::LitFichier(DonneesJet::Chemin(jeu + QStringLiteral("/Ordo.mdb"))));
    }
}

void TestEchangeJet::ResteSansPatientsQuandLaRacineNEnAPas()
{
    const CopieJet medoc(QStringLiteral("ancien/Medoc.mdb"));
    const QString ordo = common::Joint(medoc.Dossier(), QStringLiteral("Ordo.mdb"));
    common::CopieFichier(DonneesJet::Chemin(QStringLiteral("petit/Ordo.mdb")), ordo);
    storage::Bases bases;
    QCOMPARE(bases.Medoc(medoc.Dossier()).Table(QStringLiteral("Patients")).RecordCount(), 0);
    QCOMPARE(bases.Medoc(medoc.Dossier()).Table(QStringLiteral("OrdoEnr")).RecordCount(), 96);
}

/// The start's clean-up takes the root's "Ordo.mdb" away: not before its patients stand in "Medoc.mdb".
void TestEchangeJet::GardeLesSeulsPatients()
{
    const CopieJet medoc(QStringLiteral("ancien/Medoc.mdb"));
    const QString ordo = common::Joint(medoc.Dossier(), QStringLiteral("Ordo.mdb"));
    common::CopieFichier(DonneesJet::Chemin(QStringLiteral("ancien/Ordo.mdb")), ordo);
    QVERIFY(storage::GardePatients(ordo, medoc.Chemin()));
    storage::ConvertitSiJet(ordo, storage::GenreBase::Ordo);
    QVERIFY(storage::GardePatients(ordo, medoc.Chemin()));
    QCOMPARE(medoc.Convertit(), QString());
    QVERIFY(storage::GardePatients(ordo, medoc.Chemin()));
    storage::Bases bases;
    bases.Medoc(medoc.Dossier());
    QVERIFY(!storage::GardePatients(ordo, medoc.Chemin()));
}

QTEST_GUILESS_MAIN(TestEchangeJet)
#include "test_echange_jet.moc"
