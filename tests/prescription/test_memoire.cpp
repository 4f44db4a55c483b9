#include "application/Signaux.h"
#include "prescription/Commandes.h"
#include "prescription/Memoire.h"
#include "prescription/messages.h"
#include "startup/messages.h"
#include "support/BaseDeTest.h"
#include "support/Cabinet.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace prescription;
using outside::Bouton;

namespace {

/// A doctor at work whose shared database stands.
struct CabinetMemo : Cabinet
{
    CabinetMemo()
    {
        storage::CreeBase(common::Joint(Etat.Chemins.CheminTravail, u"Medoc.mdb"_s),
                          storage::GenreBase::Medoc);
    }
    storage::Base& Medoc() { return Etat.Bases.Medoc(Etat.Chemins.CheminTravail); }
    QStringList Liste() { return support::Lignes(Medoc(), u"ListeOrdos"_s); }
    QStringList Lignes() { return support::Lignes(Medoc(), u"OrdoEnr"_s); }
    Ordonnance& Ordo() { return Etat.Ordonnance; }

    CabinetMemo& AttendNom(const std::optional<QString>& nom)
    {
        Boites.AttendSaisie(u"Donnez un nom à cette ordonnance mémorisée :"_s, nom);
        return *this;
    }
    CabinetMemo& AttendSpecifique(Bouton reponse)
    {
        Boites.AttendQuestion(u"Voulez-vous que cette ordonnance soit spécifique à "_s +
                                  Etat.Patient.PatientCourant + u" ?"_s,
                              reponse);
        return *this;
    }
    void AttendSuppression()
    {
        Boites.AttendQuestion(u"Supprimer HTA des ordonnances mémorisées ?"_s, Bouton::Oui, Bouton::Non)
            .AttendQuestion(u"Voulez-vous effacer l'ordonnance actuelle ?"_s, Bouton::Non, Bouton::Non);
    }
    /// A prescription of one line, stored under that title.
    void Range(const QString& titre, Bouton specifique)
    {
        Prescrit(u"DOLIPRANE"_s);
        AttendNom(titre).AttendSpecifique(specifique);
        MemoriseOrdonnance(Contexte);
        QVERIFY(Boites.Epuise());
    }
};

} // namespace

class TestMemoire : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutDoctorNothingIsKept();
    void ACertificateIsNoPrescription();
    void AnEmptyPrescriptionIsNotKept();
    void OnlyAMemorisedPrescriptionIsDeleted();
    void ANameIsAskedAndTrimmed();
    void WithoutANameNothingIsKept_data();
    void WithoutANameNothingIsKept();
    void WithoutPatientItIsForAll();
    void TheSecondZoneNeedsTheBox_data();
    void TheSecondZoneNeedsTheBox();
    void TheProductIdIsTheBanks_data();
    void TheProductIdIsTheBanks();
    void AnOldCodeNeverBecomesAnotherProduct_data();
    void AnOldCodeNeverBecomesAnotherProduct();
    void ChangesReplaceTheLines();
    void WhatNoListShowsIsNotReplaced_data();
    void WhatNoListShowsIsNotReplaced();
    void AFailureChangesNothing();
    void DeletionAsksTwice_data();
    void DeletionAsksTwice();
    void DeletionStaysWithItsOwner();
    void AnotherPatientsIsNotDeleted();
    void AFailedDeletionIsTold();
};

