#include "settings/windows/FrmOptions.h"

#include "application/windows/Fenetres.h"
#include "application/windows/Style.h"
#include "support/Cabinet.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>

using namespace settings;

namespace {

struct Reglage : Cabinet
{
    application::Fenetres Fenetres{Contexte};

    template <typename Controle> static Controle& Un(FrmOptions& fenetre, const char* nom)
    {
        return *fenetre.findChild<Controle*>(QLatin1String(nom));
    }

    /// Opens the dialogue and acts in it; a dialogue left open is a failure.
    void Pendant(const std::function<void(FrmOptions&)>& action, bool premiere = false)
    {
        auto& fenetre = Fenetres.Donne<FrmOptions>();
        bool restee = false;
        QTimer::singleShot(0, &fenetre, [&] { action(fenetre); });
        QTimer::singleShot(50, &fenetre, [&] {
            restee = true;
            fenetre.done(0);
        });
        if (premiere) {
            fenetre.OuvrePourPremiereImpression();
        } else {
            fenetre.Ouvre(3);
        }
        QVERIFY(!restee);
        QVERIFY(Fenetres.Presente<FrmOptions>() == nullptr);
    }

    QByteArray Fichier(const char* nom) const
    {
        return common::LitFichier(common::Joint(Etat.Chemins.CheminMedecin, QLatin1String(nom)));
    }
};

} // namespace

class TestFrmOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheStateAtOpening();
    void AMissingPrinterLeavesNoSelection();
    void OkWritesTheThreeFiles();
    void WithoutPrinterOkIsRefused();
    void CancelRestoresTheSnapshot();
    void CancelRestoresTheStartWithTheSystem();
    void EscapeCancels();
    void TheCloseBoxIsRefused();
    void TheFirstPrintHasNoWayBack();
    void ConfirmingThePrinterClosesTheWindow();
    void AMissingTabOpensThePrinters();
    void WithoutDoctorNothingIsWritten();
};

void TestFrmOptions::TheStateAtOpening()
{
    Reglage reglage;
    reglage.Imprimantes.Presentes = {QStringLiteral("Accueil"), QStringLiteral("Bureau")};
    reglage.Pendant([](FrmOptions& fenetre) {
        QCOMPARE(fenetre.windowTitle(), QStringLiteral("        Options de Scriptelle"));
        auto& liste = Reglage::Un<QComboBox>(fenetre, "CboPrint");
        QCOMPARE(liste.count(), 3);
        QCOMPARE(liste.itemText(2), QStringLiteral("Fichier PDF"));
        QCOMPARE(liste.currentText(), QStringLiteral("Bureau"));
        QVERIFY(!Reglage::Un<QCheckBox>(fenetre, "Chkimp").isVisible());
        QVERIFY(Reglage::Un<QPushButton>(fenetre, "CmdOK(2)").isDefault());
        Reglage::Un<QPushButton>(fenetre, "CmdAnnule(2)").click();
    });
}

void TestFrmOptions::AMissingPrinterLeavesNoSelection()
{
    Reglage reglage;
    reglage.Etat.Reglages.Options.Imprimante = QStringLiteral("Partie");
    reglage.Pendant([](FrmOptions& fenetre) {
        QCOMPARE(Reglage::Un<QComboBox>(fenetre, "CboPrint").currentIndex(), -1);
        Reglage::Un<QPushButton>(fenetre, "CmdAnnule(2)").click();
    });
    QCOMPARE(reglage.Etat.Reglages.Options.Imprimante, QStringLiteral("Partie"));
}

void TestFrmOptions::OkWritesTheThreeFiles()
{
    Reglage reglage;
    reglage.Pendant([](FrmOptions& fenetre) {
        Reglage::Un<QComboBox>(fenetre, "CboPrint").setCurrentText(QStringLiteral("Fichier PDF"));
        Reglage::Un<QPushButton>(fenetre, "CmdOK(2)").click();
    });
    QCOMPARE(reglage.Etat.Reglages.Options.Imprimante, QStringLiteral("Fichier PDF"));
    QVERIFY(reglage.Fichier("Options.cfg").contains("\"Fichier PDF\""));
    QVERIFY(reglage.Fichier("Base.cfg").startsWith("\"BIP\""));
    QVERIFY(reglage.Fichier("Dupli.cfg").contains("\"DUPLICATA\""));
}

