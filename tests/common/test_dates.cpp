#include "common/Dates.h"

#include <QTest>

using common::DateSaisie;
using common::TexteDate;
using common::TexteDateLongue;

class TestDates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LitUneDate_data();
    void LitUneDate();
    void RefuseLeReste_data();
    void RefuseLeReste();
    void EcritEtRelitChaqueJour();
    void EcritLaDateLongue_data();
    void EcritLaDateLongue();
    void NEcritPasUneDateNulle();
};

void TestDates::LitUneDate_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QDate>("date");
    const QDate date(1953, 3, 20);
    QTest::newRow("barres") << QStringLiteral("20/03/1953") << date;
    QTest::newRow("tirets") << QStringLiteral("20-03-1953") << date;
    QTest::newRow("points") << QStringLiteral("20.03.1953") << date;
    QTest::newRow("blancs") << QStringLiteral("20 03 1953") << date;
    QTest::newRow("mêlés") << QStringLiteral("20/03-1953") << date;
    QTest::newRow("un chiffre") << QStringLiteral("1/3/1953") << QDate(1953, 3, 1);
    QTest::newRow("blancs autour") << QStringLiteral("  20 / 03 / 1953 ") << date;
    QTest::newRow("siècle 00") << QStringLiteral("01/01/00") << QDate(2000, 1, 1);
    QTest::newRow("siècle 29") << QStringLiteral("01/01/29") << QDate(2029, 1, 1);
    QTest::newRow("siècle 30") << QStringLiteral("01/01/30") << QDate(1930, 1, 1);
    QTest::newRow("siècle 99") << QStringLiteral("01/01/99") << QDate(1999, 1, 1);
    QTest::newRow("bissextile") << QStringLiteral("29/02/2000") << QDate(2000, 2, 29);
    QTest::newRow("à venir") << QStringLiteral("01/01/2999") << QDate(2999, 1, 1);
}

void TestDates::LitUneDate()
{
    QFETCH(QString, texte);
    const auto lue = DateSaisie(texte);
    QVERIFY(lue.has_value());
    QTEST(*lue, "date");
}

void TestDates::RefuseLeReste_data()
{
    QTest::addColumn<QString>("texte");
    for (const char16_t* texte : {u"",
                                  u" ",
                                  u"hier",
                                  u"31/02/2000",
                                  u"29/02/2001",
                                  u"29/02/1900",
                                  u"31/04/2020",
                                  u"32/01/2020",
                                  u"00/01/2020",
                                  u"01/00/2020",
                                  u"03/20/1953",
                                  u"01/01/0000",
                                  u"01/01/0099",
                                  u"20/03",
                                  u"20/03/195",
                                  u"20/03/19533",
                                  u"20031953",
                                  u"20//03/1953",
                                  u"20/03/1953x",
                                  u"x20/03/1953",
                                  u"-1/03/1953",
                                  u"20/03/1953 10:00",
                                  u"__/__/____",
                                  u"2000-01-01",
                                  u"٠١/٠١/٢٠٠٠",
                                  u"20/mars/1953"}) {
        QTest::newRow(qPrintable(QString::fromUtf16(texte))) << QString::fromUtf16(texte);
    }
}

void TestDates::RefuseLeReste()
{
    QFETCH(QString, texte);
    QVERIFY(!DateSaisie(texte).has_value());
}

void TestDates::EcritEtRelitChaqueJour()
{
    for (QDate date(1899, 12, 1); date < QDate(2101, 1, 1); date = date.addDays(1)) {
        QCOMPARE(DateSaisie(TexteDate(date)), date);
    }
    QCOMPARE(TexteDate(QDate(2026, 11, 2)), QStringLiteral("02/11/2026"));
}

void TestDates::EcritLaDateLongue_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("texte");
    const auto cas = [](int annee, int mois, int jour, const char16_t* texte) {
        QTest::newRow(qPrintable(QString::fromUtf16(texte)))
            << QDate(annee, mois, jour) << QString::fromUtf16(texte);
    };
    cas(2026, 1, 5, u"lundi  5  janv.  2026");
    cas(2026, 2, 3, u"mardi  3  févr.  2026");
    cas(2026, 3, 4, u"mercredi  4  mars  2026");
    cas(2026, 4, 2, u"jeudi  2  avr.  2026");
    cas(2026, 5, 1, u"vendredi  1  mai  2026");
    cas(2026, 6, 6, u"samedi  6  juin  2026");
    cas(2026, 7, 5, u"dimanche  5  juil.  2026");
    cas(2026, 8, 31, u"lundi  31  août  2026");
    cas(2026, 9, 1, u"mardi  1  sept.  2026");
    cas(2026, 10, 7, u"mercredi  7  oct.  2026");
    cas(2026, 11, 20, u"vendredi  20  nov.  2026");
    cas(2026, 12, 24, u"jeudi  24  déc.  2026");
}

void TestDates::EcritLaDateLongue()
{
    QFETCH(QDate, date);
    QTEST(TexteDateLongue(date), "texte");
}

void TestDates::NEcritPasUneDateNulle()
{
    QCOMPARE(TexteDateLongue(QDate()), QString());
    QCOMPARE(TexteDate(QDate()), QString());
}

QTEST_GUILESS_MAIN(TestDates)
#include "test_dates.moc"
