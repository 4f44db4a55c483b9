#include "BanqueDeTest.h"
#include "bank/Mots.h"
#include "bank/Recherche.h"

#include <QTest>

using namespace banque;
using support::BanqueDeTest;
using support::DossierExtrait;

class TestRechercheBanque : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Words();
    void Finds_data();
    void Finds();
    void BestMatchFirst();
    void MarketedPacksOnly();
    void Pages();

private:
    const BanqueDeTest banque_{DossierExtrait()};
    const Recherche recherche_{banque_.Base()};
};

void TestRechercheBanque::Words()
{
    QCOMPARE(Mots(QStringLiteral("Vit. B12, 2.5 mg/2,5ml")),
             QStringLiteral("VIT B 12 2,5 MG 2,5 ML").split(u' '));
    QCOMPARE(Lectures(QStringLiteral("parac 1 000")).first(), QStringLiteral("PARAC 1000").split(u' '));
    QCOMPARE(Lectures(QStringLiteral("parac 1 0")),
             (QList<QStringList>{QStringLiteral("PARAC 1 0").split(u' '),
                                 QStringLiteral("PARAC 10").split(u' ')}));
    QVERIFY(CleNaturelle(QStringLiteral("A 500 mg")) < CleNaturelle(QStringLiteral("A 1 000 mg")));
    QVERIFY(CleNaturelle(QStringLiteral("A 2,5 mg")) < CleNaturelle(QStringLiteral("A 10 mg")));
}

void TestRechercheBanque::Finds_data()
{
    QTest::addColumn<QString>("question");
    QTest::addColumn<QString>("premier");
    const auto cas = [](const char* question, const char* premier) {
        QTest::newRow(question) << QString::fromUtf8(question) << QString::fromUtf8(premier);
    };
    cas("parac 1 000", "PARACETAMOL GENERICA 1 000 mg");
    cas("parac 1000", "PARACETAMOL GENERICA 1 000 mg");
    cas("Parac 1 0", "PARACETAMOL GENERICA 1 000 mg");
    cas("PARACÉTAMOL velm 500mg", "PARACETAMOL VELMONT 500 mg");
    cas("metf 1 000", "METFORMINE GENERICA 1000 mg");
    cas("coamox 1 125", "COAMOXIVEL 1 g/125 mg");
    cas("amoxicilline 1000", "AMOXICILLINE GENERICA 1 g");
    cas("amoxicilline 1 g", "AMOXICILLINE GENERICA 1 g");
    cas("metformine 1g", "METFORMINE GENERICA 1000 mg");
    cas("metformine 1000 cp", "METFORMINE GENERICA 1000 mg");
    cas("metformine 1 g cpr", "METFORMINE GENERICA 1000 mg");
    cas("omeprazole 20 g", "OMEPRAZOLE VELMONT 20 mg");
    cas("levothyroxine 75 µg", "LEVOTHYROXINE VELMONT 75 microgrammes");
    cas("levothyroxine 75mcg", "LEVOTHYROXINE VELMONT 75 microgrammes");
    cas("1200000", "BENZATHINE BENZYLPENICILLINE VELMONT 1 200 000 UI");
    cas("1 200 000", "BENZATHINE BENZYLPENICILLINE VELMONT 1 200 000 UI");
    cas("ramipril 2.5", "RAMIPRIL VELMONT 2,5 mg");
    cas("velm omep", "OMEPRAZOLE VELMONT 20 mg");
    cas("xyzzy", "");
    cas("paracetamol xyzzy", "");
    cas("", "");
    cas(" ,;' ", "");
}

void TestRechercheBanque::Finds()
{
    QFETCH(QString, question);
    QFETCH(QString, premier);
    const PageTrouvee page = recherche_.Cherche(banque_.Base(), question);
    QCOMPARE(page.Packs.isEmpty(), premier.isEmpty());
    if (!premier.isEmpty()) {
        QVERIFY2(page.Packs.first().Nom.startsWith(premier), qPrintable(page.Packs.first().Nom));
    }
}

void TestRechercheBanque::BestMatchFirst()
{
    // "5" begins the second, and is whole in the first.
    const PageTrouvee forces = recherche_.Cherche(banque_.Base(), QStringLiteral("ramipril 1"));
    QCOMPARE(forces.Total, 2);
    // A name that begins with the word before those that bear it behind.
    const PageTrouvee noms = recherche_.Cherche(banque_.Base(), QStringLiteral("benz"));
    QVERIFY(noms.Packs.first().Nom.startsWith(QLatin1String("BENZATHINE")));
    const PageTrouvee doses = recherche_.Cherche(banque_.Base(), QStringLiteral("amlodipine velmont"));
    QCOMPARE(doses.Total, 4);
    QVERIFY(doses.Packs[0].Nom.contains(QLatin1String(" 5 mg")));
    QVERIFY(doses.Packs[0].Nom.contains(QLatin1String("de 30 ")));
    QVERIFY(doses.Packs[1].Nom.contains(QLatin1String("de 90 ")));
    QVERIFY(doses.Packs[2].Nom.contains(QLatin1String(" 10 mg")));
}

void TestRechercheBanque::MarketedPacksOnly()
{
    QCOMPARE(recherche_.Cherche(banque_.Base(), QStringLiteral("ancienvel")).Total, 0);
    QCOMPARE(recherche_.Cherche(banque_.Base(), QStringLiteral("sansboite")).Total, 0);
    const PageTrouvee cytovel = recherche_.Cherche(banque_.Base(), QStringLiteral("cytovel"));
    QCOMPARE(cytovel.Total, 4); // of six
    QCOMPARE(cytovel.Packs.first().Prix, 1545.27);
    QVERIFY(!cytovel.Packs.last().Prix);
    QVERIFY(recherche_.Cherche(banque_.Base(), QStringLiteral("arnica")).Packs.first().Homeopathie);
}

void TestRechercheBanque::Pages()
{
    const PageTrouvee tout = recherche_.Cherche(banque_.Base(), QStringLiteral("velmont"), 0, 1000);
    QCOMPARE(tout.Packs.size(), tout.Total);
    QList<qint32> ids;
    for (int page = 0; page * 7 < tout.Total; ++page) {
        for (const PackTrouve& pack :
             recherche_.Cherche(banque_.Base(), QStringLiteral("velmont"), page, 7).Packs) {
            ids.append(pack.Id);
        }
    }
    QCOMPARE(ids.size(), tout.Total);
    for (qsizetype i = 0; i < ids.size(); ++i) {
        QCOMPARE(ids[i], tout.Packs[i].Id);
    }
    QVERIFY(recherche_.Cherche(banque_.Base(), QStringLiteral("velmont"), 1000).Packs.isEmpty());
}

QTEST_GUILESS_MAIN(TestRechercheBanque)
#include "test_recherche_banque.moc"
