#include "common/CleDeTri.h"
#include "common/TriParCle.h"
#include "support/Hasard.h"

#include <QTest>

using namespace common;

namespace {

std::pair<quint64, quint64> Mots(const QString& texte)
{
    const CleDeTri cle = Cle(texte);
    return {cle.Repliee, cle.Suite};
}

struct Carte
{
    quint64 Couleur;
    int Valeur;
    bool operator==(const Carte&) const = default;
};

} // namespace

class TestCleDeTri : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AccentsAndCaseCountForNothing_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("ordre");
        QTest::newRow("accent") << "été"
                                << "ETE" << 0;
        QTest::newRow("ligature") << "œuf"
                                  << "OEUF" << 0;
        QTest::newRow("sharp s") << "ß"
                                 << "ss" << 0;
        QTest::newRow("combining accent") << QStringLiteral("e\u0301") << "E" << 0;
        QTest::newRow("blank before hyphen") << "LE GALL"
                                             << "LE-GALL" << -1;
        QTest::newRow("apostrophe before hyphen") << "D'A"
                                                  << "D-A" << -1;
        QTest::newRow("hyphen before letter") << "MARTIN-Z"
                                              << "MARTINA" << -1;
        QTest::newRow("shorter first") << "MARTIN"
                                       << "MARTINE" << -1;
        QTest::newRow("digit before letter") << "1"
                                             << "A" << -1;
        QTest::newRow("beyond the key") << "ABCDEFGHIJKLMNOPQRSTUVA"
                                        << "abcdefghijklmnopqrstuvb" << -1;
        QTest::newRow("other script") << "Z" << QStringLiteral("Ж") << -1;
    }
    void AccentsAndCaseCountForNothing()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, ordre);
        const auto obtenu = CompareReplie(a, b);
        QCOMPARE(obtenu < 0 ? -1 : int(obtenu > 0), ordre);
        QVERIFY(ordre < 0 ? Mots(a) <= Mots(b) : Mots(a) == Mots(b));
    }

    void KeysNeverContradictTheOrder()
    {
        QRandomGenerator hasard(7);
        for (int tour = 0; tour < 20000; ++tour) {
            const QString a = support::TexteAuHasard(hasard, 25);
            const QString b = support::TexteAuHasard(hasard, 25);
            if (Mots(a) < Mots(b)) {
                QVERIFY2(CompareReplie(a, b) < 0, qPrintable(a + u'|' + b));
            }
        }
    }

    void ALongerTextLiesBetweenBothKeysOfItsBeginning()
    {
        QRandomGenerator hasard(8);
        for (int tour = 0; tour < 20000; ++tour) {
            const QString debut = support::TexteAuHasard(hasard, 14);
            const QString texte = debut + support::TexteAuHasard(hasard, 14);
            QVERIFY(CommencePar(texte, debut));
            QVERIFY2(Cle(texte).Repliee >= Cle(debut).Repliee && Cle(texte).Repliee <= Cle(debut).FinRepliee,
                     qPrintable(debut + u'|' + texte));
        }
    }

    void ElementsOfOneKeyAreLeftToTheOrder()
    {
        std::vector<Carte> cartes;
        for (int i = 0; i < 5000; ++i) {
            cartes.push_back({quint64(i) * 7919 % 701 << 41, i * 31 % 5000});
        }
        const auto precede = [](const Carte& a, const Carte& b) { return a.Valeur < b.Valeur; };
        std::vector<Carte> attendu = cartes;
        std::ranges::sort(attendu, {},
                          [](const Carte& carte) { return std::pair(carte.Couleur, carte.Valeur); });
        TrieParCle(cartes, &Carte::Couleur, precede);
        QVERIFY(cartes == attendu);
        std::vector<Carte> aucune;
        TrieParCle(aucune, &Carte::Couleur, precede);
        QVERIFY(aucune.empty());
    }
};

QTEST_GUILESS_MAIN(TestCleDeTri)
#include "test_cle_de_tri.moc"
