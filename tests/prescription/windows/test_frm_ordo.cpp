#include "prescription/windows/FrmOrdo.h"

#include "application/Signaux.h"
#include "application/windows/Fenetres.h"
#include "application/windows/Style.h"
#include "certificates/windows/FrmCertif.h"
#include "page/windows/Feuille.h"
#include "prescription/Editeur.h"
#include "prescription/messages.h"
#include "support/Cabinet.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace prescription;

namespace {

struct Bureau : Cabinet
{
    application::Fenetres Fenetres{Contexte};
    FrmOrdo* Fenetre = nullptr;

    FrmOrdo& Ouvre()
    {
        Fenetre = &Fenetres.Donne<FrmOrdo>();
        Fenetre->resize(1200, 700);
        Fenetre->show();
        return *Fenetre;
    }

    template <typename Controle> Controle& Un(const char* nom)
    {
        for (Controle* controle : Fenetre->findChildren<Controle*>(QLatin1String(nom))) {
            if (controle->isVisibleTo(Fenetre)) {
                return *controle;
            }
        }
        qFatal("%s", nom);
    }

    QAction& Entree(const char* nom) { return *Fenetre->findChild<QAction*>(QLatin1String(nom)); }
};

} // namespace

class TestFrmOrdo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheStateAtOpening();
    void TheTabOrderFollowsTheEye();
    void TheCertificateOpensItsEditor();
    void ADoubleClickPrintsOnce();
    void AnEndMeanwhilePrintsNothing();
    void EveryCommandNeedsADoctor_data();
    void EveryCommandNeedsADoctor();
    void TheBarFollowsTheSettings();
    void TheRulerFollowsTheSettings();
    void TheSheetMovesWithTheScrollBar();
    void TheScrollBarEndsAtTheSheetsBottom();
    void ActivationComesBackToTheTop();
    void AWindowTallerThanTheSheetHasNoRange();
    void TheDoctorsAreListed();
    void TheRightClickShowsTheMenu();
    void TheHeightEntryFollowsTheSettings();
    void TheCivilityGivesTheFocusToPrinting();
    void TheMemoIsShown();
    void OverflowIsMarked();
    void ClosingAsksForTheEnd();
    void MinimisingHidesIntoTheTray();
    void WithoutTrayItStays();
    void WithoutIconItGoesToMaximised();
};

void TestFrmOrdo::TheStateAtOpening()
{
    Bureau bureau;
    bureau.Ouvre();
    QVERIFY(bureau.Un<QWidget>("PctMenu1").isVisible());
    QVERIFY(!bureau.Fenetre->findChild<QWidget*>(QStringLiteral("PctMenu2"))->isVisible());
    QVERIFY(bureau.Un<QCheckBox>("ChkCiv").isChecked());
    QVERIFY(bureau.Un<QCheckBox>("ChkCiv").isEnabled());
    QCOMPARE(bureau.Un<QComboBox>("CboMed").currentText(), QStringLiteral("DR NEIBRE"));
    QVERIFY(bureau.Un<page::Feuille>("PctOrdo").Montree().Items.isEmpty());
    QCOMPARE(bureau.Un<QScrollBar>("Vsb").value(), 0);
    QVERIFY(!bureau.Fenetre->findChild<QLabel*>(QStringLiteral("ImgMemo"))->isVisible());
    QVERIFY(!bureau.Entree("mnuHauteurN").isEnabled());
    QCOMPARE(bureau.Fenetre->focusWidget(), &bureau.Un<QPushButton>("CmdNouvelle"));
}

