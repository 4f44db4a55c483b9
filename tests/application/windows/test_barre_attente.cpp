#include "application/windows/BarreAttente.h"
#include "startup/windows/ProgrammeDeTest.h"

#include <QLabel>
#include <QProgressBar>

namespace {

QWidget* Fenetre()
{
    for (QWidget* fenetre : QApplication::topLevelWidgets()) {
        if (fenetre->objectName() == QLatin1String("BarreAttente") && fenetre->isVisible()) {
            return fenetre;
        }
    }
    return nullptr;
}

} // namespace

class TestBarreAttente : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItComesAfterTwoSecondsAndGoes()
    {
        {
            application::BarreAttente barre;
            barre.Montre(100, QStringLiteral("Mise à jour de « Medoc.mdb »..."));
            QVERIFY(!Fenetre());
            QTest::qSleep(2050);
            barre.Montre(430, QStringLiteral("Mise à jour de « Medoc.mdb »..."));
            QVERIFY(Fenetre());
            QCOMPARE(Fenetre()->findChild<QProgressBar*>()->value(), 430);
            QCOMPARE(Fenetre()->findChild<QLabel*>(QStringLiteral("Mot"))->text(),
                     QStringLiteral("Mise à jour de « Medoc.mdb »..."));
            support::Capture(*Fenetre(), QStringLiteral("BarreAttente"));
        }
        QVERIFY(!Fenetre());
    }
};

int main(int nombre, char** arguments)
{
    return support::LanceTest<TestBarreAttente>(nombre, arguments);
}

#include "test_barre_attente.moc"
