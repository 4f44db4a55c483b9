#include "BanqueDeTest.h"
#include "DonneesReelles.h"
#include "bank/Recherche.h"
#include "bank/messages.h"

#include <QSqlQuery>
#include <QTest>

#include <memory>

using namespace banque;
using support::BanqueDeTest;

/// The counts that the public files are known to hold.
class TestDonneesReelles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void Rows_data();
    void Rows();
    void NothingIsRefused();
    void Traps_data();
    void Traps();
    void CommonNames_data();
    void CommonNames();
    void Searches();

private:
    std::unique_ptr<BanqueDeTest> banque_;
};

void TestDonneesReelles::initTestCase()
{
    if (!support::DonneesReelles::Presentes()) {
        QSKIP("the public files do not stand beside this clone");
    }
    const support::DonneesReelles donnees;
    QVERIFY(donnees.Entieres());
    banque_ = std::make_unique<BanqueDeTest>(donnees.Dossier());
}

void TestDonneesReelles::Rows_data()
{
    QTest::addColumn<int>("lues");
    QTest::addColumn<int>("ecartees");
    QTest::newRow("CIS_bdpm.txt") << 15848 << 0;
    QTest::newRow("CIS_CIP_bdpm.txt") << 20903 << 0;
    QTest::newRow("CIS_COMPO_bdpm.txt") << 32389 << 0;
    QTest::newRow("CIS_GENER_bdpm.txt") << 10704 << 2517;
    QTest::newRow("CIS_CPD_bdpm.txt") << 28151 << 0;
    QTest::newRow("CIS_CIP_Dispo_Spec.txt") << 766 << 29;
    QTest::newRow("CIS_MITM.txt") << 7711 << 0;
    QTest::newRow("HAS_LiensPageCT_bdpm.txt") << 10342 << 15;
    QTest::newRow("CIS_HAS_SMR_bdpm.txt") << 12738 << 3676;
    QTest::newRow("CIS_HAS_ASMR_bdpm.txt") << 8093 << 1816;
}

void TestDonneesReelles::Rows()
{
    const BilanFichier& fichier = banque_->Fichier(QString::fromLatin1(QTest::currentDataTag()));
    QFETCH(int, lues);
    QFETCH(int, ecartees);
    QCOMPARE(fichier.Lues, lues);
    QCOMPARE(fichier.Gardees, lues - ecartees);
    QCOMPARE(fichier.Refusees, 0);
}

void TestDonneesReelles::NothingIsRefused()
{
    QVERIFY(!banque_->Bilan().AUnRefus());
    QCOMPARE(banque_->Fichier(QStringLiteral("CIS_CPD_bdpm.txt")).Vides, 3);
    const auto& presentations = banque_->Fichier(QStringLiteral("CIS_CIP_bdpm.txt"));
    QMap<QString, int> motifs;
    for (const Remarque& remarque : presentations.Remarques) {
        ++motifs[remarque.Motif];
    }
    QCOMPARE(motifs.value(messages::HonorairesDeplaces()), 3);
    QCOMPARE(motifs.value(messages::PresentationSansSpecialite()), 4);
    QCOMPARE(presentations.Remarques.size(), 8); // and the year 2924
}

