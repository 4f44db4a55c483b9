#include "prescription/LignesZone.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using prescription::LignesZone;

namespace {

QStringList Textes(const LignesZone& zone)
{
    QStringList textes;
    for (const prescription::Ligne& ligne : zone.Lignes()) {
        textes.append(ligne.Texte);
    }
    return textes;
}

void Remplit(LignesZone& zone)
{
    zone.Ajoute({u"a"_s, 0});
    zone.Ajoute({u"b"_s, 3});
    zone.Ajoute({u"c"_s, 1});
}

} // namespace

class TestLignesZone : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leModeleMontreTexteEtIndice();
    void plusieursLignesArriventEnsemble();
    void lesLignesSeDeplacentDUnRang_data();
    void lesLignesSeDeplacentDUnRang();
    void uneLigneSeRetire();
    void unRangHorsDeLaListeNeChangeRien();
    void toutSEfface();
    void leModeleTientSesPromesses();
    void identifiantEtTitre_data();
    void identifiantEtTitre();
    void codeAncien_data();
    void codeAncien();
};

void TestLignesZone::leModeleMontreTexteEtIndice()
{
    LignesZone zone;
    QVERIFY(zone.Vide());
    Remplit(zone);
    QCOMPARE(zone.rowCount(), 3);
    QCOMPARE(zone.rowCount(zone.index(0)), 0);
    QCOMPARE(zone.data(zone.index(1), Qt::DisplayRole), u"b"_s);
    QCOMPARE(zone.data(zone.index(1), Qt::UserRole), 3);
    QVERIFY(!zone.data(zone.index(1), Qt::DecorationRole).isValid());
    QVERIFY(!zone.data(QModelIndex(), Qt::DisplayRole).isValid());
}

void TestLignesZone::plusieursLignesArriventEnsemble()
{
    LignesZone zone;
    QAbstractItemModelTester testeur(&zone, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy arrivees(&zone, &QAbstractItemModel::rowsInserted);
    zone.AjouteToutes({});
    QCOMPARE(arrivees.size(), 0);
    Remplit(zone);
    zone.AjouteToutes({{u"d"_s, 4}, {u"e"_s, 5}});
    QCOMPARE(arrivees.size(), 4);
    QCOMPARE(Textes(zone), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}));
}

void TestLignesZone::lesLignesSeDeplacentDUnRang_data()
{
    QTest::addColumn<int>("rang");
    QTest::addColumn<int>("vers");
    QTest::addColumn<QStringList>("textes");
    QTest::newRow("descend") << 0 << 1 << QStringList{u"b"_s, u"a"_s, u"c"_s};
    QTest::newRow("monte") << 2 << 1 << QStringList{u"a"_s, u"c"_s, u"b"_s};
    QTest::newRow("avant le premier") << 0 << -1 << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("après le dernier") << 2 << 3 << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("deux rangs") << 0 << 2 << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("sur place") << 1 << 1 << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("sans ligne") << -1 << 0 << QStringList{u"a"_s, u"b"_s, u"c"_s};
}

void TestLignesZone::lesLignesSeDeplacentDUnRang()
{
    QFETCH(int, rang);
    QFETCH(int, vers);
    LignesZone zone;
    Remplit(zone);
    zone.Deplace(rang, vers);
    QTEST(Textes(zone), "textes");
}

void TestLignesZone::uneLigneSeRetire()
{
    LignesZone zone;
    Remplit(zone);
    zone.Retire(1);
    QCOMPARE(Textes(zone), (QStringList{u"a"_s, u"c"_s}));
    QCOMPARE(zone.Lignes()[1].Indice, 1);
}

void TestLignesZone::unRangHorsDeLaListeNeChangeRien()
{
    LignesZone zone;
    Remplit(zone);
    zone.Retire(-1);
    zone.Retire(3);
    QCOMPARE(zone.rowCount(), 3);
}

void TestLignesZone::toutSEfface()
{
    LignesZone zone;
    Remplit(zone);
    QSignalSpy efface(&zone, &QAbstractItemModel::modelReset);
    zone.Efface();
    zone.Efface();
    QVERIFY(zone.Vide());
    QCOMPARE(efface.size(), 1);
}

void TestLignesZone::leModeleTientSesPromesses()
{
    LignesZone zone;
    const QAbstractItemModelTester surveillant(&zone, QAbstractItemModelTester::FailureReportingMode::QtTest);
    Remplit(zone);
    zone.Deplace(0, 1);
    zone.Deplace(2, 1);
    zone.Retire(0);
    zone.Efface();
    QVERIFY(zone.Vide());
}

void TestLignesZone::identifiantEtTitre_data()
{
    QTest::addColumn<QString>("ligne");
    QTest::addColumn<QString>("identifiant");
    QTest::addColumn<QString>("titre");
    const auto blancs = [](int nombre) { return QString(nombre, u' '); };
    QTest::newRow("ajout") << u"  DOLIPRANE"_s + blancs(100) + u"1"_s << u"1"_s << u"DOLIPRANE"_s;
    QTest::newRow("modification") << u"  A B#"_s + blancs(200) + u"123456789"_s << u"123456789"_s
                                  << u"A B#"_s;
    QTest::newRow("saut") << u"  #"_s + blancs(300) + u"1"_s << u"1"_s << u"#"_s;
    QTest::newRow("titre vide") << blancs(102) + u"1"_s << u"1"_s << QString();
    const QString titreLong(400, u'x');
    QTest::newRow("titre long") << u"  "_s + titreLong + blancs(100) + u"42"_s << u"42"_s << titreLong;
    QTest::newRow("ligne courte") << u"abc"_s << u"abc"_s << QString();
    QTest::newRow("dix chiffres") << u"  A"_s + blancs(100) + u"2147483647"_s << u"2147483647"_s << u"A"_s;
    QTest::newRow("code tronqué") << u"  A"_s + blancs(300) + u"3400930000011"_s << QString() << u"A"_s;
    QTest::newRow("rien") << QString() << QString() << QString();
}

void TestLignesZone::identifiantEtTitre()
{
    QFETCH(QString, ligne);
    QTEST(prescription::IdentifiantDeLigne(ligne), "identifiant");
    QTEST(prescription::TitreDeLigne(ligne), "titre");
}

void TestLignesZone::codeAncien_data()
{
    QTest::addColumn<QString>("identifiant");
    QTest::addColumn<bool>("ancien");
    QTest::addColumn<QString>("code");
    QTest::newRow("thirteen digits") << u"3400930000011"_s << false << u"3400930000011"_s;
    QTest::newRow("thirteen digits, old") << u"3400930000011"_s << true << u"3400930000011"_s;
    QTest::newRow("seven digits, old") << u"3595583"_s << true << u"3595583"_s;
    QTest::newRow("product") << u"3595583"_s << false << QString();
    QTest::newRow("none, old") << u"1"_s << true << QString();
    QTest::newRow("zero, old") << u"0"_s << true << QString();
    QTest::newRow("no number") << u"comprimésaabb"_s << true << QString();
}

void TestLignesZone::codeAncien()
{
    QFETCH(QString, identifiant);
    QFETCH(bool, ancien);
    const prescription::Ligne ligne{prescription::TexteDeLigne(u"A"_s, 300, identifiant), 0, ancien};
    QTEST(prescription::CodeAncien(ligne), "code");
}

QTEST_MAIN(TestLignesZone)
#include "test_lignes_zone.moc"
