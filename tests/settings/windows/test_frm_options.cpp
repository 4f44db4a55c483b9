#include "application/windows/Style.h"
#include "medication/Choix.h"
#include "settings/windows/FrmConfOrdo.h"
#include "settings/windows/FrmEntete.h"
#include "settings/windows/PosteOptions.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>

using namespace settings;
using outside::Genre;

class TestFrmOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheSevenTabsInOrder();
    void OpensOnItsTab_data();
    void OpensOnItsTab();
    void ATabGivesTheFocusAway();
    void ALowWindowKeepsTheButtonsOfThePicturesInSight();
    void OkWritesTheThreeFiles();
    void ARefusalShowsItsTabAndWritesNothing();
    void AFailedWriteLeavesTheWindowOpen();
    void CancelRestoresTheSnapshot();
    void CancelRestoresTheStartWithTheSystem();
    void EscapeCancels();
    void TheCloseBoxIsRefused();
    void TheFirstPrintHasNoWayBack();
    void ConfirmingThePrinterClosesTheWindow();
    void TheEndOfTheProgramLeavesTheFirstPrint();
    void TheDesignersComeBackToIt();
    void WithoutDoctorTheDesignersStayShut();
    void WithoutDoctorNothingIsWritten();
};

void TestFrmOptions::TheSevenTabsInOrder()
{
    PosteOptions poste;
    poste.Pendant(1, [](FrmOptions& fenetre) {
        QCOMPARE(fenetre.windowTitle(), QStringLiteral("        Options de Scriptelle"));
        const auto& TS = PosteOptions::Un<QTabBar>(fenetre, "TS");
        QStringList titres;
        for (int rang = 0; rang < TS.count(); ++rang) {
            titres.append(TS.tabText(rang));
        }
        QCOMPARE(titres.join(QLatin1Char('|')),
                 QStringLiteral("Configuration|Options générales|Imprimantes|Pharmacies|Interactions|Logo|"
                                "Duplicata"));
        PosteOptions::Presse(fenetre, "CmdAnnule(0)");
    });
}

void TestFrmOptions::OpensOnItsTab_data()
{
    QTest::addColumn<int>("onglet");
    for (int onglet = 1; onglet <= 7; ++onglet) {
        QTest::addRow("%d", onglet) << onglet;
    }
}

void TestFrmOptions::OpensOnItsTab()
{
    QFETCH(int, onglet);
    PosteOptions poste;
    poste.Pendant(onglet, [onglet](FrmOptions& fenetre) {
        const QByteArray annule = QByteArray("CmdAnnule(") + QByteArray::number(onglet - 1) + ')';
        const QByteArray accepte = QByteArray("CmdOK(") + QByteArray::number(onglet - 1) + ')';
        QVERIFY(PosteOptions::Un<QPushButton>(fenetre, annule).isVisible());
        QVERIFY(PosteOptions::Un<QPushButton>(fenetre, accepte).isDefault());
        PosteOptions::Presse(fenetre, annule);
    });
}

void TestFrmOptions::ATabGivesTheFocusAway()
{
    PosteOptions poste;
    poste.Pendant(1, [](FrmOptions& fenetre) {
        auto& TS = PosteOptions::Un<QTabBar>(fenetre, "TS");
        fenetre.activateWindow();
        QTest::mouseClick(&TS, Qt::LeftButton, {}, TS.tabRect(4).center());
        QCOMPARE(TS.currentIndex(), 4);
        QCOMPARE(fenetre.focusWidget()->objectName(), QStringLiteral("CmdFoc"));
        PosteOptions::Presse(fenetre, "CmdAnnule(4)");
    });
}

void TestFrmOptions::ALowWindowKeepsTheButtonsOfThePicturesInSight()
{
    PosteOptions poste;
    poste.Etat.Reglages.Options.Imprimante = QString(200, QLatin1Char('M'));
    poste.Etat.Reglages.Dupli.DupliPolice = QString(100, QLatin1Char('M'));
    poste.Imprimantes.Presentes = {poste.Etat.Reglages.Options.Imprimante};
    poste.Pendant(7, [](FrmOptions& fenetre) {
        fenetre.resize(667, 336); // a screen of 1366 by 768 at 200 %
        QTest::qWait(1);
        const auto entier = [&fenetre](const char* nom) {
            const auto& controle = PosteOptions::Un<QWidget>(fenetre, nom);
            return controle.visibleRegion().boundingRect() == controle.rect();
        };
        QVERIFY(entier("CmdTexte"));
        QVERIFY(entier("CmdColPol"));
        PosteOptions::Un<QTabBar>(fenetre, "TS").setCurrentIndex(5);
        QTest::qWait(1);
        QVERIFY(entier("CmdChemin"));
        QVERIFY(entier("Img"));
        PosteOptions::Un<QTabBar>(fenetre, "TS").setCurrentIndex(2);
        QTest::qWait(1);
        QVERIFY(entier("CboPrint"));
        PosteOptions::Presse(fenetre, "CmdAnnule(2)");
    });
}

