#include "page/Peintres.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestTexteAge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texte_data();
    void texte();
    void deuxOptionsANon();
    void ceQuiNEstPasUneDateResteTelQuel();
};

void TestTexteAge::texte_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QDate>("aujourdhui");
    QTest::addColumn<QString>("age");
    const QDate jour(2026, 11, 20);
    QTest::newRow("73 ans") << u"20/03/1953"_s << jour << u"73 ans"_s;
    QTest::newRow("20 ans") << u"30/11/2006"_s << jour << u"20 ans"_s;
    QTest::newRow("19 ans") << u"01/12/2006"_s << jour << u"19 ans et 11 mois"_s;
    QTest::newRow("2 ans") << u"20/11/2024"_s << jour << u"2 ans et 0 mois"_s;
    QTest::newRow("1 an") << u"15/08/2025"_s << jour << u"1 an et 3 mois"_s;
    QTest::newRow("1 an par les mois") << u"30/11/2025"_s << jour << u"1 an et 0 mois"_s;
    QTest::newRow("11 mois") << u"01/12/2025"_s << jour << u"11 mois et 24 jours"_s;
    QTest::newRow("30 jours") << u"21/10/2026"_s << jour << u"1 mois et 0 jours"_s;
    QTest::newRow("31 jours") << u"20/10/2026"_s << jour << u"1 mois et 1 jours"_s;
    QTest::newRow("29 jours") << u"22/10/2026"_s << jour << u"29 jours"_s;
    QTest::newRow("un jour, un mois de plus") << u"31/01/2026"_s << QDate(2026, 2, 1) << u"1 jours"_s;
    QTest::newRow("ce jour") << u"20/11/2026"_s << jour << u"0 jours"_s;
    QTest::newRow("autre forme") << u"1-3-53"_s << jour << u"73 ans"_s;
}

void TestTexteAge::texte()
{
    QFETCH(QString, date);
    QFETCH(QDate, aujourdhui);
    QFETCH(QString, age);
    settings::Options options;
    options.AfficheAge = 1;
    options.AfficheDDN = 0;
    QCOMPARE(page::TexteAge(date, options, aujourdhui), age);
    options.AfficheDDN = 1;
    QCOMPARE(page::TexteAge(date, options, aujourdhui), u"né(e) le %1   (%2)"_s.arg(date, age));
    options.AfficheAge = 0;
    QCOMPARE(page::TexteAge(date, options, aujourdhui), u"né(e) le "_s + date);
}

void TestTexteAge::deuxOptionsANon()
{
    settings::Options options;
    options.AfficheAge = options.AfficheDDN = 0;
    QCOMPARE(page::TexteAge(u"20/03/1953"_s, options, QDate(2026, 11, 20)), QString());
    QCOMPARE(page::TexteAge(u"hier"_s, options, QDate(2026, 11, 20)), u"hier"_s);
}

void TestTexteAge::ceQuiNEstPasUneDateResteTelQuel()
{
    const settings::Options options;
    QCOMPARE(page::TexteAge(QString(), options, QDate(2026, 11, 20)), QString());
    QCOMPARE(page::TexteAge(u"31/02/2000"_s, options, QDate(2026, 11, 20)), u"31/02/2000"_s);
    QCOMPARE(page::TexteAge(u"45 ans"_s, options, QDate(2026, 11, 20)), u"45 ans"_s);
}

QTEST_MAIN(TestTexteAge)
#include "test_texte_age.moc"
