#include "drugbank/BanqueDeTest.h"
#include "drugbank/LiaisonAide.h"

#include <QTemporaryDir>
#include <QTest>

class TestLiaisonAide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void donneLeChemin();
    void autreProduit();
    void absente();

private:
    QTemporaryDir dossier_;
    support::BanqueDeTest banque_{dossier_.path()};
};

void TestLiaisonAide::donneLeChemin()
{
    QVERIFY(banque_.Pose({}));
    const drugbank::LiaisonAide aide(banque_.CheminAide());
    QVERIFY(aide.Chargee());
    QString chemin;
    QCOMPARE(aide.CheminDeBanque(2, chemin), 0);
    QCOMPARE(chemin, banque_.CheminBanque());
    QVERIFY(banque_.Pose({}));
    QCOMPARE(aide.CheminDeBanque(1, chemin), 0);
    QCOMPARE(chemin, banque_.CheminBanque());
    QCOMPARE(banque_.Appels().last().toObject().value(QLatin1String("arguments")).toArray(),
             QJsonArray({1, QJsonValue::Null, 255}));
}

void TestLiaisonAide::autreProduit()
{
    QVERIFY(banque_.Pose({{QStringLiteral("produits"), QJsonObject{{QStringLiteral("2"), true}}}}));
    const drugbank::LiaisonAide aide(banque_.CheminAide());
    QString chemin;
    QVERIFY(aide.CheminDeBanque(1, chemin) != 0);
    QCOMPARE(aide.CheminDeBanque(2, chemin), 0);
}

void TestLiaisonAide::absente()
{
    QVERIFY(banque_.Pose({{QStringLiteral("aide"), false}}));
    const drugbank::LiaisonAide aide(banque_.CheminAide());
    QVERIFY(!aide.Chargee());
    QString chemin;
    QVERIFY(aide.CheminDeBanque(2, chemin) != 0);
}

QTEST_GUILESS_MAIN(TestLiaisonAide)
#include "test_liaison_aide.moc"
