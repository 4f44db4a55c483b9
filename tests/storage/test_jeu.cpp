#include "storage/Schema.h"
#include "support/BaseDeTest.h"

#include <QTest>

using storage::Jeu;
using support::AjouteLigne;
using support::BaseDeTest;
using support::Lignes;
using support::PhraseDEchec;

namespace {

const QString kVidal = QStringLiteral("Vidal");

void Remplis(storage::Base& base, const QStringList& cips)
{
    for (const QString& cip : cips) {
        AjouteLigne(base, kVidal, {cip, QStringLiteral("poso")});
    }
}

QStringList Cips(storage::Base& base)
{
    QStringList cips;
    for (Jeu jeu = base.Table(kVidal); !jeu.Fin(); jeu.MoveNext()) {
        cips.append(jeu.Texte(0));
    }
    return cips;
}

} // namespace

class TestJeu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TientNullEtVideADistance();
    void GardeToutTexte_data();
    void GardeToutTexte();
    void CompareToutTexte_data() { GardeToutTexte_data(); }
    void CompareToutTexte();
    void DonneLeNumeroAvantLEcriture();
    void NeRedonneAucunNumero();
    void ParcourtDansLOrdreDInsertion();
    void ParcourtUnJeuVide();
    void RecueDepuisLaFin();
    void ChangeLaLigneCourante();
    void NEcritQueLesChampsChanges();
    void AbandonneAuDeplacement();
    void SupprimeEnMarchant();
    void SupprimePuisAvance();
    void RefuseSansLigne();
    void RefuseUneFicheDisparue();
    void RefuseUneTableInconnue();
    void EcritLesTypes();
    void SupprimeOuCompte();
};

void TestJeu::TientNullEtVideADistance()
{
    BaseDeTest base;
    AjouteLigne(base.Medoc(), QStringLiteral("Biblio"), {QStringLiteral("A"), QVariant()});
    AjouteLigne(base.Medoc(), QStringLiteral("Biblio"), {QStringLiteral("B"), QStringLiteral("")});
    AjouteLigne(base.Medoc(), QStringLiteral("Biblio"), {QStringLiteral("C"), QString()});
    QCOMPARE(Lignes(base.Medoc(), QStringLiteral("Biblio")),
             (QStringList{QStringLiteral("A|<null>"), QStringLiteral("B|"), QStringLiteral("C|")}));
    Jeu jeu = base.Medoc().Table(QStringLiteral("Biblio"));
    jeu.MoveLast();
    jeu.Edit();
    jeu.Ecris(1, QVariant());
    jeu.Update();
    QVERIFY(jeu.EstNull(1));
    QCOMPARE(Lignes(base.Medoc(), QStringLiteral("Biblio")).last(), QStringLiteral("C|<null>"));
}

void TestJeu::GardeToutTexte_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("apostrophe") << QStringLiteral("D'ARTAGNAN  Charles");
    QTest::newRow("guillemet") << QStringLiteral("dit \"le Grand\"");
    QTest::newRow("pour cent") << QStringLiteral("100 % _ *");
    QTest::newRow("point-virgule") << QStringLiteral("x'); drop table Patients; --");
    QTest::newRow("point d'interrogation") << QStringLiteral("? :a @b $c");
    QTest::newRow("accents") << QStringLiteral("ÉÀÇŒ œ ÿ €");
    QTest::newRow("hors du plan de base") << QString::fromUcs4(U"\U0001F600 \U00020000");
    QTest::newRow("lignes") << QStringLiteral("1 rue\r\n2 rue\n\t");
    QTest::newRow("nul") << QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    QTest::newRow("chiffres") << QStringLiteral("0012.50");
    QTest::newRow("blancs") << QStringLiteral("  x  ");
    QTest::newRow("long") << QString(200000, QChar(0x00E9));
}

void TestJeu::GardeToutTexte()
{
    QFETCH(QString, texte);
    BaseDeTest base;
    AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1"), texte});
    QCOMPARE(base.Medoc().Table(kVidal).Texte(1), texte);
}

void TestJeu::CompareToutTexte()
{
    QFETCH(QString, texte);
    BaseDeTest base;
    AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1"), texte});
    AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("2"), QStringLiteral("autre")});
    const Jeu jeu = base.Medoc().Selection(kVidal, QStringLiteral("Posologie=?"), {texte});
    QCOMPARE(jeu.RecordCount(), 1);
    QCOMPARE(jeu.Texte(0), QStringLiteral("1"));
}

