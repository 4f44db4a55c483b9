#include "drugbank/LiaisonAide.h"

#include <QTest>

class TestLiaisonAide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void donneLeChemin();
    void autreProduit();
    void absente();
};

void TestLiaisonAide::donneLeChemin()
{
    const drugbank::LiaisonAide aide(QStringLiteral(CHEMIN_AIDE_ESSAI));
    QVERIFY(aide.Chargee());
    QString chemin;
    QCOMPARE(aide.CheminDeBanque(2, chemin), 0);
    QCOMPARE(chemin, QStringLiteral("/banque/api"));
    QCOMPARE(aide.CheminDeBanque(3, chemin), 0);
    QCOMPARE(chemin, QString(255, u'x'));
}

void TestLiaisonAide::autreProduit()
{
    const drugbank::LiaisonAide aide(QStringLiteral(CHEMIN_AIDE_ESSAI));
    QString chemin;
    QCOMPARE(aide.CheminDeBanque(1, chemin), 5);
}

void TestLiaisonAide::absente()
{
    const drugbank::LiaisonAide aide(QStringLiteral("/nulle/part"));
    QVERIFY(!aide.Chargee());
    QString chemin;
    QVERIFY(aide.CheminDeBanque(2, chemin) != 0);
}

QTEST_GUILESS_MAIN(TestLiaisonAide)
#include "test_liaison_aide.moc"
