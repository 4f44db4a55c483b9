#include "common/Nombres.h"

#include <QTest>

#include <limits>

using common::NombreAVirgule;
using common::TexteNombre;
using common::TexteSimple;
using common::Val;
using common::ValEntier;

class TestNombres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LitLeDebut_data();
    void LitLeDebut();
    void LitUnEntier_data();
    void LitUnEntier();
    void EcritAuPlusCourt_data();
    void EcritAuPlusCourt();
    void EcritUnSimple_data();
    void EcritUnSimple();
    void RelitCeQuIlEcrit();
    void LitLaVirgule_data();
    void LitLaVirgule();
};

void TestNombres::LitLeDebut_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<double>("valeur");
    const auto cas = [](const char16_t* texte, double valeur) {
        QTest::newRow(qPrintable(QString::fromUtf16(texte))) << QString::fromUtf16(texte) << valeur;
    };
    cas(u"", 0);
    cas(u"abc", 0);
    cas(u"72", 72);
    cas(u"72,5", 72);
    cas(u"72.5", 72.5);
    cas(u" 3 ", 3);
    cas(u"1 234", 1234);
    cas(u"1\u00A0234", 1234);
    cas(u"\t1\r\n2", 12);
    cas(u"12 kg", 12);
    cas(u"- 4", -4);
    cas(u"+4", 4);
    cas(u"--4", 0);
    cas(u".5", .5);
    cas(u"-.5x", -.5);
    cas(u"5.", 5);
    cas(u".", 0);
    cas(u"-", 0);
    cas(u"1.2.3", 1.2);
    cas(u"1e2x", 100);
    cas(u"1E-2", .01);
    cas(u"1e+2", 100);
    cas(u"1e", 1);
    cas(u"1e-", 1);
    cas(u"e5", 0);
    cas(u"12é", 12);
    cas(u"٣", 0);
    cas(u"0012", 12);
    cas(u"inf", 0);
    cas(u"nan", 0);
    cas(u"0x10", 0);
    cas(u"1e999", std::numeric_limits<double>::max());
    cas(u"-1e999", -std::numeric_limits<double>::max());
    cas(u"1e-999", 0);
}

void TestNombres::LitLeDebut()
{
    QFETCH(QString, texte);
    QFETCH(double, valeur);
    QCOMPARE(Val(texte), valeur);
}

void TestNombres::LitUnEntier_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("valeur");
    QTest::newRow("entier") << QStringLiteral("12") << 12;
    QTest::newRow("demi vers le pair du bas") << QStringLiteral("2.5") << 2;
    QTest::newRow("demi vers le pair du haut") << QStringLiteral("3.5") << 4;
    QTest::newRow("demi négatif") << QStringLiteral("-2.5") << -2;
    QTest::newRow("au-dessus du demi") << QStringLiteral("2.51") << 3;
    QTest::newRow("trop grand") << QStringLiteral("300") << 255;
    QTest::newRow("trop petit") << QStringLiteral("-300") << -10;
    QTest::newRow("immense") << QStringLiteral("1e999") << 255;
    QTest::newRow("rien") << QString() << 0;
}

void TestNombres::LitUnEntier()
{
    QFETCH(QString, texte);
    QTEST(ValEntier(texte, -10, 255), "valeur");
}

void TestNombres::EcritAuPlusCourt_data()
{
    QTest::addColumn<double>("valeur");
    QTest::addColumn<QString>("texte");
    QTest::newRow("dix") << 10.0 << QStringLiteral("10");
    QTest::newRow("décimale") << 12.5 << QStringLiteral("12.5");
    QTest::newRow("zéro") << 0.0 << QStringLiteral("0");
    QTest::newRow("moins zéro") << -0.0 << QStringLiteral("0");
    QTest::newRow("sous un") << 0.5 << QStringLiteral("0.5");
    QTest::newRow("négatif") << -3.25 << QStringLiteral("-3.25");
    QTest::newRow("somme") << 0.1 + 0.2 << QStringLiteral("0.3");
    QTest::newRow("petit") << 1e-7 << QStringLiteral("0.0000001");
    QTest::newRow("grand") << 1e15 << QStringLiteral("1000000000000000");
    QTest::newRow("cip") << 3400930000000.0 << QStringLiteral("3400930000000");
    QTest::newRow("sans fin") << std::numeric_limits<double>::infinity() << QStringLiteral("0");
    QTest::newRow("pas un nombre") << std::numeric_limits<double>::quiet_NaN() << QStringLiteral("0");
}

void TestNombres::EcritAuPlusCourt()
{
    QFETCH(double, valeur);
    QTEST(TexteNombre(valeur), "texte");
}

void TestNombres::EcritUnSimple_data()
{
    QTest::addColumn<float>("valeur");
    QTest::addColumn<QString>("texte");
    QTest::newRow("dix") << 10.0F << QStringLiteral("10");
    QTest::newRow("décimale") << 12.5F << QStringLiteral("12.5");
    QTest::newRow("dixième") << 12.1F << QStringLiteral("12.1");
    QTest::newRow("sept chiffres") << 1.2345678F << QStringLiteral("1.234568");
    QTest::newRow("tiers") << 1.0F / 3 << QStringLiteral("0.3333333");
    QTest::newRow("négatif") << -0.25F << QStringLiteral("-0.25");
    QTest::newRow("zéro") << 0.0F << QStringLiteral("0");
}

void TestNombres::EcritUnSimple()
{
    QFETCH(float, valeur);
    QTEST(TexteSimple(valeur), "texte");
}

void TestNombres::RelitCeQuIlEcrit()
{
    for (int i = -20000; i <= 20000; ++i) {
        const double valeur = i / 100.0;
        QCOMPARE(Val(TexteNombre(valeur)), valeur);
        QCOMPARE(static_cast<float>(Val(TexteSimple(static_cast<float>(valeur)))),
                 static_cast<float>(valeur));
    }
}

void TestNombres::LitLaVirgule_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("nombre");
    QTest::addColumn<double>("valeur");
    QTest::newRow("virgule") << QStringLiteral("12,5") << true << 12.5;
    QTest::newRow("entier") << QStringLiteral("12") << true << 12.0;
    QTest::newRow("blancs autour") << QStringLiteral("  12,5 ") << true << 12.5;
    QTest::newRow("négatif") << QStringLiteral("-0,5") << true << -0.5;
    QTest::newRow("sans zéro") << QStringLiteral(",5") << true << 0.5;
    QTest::newRow("point") << QStringLiteral("12.5") << false << 0.0;
    QTest::newRow("suite") << QStringLiteral("12 kg") << false << 0.0;
    QTest::newRow("deux virgules") << QStringLiteral("1,2,3") << false << 0.0;
    QTest::newRow("exposant") << QStringLiteral("1e2") << false << 0.0;
    QTest::newRow("virgule seule") << QStringLiteral(",") << false << 0.0;
    QTest::newRow("signe au milieu") << QStringLiteral("1-2") << false << 0.0;
    QTest::newRow("vide") << QString() << false << 0.0;
}

void TestNombres::LitLaVirgule()
{
    QFETCH(QString, texte);
    QFETCH(bool, nombre);
    QFETCH(double, valeur);
    const auto lu = NombreAVirgule(texte);
    QCOMPARE(lu.has_value(), nombre);
    QCOMPARE(lu.value_or(0), valeur);
}

QTEST_GUILESS_MAIN(TestNombres)
#include "test_nombres.moc"