void TestFrmOrdo::TheTabOrderFollowsTheEye()
{
    Bureau bureau;
    bureau.Ouvre();
    QStringList ordre;
    QWidget* depart = &bureau.Un<QPushButton>("CmdNouvelle");
    QWidget* suivant = depart;
    do {
        if (suivant->isVisible() && suivant->isEnabled() && suivant->focusPolicy() & Qt::TabFocus) {
            ordre.append(suivant->objectName());
        }
        suivant = suivant->nextInFocusChain();
    } while (suivant != depart);
    QCOMPARE(ordre,
             QStringList({QStringLiteral("CmdNouvelle"), QStringLiteral("CmdPatient"),
                          QStringLiteral("CmdPharma"), QStringLiteral("CmdDate"), QStringLiteral("CmdCertif"),
                          QStringLiteral("CmdImprime"), QStringLiteral("CmdEnr"), QStringLiteral("CmdSupp"),
                          QStringLiteral("CmdAccueil"), QStringLiteral("CmdAide"),
                          QStringLiteral("CmdFermer"), QStringLiteral("ChkCiv"), QStringLiteral("CboMed")}));
}

void TestFrmOrdo::TheCertificateOpensItsEditor()
{
    Bureau bureau;
    bureau.Etat.Ordonnance.OrdoMemorisee = 1;
    bureau.Ouvre();
    QVERIFY(bureau.Fenetre->findChild<QLabel*>(QStringLiteral("ImgMemo"))->isVisible());
    bureau.Boites.AttendQuestion(messages::PourLePatientEnCours(QStringLiteral("Monsieur  MARTIN  Paul")),
                                 outside::Bouton::Oui);
    bool ouverte = false;
    QTimer::singleShot(0, bureau.Fenetre, [&] {
        auto& editeur = bureau.Fenetres.Donne<certificates::FrmCertif>();
        ouverte = editeur.isVisible() && editeur.isModal();
        editeur.hide();
    });
    bureau.Fenetre->Execute(QStringLiteral("CmdCertif"));
    QVERIFY(ouverte);
    QVERIFY(!bureau.Un<QCheckBox>("ChkCiv").isEnabled());
    QVERIFY(!bureau.Fenetre->findChild<QLabel*>(QStringLiteral("ImgMemo"))->isVisible());
}

void TestFrmOrdo::ADoubleClickPrintsOnce()
{
    Bureau bureau;
    bureau.Ouvre();
    auto& imprime = bureau.Un<QPushButton>("CmdImprime");
    QTest::mouseClick(&imprime, Qt::LeftButton);
    QTest::mouseDClick(&imprime, Qt::LeftButton);
    QTest::mouseRelease(&imprime, Qt::LeftButton);
    QCOMPARE(bureau.Imprimantes.Travaux.size(), 1);
}

void TestFrmOrdo::AnEndMeanwhilePrintsNothing()
{
    Bureau bureau;
    bureau.Etat.Impression.EtatImprimante = 0;
    bureau.Ouvre();
    QTimer::singleShot(0, bureau.Fenetre, [&] { bureau.Fenetres.CacheTout(); });
    bureau.Fenetre->Execute(QStringLiteral("CmdImprime"));
    QVERIFY(bureau.Imprimantes.Travaux.isEmpty());
}

void TestFrmOrdo::EveryCommandNeedsADoctor_data()
{
    QTest::addColumn<QString>("commande");
    for (const char* nom :
         {"CmdNouvelle", "CmdPatient", "CmdPharma", "CmdDate", "CmdEnr", "CmdSupp", "CmdImprime"}) {
        QTest::newRow(nom) << QString::fromLatin1(nom);
    }
}

void TestFrmOrdo::EveryCommandNeedsADoctor()
{
    QFETCH(QString, commande);
    Bureau bureau;
    bureau.Ouvre();
    bureau.Etat.Chemins.CheminMedecin.clear();
    bureau.Boites.AttendInformation(QStringLiteral("Choisissez d'abord un médecin utilisateur."));
    bureau.Fenetre->Execute(commande);
    QVERIFY(bureau.Imprimantes.Travaux.isEmpty());
    QCOMPARE(bureau.Etat.Patient.NomSeul, QStringLiteral("MARTIN  Paul"));
}

