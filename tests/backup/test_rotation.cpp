#include "backup/Rotation.h"

#include <QTest>
#include <algorithm>

using backup::JoursGardes;

namespace {

QList<QDate> Tries(const QSet<QDate>& jours)
{
    QList<QDate> tries(jours.begin(), jours.end());
    std::ranges::sort(tries);
    return tries;
}

} // namespace

class TestRotation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void GardeSeptJoursQuatreSemainesDouzeMois();
    void CompteLesJoursQuiOntUneCopie();
    void GardeCeQuiVientDeLAvenir();
    void NeVieillitPasSansNouvelle();
};

/// Three years of every day, rotated each day as the program does.
void TestRotation::GardeSeptJoursQuatreSemainesDouzeMois()
{
    QSet<QDate> gardes;
    const QDate fin(2026, 11, 20); // a Friday
    for (QDate jour = fin.addYears(-3); jour <= fin; jour = jour.addDays(1)) {
        gardes.insert(jour);
        gardes = JoursGardes(QList<QDate>(gardes.begin(), gardes.end()), jour);
    }
    QList<QDate> attendus;
    for (int mois = 11; mois >= 1; --mois) {
        const QDate premier = QDate(fin.year(), fin.month(), 1).addMonths(-mois);
        attendus.append(QDate(premier.year(), premier.month(), premier.daysInMonth()));
    }
    attendus << QDate(2026, 11, 1) << QDate(2026, 11, 8);
    for (int i = 6; i >= 0; --i) {
        attendus.append(fin.addDays(-i));
    }
    std::ranges::sort(attendus);
    QCOMPARE(Tries(gardes), attendus);
}

void TestRotation::CompteLesJoursQuiOntUneCopie()
{
    QList<QDate> jours;
    for (int i = 0; i < 7; ++i) {
        jours.append(QDate(2026, 11, 2 + 3 * i)); // three days apart
    }
    QCOMPARE(JoursGardes(jours, QDate(2026, 11, 20)).size(), 7);
}

void TestRotation::GardeCeQuiVientDeLAvenir()
{
    const QDate jour(2026, 11, 20);
    QList<QDate> jours = {QDate(2031, 1, 1), QDate(2032, 1, 1)};
    for (int i = 0; i < 7; ++i) {
        jours.append(jour.addDays(-i));
    }
    QCOMPARE(JoursGardes(jours, jour).size(), 9);
}

void TestRotation::NeVieillitPasSansNouvelle()
{
    const QList<QDate> jours = {QDate(2020, 3, 1), QDate(2020, 3, 2)};
    QCOMPARE(JoursGardes(jours, QDate(2026, 11, 20)).size(), 2);
}

QTEST_GUILESS_MAIN(TestRotation)
#include "test_rotation.moc"
