#include "outside/FiltreQt.h"

#include <QTest>

class TestFiltreQt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Filtre_data();
    void Filtre();
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

QTEST_APPLESS_MAIN(TestFiltreQt)
#include "test_filtre_qt.moc"