void TestFrmOrdo::TheBarFollowsTheSettings()
{
    Bureau bureau;
    bureau.Ouvre();
    bureau.Etat.Reglages.Options.BarreMenu = 1;
    Q_EMIT bureau.Etat.Signaux.ReglagesChanges();
    QVERIFY(bureau.Un<QWidget>("PctMenu2").isVisible());
    QVERIFY(!bureau.Fenetre->findChild<QWidget*>(QStringLiteral("PctMenu1"))->isVisible());
    QVERIFY(bureau.Un<QPushButton>("CmdNouvelle").isVisible());
}

void TestFrmOrdo::TheRulerFollowsTheSettings()
{
    Bureau bureau;
    bureau.Ouvre();
    QVERIFY(bureau.Un<page::Feuille>("PctRegle").Montree().Items.isEmpty());
    bureau.Etat.Reglages.Options.AfficheRegle = 1;
    Q_EMIT bureau.Etat.Signaux.ReglagesChanges();
    QVERIFY(!bureau.Un<page::Feuille>("PctRegle").Montree().Items.isEmpty());
    bureau.Etat.Reglages.Options.AfficheRegle = 0;
    Q_EMIT bureau.Etat.Signaux.ReglagesChanges();
    QVERIFY(bureau.Un<page::Feuille>("PctRegle").Montree().Items.isEmpty());
}

void TestFrmOrdo::TheSheetMovesWithTheScrollBar()
{
    Bureau bureau;
    bureau.Ouvre();
    auto& barre = bureau.Un<QScrollBar>("Vsb");
    auto& feuille = bureau.Un<page::Feuille>("PctOrdo");
    barre.setValue(10);
    QCOMPARE(feuille.y(), -qRound(10 * page::kPixelsParMillimetre));
    QTest::keyClick(bureau.Fenetre, Qt::Key_PageDown);
    QVERIFY(barre.value() > 100);
    QTest::keyClick(bureau.Fenetre, Qt::Key_PageUp);
    QVERIFY(barre.value() < 100);
}

void TestFrmOrdo::TheScrollBarEndsAtTheSheetsBottom()
{
    Bureau bureau;
    bureau.Ouvre();
    auto& barre = bureau.Un<QScrollBar>("Vsb");
    auto& feuille = bureau.Un<page::Feuille>("PctOrdo");
    const QWidget& pere = bureau.Un<QWidget>("PctPere");
    barre.setValue(barre.maximum());
    const int reste = pere.height() - (feuille.y() + feuille.height());
    QVERIFY2(reste >= -1 && reste < 6, qPrintable(QString::number(reste)));
    QCOMPARE(barre.minimum(), 0);
}

void TestFrmOrdo::ActivationComesBackToTheTop()
{
    Bureau bureau;
    bureau.Ouvre();
    auto& barre = bureau.Un<QScrollBar>("Vsb");
    barre.setValue(50);
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(bureau.Fenetre, &activation);
    QCOMPARE(barre.value(), 0);
}

void TestFrmOrdo::AWindowTallerThanTheSheetHasNoRange()
{
    Bureau bureau;
    bureau.Ouvre().resize(1200, 1600);
    QTRY_COMPARE(bureau.Un<QScrollBar>("Vsb").maximum(), 0);
}

void TestFrmOrdo::TheDoctorsAreListed()
{
    Bureau bureau;
    bureau.Ouvre();
    bureau.Etat.Medecins.Liste.append({QStringLiteral("DR AUTRE"), 4});
    Q_EMIT bureau.Etat.Signaux.MedecinsChanges();
    auto& liste = bureau.Un<QComboBox>("CboMed");
    QCOMPARE(liste.count(), 2);
    QCOMPARE(liste.itemData(1).toInt(), 4);
    QCOMPARE(liste.currentIndex(), 0);
    bureau.Etat.Medecins.Selection = -1;
    Q_EMIT bureau.Etat.Signaux.MedecinsChanges();
    QCOMPARE(liste.currentIndex(), -1);
}

