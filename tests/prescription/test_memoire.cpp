#include "application/messages.h"
#include "prescription/Commandes.h"
#include "prescription/Memoire.h"
#include "prescription/messages.h"
#include "startup/messages.h"
#include "support/Cabinet.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace prescription;

class TestMemoire : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutDoctorNothingIsKept();
    void ACertificateIsNoPrescription();
    void AnEmptyPrescriptionIsNotKept();
    void OnlyAMemorisedPrescriptionIsDeleted();
    void WhatIsToComeIsSaid();
    void WithoutDoctorCertificatesAreSilent();
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

void TestMemoire::WhatIsToComeIsSaid()
{
    Cabinet cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    cabinet.Boites.AttendInformation(application::messages::PasEncoreDisponible())
        .AttendInformation(application::messages::PasEncoreDisponible());
    MemoriseOrdonnance(cabinet.Contexte);
    DemandeCertificat(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Etat.Ordonnance.LstChoix1.Lignes().size(), 1);
}

void TestMemoire::WithoutDoctorCertificatesAreSilent()
{
    Cabinet cabinet;
    cabinet.Etat.Chemins.CheminMedecin.clear();
    DemandeCertificat(cabinet.Contexte);
    QVERIFY(cabinet.Boites.Epuise());
}

QTEST_MAIN(TestMemoire)
#include "test_memoire.moc"
