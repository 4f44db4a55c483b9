#include "prescription/Commandes.h"
#include "prescription/Editeur.h"
#include "prescription/messages.h"

#include "support/Cabinet.h"

#include <QSignalSpy>
#include <QTest>

using namespace prescription;

namespace {

QString Invite()
{
    return QStringLiteral("Date de l'ordonnance :\nformat : jj/mm/aaaa");
}

QString Aujourdhui()
{
    return QStringLiteral("20/11/2026");
}

bool Montre(const Cabinet& cabinet, const QString& morceau)
{
    for (const page::Item& item : cabinet.Etat.Apercu.PctOrdo.Items) {
        const auto* texte = std::get_if<page::ItemTexte>(&item);
        if (texte != nullptr && texte->Texte.contains(morceau)) {
            return true;
        }
    }
    return false;
}

} // namespace

class TestCommandes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ADateIsPutOnThePage();
    void AWrongDateIsAskedAgain();
    void AnyTenCharactersPass();
    void ZeroTakesTheDateOff();
    void CancelIsTodayAndRepaintsNothing_data();
    void CancelIsTodayAndRepaintsNothing();
    void TheMedicationsComeBack();
    void TheCivilityIsPainted();
    void ANewPrescriptionNeedsADoctor();
    void ANewPrescriptionIsEmpty();
    void AnotherDoctorEmptiesThePreview();
    void NoDoctorIsNoChange();
    void ABodyOnTheSheetHasNoMark();
    void ABodyPastTheSheetIsMarkedWherePaperEnds();
};

void TestCommandes::ADateIsPutOnThePage()
{
    Cabinet cabinet;
    cabinet.Boites.AttendSaisie(Invite(), QStringLiteral("07/01/2010"), Aujourdhui());
    DemandeDate(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Patient.DateOrdo, QStringLiteral("07/01/2010"));
    QVERIFY(Montre(cabinet, QStringLiteral("2010")));
}

void TestCommandes::AWrongDateIsAskedAgain()
{
    Cabinet cabinet;
    cabinet.Boites.AttendSaisie(Invite(), QStringLiteral("7/1/10"), Aujourdhui())
        .AttendInformation(QStringLiteral("Indiquez la date de l'ordonnance\n"
                                          "au format jj/mm/aaaa (ex.: 07/01/2010) !"))
        .AttendSaisie(Invite(), QStringLiteral("07/01/2010"), Aujourdhui());
    DemandeDate(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Patient.DateOrdo, QStringLiteral("07/01/2010"));
}

void TestCommandes::AnyTenCharactersPass()
{
    Cabinet cabinet;
    cabinet.Boites.AttendSaisie(Invite(), QStringLiteral("abcdefghij"), Aujourdhui());
    DemandeDate(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Patient.DateOrdo, QStringLiteral("abcdefghij"));
}

void TestCommandes::ZeroTakesTheDateOff()
{
    Cabinet cabinet;
    cabinet.Boites.AttendSaisie(Invite(), QStringLiteral("0"), Aujourdhui());
    DemandeDate(cabinet.Contexte);
    QVERIFY(cabinet.Etat.Patient.DateOrdo.isEmpty());
    QVERIFY(Montre(cabinet, QStringLiteral("MARTIN")));
    QVERIFY(!Montre(cabinet, QStringLiteral("2026")));
}

void TestCommandes::CancelIsTodayAndRepaintsNothing_data()
{
    QTest::addColumn<bool>("annule");
    QTest::newRow("cancel") << true;
    QTest::newRow("empty") << false;
}

void TestCommandes::CancelIsTodayAndRepaintsNothing()
{
    QFETCH(bool, annule);
    Cabinet cabinet;
    cabinet.Etat.Patient.DateOrdo = QStringLiteral("01/01/2000");
    cabinet.Boites.AttendSaisie(Invite(), annule ? std::optional<QString>() : QString(), Aujourdhui());
    QSignalSpy repeints(&cabinet.Etat.Signaux, &application::Signaux::ApercuChange);
    DemandeDate(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Patient.DateOrdo, Aujourdhui());
    QCOMPARE(repeints.size(), 0);
}