void TestFrmOrdo::TheRightClickShowsTheMenu()
{
    Bureau bureau;
    bureau.Ouvre();
    auto* menu = bureau.Fenetre->findChild<QMenu*>(QStringLiteral("mnuInvisible"));
    QTest::mouseClick(&bureau.Un<page::Feuille>("PctOrdo"), Qt::RightButton, {}, QPoint(60, 60));
    QVERIFY(menu->isVisible());
    QCOMPARE(menu->defaultAction(), &bureau.Entree("mnuQuitter"));
    menu->hide();
}

void TestFrmOrdo::TheHeightEntryFollowsTheSettings()
{
    Bureau bureau;
    bureau.Ouvre();
    bureau.Etat.Reglages.Options.SautPersonnalise = 1;
    Q_EMIT bureau.Etat.Signaux.ReglagesChanges();
    QVERIFY(bureau.Entree("mnuHauteurN").isEnabled());
}

void TestFrmOrdo::TheCivilityGivesTheFocusToPrinting()
{
    Bureau bureau;
    bureau.Ouvre();
    bureau.Un<QCheckBox>("ChkCiv").click();
    QCOMPARE(int(bureau.Etat.Ordonnance.ChkCiv), 0);
    QCOMPARE(bureau.Fenetre->focusWidget(), &bureau.Un<QPushButton>("CmdImprime"));
    QVERIFY(!bureau.Un<page::Feuille>("PctOrdo").Montree().Items.isEmpty());
}

void TestFrmOrdo::TheMemoIsShown()
{
    Bureau bureau;
    bureau.Ouvre();
    bureau.Etat.Ordonnance.OrdoMemorisee = 1;
    bureau.Etat.Ordonnance.TitreMemo = QStringLiteral("HTA");
    Q_EMIT bureau.Etat.Signaux.OrdonnanceChange();
    QVERIFY(bureau.Un<QLabel>("ImgMemo").isVisible());
    bureau.Etat.Apercu.ModeApercu = 1;
    Q_EMIT bureau.Etat.Signaux.OrdonnanceChange();
    QVERIFY(!bureau.Un<QCheckBox>("ChkCiv").isEnabled());
}

void TestFrmOrdo::OverflowIsMarked()
{
    Bureau bureau;
    bureau.Ouvre();
    bureau.Prescrit(QStringLiteral("ASPIRINE"));
    Repeint(bureau.Contexte);
    QVERIFY(!bureau.Fenetre->findChild<QLabel*>(QStringLiteral("LblDeborde"))->isVisible());
    bureau.Deborde();
    Repeint(bureau.Contexte);
    QVERIFY(bureau.Un<QLabel>("LblDeborde").isVisible());
}

void TestFrmOrdo::ClosingAsksForTheEnd()
{
    Bureau bureau;
    bureau.Ouvre();
    QSignalSpy fins(&bureau.Etat.Signaux, &application::Signaux::FinDemandee);
    bureau.Un<QPushButton>("CmdFermer").click();
    QCOMPARE(fins.size(), 1);
}

void TestFrmOrdo::MinimisingHidesIntoTheTray()
{
    Bureau bureau;
    bureau.Ouvre();
    bureau.Entree("mnuMinimiser").trigger();
    QTRY_VERIFY(!bureau.Fenetre->isVisible());
}

void TestFrmOrdo::WithoutTrayItStays()
{
    Bureau bureau;
    bureau.Plateau.Existe = false;
    bureau.Ouvre();
    bureau.Entree("mnuMinimiser").trigger();
    QTest::qWait(20);
    QVERIFY(bureau.Fenetre->isVisible());
    QVERIFY(bureau.Fenetre->isMinimized());
}

void TestFrmOrdo::WithoutIconItGoesToMaximised()
{
    Bureau bureau;
    bureau.Etat.Reglages.Options.IconeHorloge = 0;
    bureau.Ouvre();
    bureau.Entree("mnuMinimiser").trigger();
    QTRY_VERIFY(bureau.Fenetre->isMaximized());
}

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    application::style::Installe(application);
    TestFrmOrdo test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_frm_ordo.moc"
