#include "bank/Champs.h"
#include "bank/LecteurLignes.h"
#include "bank/Lecteurs.h"

#include <QTest>

using namespace banque;

namespace {

QList<QStringList> Lignes(const QByteArray& octets)
{
    LecteurLignes lecteur(octets);
    QList<QStringList> lignes;
    for (Ligne ligne; lecteur.Suivante(ligne);) {
        QStringList champs{QString::number(ligne.Numero)};
        for (const QStringView champ : ligne.Champs) {
            champs.append(champ.toString());
        }
        lignes.append(champs);
    }
    return lignes;
}

/// Reads the first line of some bytes into a record.
template <typename Fiche> Motifs LitUne(const QByteArray& octets, Fiche& fiche)
{
    LecteurLignes lecteur(octets);
    Ligne ligne;
    Motifs motifs;
    if (lecteur.Suivante(ligne)) {
        Lit(ligne, fiche, motifs);
    }
    return motifs;
}

} // namespace

class TestChampsBanque : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LinesOfEveryEncodingAndEnd_data();
    void LinesOfEveryEncodingAndEnd();
    void Prices_data();
    void Prices();
    void Dates();
    void RatesAndBlanks();
    void FeeInTheTotalsColumnGoesHome();
    void CutLineIsRefused();
};

void TestChampsBanque::LinesOfEveryEncodingAndEnd_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<QList<QStringList>>("lignes");
    const QString e = QStringLiteral("é");
    const QString un = QStringLiteral("1");
    QTest::newRow("empty") << QByteArray() << QList<QStringList>();
    QTest::newRow("UTF-8, LF") << QByteArray("\xC3\xA9\tb\n")
                               << QList<QStringList>{{un, e, QStringLiteral("b")}};
    QTest::newRow("Windows-1252, CRLF")
        << QByteArray("\xE9\tb\r\n") << QList<QStringList>{{un, e, QStringLiteral("b")}};
    QTest::newRow("byte order mark, open end")
        << QByteArray("\xEF\xBB\xBF\xC3\xA9") << QList<QStringList>{{un, e}};
    QTest::newRow("quotes are letters")
        << QByteArray("\"a\tb\"") << QList<QStringList>{{un, QStringLiteral("\"a"), QStringLiteral("b\"")}};
    QTest::newRow("blank lines are counted")
        << QByteArray("\r\n \t\r\na\r\n") << QList<QStringList>{{QStringLiteral("3"), QStringLiteral("a")}};
    QTest::newRow("a stray line of the other encoding")
        << QByteArray("\xC3\xA9\n\xC3\xA9\n\xE9\n")
        << QList<QStringList>{{un, e}, {QStringLiteral("2"), e}, {QStringLiteral("3"), e}};
    QTest::newRow("empty fields") << QByteArray("\t\n") << QList<QStringList>{};
    QTest::newRow("empty field between")
        << QByteArray("a\t\tb\n")
        << QList<QStringList>{{un, QStringLiteral("a"), QString(), QStringLiteral("b")}};
}

void TestChampsBanque::LinesOfEveryEncodingAndEnd()
{
    QFETCH(QByteArray, octets);
    QTEST(Lignes(octets), "lignes");
}

void TestChampsBanque::Prices_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<qint64>("centimes"); // -1: refused
    QTest::newRow("plain") << "24,34" << qint64(2434);
    QTest::newRow("thousands") << "1,466,29" << qint64(146629);
    QTest::newRow("ten thousands") << "12,532,58" << qint64(1253258);
    QTest::newRow("blank thousands") << "1 466,29" << qint64(146629);
    QTest::newRow("zero") << "0,00" << qint64(0);
    QTest::newRow("three decimals") << "1,466" << qint64(-1);
    QTest::newRow("no decimals") << "1466" << qint64(-1);
    QTest::newRow("short group") << "1,46,29" << qint64(-1);
    QTest::newRow("long first group") << "1234,567,89" << qint64(-1);
    QTest::newRow("letters") << "12,a0" << qint64(-1);
    QTest::newRow("empty") << "" << qint64(-1);
    QTest::newRow("endless") << "9999999999999999999999,99" << qint64(-1);
}

void TestChampsBanque::Prices()
{
    QFETCH(QString, texte);
    QFETCH(qint64, centimes);
    QCOMPARE(Centimes(texte).value_or(-1), centimes);
}

void TestChampsBanque::Dates()
{
    QCOMPARE(DateBarre(u"29/02/2024"), QDate(2024, 2, 29));
    QVERIFY(!DateBarre(u"29/11/2924"));
    QVERIFY(!DateBarre(u"31/02/2024"));
    QVERIFY(!DateBarre(u"1/2/2024"));
    QCOMPARE(DateSerree(u"20220209"), QDate(2022, 2, 9));
    QVERIFY(!DateSerree(u"20221309"));
}

void TestChampsBanque::RatesAndBlanks()
{
    QCOMPARE(Taux(u"65%"), 65);
    QCOMPARE(Taux(u" 65\u00A0% "), 65);
    QVERIFY(!Taux(u"650%"));
    QCOMPARE(Nettoie(u" a \u00A0\u202F b\t"), QStringLiteral("a b"));
    QCOMPARE(Nettoie(u"\u00A0"), QString());
}

void TestChampsBanque::FeeInTheTotalsColumnGoesHome()
{
    Presentation fiche;
    const Motifs motifs = LitUne(
        "63820563\t3028432\tun flacon\tPrésentation active\tDéclaration de commercialisation\t27/05/2025\t"
        "3400930284322\tnon\t30 %\t13,91\t1,02\t\t\n",
        fiche);
    QVERIFY(motifs.Refus.isEmpty());
    QCOMPARE(motifs.Corrections.size(), 1);
    QCOMPARE(fiche.Prix, 1391);
    QCOMPARE(fiche.Honoraires, 102);
    QCOMPARE(fiche.PrixTotal, 1493);
    QVERIFY(fiche.Declaree);
}

void TestChampsBanque::CutLineIsRefused()
{
    Specialite fiche;
    const Motifs motifs = LitUne("61266250\tA 313\tpommade\n", fiche);
    QCOMPARE(motifs.Refus, QStringLiteral("3 colonne(s) au lieu de 12"));
}

QTEST_GUILESS_MAIN(TestChampsBanque)
#include "test_champs_banque.moc"
