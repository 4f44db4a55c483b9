#include "prescription/Apercu.h"
#include "prescription/CommandeCertificat.h"
#include "prescription/Commandes.h"
#include "prescription/Editeur.h"
#include "storage/Jeu.h"
#include "support/Cabinet.h"
#include "support/PageDeTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace prescription;
using outside::Bouton;

namespace {

QString Question()
{
    return u"Pour le patient en cours (Monsieur  MARTIN  Paul) ?"_s;
}

} // namespace

class TestCommandeCertificat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutADoctorNothingHappens();
    void ForThePatientInHand();
    void ForAnotherPatient();
    void WithoutAPatientOneIsChosen();
    void WithoutAPatientInTheEndThePrescriptionComesBack();
    void BackToTheCertificateOfThePage();
    void AnotherPatientEndsTheCertificateOfThePage();
    void AnotherDoctorRepaintsTheCertificate();
};

void TestCommandeCertificat::WithoutADoctorNothingHappens()
{
    Cabinet cabinet;
    cabinet.Etat.Chemins.CheminMedecin.clear();
    QVERIFY(CommenceCertificat(cabinet.Contexte) == EtapeCertificat::Arret);
    QCOMPARE(cabinet.Etat.Apercu.ModeApercu, quint8(0));
}

void TestCommandeCertificat::ForThePatientInHand()
{
    Cabinet cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    Repeint(cabinet.Contexte);
    cabinet.Boites.AttendQuestion(Question(), Bouton::Oui);
    QVERIFY(CommenceCertificat(cabinet.Contexte) == EtapeCertificat::Nouveau);
    QCOMPARE(cabinet.Etat.Apercu.ModeApercu, quint8(1));
    QVERIFY(cabinet.Etat.Apercu.PctOrdo.Items.isEmpty());
}

void TestCommandeCertificat::ForAnotherPatient()
{
    Cabinet cabinet;
    cabinet.Boites.AttendQuestion(Question(), Bouton::Non);
    QVERIFY(CommenceCertificat(cabinet.Contexte) == EtapeCertificat::Patient);
    QCOMPARE(cabinet.Etat.Apercu.ModeApercu, quint8(1));
    QVERIFY(PoursuitCertificat(cabinet.Contexte) == EtapeCertificat::Nouveau);
    QCOMPARE(cabinet.Etat.Apercu.ModeApercu, quint8(1));
}

void TestCommandeCertificat::WithoutAPatientOneIsChosen()
{
    Cabinet cabinet;
    cabinet.Etat.Patient = {};
    QVERIFY(CommenceCertificat(cabinet.Contexte) == EtapeCertificat::Patient);
    cabinet.Etat.Patient.PatientCourant = u"Madame  DURAND  Anne"_s;
    QVERIFY(PoursuitCertificat(cabinet.Contexte) == EtapeCertificat::Nouveau);
}

void TestCommandeCertificat::WithoutAPatientInTheEndThePrescriptionComesBack()
{
    Cabinet cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    cabinet.Etat.Patient = {};
    QVERIFY(CommenceCertificat(cabinet.Contexte) == EtapeCertificat::Patient);
    QVERIFY(PoursuitCertificat(cabinet.Contexte) == EtapeCertificat::Arret);
    QCOMPARE(cabinet.Etat.Apercu.ModeApercu, quint8(0));
    QVERIFY(support::Mots(cabinet.Etat.Apercu.PctOrdo).contains(u"DOLIPRANE"_s));
}

void TestCommandeCertificat::BackToTheCertificateOfThePage()
{
    Cabinet cabinet;
    cabinet.PoseCertificat(u"texte"_s);
    Repeint(cabinet.Contexte);
    cabinet.Boites.AttendQuestion(Question(), Bouton::Oui);
    QVERIFY(CommenceCertificat(cabinet.Contexte) == EtapeCertificat::Reprise);
    QCOMPARE(cabinet.Etat.Apercu.ModeApercu, quint8(1));
    QVERIFY(cabinet.Etat.Apercu.PctOrdo.Items.isEmpty());
}

void TestCommandeCertificat::AnotherPatientEndsTheCertificateOfThePage()
{
    Cabinet cabinet;
    cabinet.PoseCertificat(u"texte"_s);
    cabinet.Boites.AttendQuestion(Question(), Bouton::Non);
    QVERIFY(CommenceCertificat(cabinet.Contexte) == EtapeCertificat::Patient);
    QCOMPARE(cabinet.Etat.Apercu.ModeApercu, quint8(0));
    QVERIFY(PoursuitCertificat(cabinet.Contexte) == EtapeCertificat::Nouveau);
}

void TestCommandeCertificat::AnotherDoctorRepaintsTheCertificate()
{
    Cabinet cabinet;
    cabinet.PoseCertificat(u"<DR>"_s);
    storage::Base& ordo = cabinet.Etat.Bases.Ordo(cabinet.Etat.Chemins.CheminMedecin);
    for (storage::Jeu jeu = ordo.Table(u"Entete"_s); !jeu.Fin(); jeu.MoveNext()) {
        if (jeu.Champ(0).toInt() == 23) {
            jeu.Edit();
            jeu.Ecris(1, u"Docteur NEIBRE"_s);
            jeu.Update();
        }
    }
    cabinet.Etat.Apercu.ModeApercu = 2;
    ChangeMedecinDeLEditeur(cabinet.Contexte, 0);
    QCOMPARE(cabinet.Etat.Apercu.ModeApercu, quint8(1));
    QCOMPARE(support::Mots(cabinet.Etat.Apercu.PctOrdo).constFirst(), u"Docteur NEIBRE"_s);
}

QTEST_MAIN(TestCommandeCertificat)
#include "test_commande_certificat.moc"
