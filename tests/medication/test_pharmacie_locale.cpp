#include "medication/PharmacieLocale.h"
#include "medication/messages.h"
#include "support/BaseDeTest.h"
#include "support/BoitesScript.h"

#include <QTest>

using namespace medication;

class TestPharmacieLocale : public QObject
{
    Q_OBJECT

private:
    support::BaseDeTest base_;
    PharmacieLocale pharmacie_{[this]() -> storage::Base& { return base_.Medoc(); }};
    support::BoitesScript boites_;

    // num, name, posology, notes.
    void Pose(int num, const QVariant& nom, const QVariant& poso = {}, const QVariant& notes = {})
    {
        support::AjouteLigne(base_.Medoc(), QStringLiteral("BddMed"), {num, {}, {}, notes, poso, nom});
    }
    void Change(const char* num, const Saisie& saisie)
    {
        Noeud noeud{QStringLiteral("vieux"), QLatin1String(num)};
        pharmacie_.Enregistre(noeud, saisie, boites_);
        QCOMPARE(noeud.Texte, QStringLiteral("vieux"));
    }
    bool Retire(const char* num) { return pharmacie_.Retire({{}, QLatin1String(num)}, {}, boites_); }
    QStringList Stockees() { return support::Lignes(base_.Medoc(), QStringLiteral("BddMed")); }

private Q_SLOTS:
    void init() { base_.Medoc().SupprimeOu(QStringLiteral("BddMed"), QStringLiteral("1 = 1"), {}); }
    void cleanup() { QVERIFY(boites_.Epuise()); }

    void TheTreeIsSortedByName()
    {
        Pose(3, QStringLiteral("ZYLORIC"));
        Pose(12, QStringLiteral("AMLOR"));
        const QList<Noeud> noeuds = pharmacie_.Charge(QStringLiteral("ZY"));
        QCOMPARE(noeuds, QList<Noeud>({{QStringLiteral("AMLOR"), QStringLiteral("12")},
                                       {QStringLiteral("ZYLORIC"), QStringLiteral("3")}}));
    }

    void ABlankNameIsDeletedForGood()
    {
        Pose(1, QStringLiteral("   "), QStringLiteral("p"));
        Pose(2, QString(QLatin1String("")));
        Pose(3, QVariant());
        Pose(4, QStringLiteral("AMLOR"));
        QCOMPARE(pharmacie_.Charge({}).size(), 1);
        QCOMPARE(Stockees().size(), 2);
        QVERIFY(Stockees()[0].startsWith(QLatin1String("3|")));
        QVERIFY(Stockees()[1].startsWith(QLatin1String("4|")));
    }

    void ARefusedDeletionStillShowsTheRest()
    {
        Pose(1, QStringLiteral(" "));
        Pose(4, QStringLiteral("AMLOR"));
        base_.Medoc().PoseCrochet(
            [](const QString& instruction) { return instruction.startsWith(u"delete"); });
        const auto noeuds = pharmacie_.Charge({});
        base_.Medoc().PoseCrochet({});
        QCOMPARE(noeuds.size(), 1);
        QCOMPARE(Stockees().size(), 2);
    }

    void AnEmptyTableIsAnEmptyTree() { QVERIFY(pharmacie_.Charge({}).isEmpty()); }

    void AClickReadsNameAndPosology()
    {
        Pose(1, QStringLiteral("L'AMLOR \"5\""), QStringLiteral("1 cp"));
        Pose(2, QStringLiteral("SANS"));
        const Noeud premier{QStringLiteral("vieux"), QStringLiteral("1")};
        QCOMPARE(*pharmacie_.Lit(premier), (Saisie{QStringLiteral("L'AMLOR \"5\""), QStringLiteral("1 cp")}));
        QCOMPARE(pharmacie_.Lit({{}, QStringLiteral("2")})->TxtPoso, QString());
        QVERIFY(!pharmacie_.Lit({{}, QStringLiteral("9")}));
    }

