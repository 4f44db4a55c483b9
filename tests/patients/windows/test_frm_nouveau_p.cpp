#include "patients/MondePatients.h"
#include "patients/messages.h"
#include "patients/windows/FrmNouveauP.h"
#include "patients/windows/Gestes.h"

#include <QRadioButton>
#include <QStringListModel>

using namespace patients;
using namespace gestes;

namespace {

struct Scene : MondePatients
{
    Scene() { Etat.Patient.ModePatient = 1; }
    application::Fenetres Fenetres{Contexte};
    FrmNouveauP& Montre()
    {
        FrmNouveauP& fenetre = Fenetres.Donne<FrmNouveauP>();
        fenetre.show();
        (void)QTest::qWaitForWindowActive(&fenetre);
        return fenetre;
    }
};

QStringList Precautions(QWidget& fenetre)
{
    return qobject_cast<QStringListModel*>(Trouve<QAbstractItemView>(fenetre, "LstCi")->model())
        ->stringList();
}

void DoubleClique(QAbstractItemView& liste, int rang)
{
    const QPoint centre = liste.visualRect(liste.model()->index(rang, 0)).center();
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, centre);
    QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, centre);
}

} // namespace

class TestFrmNouveauP : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EtatALOuverture()
    {
        Scene scene;
        FrmNouveauP& fenetre = scene.Montre();
        QCOMPARE(fenetre.windowTitle(), QStringLiteral("       Nouveau patient"));
        QCOMPARE(Trouve<QPushButton>(fenetre, "CmdOK")->text(), QStringLiteral("OK"));
        QVERIFY(Trouve<QPushButton>(fenetre, "CmdOK")->isDefault());
        QVERIFY(Trouve<QRadioButton>(fenetre, "Opt(5)")->isChecked());
        QVERIFY(Trouve<QRadioButton>(fenetre, "Opt(5)")->hasFocus());
        QVERIFY(Trouve<QWidget>(fenetre, "Lbl")->isVisible());
        for (const char* champ : {"Txt(0)", "Txt(1)", "Txt(2)", "Txt(3)", "Txt(4)", "MEB"}) {
            QCOMPARE(TexteDe(fenetre, champ), QString());
        }
        QVERIFY(Precautions(fenetre).isEmpty());
    }

    void Tabulations()
    {
        Scene scene;
        QCOMPARE(
            OrdreDeTabulation(scene.Montre(), "Opt(5)").join(u' '),
            QStringLiteral("Opt(5) Txt(0) Txt(1) MEB Txt(3) LstCi CmdCI TxtAdrV Txt(2) Txt(4) TxtAtcd TxtAdr "
                           "CmdAnnuler CmdOK"));
    }

    void UneCiviliteMeneAuNom()
    {
        Scene scene;
        FrmNouveauP& fenetre = scene.Montre();
        Clique(fenetre, "Opt(1)");
        QVERIFY(Trouve<QWidget>(fenetre, "Txt(0)")->hasFocus());
        QVERIFY(Trouve<QRadioButton>(fenetre, "Opt(1)")->isChecked());
    }

    void EnQuittantUnChamp()
    {
        Scene scene;
        FrmNouveauP& fenetre = scene.Montre();
        Tape(fenetre, "Txt(0)", QStringLiteral("lévêque"));
        Tape(fenetre, "Txt(1)", QStringLiteral("jean-luc"));
        QCOMPARE(TexteDe(fenetre, "Txt(0)"), QStringLiteral("LÉVÊQUE"));
        QCOMPARE(TexteDe(fenetre, "Txt(1)"), QStringLiteral("jean-luc"));
        Tape(fenetre, "Txt(2)", QStringLiteral("0612345678"));
        Tape(fenetre, "Txt(4)", QStringLiteral("bureau 12"));
        Tape(fenetre, "MEB", QStringLiteral("1/2/1960"));
        QCOMPARE(TexteDe(fenetre, "Txt(1)"), QStringLiteral("Jean-luc"));
        QCOMPARE(TexteDe(fenetre, "Txt(2)"), QStringLiteral("06 12 34 56 78"));
        QCOMPARE(TexteDe(fenetre, "Txt(4)"), QStringLiteral("bureau 12"));
        Tape(fenetre, "Txt(3)", QStringLiteral("72"));
        Trouve<QWidget>(fenetre, "MEB")->setFocus(Qt::MouseFocusReason);
        QCOMPARE(Trouve<QLineEdit>(fenetre, "MEB")->selectedText(), QStringLiteral("1/2/1960"));
    }

    void SaisitEtRetireDesPrecautions()
    {
        Scene scene;
        FrmNouveauP& fenetre = scene.Montre();
        const QString invite = QStringLiteral(
            "Indiquez les allergies, contre-indications, ou pathologies... \n"
            "susceptibles d'influencer les prescritions :\n\nCliquez sur annuler pour terminer.");
        scene.Boites.AttendSaisie(invite, QStringLiteral("iode"))
            .AttendSaisie(invite, QStringLiteral("asthme"))
            .AttendSaisie(invite, std::nullopt);
        Clique(fenetre, "CmdCI");
        scene.Boites.AttendSaisie(invite, QString());
        Clique(fenetre, "CmdCI");
        QCOMPARE(Precautions(fenetre), QStringList({QStringLiteral("iode"), QStringLiteral("asthme")}));
        auto* liste = Trouve<QAbstractItemView>(fenetre, "LstCi");
        scene.Boites.AttendQuestion(QStringLiteral("Supprimer la précaution iode ?"), outside::Bouton::Non);
        DoubleClique(*liste, 0);
        QCOMPARE(Precautions(fenetre).size(), 2);
        scene.Boites.AttendQuestion(QStringLiteral("Supprimer la précaution iode ?"), outside::Bouton::Oui);
        DoubleClique(*liste, 0);
        QCOMPARE(Precautions(fenetre), QStringList({QStringLiteral("asthme")}));
    }

    void UneBaseQuiRefuseLaisseLaSaisie()
    {
        Scene scene;
        FrmNouveauP& fenetre = scene.Montre();
        Tape(fenetre, "Txt(0)", QStringLiteral("martin"));
        Tape(fenetre, "Txt(1)", QStringLiteral("paul"));
        Tape(fenetre, "MEB", QStringLiteral("20/03/1953"));
        scene.Medoc().PoseCrochet(
            [](const QString& instruction) { return instruction.startsWith(QLatin1String("insert")); });
        scene.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("« Medoc.mdb »"));
        Clique(fenetre, "CmdOK");
        QVERIFY(fenetre.isVisible());
        QVERIFY(scene.Boites.Epuise());
        scene.Medoc().PoseCrochet({});
        Clique(fenetre, "CmdOK");
        QVERIFY(!fenetre.isVisible());
        QCOMPARE(scene.Rangees().size(), 1);
    }

    void UnRefusMeneAuChamp()
    {
        Scene scene;
        FrmNouveauP& fenetre = scene.Montre();
        scene.Boites.AttendInformation(QStringLiteral("Indiquez le nom du patient !"));
        Clique(fenetre, "CmdOK");
        QVERIFY(Trouve<QWidget>(fenetre, "Txt(0)")->hasFocus());
        Tape(fenetre, "Txt(0)", QStringLiteral("a"));
        scene.Boites.AttendInformation(QStringLiteral("Indiquez le prénom du patient !"));
        Clique(fenetre, "CmdOK");
        QVERIFY(Trouve<QWidget>(fenetre, "Txt(1)")->hasFocus());
        Tape(fenetre, "Txt(1)", QStringLiteral("b"));
        Tape(fenetre, "MEB", QStringLiteral("31/02/2000"));
        scene.Boites.AttendInformation(messages::IndiquezDateNaissance());
        Clique(fenetre, "CmdOK");
        QVERIFY(Trouve<QWidget>(fenetre, "MEB")->hasFocus());
        QVERIFY(fenetre.isVisible());
        QVERIFY(scene.Rangees().isEmpty());
    }

    void EchapVautAnnuler()
    {
        Scene scene;
        FrmNouveauP& fenetre = scene.Montre();
        Tape(fenetre, "Txt(0)", QStringLiteral("a"));
        QTest::keyClick(&fenetre, Qt::Key_Escape);
        QVERIFY(!fenetre.isVisible());
        QCOMPARE(scene.Etat.Patient.ModePatient, quint8(3));
        QVERIFY(scene.Rangees().isEmpty());
    }

    void RemplieDUneFiche()
    {
        Scene scene;
        FrmNouveauP& fenetre = scene.Montre();
        Fiche fiche;
        fiche.Titre = QStringLiteral("Enfant");
        fiche.NomPatient = QStringLiteral("D'ARC  Jeanne");
        fiche.Precautions = QStringLiteral("iode*asthme");
        fiche.Telephone1 = QStringLiteral("06 12 34 56 78");
        fenetre.Remplit(1, SaisieDe(fiche));
        QVERIFY(Trouve<QRadioButton>(fenetre, "Opt(3)")->isChecked());
        QCOMPARE(TexteDe(fenetre, "Txt(0)"), QStringLiteral("D'ARC"));
        QCOMPARE(TexteDe(fenetre, "Txt(3)"), QStringLiteral("0"));
        QCOMPARE(TexteDe(fenetre, "Txt(2)"), QStringLiteral("06 12 34 56 78"));
        QCOMPARE(Precautions(fenetre).size(), 2);
    }

    void UneCiviliteInconnueNeCocheRien()
    {
        Scene scene;
        FrmNouveauP& fenetre = scene.Montre();
        Fiche fiche;
        fiche.Titre = QStringLiteral("Maître");
        fenetre.Remplit(1, SaisieDe(fiche));
        for (int option = 0; option < 6; ++option) {
            const QByteArray nom = QByteArrayLiteral("Opt(") + QByteArray::number(option) + ')';
            QVERIFY(!Trouve<QRadioButton>(fenetre, nom.constData())->isChecked());
        }
    }
};

QTEST_MAIN(TestFrmNouveauP)
#include "test_frm_nouveau_p.moc"