void TestCommandes::TheMedicationsComeBack()
{
    Cabinet cabinet;
    Repeint(cabinet.Contexte);
    cabinet.Etat.Apercu.ModeApercu = 2;
    RevientAuxMedicaments(cabinet.Contexte);
    QCOMPARE(int(cabinet.Etat.Apercu.ModeApercu), 0);
    QVERIFY(cabinet.Etat.Apercu.PctOrdo.Items.isEmpty());
}

void TestCommandes::TheCivilityIsPainted()
{
    Cabinet cabinet;
    ImprimeCivilite(cabinet.Contexte, false);
    QVERIFY(!Montre(cabinet, QStringLiteral("Monsieur")));
    QVERIFY(Montre(cabinet, QStringLiteral("MARTIN  Paul")));
    ImprimeCivilite(cabinet.Contexte, true);
    QVERIFY(Montre(cabinet, QStringLiteral("Monsieur  MARTIN  Paul")));
}

void TestCommandes::ANewPrescriptionNeedsADoctor()
{
    Cabinet cabinet;
    cabinet.Etat.Chemins.CheminMedecin.clear();
    cabinet.Etat.Apercu.ModeApercu = 1;
    cabinet.Boites.AttendInformation(QStringLiteral("Choisissez d'abord un médecin utilisateur."));
    QVERIFY(!CommenceOrdonnance(cabinet.Contexte));
    QCOMPARE(int(cabinet.Etat.Apercu.ModeApercu), 0);
    QCOMPARE(cabinet.Etat.Patient.NomSeul, QStringLiteral("MARTIN  Paul"));
}

void TestCommandes::ANewPrescriptionIsEmpty()
{
    Cabinet cabinet;
    cabinet.Prescrit(QStringLiteral("ASPIRINE"));
    cabinet.Etat.Patient.DateOrdo = QStringLiteral("01/01/2000");
    QVERIFY(CommenceOrdonnance(cabinet.Contexte));
    QVERIFY(cabinet.Etat.Ordonnance.LstChoix1.Vide());
    QVERIFY(cabinet.Etat.Patient.PatientCourant.isEmpty());
    QCOMPARE(cabinet.Etat.Patient.DateOrdo, Aujourdhui());
}

void TestCommandes::AnotherDoctorEmptiesThePreview()
{
    Cabinet cabinet;
    common::CreeDossier(common::Joint(cabinet.Etat.Chemins.CheminTravail, QStringLiteral("DR AUTRE")));
    storage::CreeBase(
        common::Joint(common::Joint(cabinet.Etat.Chemins.CheminTravail, QStringLiteral("DR AUTRE")),
                      QStringLiteral("Ordo.mdb")),
        storage::GenreBase::Ordo);
    cabinet.Etat.Medecins.Liste.append({QStringLiteral("DR AUTRE"), 2});
    Repeint(cabinet.Contexte);
    ChangeMedecinDeLEditeur(cabinet.Contexte, 1);
    QCOMPARE(cabinet.Etat.Medecins.Selection, 1);
    QVERIFY(cabinet.Etat.Chemins.CheminMedecin.endsWith(QStringLiteral("DR AUTRE")));
    QVERIFY(cabinet.Etat.Apercu.PctOrdo.Items.isEmpty());
}

void TestCommandes::NoDoctorIsNoChange()
{
    Cabinet cabinet;
    Repeint(cabinet.Contexte);
    ChangeMedecinDeLEditeur(cabinet.Contexte, -1);
    ChangeMedecinDeLEditeur(cabinet.Contexte, 7);
    QCOMPARE(cabinet.Etat.Medecins.Selection, 0);
    QVERIFY(!cabinet.Etat.Apercu.PctOrdo.Items.isEmpty());
}

void TestCommandes::ABodyOnTheSheetHasNoMark()
{
    Cabinet cabinet;
    cabinet.Prescrit(QStringLiteral("ASPIRINE"));
    Repeint(cabinet.Contexte);
    QCOMPARE(BasDeLaFeuille(cabinet.Contexte), 0.0);
}

void TestCommandes::ABodyPastTheSheetIsMarkedWherePaperEnds()
{
    Cabinet cabinet;
    cabinet.Deborde();
    Repeint(cabinet.Contexte);
    // Footer at 297 - 10 + 4; the preview's body begins 50 mm above the paper's.
    QCOMPARE(BasDeLaFeuille(cabinet.Contexte), 241.0);
}

QTEST_MAIN(TestCommandes)
#include "test_commandes.moc"
