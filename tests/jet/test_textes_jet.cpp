#include "Defaut.h"
#include "Textes.h"
#include "Valeurs.h"

#include <QTest>

namespace {

std::string Lu(const jet::Textes& textes, const QByteArray& octets)
{
    std::string utf8;
    textes.Ajoute(utf8, {reinterpret_cast<const unsigned char*>(octets.constData()),
                         static_cast<std::size_t>(octets.size())});
    return utf8;
}

} // namespace

class TestTextesJet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LitJet4_data();
    void LitJet4();
    void RefuseUnTexteCoupe();
    void LitJet3();
    void LitUnSimple();
    void LitUneDate();
};

void TestTextesJet::LitJet4_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("vide") << QByteArray() << QString();
    QTest::newRow("court vide") << QByteArray("\xFF\xFE") << QString();
    QTest::newRow("entier") << QByteArray("\xE9\0\x53\x01", 4) << QStringLiteral("éœ");
    QTest::newRow("court") << QByteArray("\xFF\xFE"
                                         "d\xE9j\xE0")
                           << QStringLiteral("déjà");
    QTest::newRow("court puis entier puis court") << QByteArray("\xFF\xFE"
                                                                "c\0\x53\x01\0ur",
                                                                9)
                                                  << QStringLiteral("cœur");
    QTest::newRow("hors du premier plan") << QByteArray("\x3D\xD8\x00\xDE", 4) << QStringLiteral("😀");
    QTest::newRow("moitié seule") << QByteArray("\x3D\xD8"
                                                "a\0",
                                                4)
                                  << QStringLiteral("\uFFFDa");
    QTest::newRow("saut de ligne") << QByteArray("\xFF\xFE"
                                                 "a\r\nb")
                                   << QStringLiteral("a\r\nb");
}

void TestTextesJet::LitJet4()
{
    QFETCH(QByteArray, octets);
    QFETCH(QString, attendu);
    QCOMPARE(QString::fromStdString(Lu(jet::Textes(0), octets)), attendu);
}

void TestTextesJet::RefuseUnTexteCoupe()
{
    const jet::Textes textes(0);
    QVERIFY_THROWS_EXCEPTION(jet::Defaut, Lu(textes, QByteArray("abc")));
    QVERIFY_THROWS_EXCEPTION(jet::Defaut, Lu(textes, QByteArray("\xFF\xFE\0b", 4)));
}

void TestTextesJet::LitJet3()
{
    QCOMPARE(QString::fromStdString(Lu(jet::Textes(1252), "d\xE9j\xE0 \x9Cuf \x80")),
             QStringLiteral("déjà œuf €"));
    QCOMPARE(QString::fromStdString(Lu(jet::Textes(1252), "a\x81z")), QStringLiteral("a\u0081z"));
    QCOMPARE(Lu(jet::Textes(1252), QByteArray(10000, 'x')).size(), 10000U);
}

void TestTextesJet::LitUnSimple()
{
    QCOMPARE(jet::DoubleDe(12.1F), 12.1);
    QCOMPARE(jet::DoubleDe(10.0F), 10.0);
    QCOMPARE(jet::DoubleDe(std::numeric_limits<float>::quiet_NaN()), 0.0);
}

void TestTextesJet::LitUneDate()
{
    QCOMPARE(QString::fromStdString(jet::TexteDeDate(19438)), QStringLiteral("20/03/1953"));
    QCOMPARE(QString::fromStdString(jet::TexteDeDate(1.5)), QStringLiteral("31/12/1899 12:00:00"));
}

QTEST_GUILESS_MAIN(TestTextesJet)
#include "test_textes_jet.moc"
