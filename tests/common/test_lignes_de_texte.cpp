#include "common/Lignes.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestLignesDeTexte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Lignes_data();
    void Lignes();
};

void TestLignesDeTexte::Lignes_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QStringList>("parties");
    QTest::addColumn<QStringList>("lignes");
    QTest::newRow("nothing") << "" << QStringList{u""_s} << QStringList{};
    QTest::newRow("one line") << "a" << QStringList{u"a"_s} << QStringList{u"a"_s};
    QTest::newRow("its end") << "a\r\n" << QStringList{u"a"_s, u""_s} << QStringList{u"a"_s};
    QTest::newRow("every kind") << "a\r\nb\nc\rd" << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}
                                << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    QTest::newRow("empty ones") << "\r\n\r\na\r\n\r\n"
                                << QStringList{u""_s, u""_s, u"a"_s, u""_s, u""_s}
                                << QStringList{u""_s, u""_s, u"a"_s, u""_s};
}

void TestLignesDeTexte::Lignes()
{
    QFETCH(QString, texte);
    QTEST(common::PartiesDeTexte(texte), "parties");
    QTEST(common::LignesDeTexte(texte), "lignes");
}

QTEST_APPLESS_MAIN(TestLignesDeTexte)
#include "test_lignes_de_texte.moc"
