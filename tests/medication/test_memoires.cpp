#include "medication/MedicamentsUtilises.h"
#include "medication/PharmaciePersonnelle.h"
#include "medication/PosologiesMemorisees.h"
#include "support/BaseDeTest.h"

#include <QTest>

using namespace medication;

// The three memories beside the drug bank: Biblio, Vidal, MedUtile.
class TestMemoires : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<support::BaseDeTest> base_;

    storage::Base& Medoc() { return base_->Medoc(); }
    QStringList Lignes(const char* table) { return support::Lignes(Medoc(), QLatin1String(table)); }

private Q_SLOTS:
    void init()
    {
        base_ = std::make_unique<support::BaseDeTest>();
        for (const auto* table : {"Biblio", "Vidal", "MedUtile"}) {
            Medoc().SupprimeOu(QLatin1String(table), QStringLiteral("1 = 1"), {});
        }
    }

    void ATitleIsStoredListedLoadedAndDeleted_data()
    {
        QTest::addColumn<QString>("titre");
        const auto rang = [](const char* nom, const QString& titre) { QTest::newRow(nom) << titre; };
        rang("plain", QStringLiteral("QSP 3 mois#"));
        rang("apostrophe", QStringLiteral("Régime de l'enfant d''un an"));
        rang("quotes", QStringLiteral("\"Régime\" \"sans sel"));
        rang("wildcards", QStringLiteral("50 % _ * ? #"));
        rang("statement", QStringLiteral("'; delete from Biblio; --"));
        rang("255 characters", QString(255, u'é'));
        rang("outside Windows-1252", QStringLiteral("中文 Жук 💊"));
        rang("blanks around", QStringLiteral("  en tête et à la fin   "));
        rang("several lines", QStringLiteral("un\ndeux"));
    }
    void ATitleIsStoredListedLoadedAndDeleted()
    {
        QFETCH(const QString, titre);
        PharmaciePersonnelle personnelle(Medoc());
        personnelle.Ajoute({QStringLiteral("AVANT"), QStringLiteral("a")});
        personnelle.Ajoute({titre, QStringLiteral("l'eau \"pure\"")});
        QCOMPARE(personnelle.Titres(), QStringList({QStringLiteral("AVANT"), titre}));
        QCOMPARE(personnelle.Posologie(titre), std::optional(QStringLiteral("l'eau \"pure\"")));
        QVERIFY(personnelle.Change(titre, {titre + u'x', QStringLiteral("b")}));
        QCOMPARE(Lignes("Biblio"), QStringList({QStringLiteral("AVANT|a"), titre + QStringLiteral("x|b")}));
        QVERIFY(!personnelle.Supprime(titre));
        QVERIFY(personnelle.Supprime(titre + u'x'));
        QCOMPARE(Lignes("Biblio"), QStringList({QStringLiteral("AVANT|a")}));
    }

    void ATitleIsFoundExactly()
    {
        PharmaciePersonnelle personnelle(Medoc());
        personnelle.Ajoute({QStringLiteral("QSP 3 mois"), {}});
        for (const char* autre : {"QSP 3 MOIS", "QSP 3 mois ", "QSP%", "QSP _ mois", ""}) {
            QVERIFY2(!personnelle.Posologie(QString::fromUtf8(autre)), autre);
            QVERIFY2(!personnelle.Supprime(QString::fromUtf8(autre)), autre);
        }
        QCOMPARE(personnelle.Titres().size(), 1);
    }

    void OfEqualTitlesTheFirstIsTaken()
    {
        PharmaciePersonnelle personnelle(Medoc());
        personnelle.Ajoute({QStringLiteral("A"), QStringLiteral("1")});
        personnelle.Ajoute({QStringLiteral("A"), QStringLiteral("2")});
        QVERIFY(personnelle.Supprime(QStringLiteral("A")));
        QCOMPARE(Lignes("Biblio"), QStringList({QStringLiteral("A|2")}));
    }

    void ATitleWithoutPosologyIsStoredAllTheSame()
    {
        support::AjouteLigne(Medoc(), QStringLiteral("Biblio"), {QStringLiteral("A"), {}});
        QCOMPARE(PharmaciePersonnelle(Medoc()).Posologie(QStringLiteral("A")), std::optional(QString()));
        QVERIFY(!PharmaciePersonnelle(Medoc()).Posologie(QStringLiteral("B")));
    }

    void ANullTitleIsTheEmptyOne()
    {
        support::AjouteLigne(Medoc(), QStringLiteral("Biblio"), {{}, QStringLiteral("p")});
        PharmaciePersonnelle personnelle(Medoc());
        QCOMPARE(personnelle.Titres(), QStringList({QString()}));
        QCOMPARE(personnelle.Posologie(QString()), std::optional(QStringLiteral("p")));
        QVERIFY(personnelle.Supprime(QStringLiteral("")));
        QVERIFY(Lignes("Biblio").isEmpty());
    }

    void AnEmptyPharmacyHasNoTitle() { QVERIFY(PharmaciePersonnelle(Medoc()).Titres().isEmpty()); }

    void APosologyIsKeptPerPack()
    {
        PosologiesMemorisees posologies(Medoc());
        QCOMPARE(posologies.Lis(QStringLiteral("3400930000011")), QString());
        posologies.Enregistre(QStringLiteral("3400930000011"), QStringLiteral("1 cp l'après-midi"));
        posologies.Enregistre(QStringLiteral("3400930000012"), QStringLiteral("autre"));
        posologies.Enregistre(QStringLiteral("3400930000011"), QStringLiteral("2 cp"));
        QCOMPARE(Lignes("Vidal"),
                 QStringList({QStringLiteral("3400930000011|2 cp"), QStringLiteral("3400930000012|autre")}));
        QCOMPARE(posologies.Lis(QStringLiteral("3400930000011")), QStringLiteral("2 cp"));
        QCOMPARE(posologies.Lis(QStringLiteral("34009300000")), QString());
    }

    void APackIsUsedOrNot()
    {
        MedicamentsUtilises utilises(Medoc());
        utilises.Ajoute(QStringLiteral("340"));
        utilises.Ajoute(QStringLiteral("340"));
        utilises.Ajoute(QStringLiteral("341"));
        QCOMPARE(Lignes("MedUtile"), QStringList({QStringLiteral("340"), QStringLiteral("341")}));
        QVERIFY(utilises.Contient(QStringLiteral("340")) && !utilises.Contient(QStringLiteral("0340")));
        utilises.Retire(QStringLiteral("340"));
        utilises.Retire(QStringLiteral("340"));
        QCOMPARE(Lignes("MedUtile"), QStringList({QStringLiteral("341")}));
        utilises.Ajoute(QStringLiteral("340"));
        QVERIFY(utilises.Contient(QStringLiteral("340")));
    }

    void AFailedStatementStoresNothing()
    {
        Medoc().PoseCrochet([](const QString& instruction) { return instruction == u"commit"; });
        QVERIFY(!support::PhraseDEchec([&] {
                     PosologiesMemorisees(Medoc()).Enregistre(QStringLiteral("1"), QStringLiteral("p"));
                 }).isEmpty());
        QVERIFY(!support::PhraseDEchec([&] {
                     MedicamentsUtilises(Medoc()).Ajoute(QStringLiteral("1"));
                 }).isEmpty());
        Medoc().PoseCrochet({});
        QVERIFY(Lignes("Vidal").isEmpty() && Lignes("MedUtile").isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestMemoires)
#include "test_memoires.moc"
