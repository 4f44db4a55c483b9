#include "common/CleDeTri.h"
#include "medication/ArbreMedicaments.h"
#include "medication/Tri.h"
#include "support/Hasard.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QTest>
#include <algorithm>

using namespace medication;

namespace {

QList<Noeud> Tries(const QStringList& noms)
{
    QList<Noeud> noeuds;
    for (const QString& nom : noms) {
        noeuds.append({nom, QString::number(noeuds.size() + 1)});
    }
    Trie(noeuds);
    return noeuds;
}

QStringList Textes(const QList<Noeud>& noeuds)
{
    QStringList textes;
    for (const Noeud& noeud : noeuds) {
        textes.append(noeud.Texte);
    }
    return textes;
}

QString Capitales(const QString& texte)
{
    QString capitales;
    for (const QChar c : texte) {
        capitales += c.toUpper();
    }
    return capitales;
}

// The walk that the search stands for, word by word.
int Marche(const QList<Noeud>& noeuds, const QString& recherche)
{
    const QString cherche = recherche.trimmed();
    for (int rang = 0; rang < noeuds.size(); ++rang) {
        const QString debut = noeuds[rang].Texte.left(cherche.size()).trimmed();
        if (Capitales(debut) == Capitales(cherche)) {
            return rang;
        }
    }
    return -1;
}

} // namespace

class TestArbre : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheOrderIsAlphabetical()
    {
        const QStringList noms = {QStringLiteral("ZYLORIC"),   QStringLiteral("Éfferalgan"),
                                  QStringLiteral("EFFEXOR"),   QStringLiteral("doliprane"),
                                  QStringLiteral("Œstrodose"), QStringLiteral("OFLOCET")};
        QCOMPARE(Textes(Tries(noms)), QStringList({QStringLiteral("doliprane"), QStringLiteral("Éfferalgan"),
                                                   QStringLiteral("EFFEXOR"), QStringLiteral("Œstrodose"),
                                                   QStringLiteral("OFLOCET"), QStringLiteral("ZYLORIC")}));
    }

    void EqualNamesKeepTheirOrder()
    {
        const QList<Noeud> noeuds = Tries({QStringLiteral("B"), QStringLiteral("A"), QStringLiteral("B")});
        QCOMPARE(noeuds[1].Etiquette, QStringLiteral("1"));
        QCOMPARE(noeuds[2].Etiquette, QStringLiteral("3"));
    }

    void TheSearchFindsTheFirst_data()
    {
        QTest::addColumn<QString>("recherche");
        QTest::addColumn<int>("rang");
        // AMLOR, Doliprane 1 g, DOLIPRANE 500, Étodolac, Etoricoxib
        QTest::newRow("capitals") << "DOLI" << 1;
        QTest::newRow("small") << "doliprane 5" << 2;
        QTest::newRow("blanks around") << "  DOLI  " << 1;
        QTest::newRow("inner blank") << "DOLIPRANE " << 1;
        QTest::newRow("accent") << "éto" << 3;
        QTest::newRow("without accent") << "eto" << 4;
        QTest::newRow("absent") << "ZZ" << -1;
        QTest::newRow("longer than a name") << "AMLORX" << -1;
        QTest::newRow("empty") << "" << 0;
        QTest::newRow("blank") << "   " << 0;
        QTest::newRow("joker") << "%" << -1;
    }
    void TheSearchFindsTheFirst()
    {
        QFETCH(QString, recherche);
        QFETCH(int, rang);
        ArbreMedicaments arbre;
        arbre.Remplit(
            Tries({QStringLiteral("DOLIPRANE 500"), QStringLiteral("Étodolac"), QStringLiteral("AMLOR"),
                   QStringLiteral("Etoricoxib"), QStringLiteral("Doliprane 1 g")}));
        QCOMPARE(arbre.Cherche(recherche), rang);
        QCOMPARE(Marche(arbre.Noeuds(), recherche), rang);
    }

    void OrderAndSearchEqualTheirRules()
    {
        QRandomGenerator hasard(20261120);
        for (int tour = 0; tour < 60; ++tour) {
            QStringList noms;
            for (int i = 0; i < 150; ++i) {
                noms.append(support::TexteAuHasard(hasard, tour % 2 ? 6 : 24));
            }
            ArbreMedicaments arbre;
            arbre.Remplit(Tries(noms));
            std::ranges::sort(noms, [](const QString& a, const QString& b) {
                const auto ordre = common::CompareReplie(a, b);
                return ordre != 0 ? ordre < 0 : a < b;
            });
            QCOMPARE(Textes(arbre.Noeuds()), noms);
            for (int i = 0; i < 100; ++i) {
                const QString recherche = support::TexteAuHasard(hasard, i % 3 == 0 ? 10 : 3);
                QCOMPARE(arbre.Cherche(recherche), Marche(arbre.Noeuds(), recherche));
            }
        }
    }

    void AnEmptyTreeHoldsNothing()
    {
        ArbreMedicaments arbre;
        QCOMPARE(arbre.rowCount(), 0);
        QCOMPARE(arbre.Cherche(QStringLiteral("A")), -1);
        QCOMPARE(arbre.Cherche(QString()), -1);
        QVERIFY(!arbre.Lis(0) && !arbre.Lis(-1));
    }

    void TheModelKeepsItsWord()
    {
        ArbreMedicaments arbre;
        QAbstractItemModelTester testeur(&arbre, QAbstractItemModelTester::FailureReportingMode::QtTest);
        arbre.Remplit(
            {{QStringLiteral("A"), QStringLiteral("7")}, {QStringLiteral("B"), QStringLiteral("8"), true}});
        QCOMPARE(arbre.index(0).data().toString(), QStringLiteral("A"));
        QCOMPARE(arbre.index(0).data(Qt::UserRole).toString(), QStringLiteral("7"));
        QVERIFY(!arbre.index(0).data(Qt::FontRole).isValid());
        QVERIFY(arbre.index(1).data(Qt::FontRole).value<QFont>().bold());
        QVERIFY(arbre.index(1).data(Qt::ForegroundRole).isValid());
        arbre.Retire(0);
        arbre.Retire(5);
        QCOMPARE(arbre.rowCount(), 1);
        QCOMPARE(arbre.Lis(0)->Texte, QStringLiteral("B"));
    }
};

QTEST_MAIN(TestArbre)
#include "test_arbre.moc"
