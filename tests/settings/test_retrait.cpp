#include "settings/Retrait.h"

#include <QTest>
#include <limits>

using namespace settings;

class TestRetrait : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theKeysOfARow_data();
    void theKeysOfARow();
};

void TestRetrait::theKeysOfARow_data()
{
    QTest::addColumn<int>("touche");
    QTest::addColumn<QString>("avant");
    QTest::addColumn<bool>("selection");
    QTest::addColumn<int>("espaces");
    QTest::addColumn<int>("apres");
    QTest::addColumn<bool>("retenue");
    const auto cas = [](const char* nom, ToucheDeRang touche, const char* avant, bool selection, int espaces,
                        int apres, bool retenue) {
        QTest::newRow(nom) << static_cast<int>(touche) << QString::fromUtf8(avant) << selection << espaces
                           << apres << retenue;
    };
    constexpr int plein = std::numeric_limits<qint16>::max();
    using enum ToucheDeRang;
    cas("a blank at the head", Espace, "", false, 0, 1, true);
    cas("behind blanks only", Espace, "  ", false, 4, 5, true);
    cas("a blank behind letters", Espace, "Dr", false, 4, 4, false);
    cas("a blank over a selected row", Espace, "", true, 0, 1, true);
    cas("the greatest count stays", Espace, "", false, plein, plein, true);
    cas("a backspace at the head", Retour, "", false, 3, 2, true);
    cas("with nothing to take away", Retour, "", false, 0, 0, false);
    cas("a backspace behind letters", Retour, "Dr", false, 3, 3, false);
    cas("a backspace on a selection", Retour, "", true, 3, 3, false);
    cas("Delete at the head", Suppr, "", false, 3, 3, true);
    cas("Delete behind blanks only", Suppr, " ", false, 3, 3, true);
    cas("Delete behind letters", Suppr, "D", false, 3, 3, false);
    cas("Delete on a selection", Suppr, "", true, 3, 3, false);
    cas("any other key at the head", Autre, "", false, 3, 3, false);
}

void TestRetrait::theKeysOfARow()
{
    QFETCH(int, touche);
    QFETCH(QString, avant);
    QFETCH(bool, selection);
    QFETCH(int, espaces);
    QFETCH(int, apres);
    QFETCH(bool, retenue);
    const EffetDeTouche effet =
        FrappeDansRang(static_cast<ToucheDeRang>(touche), {avant, selection, static_cast<qint16>(espaces)});
    QCOMPARE(effet, (EffetDeTouche{static_cast<qint16>(apres), retenue}));
}

QTEST_GUILESS_MAIN(TestRetrait)
#include "test_retrait.moc"
