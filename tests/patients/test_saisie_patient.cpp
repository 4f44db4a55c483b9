#include "common/Erreur.h"
#include "patients/MondePatients.h"
#include "patients/SaisiePatient.h"
#include "patients/messages.h"

#include <QTest>

using namespace patients;

namespace {

SaisiePatient Martin()
{
    SaisiePatient saisie;
    saisie.Option = 0;
    saisie.Nom = QStringLiteral("MARTIN");
    saisie.Prenom = QStringLiteral("Paul");
    saisie.DateNaissance = QStringLiteral("20/03/1953");
    return saisie;
}

} // namespace

class TestSaisiePatient : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Refus_data()
    {
        QTest::addColumn<QString>("nom");
        QTest::addColumn<QString>("prenom");
        QTest::addColumn<QString>("date");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("controle");
        const auto cas = [](const char* titre, const QString& nom, const QString& prenom, const QString& date,
                            int mode, const QString& message, Champ controle) {
            QTest::newRow(titre) << nom << prenom << date << mode << message << static_cast<int>(controle);
        };
        const QString nom = QStringLiteral("A");
        const QString date = QStringLiteral("20/03/1953");
        const QString messageDate = QStringLiteral(
            "Indiquez la date de naissance du patient\nau format jj/mm/aaaa (ex.: 20/03/1953) !");
        cas("rien", {}, {}, {}, 1, QStringLiteral("Indiquez le nom du patient !"), Champ::Nom);
        cas("prenom", nom, {}, {}, 1, QStringLiteral("Indiquez le prénom du patient !"), Champ::Prenom);
        cas("date", nom, nom, {}, 1, messageDate, Champ::DateNaissance);
        cas("impossible", nom, nom, QStringLiteral("31/02/2000"), 1, messageDate, Champ::DateNaissance);
        cas("passant sans date", nom, nom, {}, 2, {}, Champ::Aucun);
        cas("passant sans nom", {}, nom, {}, 2, QStringLiteral("Indiquez le nom du patient !"), Champ::Nom);
        cas("complet", nom, nom, date, 1, {}, Champ::Aucun);
        cas("futur", nom, nom, QStringLiteral("01/01/2050"), 1, {}, Champ::Aucun);
    }

    void Refus()
    {
        QFETCH(QString, nom);
        QFETCH(QString, prenom);
        QFETCH(QString, date);
        QFETCH(int, mode);
        SaisiePatient saisie;
        saisie.Nom = nom;
        saisie.Prenom = prenom;
        saisie.DateNaissance = date;
        const auto refus = Verifie(saisie, static_cast<quint8>(mode)).value_or(patients::Refus());
        QTEST(refus.Message, "message");
        QTEST(static_cast<int>(refus.Controle), "controle");
    }

    void UnRefusNeChangeRien()
    {
        MondePatients monde;
        monde.Etat.Patient.ModePatient = 1;
        monde.Etat.Patient.PatientCourant = QStringLiteral("avant");
        SaisiePatient saisie = Martin();
        saisie.DateNaissance = QStringLiteral("31/02/2000");
        QVERIFY(TermineSaisie(monde.Contexte, saisie, {}).Refus.has_value());
        QCOMPARE(monde.Etat.Patient.PatientCourant, QStringLiteral("avant"));
        QVERIFY(monde.Rangees().isEmpty());
    }

    void Ajoute()
    {
        MondePatients monde;
        monde.Etat.Patient.ModePatient = 1;
        SaisiePatient saisie = Martin();
        saisie.Nom = QStringLiteral("D'ARC \"J\"  X");
        saisie.Poids = QStringLiteral("72,5");
        saisie.Precautions = {QStringLiteral("l'iode"), QStringLiteral("asthme")};
        saisie.Adresse = QStringLiteral("1 rue A\n75001 Paris");
        const auto fin = TermineSaisie(monde.Contexte, saisie, {});
        QVERIFY(!fin.Refus);
        const auto rangees = monde.Rangees();
        QCOMPARE(rangees.size(), 1);
        const QVariantList attendue = {fin.Index,
                                       QStringLiteral("Monsieur"),
                                       QStringLiteral("D'ARC \"J\" X  Paul"),
                                       QStringLiteral("20/03/1953"),
                                       QStringLiteral("72"),
                                       QStringLiteral("l'iode*asthme"),
                                       QString(QLatin1String("")),
                                       QString(QLatin1String("")),
                                       QStringLiteral("1 rue A\n75001 Paris"),
                                       QString(QLatin1String("")),
                                       QString(QLatin1String(""))};
        QCOMPARE(rangees[0], attendue);
        const Patient& patient = monde.Etat.Patient;
        QCOMPARE(patient.PatientCourant, QStringLiteral("D'ARC \"J\" X  Paul"));
        QCOMPARE(patient.DateNaissance, QStringLiteral("20/03/1953"));
        QVERIFY(patient.AgePatient.contains(QStringLiteral("73 ans")));
        QCOMPARE(patient.PoidsPatient, QStringLiteral("72"));
        QCOMPARE(patient.PrecautionsPatient, QStringLiteral("l'iode*asthme"));
        QCOMPARE(patient.AdressePatient, QStringLiteral("1 rue A\n75001 Paris"));
    }

    void SansPrecautionLeTexteVideEtNonNul()
    {
        MondePatients monde;
        monde.Etat.Patient.ModePatient = 1;
        TermineSaisie(monde.Contexte, Martin(), {});
        for (const int position : {5, 6, 7, 8, 9, 10}) {
            QVERIFY(monde.Rangees()[0][position].isValid());
            QCOMPARE(monde.Rangees()[0][position].toString(), QString());
        }
        QCOMPARE(monde.Rangees()[0][4].toString(), QStringLiteral("0"));
    }

    void DeuxFoisLeMemeDonneDeuxRangees()
    {
        MondePatients monde;
        monde.Etat.Patient.ModePatient = 1;
        const int premier = TermineSaisie(monde.Contexte, Martin(), {}).Index;
        const int second = TermineSaisie(monde.Contexte, Martin(), {}).Index;
        QVERIFY(premier != second);
        QCOMPARE(monde.Rangees().size(), 2);
    }

    void Change()
    {
        MondePatients monde;
        monde.Etat.Patient.ModePatient = 1;
        const int index = TermineSaisie(monde.Contexte, Martin(), {}).Index;
        SaisiePatient saisie = SaisieDe(*LitFiche(monde.Medoc(), index));
        saisie.Nom = QStringLiteral("MARTINE");
        saisie.Option = 1;
        saisie.Telephone2 = QStringLiteral("01 02 03 04 05");
        QCOMPARE(TermineSaisie(monde.Contexte, saisie, index).Index, index);
        QCOMPARE(monde.Rangees().size(), 1);
        const Fiche fiche = *LitFiche(monde.Medoc(), index);
        QCOMPARE(fiche.Titre, QStringLiteral("Madame"));
        QCOMPARE(fiche.NomPatient, QStringLiteral("MARTINE  Paul"));
        QCOMPARE(fiche.Telephone2, QStringLiteral("01 02 03 04 05"));
        QVERIFY(monde.Rangees()[0][9].isValid());
    }

    void ChangeUnPatientDisparu()
    {
        MondePatients monde;
        monde.Etat.Patient.ModePatient = 1;
        const auto fin = TermineSaisie(monde.Contexte, Martin(), 12);
        QCOMPARE(fin.Refus->Message, messages::PatientDisparu());
        QVERIFY(monde.Rangees().isEmpty());
    }

    void CeQueLesChampsNeMontrentPasReste()
    {
        Fiche fiche;
        fiche.Titre = QStringLiteral("Maître");
        fiche.NomPatient = QStringLiteral("LE  GALL  Paul");
        fiche.Datenais = QStringLiteral("20/03/1953");
        fiche.Poids = QStringLiteral("72,5");
        SaisiePatient saisie = SaisieDe(fiche);
        QCOMPARE(saisie.Option, -1);
        QCOMPARE(saisie.Nom, QStringLiteral("LE"));
        QCOMPARE(saisie.Prenom, QStringLiteral("GALL"));
        QCOMPARE(FicheDe(saisie), fiche);
        saisie.Prenom = QStringLiteral("Jean");
        saisie.Option = kSansCivilite;
        QCOMPARE(FicheDe(saisie).NomPatient, QStringLiteral("LE  Jean"));
        QCOMPARE(FicheDe(saisie).Titre, QString());
    }

    void Passant_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("courant");
        QTest::addColumn<QString>("retenue");
        QTest::newRow("nourrisson") << 4 << QStringLiteral("31/02/2000")
                                    << QStringLiteral("Nourrisson  MARTIN  Paul") << QString();
        QTest::newRow("sans civilite") << 5 << QStringLiteral("1/2/2000") << QStringLiteral("MARTIN  Paul")
                                       << QStringLiteral("1/2/2000");
        QTest::newRow("sans date") << 1 << QString() << QStringLiteral("Madame  MARTIN  Paul") << QString();
    }

    void Passant()
    {
        QFETCH(int, option);
        QFETCH(QString, date);
        support::Monde monde; // without any database: nothing is stored
        monde.Etat.Patient.ModePatient = 2;
        SaisiePatient saisie = Martin();
        saisie.Option = option;
        saisie.DateNaissance = date;
        QVERIFY(!TermineSaisie(monde.Contexte, saisie, {}).Refus);
        QTEST(monde.Etat.Patient.PatientCourant, "courant");
        QCOMPARE(monde.Etat.Patient.NomSeul, QStringLiteral("MARTIN  Paul"));
        QTEST(monde.Etat.Patient.DateNaissance, "retenue");
        QCOMPARE(monde.Etat.Patient.ModePatient, quint8(2));
        QCOMPARE(monde.Etat.Patient.AgePatient.isEmpty(), monde.Etat.Patient.DateNaissance.isEmpty());
    }

    void UneEcritureManqueeNeChangeRien()
    {
        MondePatients monde;
        monde.Etat.Patient.ModePatient = 1;
        monde.Etat.Patient.PatientCourant = QStringLiteral("avant");
        monde.Medoc().PoseCrochet(
            [](const QString& instruction) { return instruction.startsWith(QLatin1String("insert")); });
        QVERIFY_THROWS_EXCEPTION(common::Erreur, TermineSaisie(monde.Contexte, Martin(), {}));
        monde.Medoc().PoseCrochet({});
        QVERIFY(monde.Rangees().isEmpty());
        QCOMPARE(monde.Etat.Patient.PatientCourant, QStringLiteral("avant"));
    }
};

QTEST_GUILESS_MAIN(TestSaisiePatient)
#include "test_saisie_patient.moc"