void TestDonneesReelles::Traps_data()
{
    QTest::addColumn<QString>("instruction");
    QTest::addColumn<int>("attendu");
    const auto cas = [](const char* titre, const char* instruction, int attendu) {
        QTest::newRow(titre) << QString::fromUtf8(instruction) << attendu;
    };
    cas("marketed", "select count(*) from specialites where commercialisee", 13592);
    cas("homeopathic", "select count(*) from specialites where homeopathie", 1319);
    cas("thousands", "select count(*) from presentations where prix >= 1000", 466);
    cas("sums", "select count(*) from presentations where abs(prix + honoraires - prix_total) > 0.005", 0);
    cas("no price", "select count(*) from presentations where prix is null", 7357);
    cas("rates", "select count(distinct taux) from presentations", 5);
    cas("no speciality", "select count(*) from presentations where cis not in (select cis from specialites)",
        4);
    cas("no presentation",
        "select count(*) from specialites where cis not in (select cis from presentations)", 1279);
    // 63 with those that no longer exist.
    cas("several groups",
        "select count(*) from (select cis from groupes_membres group by cis having count(distinct groupe) > "
        "1)",
        51);
    cas("several spellings",
        "select count(*) from (select code from substances_noms group by code having count(*) > 1)", 530);
    // 13 before the stray blanks are gone.
    cas("two codes",
        "select count(*) from (select nom from substances_noms group by nom having count(*) > 1)", 16);
    cas("marketed packs", "select count(*) from presentations where commercialisee", 17171);
    cas("no year 2924", "select count(*) from presentations where date > '2026-12-31'", 0);
    cas("stray blanks", "select count(*) from specialites where titulaires glob ' *' or forme glob '*  *'",
        0);
    cas("common name", "select count(*) from specialites where dci = ''", 2);
}

void TestDonneesReelles::Traps()
{
    QFETCH(QString, instruction);
    QTEST(banque_->Valeur(instruction).toInt(), "attendu");
}

void TestDonneesReelles::CommonNames_data()
{
    QTest::addColumn<QString>("dci");
    const auto cas = [](const char* nom, const char* dci) { QTest::newRow(nom) << QString::fromUtf8(dci); };
    cas("AMLOR 5", "AMLODIPINE");
    cas("AUGMENTIN 1 g/125", "AMOXICILLINE;ACIDE CLAVULANIQUE");
    cas("LEVOTHYROX 75 ", "LÉVOTHYROXINE");
    cas("TOPALGIC", "TRAMADOL");
    cas("CODOLIPRANE", "PARACÉTAMOL;CODÉINE");
    cas("TRINORDIOL", "LÉVONORGESTREL;ÉTHINYLESTRADIOL");
    cas("KARDEGIC 75", "ACIDE ACÉTYLSALICYLIQUE");
    cas("DEPAKINE 500", "VALPROATE DE SODIUM");
    cas("TERALITHE", "CARBONATE DE LITHIUM");
    cas("CITRATE DE CAFEINE", "CAFÉINE");
    cas("TECFIDERA", "FUMARATE DE DIMÉTHYLE");
    cas("CALCIPARINE", "HÉPARINE CALCIQUE");
    cas("SPASFON LYOC", "PHLOROGLUCINOL");
    cas("KALEORID", "CHLORURE DE POTASSIUM");
}

void TestDonneesReelles::CommonNames()
{
    QTEST(banque_
              ->Valeur(QStringLiteral("select dci from specialites where nom like '%1%' order by cis")
                           .arg(QLatin1String(QTest::currentDataTag())))
              .toString(),
          "dci");
}

void TestDonneesReelles::Searches()
{
    const Recherche recherche(banque_->Base());
    const PageTrouvee paracetamol = recherche.Cherche(banque_->Base(), QStringLiteral("parac 1 000"));
    QVERIFY2(paracetamol.Total > 20, qPrintable(QString::number(paracetamol.Total)));
    for (const PackTrouve& pack : paracetamol.Packs) {
        const bool gramme =
            pack.Nom.contains(QLatin1String("000")) || pack.Nom.contains(QLatin1String("1 g"));
        QVERIFY2(pack.Nom.startsWith(QLatin1String("PARAC")) && gramme, qPrintable(pack.Nom));
    }
    QVERIFY(recherche.Cherche(banque_->Base(), QStringLiteral("doliprane 1000 comprime"))
                .Packs.first()
                .Nom.startsWith(QStringLiteral("DOLIPRANE 1000 mg, comprimé,")));
}

QTEST_GUILESS_MAIN(TestDonneesReelles)
#include "test_donnees_reelles.moc"
