#include "patients/MondePatients.h"
#include "patients/messages.h"
#include "patients/windows/FrmNouveauP.h"
#include "patients/windows/FrmPatient.h"
#include "patients/windows/Gestes.h"

using namespace patients;
using namespace gestes;

namespace {

/// A shared database with three patients and the window over it.
struct Scene : MondePatients
{
    Scene()
    {
        PoseMedecin();
        Enregistre(QStringLiteral("Monsieur"), QStringLiteral("MARTIN  Paul"), QStringLiteral("20/03/1953"),
                   QStringLiteral("72"), QStringLiteral("iode*asthme"));
        Enregistre({}, QStringLiteral("ÉMILE  Zoé"), QString());
        Enregistre(QStringLiteral("Madame"), QStringLiteral("DUPONT  Anne"));
    }
    application::Fenetres Fenetres{Contexte};
    FrmPatient& Fenetre() { return Fenetres.Donne<FrmPatient>(); }
    patients::Patient& Patient() { return Etat.Patient; }
    FrmPatient& Montre()
    {
        FrmPatient& fenetre = Fenetre();
        fenetre.show();
        (void)QTest::qWaitForWindowActive(&fenetre);
        return fenetre;
    }
};

QStringList Lignes(QWidget& fenetre)
{
    const auto* modele = Trouve<QAbstractItemView>(fenetre, "LstPatient")->model();
    QStringList lignes;
    for (int rang = 0; rang < modele->rowCount(); ++rang) {
        lignes << modele->index(rang, 0).data().toString();
    }
    return lignes;
}

} // namespace