void TestFrmOptions::WithoutPrinterOkIsRefused()
{
    Reglage reglage;
    reglage.Etat.Reglages.Options.Imprimante.clear();
    reglage.Boites.AttendStop(QStringLiteral("Vous n'avez pas sélectionné l'imprimamte !"));
    reglage.Pendant([](FrmOptions& fenetre) {
        Reglage::Un<QPushButton>(fenetre, "CmdOK(2)").click();
        QVERIFY(fenetre.isVisible());
        Reglage::Un<QPushButton>(fenetre, "CmdAnnule(2)").click();
    });
    QVERIFY(!common::FichierExiste(
        common::Joint(reglage.Etat.Chemins.CheminMedecin, QStringLiteral("Options.cfg"))));
}

void TestFrmOptions::CancelRestoresTheSnapshot()
{
    Reglage reglage;
    reglage.Pendant([&](FrmOptions& fenetre) {
        settings::Options& options = reglage.Etat.Reglages.Options;
        options.AffichePoids = 0;
        options.LogoHauteur = 12;
        options.MinimiseImpression = 1;
        Reglage::Un<QPushButton>(fenetre, "CmdAnnule(2)").click();
    });
    QCOMPARE(int(reglage.Etat.Reglages.Options.AffichePoids), 1);
    QCOMPARE(int(reglage.Etat.Reglages.Options.LogoHauteur), 0);
    QCOMPARE(int(reglage.Etat.Reglages.Options.MinimiseImpression), 1);
}

void TestFrmOptions::CancelRestoresTheStartWithTheSystem()
{
    Reglage reglage;
    reglage.Etat.Reglages.Options.LanceDemarrage = 1;
    reglage.Pendant([&](FrmOptions& fenetre) {
        reglage.Etat.Reglages.Options.LanceDemarrage = 0;
        reglage.DemarrageSysteme.Desactive();
        Reglage::Un<QPushButton>(fenetre, "CmdAnnule(2)").click();
    });
    QVERIFY(reglage.DemarrageSysteme.Programme.endsWith(QStringLiteral("Scriptelle.exe")));
}

void TestFrmOptions::EscapeCancels()
{
    Reglage reglage;
    reglage.Pendant([](FrmOptions& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Escape); });
}

void TestFrmOptions::TheCloseBoxIsRefused()
{
    Reglage reglage;
    reglage.Pendant([](FrmOptions& fenetre) {
        QVERIFY(!fenetre.close());
        QVERIFY(fenetre.isVisible());
        Reglage::Un<QPushButton>(fenetre, "CmdAnnule(2)").click();
    });
}

void TestFrmOptions::TheFirstPrintHasNoWayBack()
{
    Reglage reglage;
    reglage.Pendant(
        [](FrmOptions& fenetre) {
            QVERIFY(!Reglage::Un<QPushButton>(fenetre, "CmdAnnule(2)").isVisible());
            QVERIFY(Reglage::Un<QCheckBox>(fenetre, "Chkimp").isVisible());
            QTest::keyClick(&fenetre, Qt::Key_Escape);
            QVERIFY(fenetre.isVisible());
            Reglage::Un<QPushButton>(fenetre, "CmdOK(2)").click();
        },
        true);
}

void TestFrmOptions::ConfirmingThePrinterClosesTheWindow()
{
    Reglage reglage;
    reglage.Etat.Impression.EtatImprimante = 0;
    reglage.Pendant([](FrmOptions& fenetre) { Reglage::Un<QCheckBox>(fenetre, "Chkimp").click(); }, true);
    QCOMPARE(int(reglage.Etat.Impression.EtatImprimante), 1);
    QVERIFY(reglage.Fichier("Options.cfg").contains("\"Bureau\""));
}

void TestFrmOptions::AMissingTabOpensThePrinters()
{
    Reglage reglage;
    auto& fenetre = reglage.Fenetres.Donne<FrmOptions>();
    QTimer::singleShot(0, &fenetre, [&] {
        QCOMPARE(Reglage::Un<QTabBar>(fenetre, "TS").tabText(0), QStringLiteral("Imprimantes"));
        Reglage::Un<QPushButton>(fenetre, "CmdAnnule(2)").click();
    });
    fenetre.Ouvre(7);
}

void TestFrmOptions::WithoutDoctorNothingIsWritten()
{
    Reglage reglage;
    const QString chemin = reglage.Etat.Chemins.CheminMedecin;
    reglage.Etat.Chemins.CheminMedecin.clear();
    reglage.Pendant([](FrmOptions& fenetre) { Reglage::Un<QPushButton>(fenetre, "CmdOK(2)").click(); });
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