void TestJeu::DonneLeNumeroAvantLEcriture()
{
    BaseDeTest base;
    const QString table = QStringLiteral("Patients");
    Jeu jeu = base.Medoc().Table(table);
    jeu.AddNew();
    QCOMPARE(jeu.Champ(0).toInt(), 1);
    jeu.Ecris(2, QStringLiteral("DUPONT  Jean"));
    QCOMPARE(jeu.Texte(2), QStringLiteral("DUPONT  Jean"));
    QCOMPARE(Lignes(base.Medoc(), table).size(), 0);
    jeu.Update();
    jeu.AddNew();
    QCOMPARE(jeu.Champ(0).toInt(), 2);
    jeu.Update();
    const Jeu relu = base.Medoc().Selection(table, QStringLiteral("\"Index\"=?"), {1});
    QCOMPARE(relu.Texte(2), QStringLiteral("DUPONT  Jean"));
    QCOMPARE(jeu.RecordCount(), 2);
}

void TestJeu::NeRedonneAucunNumero()
{
    BaseDeTest base;
    const QString table = QStringLiteral("Patients");
    AjouteLigne(base.Medoc(), table, {});
    AjouteLigne(base.Medoc(), table, {});
    QCOMPARE(base.Medoc().SupprimeOu(table, QStringLiteral("\"Index\"=?"), {2}), 1);
    Jeu jeu = base.Medoc().Table(table);
    jeu.AddNew();
    QCOMPARE(jeu.Champ(0).toInt(), 3);
}

void TestJeu::ParcourtDansLOrdreDInsertion()
{
    BaseDeTest base;
    Remplis(base.Medoc(), {QStringLiteral("c"), QStringLiteral("a"), QStringLiteral("b")});
    QCOMPARE(Cips(base.Medoc()),
             (QStringList{QStringLiteral("c"), QStringLiteral("a"), QStringLiteral("b")}));
}

void TestJeu::ParcourtUnJeuVide()
{
    BaseDeTest base;
    Jeu jeu = base.Medoc().Table(kVidal);
    QVERIFY(jeu.Fin());
    QCOMPARE(jeu.RecordCount(), 0);
    jeu.MoveLast();
    QVERIFY(jeu.Fin());
    QVERIFY(jeu.EstNull(0));
}

