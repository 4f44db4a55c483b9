#include "medication/windows/FrmMedoc.h"
#include "prescription/windows/FrmJournal.h"
#include "prescription/windows/FrmOrdo.h"
#include "settings/FichiersReglages.h"
#include "settings/windows/FrmOptions.h"
#include "startup/messages.h"
#include "startup/windows/FrmAPROPOS.h"
#include "startup/windows/ProgrammeDeTest.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

using support::ProgrammeDeTest;

namespace {

QPushButton* Bouton(QWidget& fenetre, const char* nom)
{
    return fenetre.findChild<QPushButton*>(QLatin1String(nom));
}

QAction* Entree(QWidget& fenetre, const char* nom)
{
    return fenetre.findChild<QAction*>(QLatin1String(nom));
}

/// What the menu shows, lines as "-".
QStringList Noms(QWidget& fenetre, const char* nom)
{
    QStringList noms;
    for (const QAction* action : fenetre.findChild<QMenu*>(QLatin1String(nom))->actions()) {
        noms += action->isSeparator() ? QStringLiteral("-")
                : action->menu()      ? action->menu()->objectName()
                                      : action->objectName();
    }
    return noms;
}

QString SansLettre(QString texte)
{
    return texte.remove(QLatin1Char('&'));
}

} // namespace

