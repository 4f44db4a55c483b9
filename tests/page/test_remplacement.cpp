#include "page/Mesure.h"
#include "page/Remplacement.h"

#include <QFontDatabase>
#include <QTest>

using namespace Qt::StringLiterals;

class TestRemplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unePoliceServie_data();
    void unePoliceServie();
    void unePoliceInventee();
    void unePoliceAutrementLargeEstNommee();
};

// The families that a fresh machine has, and those that others with the same widths stand for there.
void TestRemplacement::unePoliceServie_data()
{
    QTest::addColumn<QString>("famille");
    for (const char* famille :
         {"Arial", "arial", "Times New Roman", "Courier New", "Helvetica", "Courier", "Liberation Sans",
          "Arial Narrow", "Albany AMT", "Thorndale", "Nimbus Roman"}) {
        QTest::newRow(famille) << QString::fromLatin1(famille);
    }
}

void TestRemplacement::unePoliceServie()
{
    QFETCH(QString, famille);
    QCOMPARE(page::PoliceDeRemplacement(famille), QString());
}

void TestRemplacement::unePoliceInventee()
{
    const QString remplacante = page::PoliceDeRemplacement(u"Police Inventée 7"_s);
    QVERIFY(!remplacante.isEmpty());
    QCOMPARE(page::PoliceDeRemplacement(remplacante), QString());
    // what is named is what prints
    QCOMPARE(page::MesureLargeur(u"Ordonnance"_s, {.Nom = u"Police Inventée 7"_s}),
             page::MesureLargeur(u"Ordonnance"_s, {.Nom = remplacante}));
}

// Its letters look alike, but the lines break elsewhere.
void TestRemplacement::unePoliceAutrementLargeEstNommee()
{
    if (QFontDatabase::hasFamily(u"Verdana"_s)) {
        QCOMPARE(page::PoliceDeRemplacement(u"Verdana"_s), QString());
        return;
    }
    QVERIFY(!page::PoliceDeRemplacement(u"Verdana"_s).isEmpty());
}

QTEST_MAIN(TestRemplacement)
#include "test_remplacement.moc"
