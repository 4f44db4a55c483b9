#include "storage/Base.h"
#include "storage/Textes.h"
#include "support/BaseDeTest.h"

#include <QTest>

using support::AjouteLigne;
using support::BaseDeTest;
using support::PhraseDEchec;

namespace {

const QString kBddMed = QStringLiteral("BddMed");

/// Each row as "key|text".
QStringList Textes(storage::Base& base, const QString& cle = QStringLiteral("num"))
{
    const storage::Textes lus = base.LitTextes(kBddMed, cle, QStringLiteral("Nom"));
    QStringList lignes;
    for (const auto& rangee : lus.Rangees) {
        lignes << QString::number(rangee.Cle) + u'|' + lus.Texte(rangee).toString();
    }
    return lignes;
}

void Ajoute(storage::Base& base, int numero, const QString& nom)
{
    AjouteLigne(base, kBddMed, {numero, {}, {}, {}, {}, nom});
}

} // namespace

class TestParcourt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LitUneTableVide();
    void LitNullCommeVide();
    void LitLeTexteEntier();
    void LitLesBlocsDansLOrdre();
    void LitUnSeparateurDansUnTexte();
    void PasseLesClesManquantes();
    void RemonteLEchec();
    void ParcourtUnSelect();
    void ArreteQuandLeLecteurEchoue();
};

void TestParcourt::LitUneTableVide()
{
    BaseDeTest base;
    QCOMPARE(Textes(base.Medoc()), QStringList());
}

void TestParcourt::LitNullCommeVide()
{
    BaseDeTest base;
    AjouteLigne(base.Medoc(), kBddMed, {});
    QCOMPARE(Textes(base.Medoc()), QStringList{QStringLiteral("0|")});
    AjouteLigne(base.Medoc(), kBddMed, {2});
    Ajoute(base.Medoc(), 3, QStringLiteral(""));
    QCOMPARE(Textes(base.Medoc()),
             (QStringList{QStringLiteral("0|"), QStringLiteral("2|"), QStringLiteral("3|")}));
}

void TestParcourt::LitLeTexteEntier()
{
    BaseDeTest base;
    Ajoute(base.Medoc(), 7, QStringLiteral("D'ÉTÉ \"1\", 50 %\r\n"));
    Ajoute(base.Medoc(), -2147483648, QStringLiteral("ŒDÈME \U0001F600"));
    QCOMPARE(Textes(base.Medoc()), (QStringList{QStringLiteral("7|D'ÉTÉ \"1\", 50 %\r\n"),
                                                QStringLiteral("-2147483648|ŒDÈME \U0001F600")}));
}

void TestParcourt::LitLesBlocsDansLOrdre()
{
    constexpr int kRangees = 20000;
    BaseDeTest base;
    base.Medoc().Execute(
        QStringLiteral("with recursive n(i) as (select 1 union all select i+1 from n "
                       "where i < ?) insert into BddMed (num, Nom) select i, 'NOM ' || i from n"),
        {kRangees});
    const QStringList lignes = Textes(base.Medoc());
    QCOMPARE(lignes.size(), kRangees);
    for (int i = 0; i < kRangees; ++i) {
        QCOMPARE(lignes[i], QStringLiteral("%1|NOM %1").arg(i + 1));
    }
}

void TestParcourt::LitUnSeparateurDansUnTexte()
{
    BaseDeTest base;
    const QString nom = QStringLiteral("A") + QChar(0x1E) + QStringLiteral("B");
    Ajoute(base.Medoc(), 1, QStringLiteral("X"));
    Ajoute(base.Medoc(), 2, nom);
    AjouteLigne(base.Medoc(), kBddMed, {3});
    QCOMPARE(Textes(base.Medoc()),
             (QStringList{QStringLiteral("1|X"), QStringLiteral("2|%1").arg(nom), QStringLiteral("3|")}));
}

void TestParcourt::PasseLesClesManquantes()
{
    BaseDeTest base;
    for (int i = 1; i <= 5; ++i) {
        Ajoute(base.Medoc(), i, QString::number(i));
    }
    base.Medoc().SupprimeOu(kBddMed, QStringLiteral("num in (1, 3, 5)"), {});
    base.Medoc().Execute(QStringLiteral("update BddMed set rowid = -9 where num = 4"));
    QCOMPARE(Textes(base.Medoc()), (QStringList{QStringLiteral("4|4"), QStringLiteral("2|2")}));
}

void TestParcourt::RemonteLEchec()
{
    BaseDeTest base;
    QVERIFY(!PhraseDEchec([&] { Textes(base.Medoc(), QStringLiteral("Absente")); }).isEmpty());
    base.Medoc().PoseCrochet([](const QString&) { return true; });
    QVERIFY(!PhraseDEchec([&] { Textes(base.Medoc()); }).isEmpty());
}

void TestParcourt::ParcourtUnSelect()
{
    BaseDeTest base;
    Ajoute(base.Medoc(), 1, QStringLiteral("A"));
    Ajoute(base.Medoc(), 2, QStringLiteral("B"));
    int rangees = 0;
    base.Medoc().Parcourt(QStringLiteral("select Nom, num, Posologie, 2.5 from BddMed where num = ?"), {2},
                          [&](const storage::Rangee& rangee) {
                              ++rangees;
                              QCOMPARE(rangee.Texte(0), QStringLiteral("B"));
                              QCOMPARE(rangee.Entier(1), 2);
                              QVERIFY(rangee.EstNull(2));
                              QCOMPARE(rangee.Texte(2), QString());
                              QCOMPARE(rangee.Entier(2), 0);
                              QCOMPARE(rangee.Reel(3), 2.5);
                          });
    QCOMPARE(rangees, 1);
}

void TestParcourt::ArreteQuandLeLecteurEchoue()
{
    BaseDeTest base;
    Ajoute(base.Medoc(), 1, QStringLiteral("A"));
    const auto echoue = [](const storage::Rangee&) { throw common::Erreur(QStringLiteral("non"), {}); };
    QCOMPARE(
        PhraseDEchec([&] { base.Medoc().Parcourt(QStringLiteral("select num from BddMed"), {}, echoue); }),
        QStringLiteral("non"));
    Ajoute(base.Medoc(), 2, QStringLiteral("B"));
    QCOMPARE(Textes(base.Medoc()).size(), 2);
}

QTEST_GUILESS_MAIN(TestParcourt)
#include "test_parcourt.moc"