void TestMemoire::WithoutDoctorNothingIsKept()
{
    Cabinet cabinet;
    cabinet.Etat.Chemins.CheminMedecin.clear();
    cabinet.Boites.AttendInformation(startup::messages::ChoisissezMedecin())
        .AttendInformation(startup::messages::ChoisissezMedecin());
    MemoriseOrdonnance(cabinet.Contexte);
    SupprimeOrdonnanceMemorisee(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
}

void TestMemoire::ACertificateIsNoPrescription()
{
    Cabinet cabinet;
    cabinet.Etat.Apercu.ModeApercu = 1;
    cabinet.Boites.AttendInformation(u"On ne peut pas enregistrer un certificat \ndans cette fenêtre."_s)
        .AttendInformation(u"On ne peut pas supprimer un certificat \ndans cette fenêtre."_s);
    MemoriseOrdonnance(cabinet.Contexte);
    SupprimeOrdonnanceMemorisee(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
}

void TestMemoire::AnEmptyPrescriptionIsNotKept()
{
    Cabinet cabinet;
    cabinet.Boites.AttendStop(u"Aucune ordonnance n'est à enregistrer !"_s);
    MemoriseOrdonnance(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
}

void TestMemoire::OnlyAMemorisedPrescriptionIsDeleted()
{
    Cabinet cabinet;
    cabinet.Boites.AttendInformation(u"Ce raccourci ne peut que supprimer une ordonnance mémorisée."_s);
    SupprimeOrdonnanceMemorisee(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
}

void TestMemoire::ANameIsAskedAndTrimmed()
{
    CabinetMemo cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    cabinet.AttendNom(u"  HTA "_s).AttendSpecifique(Bouton::Oui);
    int changements = 0;
    QObject::connect(&cabinet.Etat.Signaux, &application::Signaux::MemoireChange,
                     [&changements] { ++changements; });
    MemoriseOrdonnance(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(changements, 1);
    QCOMPARE(cabinet.Ordo().OrdoMemorisee, 1);
    QCOMPARE(cabinet.Ordo().TitreMemo, u"HTA"_s);
    QCOMPARE(cabinet.Liste(), QStringList{u"HTA|Monsieur  MARTIN  Paul|0|20/03/1953"_s});
    QCOMPARE(cabinet.Lignes(),
             QStringList{u"HTA|DOLIPRANE|1 matin|1|Monsieur  MARTIN  Paul|20/03/1953|1|1"_s});
}

void TestMemoire::WithoutANameNothingIsKept_data()
{
    QTest::addColumn<std::optional<QString>>("nom");
    QTest::newRow("Cancel") << std::optional<QString>();
    QTest::newRow("empty") << std::optional(QString());
    QTest::newRow("blank") << std::optional(u"   "_s);
}

void TestMemoire::WithoutANameNothingIsKept()
{
    QFETCH(std::optional<QString>, nom);
    CabinetMemo cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    cabinet.AttendNom(nom).Boites.AttendInformation(u"L'ordonnance ne sera pas mémorisée."_s);
    MemoriseOrdonnance(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Ordo().OrdoMemorisee, 0);
    QCOMPARE(cabinet.Liste() + cabinet.Lignes(), QStringList());
}

void TestMemoire::WithoutPatientItIsForAll()
{
    CabinetMemo cabinet;
    cabinet.Etat.Patient.PatientCourant.clear();
    cabinet.Prescrit(u"DOLIPRANE"_s);
    cabinet.AttendNom(u"HTA"_s);
    MemoriseOrdonnance(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Liste(), QStringList{u"HTA|*|0|0"_s});
    QCOMPARE(cabinet.Lignes(), QStringList{u"HTA|DOLIPRANE|1 matin|1|*|0|1|1"_s});
}

void TestMemoire::TheSecondZoneNeedsTheBox_data()
{
    QTest::addColumn<int>("ald");
    QTest::addColumn<int>("lignes");
    QTest::newRow("one zone") << 0 << 1;
    QTest::newRow("two zones") << 1 << 2;
}

void TestMemoire::TheSecondZoneNeedsTheBox()
{
    QFETCH(int, ald);
    QFETCH(int, lignes);
    CabinetMemo cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    cabinet.Ordo().OrdoZone2 = {{u"mort"_s, {}}, {u"AMLOR"_s, u"1 cp"_s}};
    cabinet.Ordo().LstChoix2.Ajoute({u"  AMLOR"_s, 1});
    cabinet.Ordo().ChkALD = static_cast<quint8>(ald);
    cabinet.AttendNom(u"HTA"_s).AttendSpecifique(Bouton::Non);
    MemoriseOrdonnance(cabinet.Contexte);
    QCOMPARE(cabinet.Liste(), QStringList{u"HTA|*|%1|0"_s.arg(ald)});
    QCOMPARE(cabinet.Lignes().size(), lignes);
    QVERIFY(ald == 0 || cabinet.Lignes().at(1) == u"HTA|AMLOR|1 cp|2|*|0|1|1"_s);
}

void TestMemoire::TheProductIdIsTheBanks_data()
{
    QTest::addColumn<QString>("typeBase");
    QTest::addColumn<QString>("identifiant");
    QTest::addColumn<QString>("range");
    QTest::newRow("bank") << u"VDE"_s << u"2147483647"_s << u"2147483647"_s;
    QTest::newRow("local") << u"BIP"_s << u"101"_s << u"1"_s;
    QTest::newRow("none") << u"VDE"_s << u"1"_s << u"1"_s;
    QTest::newRow("no number") << u"VDE"_s << u"abc"_s << u"1"_s;
}

void TestMemoire::TheProductIdIsTheBanks()
{
    QFETCH(QString, typeBase);
    QFETCH(QString, identifiant);
    QFETCH(QString, range);
    CabinetMemo cabinet;
    cabinet.Etat.Banque.TypeBase = typeBase;
    cabinet.Ordo().OrdoZone1 = {{u"X"_s, {}}};
    cabinet.Ordo().LstChoix1.Ajoute({TexteDeLigne(u"X"_s, 200, identifiant), 0});
    cabinet.AttendNom(u"HTA"_s).AttendSpecifique(Bouton::Non);
    MemoriseOrdonnance(cabinet.Contexte);
    QCOMPARE(cabinet.Lignes(), QStringList{u"HTA|X||1|*|0|"_s + range + u"|1"_s});
}

void TestMemoire::AnOldCodeNeverBecomesAnotherProduct_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("ancien");
    QTest::addColumn<QString>("range");
    QTest::newRow("known") << u"3400930000011"_s << true << u"101|1"_s;
    QTest::newRow("unknown") << u"3400930000012"_s << true << u"3400930000012|1"_s;
    QTest::newRow("seven digits") << u"3595583"_s << true << u"3595583|2"_s;
    QTest::newRow("nobody asks any more") << u"3400930000012"_s << false << u"3400930000012|1"_s;
    QTest::newRow("no product") << u"0"_s << true << u"0|1"_s;
}

void TestMemoire::AnOldCodeNeverBecomesAnotherProduct()
{
    QFETCH(QString, code);
    QFETCH(bool, ancien);
    QFETCH(QString, range);
    CabinetMemo cabinet;
    cabinet.Etat.Banque.TypeBase = u"VDE"_s;
    cabinet.Etat.Banque.ProduitDuCip = [](const QString& cip) -> std::optional<qint32> {
        return cip == u"3400930000011"_s ? std::optional(101) : std::nullopt;
    };
    cabinet.Ordo().OrdoZone1 = {{u"X"_s, {}}};
    cabinet.Ordo().LstChoix1.Ajoute({TexteDeLigne(u"X"_s, 300, code), 0, ancien});
    cabinet.AttendNom(u"HTA"_s).AttendSpecifique(Bouton::Non);
    MemoriseOrdonnance(cabinet.Contexte);
    QCOMPARE(cabinet.Lignes(), QStringList{u"HTA|X||1|*|0|"_s + range});
}

void TestMemoire::ChangesReplaceTheLines()
{
    CabinetMemo cabinet;
    cabinet.Range(u"HTA"_s, Bouton::Oui);
    cabinet.Prescrit(u"AMLOR"_s);
    cabinet.Ordo().ChkALD = 1;
    const QString question = u"Enregistrer les modifications de HTA ?"_s;
    cabinet.Boites.AttendQuestion(question, Bouton::Non);
    MemoriseOrdonnance(cabinet.Contexte);
    QCOMPARE(cabinet.Lignes().size(), 1);
    cabinet.Boites.AttendQuestion(question, Bouton::Oui);
    MemoriseOrdonnance(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Lignes().size(), 2);
    QCOMPARE(cabinet.Liste(), QStringList{u"HTA|Monsieur  MARTIN  Paul|1|20/03/1953"_s});
}

void TestMemoire::WhatNoListShowsIsNotReplaced_data()
{
    QTest::addColumn<int>("cas");
    QTest::newRow("deleted meanwhile") << 0;
    QTest::newRow("another patient") << 1;
    QTest::newRow("beyond row 99") << 2;
}

void TestMemoire::WhatNoListShowsIsNotReplaced()
{
    QFETCH(int, cas);
    CabinetMemo cabinet;
    cabinet.Range(u"HTA"_s, Bouton::Oui);
    if (cas == 0) {
        cabinet.Medoc().SupprimeOu(u"ListeOrdos"_s, u"1"_s, {});
    } else if (cas == 1) {
        cabinet.Etat.Patient.PatientCourant = u"Madame  DURAND  Anne"_s;
    } else {
        cabinet.Ordo().CleMemo.reset();
    }
    const QStringList avant = cabinet.Lignes();
    cabinet.AttendNom(u"Autre"_s).AttendSpecifique(Bouton::Non);
    MemoriseOrdonnance(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Lignes(), avant + QStringList{u"Autre|DOLIPRANE|1 matin|1|*|0|1|1"_s});
    QCOMPARE(cabinet.Ordo().TitreMemo, u"Autre"_s);
    QCOMPARE(cabinet.Liste().last(), u"Autre|*|0|0"_s);
}

void TestMemoire::AFailureChangesNothing()
{
    CabinetMemo cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    cabinet.Medoc().PoseCrochet([](const QString& instruction) { return instruction.contains(u"OrdoEnr"); });
    cabinet.AttendNom(u"HTA"_s).AttendSpecifique(Bouton::Non);
    cabinet.Boites.AttendContenant(outside::Genre::Stop, u"Medoc.mdb"_s);
    MemoriseOrdonnance(cabinet.Contexte);
    cabinet.Medoc().PoseCrochet({});
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Ordo().OrdoMemorisee, 0);
    QCOMPARE(cabinet.Liste() + cabinet.Lignes(), QStringList());
}

void TestMemoire::DeletionAsksTwice_data()
{
    QTest::addColumn<Bouton>("supprime");
    QTest::addColumn<Bouton>("efface");
    QTest::newRow("both") << Bouton::Oui << Bouton::Oui;
    QTest::newRow("keeps the lines") << Bouton::Oui << Bouton::Non;
    QTest::newRow("keeps it stored") << Bouton::Non << Bouton::Non;
}

void TestMemoire::DeletionAsksTwice()
{
    QFETCH(Bouton, supprime);
    QFETCH(Bouton, efface);
    CabinetMemo cabinet;
    cabinet.Range(u"HTA"_s, Bouton::Non);
    cabinet.Boites.AttendQuestion(u"Supprimer HTA des ordonnances mémorisées ?"_s, supprime, Bouton::Non)
        .AttendQuestion(u"Voulez-vous effacer l'ordonnance actuelle ?"_s, efface, Bouton::Non);
    QCOMPARE(SupprimeOrdonnanceMemorisee(cabinet.Contexte), efface == Bouton::Oui);
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Ordo().OrdoMemorisee, 0);
    QCOMPARE(cabinet.Liste().size() + cabinet.Lignes().size(), supprime == Bouton::Oui ? 0 : 2);
    QCOMPARE(cabinet.Ordo().LstChoix1.Lignes().size(), 1);
}

void TestMemoire::DeletionStaysWithItsOwner()
{
    CabinetMemo cabinet;
    cabinet.Range(u"HTA"_s, Bouton::Non);
    cabinet.Ordo().OrdoMemorisee = 0;
    cabinet.AttendNom(u"HTA"_s).AttendSpecifique(Bouton::Oui);
    MemoriseOrdonnance(cabinet.Contexte);
    cabinet.AttendSuppression();
    SupprimeOrdonnanceMemorisee(cabinet.Contexte);
    QCOMPARE(cabinet.Liste(), QStringList{u"HTA|*|0|0"_s});
    QCOMPARE(cabinet.Lignes().size(), 1);
}

void TestMemoire::AnotherPatientsIsNotDeleted()
{
    CabinetMemo cabinet;
    cabinet.Range(u"HTA"_s, Bouton::Oui);
    cabinet.Etat.Patient.DateNaissance = u"21/03/1953"_s;
    cabinet.AttendSuppression();
    SupprimeOrdonnanceMemorisee(cabinet.Contexte);
    QCOMPARE(cabinet.Liste().size() + cabinet.Lignes().size(), 2);
}

void TestMemoire::AFailedDeletionIsTold()
{
    CabinetMemo cabinet;
    cabinet.Range(u"HTA"_s, Bouton::Non);
    cabinet.Medoc().PoseCrochet([](const QString& instruction) { return instruction.contains(u"OrdoEnr"); });
    cabinet.Boites.AttendQuestion(u"Supprimer HTA des ordonnances mémorisées ?"_s, Bouton::Oui, Bouton::Non)
        .AttendContenant(outside::Genre::Stop, u"Medoc.mdb"_s);
    QVERIFY(!SupprimeOrdonnanceMemorisee(cabinet.Contexte));
    cabinet.Medoc().PoseCrochet({});
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Ordo().OrdoMemorisee, 1);
    QCOMPARE(cabinet.Liste().size() + cabinet.Lignes().size(), 2);
}

QTEST_MAIN(TestMemoire)
#include "test_memoire.moc"