class TestFrmDepart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheFirstStartEndsOnTheLauncher()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        QVERIFY(depart.isVisible());
        QCOMPARE(depart.windowTitle(), QStringLiteral("   Scriptelle"));
        QCOMPARE(depart.findChild<QComboBox*>(QStringLiteral("CboListeMed"))->currentText(),
                 QStringLiteral("DR NEIBRE"));
        QCOMPARE(depart.findChild<QComboBox*>(QStringLiteral("CboListeMed"))->currentData().toInt(), 1);
        QCOMPARE(depart.findChild<QLabel*>(QStringLiteral("lblversion"))->text(),
                 QStringLiteral("Version [2.3.25]"));
        QCOMPARE(programme.Plateau.Bulle, QStringLiteral("Scriptelle"));
        QCOMPARE(programme.Contexte().Chemins.CheminMedecin,
                 programme.Chemin(QStringLiteral("DUPONT/DataVelmont/DataScriptelle/DR NEIBRE")));
    }

    void TheCaptionsAndTheOrderOfTab()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        QCOMPARE(SansLettre(Bouton(depart, "CmdNO0")->text()), QStringLiteral("Editer Ordonnances"));
        QCOMPARE(SansLettre(Bouton(depart, "CmdOptions")->text()), QStringLiteral("Options"));
        QCOMPARE(SansLettre(Bouton(depart, "CmdOutils")->text()), QStringLiteral("Outils"));
        QCOMPARE(SansLettre(Bouton(depart, "CmdAide")->text()), QStringLiteral("Aide"));
        QCOMPARE(SansLettre(Bouton(depart, "CmdAP")->text()), QStringLiteral("A propos"));
        QCOMPARE(SansLettre(Bouton(depart, "CmdQuitter")->text()), QStringLiteral("Quitter Scriptelle"));
        QCOMPARE(Bouton(depart, "CmdNO")->palette().color(QPalette::Button), QColor(237, 244, 252));
        depart.findChild<QComboBox*>(QStringLiteral("CboListeMed"))->setFocus();
        QCOMPARE(support::OrdreTab(depart).join(QLatin1Char(' ')),
                 QStringLiteral("CboListeMed CmdMedecins CmdNO CmdOptions CmdOutils CmdAide CmdAP CmdQuitter "
                                "CmdUtiliseEntete CmdLaisseEntete"));
    }

    void TheMenus()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        QCOMPARE(
            Noms(depart, "mnuOutils").join(QLatin1Char(' ')),
            QStringLiteral("mnuRepare - mnuLogo - mnuBase - mnuTransfertDonn - mnuMAJClef - mnuJournal - "
                           "mnuMajBanque - mnuRestaure"));
        QCOMPARE(Noms(depart, "MnuAideInv").join(QLatin1Char(' ')), QStringLiteral("mnuAideOld mnuAideNew"));
        QCOMPARE(
            Noms(depart, "mnuInvisible").join(QLatin1Char(' ')),
            QStringLiteral("mnuOrdonnance mnuMinimiser mnuAccueil mnuOptions mnuHauteurN mnuHauteurP mnuAide "
                           "mnuAPropos mnuQuitter"));
        QCOMPARE(depart.findChild<QMenu*>(QStringLiteral("mnuInvisible"))->defaultAction(),
                 Entree(depart, "mnuQuitter"));
        QCOMPARE(
            SansLettre(Entree(depart, "mnuMAJClef")->text()),
            QStringLiteral("Mise à jour des bases de  données sur support externe (clef USB  ou serveur)"));
    }

    void TheEntriesFollowTheSettings()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        settings::Options& options = programme.Contexte().Reglages.Options;
        for (const quint8 oui : {1, 0}) {
            options.TenirJournal = oui;
            options.SautPersonnalise = oui;
            Q_EMIT programme.Contexte().Signaux.ReglagesChanges();
            QCOMPARE(Entree(depart, "mnuJournal")->isEnabled(), oui == 1);
            QCOMPARE(Entree(depart, "mnuHauteurN")->isEnabled(), oui == 1);
        }
    }

    void TheEditorHidesTheLauncherInTheTray()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        QTest::mouseClick(Bouton(depart, "CmdNO"), Qt::LeftButton);
        QTRY_VERIFY(!depart.isVisible());
        auto& ordo = programme.Fenetres().Donne<prescription::FrmOrdo>();
        QVERIFY(ordo.isVisible());
        Entree(depart, "mnuAccueil")->trigger();
        QVERIFY(depart.isVisible());
        QVERIFY(!depart.isMinimized());
        QVERIFY(!ordo.isVisible());
    }

    void WithoutTrayNothingHides()
    {
        ProgrammeDeTest programme;
        programme.Plateau.Existe = false;
        startup::FrmDepart& depart = programme.Installe();
        QVERIFY(programme.Plateau.Bulle.isEmpty());
        QTest::mouseClick(Bouton(depart, "CmdNO"), Qt::LeftButton);
        QTest::qWait(20);
        QVERIFY(depart.isVisible());
        QVERIFY(depart.isMinimized());
    }

    void WithoutIconItHidesBesideTheEditorOnly()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        programme.Contexte().Reglages.Options.IconeHorloge = 0;
        depart.showMinimized();
        QTest::qWait(20);
        QVERIFY(depart.isVisible());
        depart.Restaure();
        QTest::mouseClick(Bouton(depart, "CmdNO"), Qt::LeftButton);
        QTRY_VERIFY(!depart.isVisible());
    }

    void TheTrayActsWhileMinimisedOnly()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        programme.Plateau.Receveur(outside::Plateau::Clic::Gauche);
        QVERIFY(!programme.Fenetres().Presente<prescription::FrmOrdo>());
        depart.Reduit();
        programme.Plateau.Receveur(outside::Plateau::Clic::Gauche);
        QVERIFY(programme.Fenetres().Donne<prescription::FrmOrdo>().isMaximized());
        programme.Plateau.Receveur(outside::Plateau::Clic::Droit);
        auto* menu = depart.findChild<QMenu*>(QStringLiteral("mnuInvisible"));
        QVERIFY(menu->isVisible());
        support::Capture(*menu, QStringLiteral("FrmDepart-mnuInvisible"));
        menu->close();
    }

    void ClosingEndsTheProgramInOrder()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        programme.Fenetres().Donne<prescription::FrmOrdo>().show();
        const QSignalSpy fin(programme.Programme.get(), &application::Application::Termine);
        Bouton(depart, "CmdQuitter")->click();
        QCOMPARE(fin.count(), 1);
        QVERIFY(programme.Plateau.Bulle.isEmpty());
        QVERIFY(!depart.isVisible());
        QVERIFY(!programme.Fenetres().Donne<prescription::FrmOrdo>().isVisible());
    }

    void ClosingTheEditorEndsTheProgram()
    {
        ProgrammeDeTest programme;
        programme.Installe();
        auto& ordo = programme.Fenetres().Donne<prescription::FrmOrdo>();
        ordo.show();
        const QSignalSpy fin(programme.Programme.get(), &application::Application::Termine);
        ordo.close();
        QCOMPARE(fin.count(), 1);
    }

    void TheEndLeavesAModalWindow()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        QTimer::singleShot(0, &depart, [&] { Entree(depart, "mnuQuitter")->trigger(); });
        Bouton(depart, "CmdAP")->click();
        QVERIFY(!depart.isVisible());
    }

    void AMissingHelpFileIsSaid()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        const QString aide = programme.Chemin(QStringLiteral("programme/Ordo.hlp"));
        const QString pdf = programme.Chemin(QStringLiteral("programme/Aide.pdf"));
        programme.Lanceur.Reussit = false;
        programme.Boites.AttendInformation(startup::messages::DocumentAbsent(common::CheminAffiche(aide)));
        Entree(depart, "mnuAideOld")->trigger();
        common::EcritFichier(pdf, "%PDF-1.4");
        programme.Boites.AttendInformation(
            startup::messages::DocumentSansLecteur(common::CheminAffiche(pdf)));
        Entree(depart, "mnuAideNewIT")->trigger();
        QVERIFY(programme.Boites.Epuise());
        programme.Lanceur.Reussit = true;
        Entree(depart, "mnuAideNew")->trigger();
        QCOMPARE(programme.Lanceur.Documents, (QStringList{aide, pdf, pdf}));
    }

    void TheJournalIsOpened()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        programme.Contexte().Reglages.Options.TenirJournal = 1;
        Q_EMIT programme.Contexte().Signaux.ReglagesChanges();
        bool ouverte = false;
        QTimer::singleShot(0, &depart, [&] {
            auto& journal = programme.Fenetres().Donne<prescription::FrmJournal>();
            ouverte = journal.isVisible() && journal.isModal();
            QTest::keyClick(&journal, Qt::Key_Escape);
        });
        Entree(depart, "mnuJournal")->trigger();
        QVERIFY(ouverte);
        QVERIFY(!programme.Fenetres().Presente<prescription::FrmJournal>());
    }

    void TheTrayOpensTheOptions()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        bool ouverte = false;
        QTimer::singleShot(0, &depart, [&] {
            auto& options = programme.Fenetres().Donne<settings::FrmOptions>();
            ouverte = options.isVisible() && options.isModal() && !depart.isVisible();
            QTest::keyClick(&options, Qt::Key_Escape);
        });
        Entree(depart, "mnuOptions")->trigger();
        QVERIFY(ouverte);
        QCOMPARE(programme.Fenetres().Donne<prescription::FrmOrdo>().cursor().shape(), Qt::ArrowCursor);
    }

    void TheTrayMinimisesTheEditor()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        auto& ordo = programme.Fenetres().Donne<prescription::FrmOrdo>();
        ordo.show();
        Entree(depart, "mnuMinimiser")->trigger();
        QVERIFY(ordo.isMinimized());
        Entree(depart, "mnuOrdonnance")->trigger();
        QVERIFY(ordo.isMaximized());
    }

    void ReducedAtTheStartItWaitsInTheTray()
    {
        ProgrammeDeTest programme;
        programme.Installe();
        settings::Options options = programme.Contexte().Reglages.Options;
        options.ReduitLancement = 1;
        settings::EcritOptions(options, programme.Contexte().Chemins.CheminMedecin);
        programme.Cree();
        programme.Demarre([](startup::FrmChoixBase& choix) { QTest::keyClick(&choix, Qt::Key_Return); });
        auto& depart = programme.Fenetres().Donne<startup::FrmDepart>();
        QTest::qWait(20);
        QVERIFY(!depart.isVisible());
        QVERIFY(depart.isMinimized());
        Entree(depart, "mnuAccueil")->trigger();
        QVERIFY(depart.isVisible());
    }

    void WithoutDoctorTheToolsRefuse()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        programme.Contexte().Chemins.CheminMedecin.clear();
        for (const char* nom : {"mnuLogo", "mnuBase", "mnuHauteurP"}) {
            programme.Boites.AttendInformation(startup::messages::ChoisissezMedecin());
            Entree(depart, nom)->trigger();
            QVERIFY(programme.Boites.Epuise());
        }
        Q_EMIT programme.Contexte().Signaux.FaceChange();
        for (const page::Item& item : depart.DessinMontre().Items) {
            QVERIFY(!std::holds_alternative<page::ItemTexte>(item));
        }
    }

    void TheFaceShowsTheLetterhead()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        storage::Base& ordo = programme.Contexte().Bases.Ordo(programme.Contexte().Chemins.CheminMedecin);
        const QStringList lignes = {QStringLiteral("Docteur Claire NEIBRE"),
                                    QStringLiteral("Médecine générale"), QStringLiteral("12 rue des Lilas"),
                                    QStringLiteral("35000 RENNES"), QStringLiteral("Tél. 02 99 00 00 00")};
        for (int rang = 0; rang < lignes.size(); ++rang) {
            ordo.Execute(QStringLiteral("update Entete set Texte = ? where NumLigne = ?"),
                         {lignes[rang], rang});
        }
        Q_EMIT programme.Contexte().Signaux.FaceChange();
        QStringList textes;
        for (const page::Item& item : depart.DessinMontre().Items) {
            if (const auto* texte = std::get_if<page::ItemTexte>(&item)) {
                textes += texte->Texte;
            }
        }
        QCOMPARE(textes.first(lignes.size()), lignes);
        QTest::qWait(50);
        support::Capture(depart, QStringLiteral("FrmDepart"));
        depart.resize(820, 560);
        support::Capture(depart, QStringLiteral("FrmDepart-petite"));
        auto* menu = depart.findChild<QMenu*>(QStringLiteral("mnuOutils"));
        Bouton(depart, "CmdOutils")->click();
        QVERIFY(menu->isVisible());
        support::Capture(*menu, QStringLiteral("FrmDepart-mnuOutils"));
        menu->close();
    }

    void TheAboutBox()
    {
        ProgrammeDeTest programme;
        programme.Installe();
        auto& apropos = programme.Fenetres().Donne<startup::FrmAPROPOS>();
        apropos.show();
        QCOMPARE(apropos.findChild<QLabel*>(QStringLiteral("Lblversion"))->text(),
                 QStringLiteral("[Version 2.3.25]"));
        Bouton(apropos, "Label1")->click();
        Bouton(apropos, "Label2")->click();
        QCOMPARE(programme.Lanceur.Documents.size(), 2);
        QCOMPARE(programme.Lanceur.Documents[0], programme.Chemin(QStringLiteral("programme/Aide.pdf")));
        QCOMPARE(programme.Lanceur.Documents[1], QStringLiteral("mailto:?subject=Scriptelle%202.3.25"));
        programme.Lanceur.Reussit = false;
        programme.Boites.AttendInformation(startup::messages::CourrierSansProgramme());
        Bouton(apropos, "Label2")->click();
        QVERIFY(programme.Boites.Epuise());
        support::Capture(apropos, QStringLiteral("FrmAPROPOS"));
        QTest::keyClick(&apropos, Qt::Key_Escape);
        QVERIFY(!apropos.isVisible());
    }
};

int main(int nombre, char** arguments)
{
    return support::LanceTest<TestFrmDepart>(nombre, arguments);
}

#include "test_frm_depart.moc"
