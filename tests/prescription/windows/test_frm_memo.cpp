#include "patients/windows/Gestes.h"
#include "prescription/windows/FrmMemo.h"
#include "support/BaseDeTest.h"
#include "support/Cabinet.h"

#include <QAbstractItemView>

using namespace Qt::StringLiterals;
using namespace prescription;
using namespace gestes;
using outside::Bouton;

namespace {

const CleMemo kSuivi{u"Suivi"_s, u"Monsieur  MARTIN  Paul"_s, u"20/03/1953"_s};

/// The window on two prescriptions for all patients and one of the current patient.
struct Scene : Cabinet
{
    Scene()
    {
        storage::CreeBase(common::Joint(Etat.Chemins.CheminTravail, u"Medoc.mdb"_s),
                          storage::GenreBase::Medoc);
        for (const Memorisee& memorisee : Memorisees) {
            AjouteMemorisee(Medoc(), memorisee, {{u"DE "_s + memorisee.Cle.Titre, {}, 1, 1}});
        }
    }
    storage::Base& Medoc() { return Etat.Bases.Medoc(Etat.Chemins.CheminTravail); }
    FrmMemo& Montre()
    {
        FrmMemo& fenetre = Fenetres.Donne<FrmMemo>();
        fenetre.Remplit(Memorisees);
        fenetre.show();
        (void)QTest::qWaitForWindowActive(&fenetre);
        return fenetre;
    }
    static QAbstractItemView& Liste(FrmMemo& fenetre, int rang)
    {
        return *Trouve<QAbstractItemView>(fenetre, rang == 0 ? "LstMemo(0)" : "LstMemo(1)");
    }
    static void Presse(FrmMemo& fenetre, int liste, int rang, Qt::MouseButton bouton = Qt::LeftButton)
    {
        QAbstractItemView& vue = Liste(fenetre, liste);
        QTest::mouseClick(vue.viewport(), bouton, {}, vue.visualRect(vue.model()->index(rang, 0)).center());
    }

    QList<Memorisee> Memorisees{{{u"HTA"_s}, 1}, {{u"Rhume"_s}, 0}, {kSuivi, 0}};
    application::Fenetres Fenetres{Contexte};
};

} // namespace

class TestFrmMemo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheStateAtOpening();
    void TheTabOrder();
    void APressChooses();
    void ArrowsChooseAndKeepTheFocus();
    void AnEmptyPlaceChoosesNothing();
    void TheRightButtonCloses();
    void AFailedLoadingStays();
    void AFailedDeletionKeepsTheRow();
    void TheSearchKeepsTheChoice();
    void WithoutPatientTheHeadingIsPlain();
};

void TestFrmMemo::TheStateAtOpening()
{
    Scene scene;
    FrmMemo& fenetre = scene.Montre();
    QVERIFY(Trouve<QWidget>(fenetre, "TxtRecherche")->hasFocus());
    QVERIFY(Trouve<QPushButton>(fenetre, "CmdEditer")->isDefault());
    QCOMPARE(RangChoisi(fenetre, "LstMemo(0)"), -1);
    QCOMPARE(RangChoisi(fenetre, "LstMemo(1)"), -1);
    QCOMPARE(TexteDe(fenetre, "HLB"), u"Ordonnances pour M.  MARTIN  Paul"_s);
    QCOMPARE(Scene::Liste(fenetre, 0).model()->rowCount(), 2);
    QCOMPARE(Scene::Liste(fenetre, 1).model()->index(0, 0).data().toString(), u"1- Suivi"_s);
}

void TestFrmMemo::TheTabOrder()
{
    Scene scene;
    QCOMPARE(OrdreDeTabulation(scene.Montre(), "TxtRecherche").join(u' '),
             u"TxtRecherche LstMemo(0) LstMemo(1) lblAS CmdQuitter CmdEditer"_s);
}