void TestJeu::RecueDepuisLaFin()
{
    BaseDeTest base;
    Remplis(base.Medoc(), {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    Jeu jeu = base.Medoc().Table(kVidal);
    jeu.MoveLast();
    jeu.MovePrevious();
    QCOMPARE(jeu.Texte(0), QStringLiteral("2"));
    jeu.MoveFirst();
    QCOMPARE(jeu.Texte(0), QStringLiteral("1"));
}

void TestJeu::ChangeLaLigneCourante()
{
    BaseDeTest base;
    Remplis(base.Medoc(), {QStringLiteral("1"), QStringLiteral("2")});
    Jeu jeu = base.Medoc().Table(kVidal);
    jeu.MoveNext();
    jeu.Edit();
    jeu.Ecris(1, QStringLiteral("changée"));
    jeu.Update();
    QCOMPARE(jeu.Texte(1), QStringLiteral("changée"));
    QCOMPARE(Lignes(base.Medoc(), kVidal),
             (QStringList{QStringLiteral("1|poso"), QStringLiteral("2|changée")}));
}

void TestJeu::NEcritQueLesChampsChanges()
{
    BaseDeTest base;
    Remplis(base.Medoc(), {QStringLiteral("1")});
    Jeu jeu = base.Medoc().Table(kVidal);
    base.Medoc().Execute(QStringLiteral("update Vidal set Posologie='autre poste'"));
    jeu.Edit();
    jeu.Ecris(0, QStringLiteral("9"));
    jeu.Update();
    QCOMPARE(Lignes(base.Medoc(), kVidal), QStringList{QStringLiteral("9|autre poste")});
}

void TestJeu::AbandonneAuDeplacement()
{
    BaseDeTest base;
    Remplis(base.Medoc(), {QStringLiteral("1"), QStringLiteral("2")});
    Jeu jeu = base.Medoc().Table(kVidal);
    jeu.Edit();
    jeu.Ecris(0, QStringLiteral("perdu"));
    jeu.MoveNext();
    QCOMPARE(jeu.Texte(0), QStringLiteral("2"));
    QVERIFY(!PhraseDEchec([&] { jeu.Update(); }).isEmpty());
    QCOMPARE(Cips(base.Medoc()), (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
}

void TestJeu::SupprimeEnMarchant()
{
    BaseDeTest base;
    Remplis(base.Medoc(), {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    QStringList vues;
    for (Jeu jeu = base.Medoc().Table(kVidal); !jeu.Fin(); jeu.MoveNext()) {
        vues.append(jeu.Texte(0));
        if (jeu.Texte(0) != QStringLiteral("2")) {
            jeu.Delete();
        }
    }
    QCOMPARE(vues.size(), 3);
    QCOMPARE(Cips(base.Medoc()), QStringList{QStringLiteral("2")});
}

void TestJeu::SupprimePuisAvance()
{
    BaseDeTest base;
    Remplis(base.Medoc(), {QStringLiteral("1"), QStringLiteral("2")});
    Jeu jeu = base.Medoc().Table(kVidal);
    jeu.Delete();
    QVERIFY(!jeu.Fin());
    QVERIFY(jeu.EstNull(0));
    QCOMPARE(jeu.RecordCount(), 1);
    QVERIFY(!PhraseDEchec([&] { jeu.Delete(); }).isEmpty());
    jeu.MoveNext();
    QCOMPARE(jeu.Texte(0), QStringLiteral("2"));
    jeu.Delete();
    jeu.MovePrevious();
    QVERIFY(jeu.Fin());
}

void TestJeu::RefuseSansLigne()
{
    BaseDeTest base;
    Jeu jeu = base.Medoc().Table(kVidal);
    QVERIFY(PhraseDEchec([&] { jeu.Edit(); }).contains(QStringLiteral("« Medoc.mdb »")));
    QVERIFY(PhraseDEchec([&] { jeu.Delete(); }).contains(QStringLiteral("« Medoc.mdb »")));
    QVERIFY(PhraseDEchec([&] { jeu.Ecris(0, 1); }).contains(QStringLiteral("« Medoc.mdb »")));
    jeu.AddNew();
    QVERIFY(!PhraseDEchec([&] { jeu.Ecris(2, 1); }).isEmpty());
    QVERIFY(!PhraseDEchec([&] { jeu.Ecris(-1, 1); }).isEmpty());
}

void TestJeu::RefuseUneFicheDisparue()
{
    BaseDeTest base;
    Remplis(base.Medoc(), {QStringLiteral("1")});
    Jeu jeu = base.Medoc().Table(kVidal);
    base.Medoc().Execute(QStringLiteral("delete from Vidal"));
    jeu.Edit();
    jeu.Ecris(0, QStringLiteral("2"));
    QVERIFY(PhraseDEchec([&] { jeu.Update(); }).startsWith(QStringLiteral("Cette fiche n'existe plus")));
}

void TestJeu::RefuseUneTableInconnue()
{
    BaseDeTest base;
    QVERIFY(!PhraseDEchec([&] { base.Medoc().Table(QStringLiteral("Entete")); }).isEmpty());
    QVERIFY(!PhraseDEchec([&] { base.Medoc().Table(QStringLiteral("x\"; drop table Vidal")); }).isEmpty());
}

void TestJeu::EcritLesTypes()
{
    BaseDeTest base;
    const QString table = QStringLiteral("Misenpage");
    base.Ordo().Execute(QStringLiteral("delete from Misenpage"));
    AjouteLigne(base.Ordo(), table, {0, QStringLiteral("Arial"), 8.25F, true, -1, false});
    AjouteLigne(base.Ordo(), table, {1, QStringLiteral("Arial"), 12.1F});
    QCOMPARE(Lignes(base.Ordo(), table),
             (QStringList{QStringLiteral("0|Arial|8.25|1|1|0"), QStringLiteral("1|Arial|12.1|0|0|0")}));
}

void TestJeu::SupprimeOuCompte()
{
    BaseDeTest base;
    Remplis(base.Medoc(), {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("1")});
    QCOMPARE(base.Medoc().SupprimeOu(kVidal, QStringLiteral("CIP=?"), {QStringLiteral("1")}), 2);
    QCOMPARE(base.Medoc().SupprimeOu(kVidal, QStringLiteral("CIP=?"), {QStringLiteral("1")}), 0);
    QCOMPARE(Cips(base.Medoc()), QStringList{QStringLiteral("2")});
}

QTEST_GUILESS_MAIN(TestJeu)
#include "test_jeu.moc"
