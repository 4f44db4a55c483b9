#include "startup/windows/FrmMedecins.h"
#include "startup/windows/ProgrammeDeTest.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using support::ProgrammeDeTest;

namespace {

struct Medecins
{
    ProgrammeDeTest Programme;
    startup::FrmMedecins& Fenetre;
    QListWidget* LstMed;

    Medecins()
        : Fenetre((Programme.Installe(), Programme.Fenetres().Donne<startup::FrmMedecins>())),
          LstMed(Fenetre.findChild<QListWidget*>(QStringLiteral("LstMed")))
    {
        Fenetre.show();
    }

    void Presse(const char* nom) { Fenetre.findChild<QPushButton*>(QLatin1String(nom))->click(); }
    QString LblMed() const { return Fenetre.findChild<QLabel*>(QStringLiteral("LblMed"))->text(); }

    void Inscrit(const QString& nom)
    {
        Programme.Boites.AttendSaisie(startup::messages::InviteNouveauMedecin(), nom, QStringLiteral("Dr "));
        Presse("CmdNouveau");
    }

    QString MedecinIni()
    {
        return QString::fromLatin1(common::LitFichier(
            common::Joint(Programme.Contexte().Chemins.CheminTravail, QStringLiteral("Medecin.ini"))));
    }
};

} // namespace

class TestFrmMedecins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWindowAtOpening()
    {
        Medecins medecins;
        QCOMPARE(medecins.LstMed->count(), 1);
        QCOMPARE(medecins.LstMed->currentRow(), 0);
        QCOMPARE(medecins.LstMed->item(0)->data(Qt::UserRole).toInt(), 1);
        QCOMPARE(medecins.LstMed->font().family(), QStringLiteral("Courier New"));
        QCOMPARE(medecins.LblMed(), QStringLiteral("DR NEIBRE"));
        medecins.LstMed->setFocus();
        QCOMPARE(support::OrdreTab(medecins.Fenetre).join(QLatin1Char(' ')),
                 QStringLiteral("LstMed CmdNouveau CmdDefaut CmdSupprime CmdAide CmdQuitter"));
    }

    void ANewDoctorIsCurrentEverywhere()
    {
        Medecins medecins;
        medecins.Inscrit(QStringLiteral("Dr Andre Paul"));
        QCOMPARE(medecins.LblMed(), QStringLiteral("DR ANDRE PAUL"));
        QCOMPARE(medecins.LstMed->currentRow(), 1);
        auto* liste = medecins.Programme.Fenetres().Donne<startup::FrmDepart>().findChild<QComboBox*>(
            QStringLiteral("CboListeMed"));
        QCOMPARE(liste->currentText(), QStringLiteral("DR ANDRE PAUL"));
        QCOMPARE(medecins.MedecinIni(), QStringLiteral(" 2 \r\nDR NEIBRE-1\r\nDR ANDRE PAUL-2\r\n"));
        support::Capture(medecins.Fenetre, QStringLiteral("FrmMedecins"));
        QTest::keyClick(liste, Qt::Key_Up);
        QCOMPARE(medecins.LblMed(), QStringLiteral("DR NEIBRE"));
        QCOMPARE(medecins.LstMed->currentRow(), 0);
    }

    void ALineSwitchesTheDoctor()
    {
        Medecins medecins;
        medecins.Inscrit(QStringLiteral("Dr Andre"));
        QTest::mouseClick(medecins.LstMed->viewport(), Qt::LeftButton, {},
                          medecins.LstMed->visualItemRect(medecins.LstMed->item(0)).center());
        QCOMPARE(medecins.LblMed(), QStringLiteral("DR NEIBRE"));
        QCOMPARE(int(medecins.Programme.Contexte().Medecins.NumMedecin), 1);
        QVERIFY(medecins.Fenetre.isVisible());
    }

    void ADoubleClickChoosesAndLeaves()
    {
        Medecins medecins;
        medecins.Inscrit(QStringLiteral("Dr Andre"));
        const QPoint place = medecins.LstMed->visualItemRect(medecins.LstMed->item(0)).center();
        QTest::mouseClick(medecins.LstMed->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(medecins.LstMed->viewport(), Qt::LeftButton, {}, place);
        QVERIFY(!medecins.Fenetre.isVisible());
        QCOMPARE(int(medecins.Programme.Contexte().Medecins.NumMedecin), 1);
    }

    void TheLastDoctorStays()
    {
        Medecins medecins;
        medecins.Programme.Boites.AttendInformation(startup::messages::DernierMedecin());
        medecins.Presse("CmdSupprime");
        QCOMPARE(medecins.LstMed->count(), 1);
    }

    void ADeletedDoctorLeavesNoneCurrent()
    {
        Medecins medecins;
        medecins.Inscrit(QStringLiteral("Dr Andre"));
        medecins.Programme.Boites.AttendQuestion(startup::messages::Supprimer(QStringLiteral("DR ANDRE")),
                                                 outside::Bouton::Oui, outside::Bouton::Non);
        medecins.Presse("CmdSupprime");
        QCOMPARE(medecins.LstMed->count(), 1);
        QCOMPARE(medecins.LstMed->currentRow(), -1);
        QCOMPARE(medecins.LblMed(), QString());
        QVERIFY(medecins.Programme.Contexte().Chemins.CheminMedecin.isEmpty());
        medecins.Programme.Boites.AttendInformation(startup::messages::SelectionnezUnNom());
        medecins.Presse("CmdQuitter");
        QVERIFY(medecins.Fenetre.isVisible());
    }

    void EscapeLeavesTheDoctorAsHeIs()
    {
        Medecins medecins;
        QTest::keyClick(&medecins.Fenetre, Qt::Key_Escape);
        QVERIFY(!medecins.Fenetre.isVisible());
        QCOMPARE(int(medecins.Programme.Contexte().Medecins.NumMedecin), 1);
    }
};

int main(int nombre, char** arguments)
{
    return support::LanceTest<TestFrmMedecins>(nombre, arguments);
}

#include "test_frm_medecins.moc"
