#include "common/Erreur.h"
#include "patients/ListePatients.h"
#include "patients/MondePatients.h"
#include "patients/PatientCourant.h"

#include <QSignalSpy>
#include <QTest>

using namespace patients;

namespace {

bool EcritLeNom(const page::Item& item)
{
    const auto* texte = std::get_if<page::ItemTexte>(&item);
    return texte && texte->Texte == QLatin1String("Madame  MARTIN  Anne");
}

} // namespace

class TestPatientCourant : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Liste()
    {
        MondePatients monde;
        const int zola = monde.Enregistre({}, QStringLiteral("ZOLA  Émile"));
        const int emile = monde.Enregistre({}, QStringLiteral("ÉMILE  Zoé"));
        ListePatients liste;
        liste.Charge(monde.Medoc());
        QCOMPARE(liste.rowCount(), 2);
        QCOMPARE(liste.index(0).data().toString(), QStringLiteral("  ÉMILE  Zoé"));
        QCOMPARE(liste.index(0).data(Qt::UserRole).toInt(), emile);
        QCOMPARE(liste.index(1).data(Qt::UserRole).toInt(), zola);
        QSignalSpy insertions(&liste, &ListePatients::rowsInserted);
        QCOMPARE(liste.Ajoute(99, QStringLiteral("MARTIN  Paul")), 1);
        QCOMPARE(insertions.size(), 1);
        QCOMPARE(liste.Index(1), 99);
        liste.Retire(0);
        QCOMPARE(liste.Texte(0), QStringLiteral("  MARTIN  Paul"));
        QCOMPARE(liste.Cherche(u" zO "), 1);
    }

    void UnNomNulSeLit()
    {
        MondePatients monde;
        monde.Ajoute(QStringLiteral("Patients"), {5});
        ListePatients liste;
        liste.Charge(monde.Medoc());
        QCOMPARE(liste.index(0).data().toString(), QStringLiteral("  "));
        QVERIFY(SelectionnePatient(monde.Contexte, 5, liste.Texte(0)));
        QCOMPARE(monde.Etat.Patient.PatientCourant, QString());
        QCOMPARE(monde.Etat.Patient.PoidsPatient, QStringLiteral("0"));
    }

    void Selectionne()
    {
        MondePatients monde;
        const int index = monde.Enregistre(QStringLiteral("Monsieur"), QStringLiteral("D'ARC  \"J\""),
                                           QStringLiteral("20/03/1953"), QStringLiteral("72.5"),
                                           QStringLiteral("iode*asthme"));
        QVERIFY(SelectionnePatient(monde.Contexte, index, QStringLiteral("  D'ARC  \"J\"")));
        const Patient& patient = monde.Etat.Patient;
        QCOMPARE(patient.PatientCourant, QStringLiteral("Monsieur  D'ARC  \"J\""));
        QCOMPARE(patient.NomSeul, QStringLiteral("D'ARC  \"J\""));
        QCOMPARE(patient.DateNaissance, QStringLiteral("20/03/1953"));
        QCOMPARE(patient.PrecautionsPatient, QStringLiteral("iode*asthme"));
        QCOMPARE(patient.ModePatient, quint8(1));
        QCOMPARE(patient.MessagePrecautions,
                 QStringLiteral("Précautions à prendre en compte pour une prescription à\nD'ARC  \"J\"\n\n"
                                "o   iode\no   asthme\n"));
        QCOMPARE(TexteLblPatient(patient), QStringLiteral("72.5 kg - ") + patient.AgePatient);
    }

    void UnAutreSansPrecautionEffaceLeMessage()
    {
        MondePatients monde;
        const int premier = monde.Enregistre({}, QStringLiteral("A  A"), {}, {}, QStringLiteral("iode"));
        const int second = monde.Enregistre({}, QStringLiteral("B  B"));
        SelectionnePatient(monde.Contexte, premier, QStringLiteral("  A  A"));
        QVERIFY(!monde.Etat.Patient.MessagePrecautions.isEmpty());
        SelectionnePatient(monde.Contexte, second, QStringLiteral("  B  B"));
        QVERIFY(monde.Etat.Patient.MessagePrecautions.isEmpty());
    }

    void UnPatientDisparuNeChangeRien()
    {
        MondePatients monde;
        monde.Etat.Patient.PatientCourant = QStringLiteral("avant");
        QVERIFY(!SelectionnePatient(monde.Contexte, 77, QStringLiteral("  A  A")));
        QCOMPARE(monde.Etat.Patient.PatientCourant, QStringLiteral("avant"));
    }

    void LblPatient_data()
    {
        QTest::addColumn<QString>("poids");
        QTest::addColumn<QString>("age");
        QTest::addColumn<QString>("attendu");
        QTest::newRow("rien") << QStringLiteral("0") << QString() << QString();
        QTest::newRow("age") << QStringLiteral("0") << QStringLiteral("3 ans") << QStringLiteral("3 ans");
        QTest::newRow("poids") << QStringLiteral("12") << QString() << QStringLiteral("12 kg");
        QTest::newRow("tout") << QStringLiteral("12") << QStringLiteral("3 ans")
                              << QStringLiteral("12 kg - 3 ans");
    }

    void LblPatient()
    {
        QFETCH(QString, poids);
        QFETCH(QString, age);
        Patient patient;
        patient.PoidsPatient = poids;
        patient.AgePatient = age;
        QTEST(TexteLblPatient(patient), "attendu");
    }

    void Annule()
    {
        Patient patient;
        patient.PatientCourant = patient.DateNaissance = patient.AgePatient = patient.DateOrdo =
            patient.NomSeul = patient.AgeSaisi = QStringLiteral("x");
        patient.PoidsPatient = QStringLiteral("72");
        prescription::Apercu apercu;
        apercu.ModeApercu = 1;
        AnnulePatient(patient, apercu);
        QCOMPARE(patient.PatientCourant + patient.DateNaissance + patient.AgePatient + patient.DateOrdo,
                 QString());
        QCOMPARE(patient.PoidsPatient, QStringLiteral("0"));
        QCOMPARE(patient.NomSeul + patient.AgeSaisi, QString());
        QCOMPARE(apercu.ModeApercu, quint8(0));
    }

    void Confirme_data()
    {
        QTest::addColumn<int>("modeApercu");
        QTest::addColumn<bool>("ouvreMedocApres");
        QTest::addColumn<bool>("medocSuit");
        QTest::addColumn<bool>("peint");
        QTest::newRow("nouvelle") << 0 << true << true << true;
        QTest::newRow("en cours") << 0 << false << false << true;
        QTest::newRow("certificat") << 1 << true << false << false;
    }

    void Confirme()
    {
        QFETCH(int, modeApercu);
        QFETCH(bool, ouvreMedocApres);
        QFETCH(bool, peint);
        MondePatients monde;
        monde.PoseMedecin();
        const int index = monde.Enregistre(QStringLiteral("Madame"), QStringLiteral("MARTIN  Anne"));
        SelectionnePatient(monde.Contexte, index, QStringLiteral("  MARTIN  Anne"));
        monde.Etat.Apercu.ModeApercu = static_cast<quint8>(modeApercu);
        monde.Etat.Apercu.PctOrdo.Items = {page::ItemTexte{}};
        monde.Etat.Patient.OuvreMedocApres = ouvreMedocApres ? 1 : 0;
        QTEST(ConfirmePatient(monde.Contexte), "medocSuit");
        QCOMPARE(monde.Etat.Patient.DateOrdo, QStringLiteral("20/11/2026"));
        const auto& items = monde.Etat.Apercu.PctOrdo.Items;
        QCOMPARE(std::ranges::any_of(items, EcritLeNom), peint);
        QVERIFY(peint || items.isEmpty());
    }

    void Supprime()
    {
        MondePatients monde;
        const QString date = QStringLiteral("20/03/1953");
        const QString nom = QStringLiteral("Monsieur  D'ARC  \"J\"");
        const int premier = monde.Enregistre(QStringLiteral("Monsieur"), QStringLiteral("D'ARC  \"J\""));
        const int homonyme = monde.Enregistre(QStringLiteral("Monsieur"), QStringLiteral("D'ARC  \"J\""));
        const auto ordo = [&](const QString& titre, const QString& patient, const QString& naissance) {
            monde.Ajoute(QStringLiteral("OrdoEnr"),
                         {titre, QStringLiteral("X"), QString(), 1, patient, naissance, 1, 1});
            monde.Ajoute(QStringLiteral("ListeOrdos"), {titre, patient, 0, naissance});
        };
        ordo(QStringLiteral("à lui"), nom, date);
        ordo(QStringLiteral("autre date"), nom, QStringLiteral("20/03/1954"));
        ordo(QStringLiteral("modèle"), QStringLiteral("*"), QStringLiteral("0"));
        SupprimeFiche(monde.Medoc(), premier, nom + QStringLiteral("  "), date);
        const auto reste = monde.Rangees();
        QCOMPARE(reste.size(), 1);
        QCOMPARE(reste[0][0].toInt(), homonyme);
        for (const char* table : {"OrdoEnr", "ListeOrdos"}) {
            const auto rangees = monde.Rangees(QString::fromLatin1(table), 1);
            QCOMPARE(rangees.size(), 2);
            QCOMPARE(rangees[0][0].toString(), QStringLiteral("autre date"));
            QCOMPARE(rangees[1][0].toString(), QStringLiteral("modèle"));
        }
    }

    void UnPatientNommeEtoileLaisseLesModeles()
    {
        MondePatients monde;
        const int index = monde.Enregistre({}, QStringLiteral("*"), QStringLiteral("0"));
        monde.Ajoute(QStringLiteral("ListeOrdos"),
                     {QStringLiteral("modèle"), QStringLiteral("*"), 0, QStringLiteral("0")});
        SupprimeFiche(monde.Medoc(), index, QStringLiteral("*"), QStringLiteral("0"));
        QCOMPARE(monde.Rangees(QStringLiteral("ListeOrdos"), 1).size(), 1);
    }

    void UneSuppressionManqueeNeSupprimeRien()
    {
        MondePatients monde;
        const QString nom = QStringLiteral("A  A");
        const QString date = QStringLiteral("20/03/1953");
        const int index = monde.Enregistre({}, nom);
        monde.Ajoute(QStringLiteral("OrdoEnr"),
                     {QStringLiteral("t"), QStringLiteral("X"), QString(), 1, nom, date, 1, 1});
        monde.Ajoute(QStringLiteral("ListeOrdos"), {QStringLiteral("t"), nom, 0, date});
        monde.Medoc().PoseCrochet([](const QString& instruction) {
            return instruction.startsWith(QLatin1String("delete")) &&
                   instruction.contains(QLatin1String("ListeOrdos"));
        });
        QVERIFY_THROWS_EXCEPTION(common::Erreur, SupprimeFiche(monde.Medoc(), index, nom, date));
        monde.Medoc().PoseCrochet({});
        QCOMPARE(monde.Rangees().size(), 1);
        QCOMPARE(monde.Rangees(QStringLiteral("OrdoEnr"), 1).size(), 1);
        QCOMPARE(monde.Rangees(QStringLiteral("ListeOrdos"), 1).size(), 1);
    }
};

QTEST_MAIN(TestPatientCourant)
#include "test_patient_courant.moc"