class TestFrmPatient : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EtatALOuverture()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        QCOMPARE(fenetre.windowTitle(), QStringLiteral("               Liste des Patients"));
        QCOMPARE(Lignes(fenetre),
                 QStringList({QStringLiteral("  DUPONT  Anne"), QStringLiteral("  ÉMILE  Zoé"),
                              QStringLiteral("  MARTIN  Paul")}));
        QCOMPARE(RangChoisi(fenetre, "LstPatient"), -1);
        QCOMPARE(TexteDe(fenetre, "LblTitre") + TexteDe(fenetre, "LblPatient"), QString());
        QVERIFY(Trouve<QLineEdit>(fenetre, "TxtCherche")->hasFocus());
        QVERIFY(Trouve<QPushButton>(fenetre, "CmdOK")->isDefault());
    }

    void SansDossierDeTravail()
    {
        support::Monde monde;
        monde.Etat.Chemins.CheminTravail.clear();
        application::Fenetres fenetres(monde.Contexte);
        FrmPatient& fenetre = fenetres.Donne<FrmPatient>();
        QVERIFY(Lignes(fenetre).isEmpty());
        monde.Boites.AttendInformation(messages::SelectionnezUnNom());
        Clique(fenetre, "CmdOK");
        QVERIFY(monde.Boites.Epuise());
    }

    void Tabulations()
    {
        Scene scene;
        QCOMPARE(OrdreDeTabulation(scene.Montre(), "TxtCherche").join(u' '),
                 QStringLiteral("TxtCherche LstPatient CmdModifier CmdSupprime CmdNouveauPatient CmdPassage "
                                "CmdAide CmdAnnule CmdOK"));
    }

    void LaRechercheChoisit()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        Tape(fenetre, "TxtCherche", QStringLiteral("mar"));
        QCOMPARE(RangChoisi(fenetre, "LstPatient"), 2);
        QCOMPARE(TexteDe(fenetre, "LblTitre"), QStringLiteral("Monsieur  MARTIN  Paul"));
        QVERIFY(TexteDe(fenetre, "LblPatient").startsWith(QStringLiteral("72 kg - ")));
        Tape(fenetre, "TxtCherche", QStringLiteral("zzz"));
        QCOMPARE(RangChoisi(fenetre, "LstPatient"), 2);
        QTest::keyClick(Trouve<QLineEdit>(fenetre, "TxtCherche"), Qt::Key_Up);
        QCOMPARE(RangChoisi(fenetre, "LstPatient"), 1);
        QCOMPARE(TexteDe(fenetre, "LblTitre"), QStringLiteral("ÉMILE  Zoé"));
        QCOMPARE(TexteDe(fenetre, "LblPatient"), QString());
        QVERIFY(Trouve<QLineEdit>(fenetre, "TxtCherche")->hasFocus());
    }

    void DesBlancsEffacentLeChoix()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        Tape(fenetre, "TxtCherche", QStringLiteral("mar"));
        auto* recherche = Trouve<QLineEdit>(fenetre, "TxtCherche");
        recherche->selectAll();
        QTest::keyClicks(recherche, QStringLiteral("  "));
        QCOMPARE(RangChoisi(fenetre, "LstPatient"), -1);
        QCOMPARE(TexteDe(fenetre, "LblTitre"), QString());
        QTest::keyClick(recherche, Qt::Key_Down);
        QCOMPARE(RangChoisi(fenetre, "LstPatient"), 0);
    }

    void LaRechercheEstSelectionneeAuFocus()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        Tape(fenetre, "TxtCherche", QStringLiteral("mar"));
        Trouve<QWidget>(fenetre, "CmdAide")->setFocus();
        Trouve<QWidget>(fenetre, "TxtCherche")->setFocus();
        QCOMPARE(Trouve<QLineEdit>(fenetre, "TxtCherche")->selectedText(), QStringLiteral("mar"));
    }

    void EntreeConfirmeEtMontreLesPrecautions()
    {
        Scene scene;
        QuandOuverte<FrmPatient>([&](FrmPatient& fenetre) {
            Tape(fenetre, "TxtCherche", QStringLiteral("mar"));
            scene.Boites.Attend(outside::Genre::Simple,
                                QStringLiteral("Précautions à prendre en compte pour une prescription à\n"
                                               "MARTIN  Paul\n\no   iode\no   asthme\n"),
                                outside::Bouton::OK);
            QTest::keyClick(Trouve<QLineEdit>(fenetre, "TxtCherche"), Qt::Key_Return);
            QCOMPARE(TexteDe(fenetre, "TxtCherche"), QStringLiteral("  "));
            QCOMPARE(RangChoisi(fenetre, "LstPatient"), -1);
        });
        scene.Fenetre().Ouvre(false);
        QVERIFY(!scene.Fenetre().isVisible());
        QCOMPARE(scene.Patient().PatientCourant, QStringLiteral("Monsieur  MARTIN  Paul"));
        QCOMPARE(scene.Patient().DateOrdo, QStringLiteral("20/11/2026"));
        QVERIFY(!scene.Etat.Apercu.PctOrdo.Items.isEmpty());
    }

    void EchapVautAnnuler()
    {
        Scene scene;
        QuandOuverte<FrmPatient>([&](FrmPatient& fenetre) {
            Tape(fenetre, "TxtCherche", QStringLiteral("mar"));
            scene.Etat.Apercu.ModeApercu = 1;
            QTest::keyClick(&fenetre, Qt::Key_Escape);
        });
        scene.Fenetre().Ouvre(true);
        QCOMPARE(scene.Patient().PatientCourant + scene.Patient().DateNaissance + scene.Patient().DateOrdo,
                 QString());
        QCOMPARE(scene.Patient().PoidsPatient, QStringLiteral("0"));
        QCOMPARE(scene.Etat.Apercu.ModeApercu, quint8(0));
        QCOMPARE(TexteDe(scene.Fenetre(), "TxtCherche"), QStringLiteral("  "));
    }

    void SansChoixChaqueCommandeLeDit()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        scene.Boites.AttendInformation(
            QStringLiteral("Sélectionnez un nom dans la liste,\nou enregistrez un nouveau patient."));
        Clique(fenetre, "CmdOK");
        scene.Boites.AttendInformation(QStringLiteral("Quel patient modifier ?"));
        Clique(fenetre, "CmdModifier");
        scene.Boites.AttendInformation(QStringLiteral("Quel patient supprimer ?"));
        Clique(fenetre, "CmdSupprime");
        QVERIFY(scene.Boites.Epuise());
    }

    void UnNouveauPatientEstChoisi()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        QuandOuverte<FrmNouveauP>([](FrmNouveauP& saisie) {
            Clique(saisie, "Opt(0)");
            Tape(saisie, "Txt(0)", QStringLiteral("bernard"));
            Tape(saisie, "Txt(1)", QStringLiteral("luc"));
            Tape(saisie, "MEB", QStringLiteral("1/2/1960"));
            Clique(saisie, "CmdOK");
        });
        Clique(fenetre, "CmdNouveauPatient");
        QCOMPARE(RangChoisi(fenetre, "LstPatient"), 0);
        QCOMPARE(TexteDe(fenetre, "LblTitre"), QStringLiteral("Monsieur  BERNARD  Luc"));
        QCOMPARE(scene.Patient().PatientCourant, QStringLiteral("Monsieur  BERNARD  Luc"));
        QCOMPARE(scene.Rangees().last()[2].toString(), QStringLiteral("BERNARD  Luc"));
        QVERIFY(!scene.Fenetres.Presente<FrmNouveauP>());
    }

    void UneSaisieAbandonneeNeStockeRien()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        for (const char* commande : {"CmdNouveauPatient", "CmdPassage"}) {
            QuandOuverte<FrmNouveauP>([](FrmNouveauP& saisie) {
                Tape(saisie, "Txt(0)", QStringLiteral("bernard"));
                QTest::keyClick(&saisie, Qt::Key_Escape);
            });
            Clique(fenetre, commande);
            QCOMPARE(scene.Rangees().size(), 3);
            QCOMPARE(scene.Patient().ModePatient, quint8(3));
            QVERIFY(fenetre.isVisible());
        }
    }

    void UnPassantPasseSansEtreStocke()
    {
        Scene scene;
        QuandOuverte<FrmPatient>([&](FrmPatient& fenetre) {
            QuandOuverte<FrmNouveauP>([](FrmNouveauP& saisie) {
                QVERIFY(!Trouve<QWidget>(saisie, "Lbl")->isVisible());
                Clique(saisie, "Opt(4)");
                Tape(saisie, "Txt(0)", QStringLiteral("bernard"));
                Tape(saisie, "Txt(1)", QStringLiteral("luc"));
                Tape(saisie, "MEB", QStringLiteral("1/2/2026"));
                Clique(saisie, "CmdOK");
            });
            Clique(fenetre, "CmdPassage");
            QVERIFY(!fenetre.isVisible());
        });
        scene.Fenetre().Ouvre(false);
        QCOMPARE(scene.Patient().PatientCourant, QStringLiteral("Nourrisson  BERNARD  Luc"));
        QCOMPARE(scene.Patient().NomSeul, QStringLiteral("BERNARD  Luc"));
        QCOMPARE(scene.Patient().DateOrdo, QStringLiteral("20/11/2026"));
        QCOMPARE(scene.Rangees().size(), 3);
    }

    void Modifie()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        Tape(fenetre, "TxtCherche", QStringLiteral("mar"));
        QuandOuverte<FrmNouveauP>([](FrmNouveauP& saisie) {
            QCOMPARE(Trouve<QPushButton>(saisie, "CmdOK")->text(), QStringLiteral("Enregistrer"));
            QCOMPARE(TexteDe(saisie, "Txt(0)"), QStringLiteral("MARTIN"));
            QCOMPARE(TexteDe(saisie, "Txt(1)"), QStringLiteral("Paul"));
            Trouve<QLineEdit>(saisie, "Txt(0)")->setText(QStringLiteral("ADAM"));
            Clique(saisie, "CmdOK");
        });
        Clique(fenetre, "CmdModifier");
        QCOMPARE(scene.Rangees()[0][2].toString(), QStringLiteral("ADAM  Paul"));
        QCOMPARE(scene.Rangees()[0][5].toString(), QStringLiteral("iode*asthme"));
        QCOMPARE(Lignes(fenetre).first(), QStringLiteral("  ADAM  Paul"));
        QCOMPARE(RangChoisi(fenetre, "LstPatient"), -1);
        QCOMPARE(TexteDe(fenetre, "LblTitre"), QString());
    }

    void UnNomSansDeuxBlancsSeModifie()
    {
        Scene scene;
        scene.Enregistre(QStringLiteral("Maître"), QStringLiteral("ZOLA"));
        FrmPatient& fenetre = scene.Montre();
        Tape(fenetre, "TxtCherche", QStringLiteral("zola"));
        QuandOuverte<FrmNouveauP>([&](FrmNouveauP& saisie) {
            QCOMPARE(TexteDe(saisie, "Txt(0)"), QStringLiteral("ZOLA"));
            QCOMPARE(TexteDe(saisie, "Txt(1)"), QString());
            scene.Boites.AttendInformation(QStringLiteral("Indiquez le prénom du patient !"));
            Clique(saisie, "CmdOK");
            Tape(saisie, "Txt(1)", QStringLiteral("émile"));
            Clique(saisie, "CmdOK");
        });
        Clique(fenetre, "CmdModifier");
        QCOMPARE(scene.Rangees().last()[2].toString(), QStringLiteral("ZOLA  Émile"));
        QCOMPARE(scene.Rangees().last()[1].toString(), QStringLiteral("Maître"));
    }

    void Supprime()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        const QString question = QStringLiteral("Supprimer   MARTIN  Paul, et les ordonnances associées ?");
        Tape(fenetre, "TxtCherche", QStringLiteral("mar"));
        scene.Boites.AttendQuestion(question, outside::Bouton::Non, outside::Bouton::Non);
        Clique(fenetre, "CmdSupprime");
        QCOMPARE(scene.Rangees().size(), 3);
        scene.Boites.AttendQuestion(question, outside::Bouton::Oui, outside::Bouton::Non);
        Clique(fenetre, "CmdSupprime");
        QCOMPARE(scene.Rangees().size(), 2);
        QCOMPARE(Lignes(fenetre),
                 QStringList({QStringLiteral("  DUPONT  Anne"), QStringLiteral("  ÉMILE  Zoé")}));
        QCOMPARE(RangChoisi(fenetre, "LstPatient"), -1);
        QCOMPARE(TexteDe(fenetre, "LblTitre"), QString());
    }

    void UneBaseQuiRefuseEstDite()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        Tape(fenetre, "TxtCherche", QStringLiteral("mar"));
        const auto tombe = [&](const char* debut) {
            scene.Medoc().PoseCrochet([debut](const QString& instruction) {
                return instruction.startsWith(QLatin1String(debut), Qt::CaseInsensitive);
            });
        };
        tombe("delete");
        scene.Boites.AttendContenant(outside::Genre::Question, QStringLiteral("MARTIN"), outside::Bouton::Oui)
            .AttendContenant(outside::Genre::Stop, QStringLiteral("« Medoc.mdb »"));
        Clique(fenetre, "CmdSupprime");
        QCOMPARE(Lignes(fenetre).size(), 3);
        tombe("select");
        scene.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("« Medoc.mdb »"));
        Clique(fenetre, "CmdModifier");
        scene.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("« Medoc.mdb »"));
        auto* liste = Trouve<QAbstractItemView>(fenetre, "LstPatient");
        liste->setCurrentIndex(liste->model()->index(0, 0));
        QCoreApplication::processEvents();
        QCOMPARE(RangChoisi(fenetre, "LstPatient"), -1);
        QCOMPARE(TexteDe(fenetre, "LblTitre"), QString());
        scene.Medoc().PoseCrochet({});
        QCOMPARE(scene.Rangees().size(), 3);
    }

    void UnPatientEntreAilleursEstLaALOuverture()
    {
        Scene scene;
        scene.Fenetre();
        scene.Enregistre({}, QStringLiteral("BERNARD  Luc"));
        QuandOuverte<FrmPatient>([](FrmPatient& fenetre) {
            QCOMPARE(Lignes(fenetre).first(), QStringLiteral("  BERNARD  Luc"));
            fenetre.reject();
        });
        scene.Fenetre().Ouvre(false);
    }

    void UnPatientSupprimeAilleursEstSignale()
    {
        Scene scene;
        FrmPatient& fenetre = scene.Montre();
        scene.Medoc().SupprimeOu(QStringLiteral("Patients"), QStringLiteral("NomPatient = ?"),
                                 {QStringLiteral("MARTIN  Paul")});
        scene.Boites.AttendInformation(messages::PatientDisparu());
        Tape(fenetre, "TxtCherche", QStringLiteral("m"));
        QTRY_VERIFY(scene.Boites.Epuise());
        QCOMPARE(Lignes(fenetre).size(), 2);
        QCOMPARE(TexteDe(fenetre, "LblTitre"), QString());
    }
};

QTEST_MAIN(TestFrmPatient)
#include "test_frm_patient.moc"