    void NotesAreThereOrNot()
    {
        Pose(1, QStringLiteral("A"), {}, QStringLiteral("à jeun"));
        Pose(2, QStringLiteral("B"));
        QCOMPARE(pharmacie_.Notes(QStringLiteral("1")), std::optional(QStringLiteral("à jeun")));
        QVERIFY(!pharmacie_.Notes(QStringLiteral("2")));
        QVERIFY(!pharmacie_.Notes(QStringLiteral("9")));
        QVERIFY(!pharmacie_.Notes(QString()));
    }

    void AChangeIsStoredAndTold()
    {
        Pose(1, QStringLiteral("A"), {}, QStringLiteral("note"));
        boites_.AttendInformation(QStringLiteral("Modifications enregistrées."));
        Change("1", {QStringLiteral("A'B"), QStringLiteral("le \"soir\"")});
        QCOMPARE(Stockees(), QStringList({QStringLiteral("1|<null>|<null>|note|le \"soir\"|A'B")}));
    }

    void NoChangeIsNotTold()
    {
        Pose(1, QStringLiteral("A"));
        Change("1", {QStringLiteral("A"), QString()});
        QCOMPARE(Stockees(), QStringList({QStringLiteral("1|<null>|<null>|<null>|<null>|A")}));
    }

    void ABlankNameIsNotStored()
    {
        Pose(1, QStringLiteral("A"), QStringLiteral("p"));
        boites_.AttendStop(QStringLiteral("Aucune indication de nom de médicament !"));
        Change("1", {QStringLiteral("  "), QStringLiteral("q")});
        QVERIFY(Stockees()[0].endsWith(QLatin1String("|p|A")));
    }

    void AMedicationThatIsGoneIsTold()
    {
        boites_.AttendContenant(outside::Genre::Exclamation, messages::Disparu());
        Change("5", {QStringLiteral("A"), {}});
        QVERIFY(Stockees().isEmpty());
    }

    void ADeletionAsksFirst()
    {
        Pose(1, QStringLiteral("AMLOR"));
        const QString question = QStringLiteral("Supprimer AMLOR de la base de données ?");
        boites_.AttendQuestion(question, outside::Bouton::Non, outside::Bouton::Non);
        QVERIFY(!Retire("1"));
        QCOMPARE(Stockees().size(), 1);
        boites_.AttendQuestion(question, outside::Bouton::Oui, outside::Bouton::Non);
        QVERIFY(Retire("1"));
        QVERIFY(Stockees().isEmpty());
        QVERIFY(Retire("1"));
    }

    void ANewMedicationHasANumberOfItsOwn()
    {
        pharmacie_.Ajoute({QStringLiteral("l'été \"5\" %_;"), QStringLiteral("1 cp d'emblée")});
        Pose(40, QStringLiteral("AMLOR"));
        Pose(7, QStringLiteral("ZYLORIC"));
        pharmacie_.Ajoute({QStringLiteral("doli"), QString()});
        const QStringList lignes = Stockees();
        QCOMPARE(lignes[0], QStringLiteral("1|<null>|<null>|<null>|1 cp d'emblée|L'ÉTÉ \"5\" %_;"));
        QVERIFY(lignes[3].startsWith(QLatin1String("41|")) && lignes[3].endsWith(QLatin1String("|DOLI")));
        QCOMPARE(pharmacie_.Lit({{}, QStringLiteral("41")})->TxtMedoc, QStringLiteral("DOLI"));
    }

    void ANewMedicationThatIsRefusedLeavesNothing()
    {
        base_.Medoc().PoseCrochet([](const QString& instruction) { return instruction == u"commit"; });
        QVERIFY(!support::PhraseDEchec([&] { pharmacie_.Ajoute({QStringLiteral("DOLI"), {}}); }).isEmpty());
        base_.Medoc().PoseCrochet({});
        QVERIFY(Stockees().isEmpty());
    }

    void ALineHasNoProduct() { QCOMPARE(pharmacie_.Identifiant(nullptr), QStringLiteral("1")); }
};

QTEST_GUILESS_MAIN(TestPharmacieLocale)
#include "test_pharmacie_locale.moc"
