#include "certificates/Decalage.h"
#include "certificates/Macros.h"

#include <QTest>

using namespace certificates;

class TestDecalage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ADroite_data();
    void ADroite();
    void AGauche_data();
    void AGauche();
    void RefuseAGauche_data();
    void RefuseAGauche();
    void UnAllerRetourRendLesLignes();
    void Macros_data();
    void Macros();
};

void TestDecalage::ADroite_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("decale");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("one line without end") << "a"
                                          << "  a\r\n";
    QTest::newRow("the end of the text begins no line") << "a\r\n"
                                                        << "  a\r\n";
    QTest::newRow("an empty line takes its blanks too") << "a\r\n\r\nb"
                                                        << "  a\r\n  \r\n  b\r\n";
    QTest::newRow("lone line feed") << "a\nb"
                                    << "  a\r\n  b\r\n";
    QTest::newRow("lone carriage return") << "a\rb"
                                          << "  a\r\n  b\r\n";
    QTest::newRow("an empty last line") << "a\r\n\r\n"
                                        << "  a\r\n  \r\n";
}

void TestDecalage::ADroite()
{
    QFETCH(QString, texte);
    QFETCH(QString, decale);
    QCOMPARE(DecaleADroite(texte), decale);
}

void TestDecalage::AGauche_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("decale");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("two blanks") << "  a"
                                << "a\r\n";
    QTest::newRow("more stay") << "    a\r\n   b\r\n"
                               << "  a\r\n b\r\n";
    QTest::newRow("an empty line is no obstacle") << "  a\r\n\r\n  b"
                                                  << "a\r\n\r\nb\r\n";
    QTest::newRow("a line of two blanks") << "  a\r\n  \r\n  b"
                                          << "a\r\n\r\nb\r\n";
}

void TestDecalage::AGauche()
{
    QFETCH(QString, texte);
    QFETCH(QString, decale);
    QVERIFY(PeutDecalerAGauche(texte));
    QCOMPARE(DecaleAGauche(texte), decale);
}

void TestDecalage::RefuseAGauche_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("no blank") << "a";
    QTest::newRow("one blank") << " a";
    QTest::newRow("a lone blank") << "  a\r\n \r\n";
    QTest::newRow("the last line") << "  a\r\n  b\r\nc";
    QTest::newRow("a tab") << "\ta";
    QTest::newRow("no-break blanks") << "\u00A0\u00A0a";
}

void TestDecalage::RefuseAGauche()
{
    QFETCH(QString, texte);
    QVERIFY(!PeutDecalerAGauche(texte));
}

void TestDecalage::UnAllerRetourRendLesLignes()
{
    const QString texte = QStringLiteral("Je soussigné,\r\n\r\n  certifie\r\n");
    QString decale = texte;
    for (int pas = 0; pas < 4; ++pas) {
        decale = DecaleADroite(decale);
    }
    QVERIFY(decale.startsWith(QString(8, u' ') + u'J'));
    for (int pas = 0; pas < 4; ++pas) {
        QVERIFY(PeutDecalerAGauche(decale));
        decale = DecaleAGauche(decale);
    }
    QCOMPARE(decale, texte);
}

void TestDecalage::Macros_data()
{
    QTest::addColumn<int>("macro");
    QTest::addColumn<int>("option");
    QTest::addColumn<QString>("texte");
    QTest::newRow("N") << 0 << 1 << " <N>";
    QTest::newRow("DN") << 1 << 1 << " <DN>";
    QTest::newRow("DJ") << 2 << 1 << " <DJ>";
    QTest::newRow("AD") << 3 << 1 << " <AD>";
    QTest::newRow("DR") << 4 << 1 << " <DR>";
    QTest::newRow("EL") << 5 << 3 << " <EL>";
    QTest::newRow("NBsp 25") << 6 << 0 << QString(25, u' ');
    QTest::newRow("NBsp 50") << 6 << 1 << QString(50, u' ');
    QTest::newRow("NBsp 75") << 6 << 2 << QString(75, u' ');
    QTest::newRow("NBsp 100") << 6 << 3 << QString(100, u' ');
}

void TestDecalage::Macros()
{
    QFETCH(int, macro);
    QFETCH(int, option);
    QTEST(TexteMacro(macro, LargeurNBsp(option)), "texte");
}

QTEST_APPLESS_MAIN(TestDecalage)
#include "test_decalage.moc"
