#include "outside/FiltreQt.h"

#include <QTest>

class TestFiltreQt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Filtre_data();
    void Filtre();
    void NomComplete();
};

void TestFiltreQt::Filtre_data()
{
    QTest::addColumn<QString>("filtre");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("one pattern") << "*.txt|*.txt"
                                 << "*.txt (*.txt)";
    QTest::newRow("several") << "Images (*.bmp;*.jpg;*.gif)|*.bmp;*.jpg;*.gif"
                             << "Images (*.bmp *.jpg *.gif)";
    QTest::newRow("words") << "Journaux (*.log)|*.log"
                           << "Journaux (*.log)";
}

void TestFiltreQt::Filtre()
{
    QFETCH(QString, filtre);
    QTEST(outside::FiltreQt(filtre), "attendu");
}

void TestFiltreQt::NomComplete()
{
    const QString filtre = QStringLiteral("*.txt|*.txt");
    QCOMPARE(outside::NomComplete(QStringLiteral("/c/Sport"), filtre), QStringLiteral("/c/Sport.txt"));
    QCOMPARE(outside::NomComplete(QStringLiteral("/c/Dr. X"), filtre), QStringLiteral("/c/Dr. X.txt"));
    QCOMPARE(outside::NomComplete(QStringLiteral("/c/Sport.TXT"), filtre), QString());
}

QTEST_APPLESS_MAIN(TestFiltreQt)
#include "test_filtre_qt.moc"
