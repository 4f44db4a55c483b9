#include "upgrade/IndexNoms.h"

#include <QRandomGenerator>
#include <QTest>

using upgrade::IndexNoms;

namespace {

QString U(const char* texte)
{
    return QString::fromUtf8(texte);
}

/// What the index promises, name by name.
int DernierParmi(const QStringList& noms, const QString& texte)
{
    int dernier = -1;
    for (int i = 0; i < noms.size(); ++i) {
        if (!texte.isEmpty() && texte.contains(noms[i])) {
            dernier = i;
        }
    }
    return dernier;
}

QString Mot(QRandomGenerator& hasard, int longueur)
{
    QString mot;
    for (int reste = hasard.bounded(longueur + 1); reste > 0; --reste) {
        mot += u"aab É"[hasard.bounded(5)];
    }
    return mot;
}

} // namespace

class TestIndexNoms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dernier_data();
    void dernier();
    void commeUnParUn();
};

void TestIndexNoms::dernier_data()
{
    QTest::addColumn<QStringList>("noms");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("rang");
    QTest::newRow("contenu") << QStringList{U("MARTIN  Paul"), U("DURAND  Anne")}
                             << U("Monsieur  MARTIN  Paul") << 0;
    QTest::newRow("absent") << QStringList{U("MARTIN  Paul")} << U("Monsieur  MARTIN  Pau") << -1;
    QTest::newRow("le dernier gagne")
        << QStringList{U("MARTIN  Paul"), U("MARTIN")} << U("MARTIN  Paul") << 1;
    QTest::newRow("même plus long") << QStringList{U("MARTIN"), U("MARTIN  Paul")} << U("M.  MARTIN  Paul")
                                    << 1;
    QTest::newRow("homonymes") << QStringList{U("A  B"), U("A  B")} << U("A  B") << 1;
    QTest::newRow("au milieu d'un mot") << QStringList{U("ART")} << U("MARTIN") << 0;
    QTest::newRow("lettre à lettre") << QStringList{U("martin"), U("MARTÌN")} << U("MARTIN") << -1;
    QTest::newRow("nom vide") << QStringList{U("MARTIN"), U("")} << U("MARTIN") << 1;
    QTest::newRow("nom vide d'abord") << QStringList{U(""), U("MARTIN")} << U("*") << 0;
    QTest::newRow("texte vide") << QStringList{U("")} << U("") << -1;
    QTest::newRow("aucun nom") << QStringList() << U("MARTIN") << -1;
    QTest::newRow("repli") << QStringList{U("ABCX"), U("BC")} << U("ABCD") << 1;
}

void TestIndexNoms::dernier()
{
    QFETCH(const QStringList, noms);
    QFETCH(const QString, texte);
    QFETCH(const int, rang);
    QCOMPARE(IndexNoms(noms).DernierContenu(texte), rang);
    QCOMPARE(DernierParmi(noms, texte), rang);
}

void TestIndexNoms::commeUnParUn()
{
    QRandomGenerator hasard(20261120);
    for (int essai = 0; essai < 2000; ++essai) {
        QStringList noms;
        for (int nombre = hasard.bounded(8); nombre > 0; --nombre) {
            noms.append(Mot(hasard, 5));
        }
        const IndexNoms index(noms);
        for (int i = 0; i < 10; ++i) {
            const QString texte = Mot(hasard, 12);
            QVERIFY2(index.DernierContenu(texte) == DernierParmi(noms, texte),
                     qPrintable(noms.join(u'|') + U(" dans ") + texte));
        }
    }
}

QTEST_GUILESS_MAIN(TestIndexNoms)
#include "test_index_noms.moc"