void TestFrmMemo::APressChooses()
{
    Scene scene;
    FrmMemo& fenetre = scene.Montre();
    Scene::Presse(fenetre, 0, 1);
    QCOMPARE(scene.Etat.Ordonnance.TitreMemo, u"Rhume"_s);
    QVERIFY(Trouve<QWidget>(fenetre, "CmdEditer")->hasFocus());
    Scene::Presse(fenetre, 1, 0);
    QCOMPARE(scene.Etat.Ordonnance.CleMemo, kSuivi);
    QCOMPARE(RangChoisi(fenetre, "LstMemo(0)"), -1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(!fenetre.isVisible());
    QCOMPARE(scene.Etat.Ordonnance.OrdoZone1, (QList<Entree>{{u"DE Suivi"_s, QString()}}));
}

void TestFrmMemo::ArrowsChooseAndKeepTheFocus()
{
    Scene scene;
    FrmMemo& fenetre = scene.Montre();
    QTest::keyClick(Trouve<QWidget>(fenetre, "TxtRecherche"), Qt::Key_Down);
    QVERIFY(Scene::Liste(fenetre, 0).hasFocus());
    QCOMPARE(scene.Etat.Ordonnance.TitreMemo, u"HTA"_s);
    QTest::keyClick(&Scene::Liste(fenetre, 0), Qt::Key_Down);
    QCOMPARE(scene.Etat.Ordonnance.TitreMemo, u"Rhume"_s);
    QVERIFY(Scene::Liste(fenetre, 0).hasFocus());
    QTest::keyClick(&Scene::Liste(fenetre, 0), Qt::Key_Up);
    QTest::keyClick(&Scene::Liste(fenetre, 0), Qt::Key_Up);
    QVERIFY(Trouve<QWidget>(fenetre, "TxtRecherche")->hasFocus());
    QCOMPARE(RangChoisi(fenetre, "LstMemo(0)"), 0);
}

void TestFrmMemo::AnEmptyPlaceChoosesNothing()
{
    Scene scene;
    FrmMemo& fenetre = scene.Montre();
    QAbstractItemView& liste = Scene::Liste(fenetre, 0);
    const QPoint dessous = liste.viewport()->rect().bottomLeft() + QPoint(20, -5);
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, dessous);
    QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, dessous);
    QVERIFY(fenetre.isVisible());
    QCOMPARE(RangChoisi(fenetre, "LstMemo(0)"), -1);
    scene.Boites.AttendInformation(u"Sélectionnez une ordonnance ."_s);
    Clique(fenetre, "CmdEditer");
    QVERIFY(scene.Boites.Epuise());
}

void TestFrmMemo::TheRightButtonCloses()
{
    Scene scene;
    FrmMemo& fenetre = scene.Montre();
    Scene::Presse(fenetre, 1, 0, Qt::RightButton);
    QVERIFY(!fenetre.isVisible());
    QVERIFY(scene.Etat.Ordonnance.LstChoix1.Vide());
    QCOMPARE(scene.Etat.Ordonnance.OrdoMemorisee, 0);
}

void TestFrmMemo::AFailedLoadingStays()
{
    Scene scene;
    FrmMemo& fenetre = scene.Montre();
    Scene::Presse(fenetre, 0, 0);
    scene.Medoc().PoseCrochet([](const QString&) { return true; });
    scene.Boites.AttendContenant(outside::Genre::Stop, u"Medoc.mdb"_s);
    Clique(fenetre, "CmdEditer");
    scene.Medoc().PoseCrochet({});
    QVERIFY(scene.Boites.Epuise());
    QVERIFY(fenetre.isVisible());
    QCOMPARE(scene.Etat.Ordonnance.ChkALD, 0);
}

void TestFrmMemo::AFailedDeletionKeepsTheRow()
{
    Scene scene;
    FrmMemo& fenetre = scene.Montre();
    Scene::Presse(fenetre, 0, 0);
    scene.Medoc().PoseCrochet([](const QString& instruction) { return instruction.contains(u"OrdoEnr"); });
    scene.Boites.AttendQuestion(u"Supprimer  HTA  ?"_s, Bouton::Oui, Bouton::Non)
        .AttendContenant(outside::Genre::Stop, u"Medoc.mdb"_s);
    QTest::keyClick(&Scene::Liste(fenetre, 0), Qt::Key_Delete);
    scene.Medoc().PoseCrochet({});
    QVERIFY(scene.Boites.Epuise());
    QCOMPARE(Scene::Liste(fenetre, 0).model()->rowCount(), 2);
    QCOMPARE(support::Lignes(scene.Medoc(), u"ListeOrdos"_s).size(), 3);
}

void TestFrmMemo::TheSearchKeepsTheChoice()
{
    Scene scene;
    FrmMemo& fenetre = scene.Montre();
    Scene::Presse(fenetre, 0, 1);
    Tape(fenetre, "TxtRecherche", u"u"_s);
    QCOMPARE(RangChoisi(fenetre, "LstMemo(0)"), 0);
    QCOMPARE(Scene::Liste(fenetre, 0).model()->index(0, 0).data().toString(), u"2- Rhume"_s);
    Tape(fenetre, "TxtRecherche", u"i"_s);
    QCOMPARE(RangChoisi(fenetre, "LstMemo(0)"), -1);
    QCOMPARE(RangChoisi(fenetre, "LstMemo(1)"), 0); // the only one left
    Trouve<QLineEdit>(fenetre, "TxtRecherche")->clear();
    QCOMPARE(RangChoisi(fenetre, "LstMemo(1)"), 0);
    QCOMPARE(scene.Etat.Ordonnance.TitreMemo, u"Suivi"_s);
}

void TestFrmMemo::WithoutPatientTheHeadingIsPlain()
{
    Scene scene;
    scene.Etat.Patient.PatientCourant.clear();
    QCOMPARE(TexteDe(scene.Montre(), "HLB"), u"Ordonnances spécifiques"_s);
}

QTEST_MAIN(TestFrmMemo)
#include "test_frm_memo.moc"