void TestFrmOptions::OkWritesTheThreeFiles()
{
    PosteOptions poste;
    poste.Pendant(3, [](FrmOptions& fenetre) {
        PosteOptions::Un<QComboBox>(fenetre, "CboPrint").setCurrentText(QStringLiteral("Fichier PDF"));
        PosteOptions::Presse(fenetre, "CmdOK(2)");
    });
    QCOMPARE(poste.Etat.Reglages.Options.Imprimante, QStringLiteral("Fichier PDF"));
    QVERIFY(poste.Fichier("Options.cfg").contains("\"Fichier PDF\""));
    QVERIFY(poste.Fichier("Base.cfg").startsWith("\"BIP\""));
    QVERIFY(poste.Fichier("Dupli.cfg").contains("\"DUPLICATA\""));
}

void TestFrmOptions::ARefusalShowsItsTabAndWritesNothing()
{
    PosteOptions poste;
    poste.Etat.Reglages.Options.Imprimante.clear();
    poste.Boites.AttendStop(QStringLiteral("Vous n'avez pas sélectionné l'imprimamte !"));
    poste.Pendant(1, [](FrmOptions& fenetre) {
        PosteOptions::Presse(fenetre, "CmdOK(0)");
        QVERIFY(fenetre.isVisible());
        QCOMPARE(PosteOptions::Un<QTabBar>(fenetre, "TS").currentIndex(), 2);
        QCOMPARE(fenetre.focusWidget()->objectName(), QStringLiteral("CboPrint"));
        PosteOptions::Presse(fenetre, "CmdAnnule(2)");
    });
    QVERIFY(!common::FichierExiste(
        common::Joint(poste.Etat.Chemins.CheminMedecin, QStringLiteral("Options.cfg"))));
}

void TestFrmOptions::AFailedWriteLeavesTheWindowOpen()
{
    PosteOptions poste;
    common::CreeDossier(common::Joint(poste.Etat.Chemins.CheminMedecin, QStringLiteral("Dupli.cfg/plein")));
    poste.Boites.AttendContenant(Genre::Stop, QStringLiteral("Dupli.cfg"));
    poste.Pendant(1, [](FrmOptions& fenetre) {
        PosteOptions::Presse(fenetre, "CmdOK(0)");
        QVERIFY(fenetre.isVisible());
        PosteOptions::Presse(fenetre, "CmdAnnule(0)");
    });
}

void TestFrmOptions::CancelRestoresTheSnapshot()
{
    PosteOptions poste;
    poste.Pendant(3, [&](FrmOptions& fenetre) {
        settings::Options& options = poste.Etat.Reglages.Options;
        options.AffichePoids = 0;
        options.LogoHauteur = 12;
        options.MinimiseImpression = 1;
        PosteOptions::Presse(fenetre, "CmdAnnule(2)");
    });
    QCOMPARE(int(poste.Etat.Reglages.Options.AffichePoids), 1);
    QCOMPARE(int(poste.Etat.Reglages.Options.LogoHauteur), 0);
    QCOMPARE(int(poste.Etat.Reglages.Options.MinimiseImpression), 1);
}

void TestFrmOptions::CancelRestoresTheStartWithTheSystem()
{
    PosteOptions poste;
    poste.Etat.Reglages.Options.LanceDemarrage = 1;
    poste.Pendant(2, [&](FrmOptions& fenetre) {
        PosteOptions::Presse(fenetre, "ChkL");
        QCOMPARE(poste.DemarrageSysteme.Programme, QString());
        PosteOptions::Presse(fenetre, "CmdAnnule(1)");
    });
    QVERIFY(poste.DemarrageSysteme.Programme.endsWith(QStringLiteral("Scriptelle.exe")));
}

void TestFrmOptions::EscapeCancels()
{
    PosteOptions poste;
    poste.Pendant(5, [](FrmOptions& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Escape); });
}

