#include "common/Texte8.h"

#include <QTest>

using common::DepuisWindows1252;
using common::TientEnWindows1252;
using common::VersWindows1252;

class TestTexte8 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RelitChaqueOctet();
    void TraduitLesSignes();
    void RemplaceLeReste();
};

void TestTexte8::RelitChaqueOctet()
{
    QByteArray octets;
    for (int octet = 0; octet < 256; ++octet) {
        octets.append(static_cast<char>(octet));
    }
    const QString texte = DepuisWindows1252(octets);
    QCOMPARE(texte.size(), 256);
    QVERIFY(TientEnWindows1252(texte));
    QCOMPARE(VersWindows1252(texte), octets);
}

void TestTexte8::TraduitLesSignes()
{
    QCOMPARE(DepuisWindows1252("\x80 \x85 \x8C\x9C \x92 \x96 \x9F \xE9"), QStringLiteral("€ … Œœ ’ – Ÿ é"));
}

void TestTexte8::RemplaceLeReste()
{
    QCOMPARE(VersWindows1252(u"a Ω b"), QByteArray("a ? b"));
    QCOMPARE(VersWindows1252(QString::fromUcs4(U"a\U0001F600b")), QByteArray("a?b"));
    QVERIFY(!TientEnWindows1252(u"Ω"));
    QVERIFY(TientEnWindows1252(u"Œuvre à 5 €"));
}

QTEST_GUILESS_MAIN(TestTexte8)
#include "test_texte8.moc"
