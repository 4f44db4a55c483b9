#include "storage/Correspondance.h"
#include "storage/PlanJet.h"

#include <QTest>

using storage::GenreBase;
using storage::PlanDe;
using storage::TableJet;
using storage::TypeColonne;
using storage::TypeJet;

class TestPlanJet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PrendLaDispositionCourante();
    void GardeLesTypesDuFichier();
    void LaisseLesColonnesInconnues();
    void PrendLesPatientsDOrdo();
    void RefuseUneColonneDUnAutreGenre();
};

void TestPlanJet::PrendLaDispositionCourante()
{
    const TableJet jet{QStringLiteral("BDDMED"),
                       {{QStringLiteral("num"), TypeJet::Compteur},
                        {QStringLiteral("c1"), TypeJet::Texte},
                        {QStringLiteral("c2"), TypeJet::Texte},
                        {QStringLiteral("Notes"), TypeJet::Texte},
                        {QStringLiteral("Posologie"), TypeJet::Texte},
                        {QStringLiteral("Nom"), TypeJet::Texte}}};
    const auto plan = PlanDe(jet, GenreBase::Medoc);
    QVERIFY(plan);
    QVERIFY(storage::Tables(GenreBase::Medoc).contains(plan->Table));
    QCOMPARE(plan->Sources, (QList<qsizetype>{0, 1, 2, 3, 4, 5}));
}

void TestPlanJet::GardeLesTypesDuFichier()
{
    const TableJet jet{QStringLiteral("OrdoEnr"),
                       {{QStringLiteral("Titre"), TypeJet::Texte},
                        {QStringLiteral("TitreLigne"), TypeJet::Texte},
                        {QStringLiteral("Posologie"), TypeJet::Texte},
                        {QStringLiteral("Zone"), TypeJet::Entier},
                        {QStringLiteral("Patient"), TypeJet::Texte},
                        {QStringLiteral("Datenais"), TypeJet::Date},
                        {QStringLiteral("IdProduit"), TypeJet::Texte}}};
    const auto plan = PlanDe(jet, GenreBase::Medoc);
    QVERIFY(plan);
    QCOMPARE(plan->Table.Colonnes.size(), 7);
    QCOMPARE(plan->Table.Colonnes[5].Type, TypeColonne::Texte);
    QCOMPARE(plan->Table.Colonnes[6].Type, TypeColonne::Texte);
}

void TestPlanJet::LaisseLesColonnesInconnues()
{
    const TableJet jet{QStringLiteral("Vidal"),
                       {{QStringLiteral("CIP"), TypeJet::Texte},
                        {QStringLiteral("Posologie"), TypeJet::Texte},
                        {QStringLiteral("Image"), TypeJet::Autre}}};
    const auto plan = PlanDe(jet, GenreBase::Medoc);
    QVERIFY(plan);
    QCOMPARE(plan->Sources, (QList<qsizetype>{0, 1}));
    QVERIFY(!PlanDe({QStringLiteral("Factures"), jet.Colonnes}, GenreBase::Medoc));
}

void TestPlanJet::PrendLesPatientsDOrdo()
{
    const TableJet jet{QStringLiteral("Patients"), {{QStringLiteral("Index"), TypeJet::Compteur}}};
    QVERIFY(PlanDe(jet, GenreBase::Ordo));
    QCOMPARE(PlanDe(jet, GenreBase::Ordo)->Table.Colonnes[0].Type, TypeColonne::Compteur);
    QVERIFY(!PlanDe({QStringLiteral("Biblio"), jet.Colonnes}, GenreBase::Ordo));
}

void TestPlanJet::RefuseUneColonneDUnAutreGenre()
{
    const TableJet jet{QStringLiteral("MedUtile"), {{QStringLiteral("CIP"), TypeJet::Autre}}};
    QVERIFY(!PlanDe(jet, GenreBase::Medoc));
}

QTEST_GUILESS_MAIN(TestPlanJet)
#include "test_plan_jet.moc"