void TestFrmOptions::TheCloseBoxIsRefused()
{
    PosteOptions poste;
    poste.Pendant(2, [](FrmOptions& fenetre) {
        QVERIFY(!fenetre.close());
        QVERIFY(fenetre.isVisible());
        PosteOptions::Presse(fenetre, "CmdAnnule(1)");
    });
}

void TestFrmOptions::TheFirstPrintHasNoWayBack()
{
    PosteOptions poste;
    QVERIFY(poste.PendantPremiereImpression([](FrmOptions& fenetre) {
        QVERIFY(!PosteOptions::Un<QPushButton>(fenetre, "CmdAnnule(2)").isVisible());
        QVERIFY(PosteOptions::Un<QCheckBox>(fenetre, "Chkimp").isVisible());
        QTest::keyClick(&fenetre, Qt::Key_Escape);
        QVERIFY(fenetre.isVisible());
        PosteOptions::Un<QTabBar>(fenetre, "TS").setCurrentIndex(0);
        QTest::keyClick(&fenetre, Qt::Key_Escape);
        QVERIFY(fenetre.isVisible());
        PosteOptions::Presse(fenetre, "CmdOK(0)");
    }));
}

void TestFrmOptions::ConfirmingThePrinterClosesTheWindow()
{
    PosteOptions poste;
    poste.Etat.Impression.EtatImprimante = 0;
    QVERIFY(poste.PendantPremiereImpression(
        [](FrmOptions& fenetre) { PosteOptions::Presse(fenetre, "Chkimp"); }));
    QCOMPARE(int(poste.Etat.Impression.EtatImprimante), 1);
    QVERIFY(poste.Fichier("Options.cfg").contains("\"Bureau\""));
}

void TestFrmOptions::TheEndOfTheProgramLeavesTheFirstPrint()
{
    PosteOptions poste;
    auto& fenetre = poste.Fenetres.Donne<FrmOptions>();
    QTimer::singleShot(0, &fenetre, [&] { poste.Fenetres.CacheTout(); });
    QVERIFY(!fenetre.OuvrePourPremiereImpression());
}

void TestFrmOptions::TheDesignersComeBackToIt()
{
    PosteOptions poste;
    poste.Pendant(1, [&](FrmOptions& fenetre) {
        for (const char* bouton : {"CmdET", "CmdMEP"}) {
            QWidget* concepteur = nullptr;
            QTimer::singleShot(20, &fenetre, [&] {
                concepteur = QApplication::activeModalWidget();
                QVERIFY(!fenetre.isVisible());
                concepteur->hide();
                fenetre.Ouvre(1); // as they do at their end
            });
            PosteOptions::Un<QTabBar>(fenetre, "TS").setCurrentIndex(0);
            PosteOptions::Presse(fenetre, bouton);
            QVERIFY(concepteur != nullptr);
            QVERIFY(fenetre.isVisible());
        }
        QVERIFY(poste.Fenetres.Presente<FrmEntete>());
        QVERIFY(poste.Fenetres.Presente<FrmConfOrdo>());
        PosteOptions::Presse(fenetre, "CmdAnnule(0)");
    });
}

void TestFrmOptions::WithoutDoctorTheDesignersStayShut()
{
    PosteOptions poste;
    poste.Etat.Chemins.CheminMedecin.clear();
    poste.Boites.AttendInformation(QStringLiteral("Choisissez d'abord un médecin utilisateur."))
        .AttendInformation(QStringLiteral("Choisissez d'abord un médecin utilisateur."));
    poste.Pendant(1, [&](FrmOptions& fenetre) {
        PosteOptions::Presse(fenetre, "CmdET");
        PosteOptions::Presse(fenetre, "CmdMEP");
        QVERIFY(fenetre.isVisible());
        PosteOptions::Presse(fenetre, "CmdOK(0)");
    });
}

void TestFrmOptions::WithoutDoctorNothingIsWritten()
{
    PosteOptions poste;
    const QString chemin = poste.Etat.Chemins.CheminMedecin;
    poste.Etat.Chemins.CheminMedecin.clear();
    poste.Pendant(3, [](FrmOptions& fenetre) { PosteOptions::Presse(fenetre, "CmdOK(2)"); });
    QVERIFY(!common::FichierExiste(common::Joint(chemin, QStringLiteral("Options.cfg"))));
    QVERIFY(!common::FichierExiste(QStringLiteral("Options.cfg")));
    QVERIFY(!common::FichierExiste(QStringLiteral("/Options.cfg")));
}

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    application::style::Installe(application);
    TestFrmOptions test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_frm_options.moc"
