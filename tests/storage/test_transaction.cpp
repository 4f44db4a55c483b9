#include "storage/Base.h"
#include "support/BaseDeTest.h"

#include <QTest>

using storage::Transaction;
using support::AjouteLigne;
using support::BaseDeTest;
using support::Lignes;
using support::PhraseDEchec;

namespace {

const QString kVidal = QStringLiteral("Vidal");
const QString kPatients = QStringLiteral("Patients");

/// A deed of every kind of statement: a change, a deletion, two new rows.
void Oeuvre(storage::Base& base)
{
    Transaction transaction(base);
    storage::Jeu jeu = base.Table(kVidal);
    jeu.Edit();
    jeu.Ecris(1, QStringLiteral("changée"));
    jeu.Update();
    jeu.MoveNext();
    jeu.Delete();
    AjouteLigne(base, kVidal, {QStringLiteral("3")});
    AjouteLigne(base, kPatients, {QVariant(), QStringLiteral("Madame")});
    base.SupprimeOu(QStringLiteral("Biblio"), QStringLiteral("Titre=?"), {QStringLiteral("x")});
    transaction.Valide();
}

void Prepare(storage::Base& base)
{
    AjouteLigne(base, kVidal, {QStringLiteral("1"), QStringLiteral("a")});
    AjouteLigne(base, kVidal, {QStringLiteral("2"), QStringLiteral("b")});
}

} // namespace

class TestTransaction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RangeTout();
    void NeRangeRienQuandUneInstructionEchoue();
    void AnnuleSansValide();
    void RejointLaTransactionDuDehors();
    void CondamneLaTransactionDuDehors();
    void RecommenceApresUneAnnulation();
};

void TestTransaction::RangeTout()
{
    BaseDeTest base;
    Prepare(base.Medoc());
    Oeuvre(base.Medoc());
    base.Bases().FermeMedoc();
    QCOMPARE(Lignes(base.Medoc(), kVidal),
             (QStringList{QStringLiteral("1|changée"), QStringLiteral("3|<null>")}));
    QCOMPARE(Lignes(base.Medoc(), kPatients).size(), 1);
}

void TestTransaction::NeRangeRienQuandUneInstructionEchoue()
{
    BaseDeTest base;
    Prepare(base.Medoc());
    const QStringList avant = Lignes(base.Medoc(), kVidal);
    int instructions = 0;
    base.Medoc().PoseCrochet([&](const QString&) { return ++instructions < 0; });
    {
        Transaction dehors(base.Medoc());
        Oeuvre(base.Medoc());
    }
    base.Medoc().PoseCrochet({});
    QVERIFY(instructions > 7);
    for (int n = 1; n <= instructions - 1; ++n) {
        int reste = n;
        base.Medoc().PoseCrochet([&](const QString&) { return --reste == 0; });
        const QString phrase = PhraseDEchec([&] { Oeuvre(base.Medoc()); });
        base.Medoc().PoseCrochet({});
        QVERIFY2(phrase.contains(QStringLiteral("« Medoc.mdb »")), qPrintable(QString::number(n)));
        storage::Base autre(base.Chemin(QStringLiteral("Medoc.mdb")), storage::GenreBase::Medoc);
        QCOMPARE(Lignes(autre, kVidal), avant);
        QCOMPARE(Lignes(autre, kPatients), QStringList());
    }
    Oeuvre(base.Medoc());
    QCOMPARE(Lignes(base.Medoc(), kPatients).size(), 1);
}

void TestTransaction::AnnuleSansValide()
{
    BaseDeTest base;
    {
        Transaction transaction(base.Medoc());
        AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1")});
        QCOMPARE(Lignes(base.Medoc(), kVidal).size(), 1);
    }
    QCOMPARE(Lignes(base.Medoc(), kVidal).size(), 0);
}

void TestTransaction::RejointLaTransactionDuDehors()
{
    BaseDeTest base;
    {
        Transaction dehors(base.Medoc());
        {
            Transaction dedans(base.Medoc());
            AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1")});
            dedans.Valide();
        }
    }
    QCOMPARE(Lignes(base.Medoc(), kVidal).size(), 0);
    {
        Transaction dehors(base.Medoc());
        {
            Transaction dedans(base.Medoc());
            AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1")});
            dedans.Valide();
        }
        dehors.Valide();
    }
    QCOMPARE(Lignes(base.Medoc(), kVidal).size(), 1);
}

void TestTransaction::CondamneLaTransactionDuDehors()
{
    BaseDeTest base;
    const auto action = [&] {
        Transaction dehors(base.Medoc());
        AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1")});
        {
            Transaction dedans(base.Medoc());
            AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("2")});
        }
        dehors.Valide();
    };
    QVERIFY(!PhraseDEchec(action).isEmpty());
    QCOMPARE(Lignes(base.Medoc(), kVidal).size(), 0);
}

void TestTransaction::RecommenceApresUneAnnulation()
{
    BaseDeTest base;
    {
        Transaction transaction(base.Medoc());
    }
    Transaction transaction(base.Medoc());
    AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1")});
    transaction.Valide();
    QCOMPARE(Lignes(base.Medoc(), kVidal).size(), 1);
}

QTEST_GUILESS_MAIN(TestTransaction)
#include "test_transaction.moc"
