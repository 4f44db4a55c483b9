#include "prescription/ChoixMemo.h"
#include "prescription/ListeMemo.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace prescription;

namespace {

QList<Memorisee> Numerotees(int nombre)
{
    QList<Memorisee> memorisees;
    for (int i = 1; i <= nombre; ++i) {
        memorisees.append({{u"Titre %1"_s.arg(i)}, 0});
    }
    return memorisees;
}

QStringList Textes(const ListeMemo& liste)
{
    QStringList textes;
    for (int rang = 0; rang < liste.rowCount(); ++rang) {
        textes.append(liste.data(liste.index(rang)).toString());
    }
    return textes;
}

} // namespace

class TestListeMemo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NumeroteLesTitres();
    void CoupeTroisCaracteres();
    void NeTrouvePlusRienApres99();
    void ChercheSansAccentsNiCasse();
    void RetireSansRenumeroter();
    void RetireLesDoublons();
    void ChoisitLeTitreEtSonProprietaire();
    void RendLeTitreDeCelleEnMain();
    void RaccourcitLaCivilite();
};

void TestListeMemo::NumeroteLesTitres()
{
    ListeMemo liste;
    QAbstractItemModelTester testeur(&liste);
    liste.Remplit({{{u"HTA"_s}, 1}, {{u"Rhume"_s}, 0}});
    QCOMPARE(Textes(liste), (QStringList{u"1- HTA"_s, u"2- Rhume"_s}));
    QCOMPARE(liste.data(liste.index(0), Qt::UserRole).toInt(), 1);
    QCOMPARE(liste.data(liste.index(1), Qt::UserRole).toInt(), 0);
    QCOMPARE(liste.data(liste.index(2)), QVariant());
}

void TestListeMemo::CoupeTroisCaracteres()
{
    ListeMemo liste;
    liste.Remplit(Numerotees(100));
    QCOMPARE(liste.TitreChoisi(0), u"Titre 1"_s);
    QCOMPARE(liste.TitreChoisi(8), u"Titre 9"_s);
    QCOMPARE(liste.TitreChoisi(9), u"Titre 10"_s);
    QCOMPARE(liste.TitreChoisi(98), u"Titre 99"_s);
    QCOMPARE(liste.TitreChoisi(99), u"- Titre 100"_s);
    QCOMPARE(liste.TitreChoisi(-1), QString());
}

void TestListeMemo::NeTrouvePlusRienApres99()
{
    ListeMemo liste;
    liste.Remplit(Numerotees(101));
    QCOMPARE(liste.Cle(98), CleMemo{u"Titre 99"_s});
    QVERIFY(!liste.Cle(99));
    QVERIFY(!liste.Cle(101));
}

void TestListeMemo::ChercheSansAccentsNiCasse()
{
    ListeMemo liste;
    QAbstractItemModelTester testeur(&liste);
    liste.Remplit({{{u"Épilepsie"_s}, 0}, {{u"Cœur"_s}, 0}, {{u"100 %"_s}, 0}, {{u"prépa épi"_s}, 0}});
    liste.Filtre(u" ePI"_s);
    QCOMPARE(Textes(liste), (QStringList{u"1- Épilepsie"_s, u"4- prépa épi"_s}));
    QCOMPARE(liste.TitreChoisi(1), u"prépa épi"_s);
    QCOMPARE(liste.RangDe(4), 1);
    QCOMPARE(liste.RangDe(2), -1);
    liste.Filtre(u"coeur"_s);
    QCOMPARE(Textes(liste), QStringList{u"2- Cœur"_s});
    liste.Filtre(u"%"_s);
    QCOMPARE(Textes(liste), QStringList{u"3- 100 %"_s});
    liste.Filtre(u"absent"_s);
    QCOMPARE(liste.rowCount(), 0);
    QVERIFY(!liste.Vide());
    liste.Filtre(u"  "_s);
    QCOMPARE(liste.rowCount(), 4);
}

void TestListeMemo::RetireSansRenumeroter()
{
    ListeMemo liste;
    QAbstractItemModelTester testeur(&liste);
    liste.Remplit(Numerotees(4));
    liste.Retire(1);
    QCOMPARE(Textes(liste), (QStringList{u"1- Titre 1"_s, u"3- Titre 3"_s, u"4- Titre 4"_s}));
    liste.Filtre(u"titre 4"_s);
    liste.Retire(0);
    QCOMPARE(liste.rowCount(), 0);
    liste.Filtre({});
    QCOMPARE(Textes(liste), (QStringList{u"1- Titre 1"_s, u"3- Titre 3"_s}));
    liste.Retire(5);
    liste.Retire(0);
    liste.Retire(0);
    QVERIFY(liste.Vide());
}

void TestListeMemo::RetireLesDoublons()
{
    ListeMemo liste;
    QAbstractItemModelTester testeur(&liste);
    liste.Remplit({{{u"HTA"_s}, 0}, {{u"Rhume"_s}, 0}, {{u"HTA"_s}, 1}});
    liste.Retire(2);
    QCOMPARE(Textes(liste), QStringList{u"2- Rhume"_s});
}

void TestListeMemo::ChoisitLeTitreEtSonProprietaire()
{
    Ordonnance ordonnance;
    ListeMemo liste;
    liste.Remplit({{{u"  HTA "_s, u"Madame  DURAND"_s, u"1/2/1960"_s}, 0}});
    ChoisitMemo(ordonnance, liste, 0);
    QCOMPARE(ordonnance.TitreMemo, u"HTA"_s);
    QCOMPARE(ordonnance.CleMemo, (CleMemo{u"  HTA "_s, u"Madame  DURAND"_s, u"1/2/1960"_s}));
    ChoisitMemo(ordonnance, liste, 1);
    QCOMPARE(ordonnance.TitreMemo, u"HTA"_s);
}

void TestListeMemo::RendLeTitreDeCelleEnMain()
{
    Ordonnance ordonnance;
    ordonnance.TitreMemo = u"HTA"_s;
    ordonnance.CleMemo = CleMemo{u"HTA"_s};
    const MemoEnMain avant = RetientMemo(ordonnance);
    ListeMemo liste;
    liste.Remplit(Numerotees(1));
    ChoisitMemo(ordonnance, liste, 0);
    RendMemo(ordonnance, avant);
    QCOMPARE(ordonnance.TitreMemo, u"Titre 1"_s); // nothing memorised was in hand
    ordonnance.OrdoMemorisee = 1;
    RendMemo(ordonnance, avant);
    QCOMPARE(ordonnance.TitreMemo, u"HTA"_s);
    QCOMPARE(ordonnance.CleMemo, CleMemo{u"HTA"_s});
}

void TestListeMemo::RaccourcitLaCivilite()
{
    QCOMPARE(TitreDuPatient(u"Monsieur  MARTIN  Paul"_s), u"Ordonnances pour M.  MARTIN  Paul"_s);
    QCOMPARE(TitreDuPatient(u"Madame  X"_s), u"Ordonnances pour Mme  X"_s);
    QCOMPARE(TitreDuPatient(u"Mademoiselle  X"_s), u"Ordonnances pour Mlle  X"_s);
    QCOMPARE(TitreDuPatient(u"Enfant  X"_s), u"Ordonnances pour Enf  X"_s);
    QCOMPARE(TitreDuPatient(u"Nourrisson  X"_s), u"Ordonnances pour Nourrisson  X"_s);
}

QTEST_GUILESS_MAIN(TestListeMemo)
#include "test_liste_memo.moc"
