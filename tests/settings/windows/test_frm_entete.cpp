#include "settings/windows/AtelierEntete.h"

#include "settings/Entete.h"
#include "settings/windows/FrmOptions.h"
#include "startup/messages.h"

#include <QTimer>

using namespace settings;

class TestFrmEntete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheStateAtFirstUse();
    void TheOrderOfTab();
    void TheStoredRowsAreShown();
    void ARowWithoutTextOrWithBreaksComesBackAsItWas();
    void TheIndentationIsTypedAtTheHead();
    void AChosenFontIsTheRowsOnly();
    void TheColourIsAnnouncedAndKeptUntilSaved();
    void AnOptionPaintsAtOnceAndLeadsToSave();
    void SavingStoresAllAndSaysSo();
    void AFailedSaveIsToldAndChangesNothing();
    void UnreadableRowsAreNotWrittenOver();
    void CloseBoxAndEscapeDoNothing();
    void LeavingKeepsTheEditsForTheRunAndOpensTheOptions();
    void TheStoredLetterheadComesBackOnlyAfterAQuestion();
    void TheRowInHandIsExplained();
    void EnterGoesToTheNextRow();
};

void TestFrmEntete::TheStateAtFirstUse()
{
    Atelier atelier;
    atelier.Ouvre();
    QCOMPARE(atelier.Fenetre->windowTitle(), QStringLiteral("   En-tête ordonnance"));
    QCOMPARE(atelier.Txt(0).text(), QStringLiteral("*"));
    QCOMPARE(atelier.Txt(5).text(), QStringLiteral("Tel"));
    QCOMPARE(
        atelier.Un<QPlainTextEdit>("Txt(22)").toPlainText(),
        QStringLiteral("Membre d'une association agréée. Règlement des honoraires par chèque accepté.\n"));
    QCOMPARE(atelier.Txt(23).text(), QStringLiteral("Nom à afficher pour la signature électronique"));
    QCOMPARE(atelier.Un<QLineEdit>("TxtMG").text(), QStringLiteral("10"));
    QCOMPARE(atelier.Un<QLineEdit>("TxtMH").text(), QStringLiteral("4"));
    QCOMPARE(atelier.Un<QLineEdit>("TxtMB").text(), QStringLiteral("10"));
    QVERIFY(atelier.Un<QRadioButton>("Opt(0)").isChecked());
    QVERIFY(!atelier.Modifie());
    QVERIFY(atelier.Un<QPushButton>("CmdEnregistrer").isDefault());
    support::Capture(*atelier.Fenetre, QStringLiteral("entete_premiere"));
}

void TestFrmEntete::TheOrderOfTab()
{
    Atelier atelier;
    atelier.Ouvre();
    QStringList attendu;
    for (int rang = 0; rang < storage::kLignesEntete; ++rang) {
        attendu += QStringLiteral("Txt(%1)").arg(rang);
    }
    attendu +=
        {QStringLiteral("CmdPolice"),  QStringLiteral("CmdCouleur"),    QStringLiteral("TxtMG"),
         QStringLiteral("TxtMH"),      QStringLiteral("TxtMB"),         QStringLiteral("Opt(0)"),
         QStringLiteral("Opt(1)"),     QStringLiteral("CmdAide"),       QStringLiteral("CmdImpression"),
         QStringLiteral("CmdQuitter"), QStringLiteral("CmdEnregistrer")};
    atelier.Txt(0).setFocus();
    QCOMPARE(support::OrdreTab(*atelier.Fenetre), attendu);
}

void TestFrmEntete::TheStoredRowsAreShown()
{
    Atelier atelier;
    support::AjouteLigne(
        atelier.Ordo(), QStringLiteral("Entete"),
        {10, QStringLiteral("Docteur NEIBRE"), QStringLiteral("Courier New"), 14, true, true, true, 12});
    support::AjouteLigne(atelier.Ordo(), QStringLiteral("Entete"),
                         {23, QStringLiteral(" Dr N. "), QStringLiteral("Arial"), 10, 0, 0, 0, 0});
    atelier.Etat.Reglages.Options.ModeEntete = 1;
    atelier.Etat.Reglages.Marges.MargeGaucheEntete = 12.5F;
    atelier.Ouvre();
    const QFont police = atelier.Txt(10).font();
    QCOMPARE(atelier.Txt(10).text(), QStringLiteral("Docteur NEIBRE"));
    QCOMPARE(police.family(), QStringLiteral("Courier New"));
    QCOMPARE(police.pointSizeF(), 14.0);
    QVERIFY(police.bold() && police.italic() && police.underline());
    QCOMPARE(atelier.Espaces(10), qint16(12));
    QCOMPARE(atelier.Etat.Reglages.Look.NomSignature, QStringLiteral("Dr N."));
    QCOMPARE(atelier.Un<QLineEdit>("TxtMG").text(), QStringLiteral("12.5"));
    QVERIFY(atelier.Un<QRadioButton>("Opt(1)").isChecked());
    QVERIFY(!atelier.Modifie());
}

void TestFrmEntete::ARowWithoutTextOrWithBreaksComesBackAsItWas()
{
    Atelier atelier;
    const QString pied = QStringLiteral("Tél. 02\u00A099\r\nSur rendez-vous\r\n");
    support::AjouteLigne(atelier.Ordo(), QStringLiteral("Entete"),
                         {22, pied, QStringLiteral("Arial"), 8, 0, 0, 0, 0});
    support::AjouteLigne(atelier.Ordo(), QStringLiteral("Entete"),
                         {3, QString(QLatin1String("")), QStringLiteral("Arial"), 8, 0, 0, 0, 0});
    atelier.Ouvre();
    QVERIFY(!atelier.Modifie());
    atelier.Boites.AttendInformation(messages::EnteteEnregistree());
    atelier.Clique("CmdEnregistrer");
    const RangsEntete rangs = RangsDe(page::LitEntete(atelier.Ordo()));
    QCOMPARE(rangs[22].Texte, pied);
    QCOMPARE(rangs[3].Texte, QString());
    QCOMPARE(rangs[0].Texte, QStringLiteral("*"));
}

void TestFrmEntete::TheIndentationIsTypedAtTheHead()
{
    Atelier atelier;
    atelier.Ouvre();
    QLineEdit& rang = atelier.Txt(12);
    rang.clear();
    QTest::mouseClick(&rang, Qt::LeftButton);
    QCOMPARE(atelier.Etat.Reglages.SaisieEntete.LigneCourante, qint16(12));
    QTest::keyClicks(&rang, QStringLiteral("   "));
    QCOMPARE(rang.text(), QString());
    QCOMPARE(atelier.Espaces(12), qint16(3));
    QVERIFY(atelier.Modifie());
    QTest::keyClick(&rang, Qt::Key_Backspace);
    QCOMPARE(atelier.Espaces(12), qint16(2));
    QTest::keyClicks(&rang, QStringLiteral("Sur rendez-vous"));
    QCOMPARE(rang.text(), QStringLiteral("Sur rendez-vous"));
    QCOMPARE(atelier.Espaces(12), qint16(2));
    rang.setCursorPosition(0);
    QTest::keyClick(&rang, Qt::Key_Delete);
    QCOMPARE(rang.text(), QStringLiteral("Sur rendez-vous"));
    rang.setCursorPosition(3);
    QTest::mouseClick(&rang, Qt::LeftButton, {}, QPoint(rang.width() - 2, rang.height() / 2));
    QCOMPARE(atelier.Etat.Reglages.SaisieEntete.TexteAvantCurseur, QStringLiteral("Sur rendez-vous"));
    QTest::keyClick(&rang, Qt::Key_Space);
    QCOMPARE(rang.text(), QStringLiteral("Sur rendez-vous "));
}

void TestFrmEntete::AChosenFontIsTheRowsOnly()
{
    Atelier atelier;
    atelier.Ouvre();
    atelier.Txt(4).setFocus();
    atelier.Boites.AttendPolice(std::nullopt);
    atelier.Clique("CmdPolice");
    QVERIFY(!atelier.Modifie());
    atelier.Boites.AttendPolice(
        page::Police{.Nom = QStringLiteral("Times New Roman"), .Taille = 18, .Souligne = true});
    atelier.Clique("CmdPolice");
    QCOMPARE(atelier.Txt(4).font().pointSizeF(), 18.0);
    QVERIFY(atelier.Txt(4).font().underline());
    QCOMPARE(atelier.Txt(5).font().pointSizeF(), 10.0);
    QVERIFY(atelier.Modifie());
    QCOMPARE(atelier.Stockees().at(4), QStringLiteral("4|*|Arial|10|0|0|0|0"));
}

void TestFrmEntete::TheColourIsAnnouncedAndKeptUntilSaved()
{
    Atelier atelier;
    atelier.Ouvre();
    atelier.Boites.AttendInformation(messages::CouleurDeTouteLEntete()).AttendCouleur(std::nullopt);
    atelier.Clique("CmdCouleur");
    QCOMPARE(atelier.Etat.Reglages.Look.CouleurEntete, page::kNoir);
    atelier.Boites.AttendInformation(messages::CouleurDeTouteLEntete()).AttendCouleur(page::Rvb(1, 2, 3));
    atelier.Clique("CmdCouleur");
    QCOMPARE(atelier.Etat.Reglages.Look.CouleurEntete, page::Rvb(1, 2, 3));
    const auto& pastille = atelier.Un<QWidget>("LblColor");
    QCOMPARE(pastille.palette().color(pastille.backgroundRole()), QColor(1, 2, 3));
    QVERIFY(atelier.Modifie());
    QCOMPARE(support::Lignes(atelier.Ordo(), QStringLiteral("CouleurPET")), QStringList{QStringLiteral("0")});
}

void TestFrmEntete::AnOptionPaintsAtOnceAndLeadsToSave()
{
    Atelier atelier;
    atelier.Ouvre();
    const double avant = support::Trouve(atelier.Feuille("PctEntete"), QStringLiteral("Tel")).Y;
    QTest::mouseClick(&atelier.Un<QRadioButton>("Opt(1)"), Qt::LeftButton);
    QCOMPARE(atelier.Etat.Reglages.Options.ModeEntete, quint8(1));
    QVERIFY(support::Trouve(atelier.Feuille("PctEntete"), QStringLiteral("Tel")).Y > avant);
    QCOMPARE(atelier.Fenetre->focusWidget(), &atelier.Un<QPushButton>("CmdEnregistrer"));
    QVERIFY(atelier.Un<QLabel>("LblOrdre").isVisibleTo(atelier.Fenetre));
    QVERIFY(!atelier.Modifie());
}

void TestFrmEntete::SavingStoresAllAndSaysSo()
{
    Atelier atelier;
    atelier.Ouvre();
    atelier.Txt(10).setText(QStringLiteral("Docteur NEIBRE"));
    atelier.Txt(23).setText(QStringLiteral(" Dr N. "));
    atelier.Un<QLineEdit>("TxtMG").setText(QStringLiteral("12,5"));
    atelier.Un<QLineEdit>("TxtMH").setText(QStringLiteral("abc"));
    QSignalSpy face(&atelier.Etat.Signaux, &application::Signaux::FaceChange);
    atelier.Boites.AttendInformation(messages::EnteteEnregistree());
    atelier.Clique("CmdEnregistrer");
    QCOMPARE(face.count(), 1);
    QVERIFY(!atelier.Modifie());
    QCOMPARE(atelier.Stockees().size(), 24);
    QCOMPARE(atelier.Stockees().at(10), QStringLiteral("10|Docteur NEIBRE|Arial|10|0|0|0|0"));
    QCOMPARE(atelier.Etat.Reglages.Marges.MargeGaucheEntete, 12.0F);
    QCOMPARE(atelier.Etat.Reglages.Marges.MargeHauteEntete, 0.0F);
    QCOMPARE(atelier.Etat.Reglages.Look.NomSignature, QStringLiteral("Dr N."));
    QCOMPARE(
        common::LitFichier(common::Joint(atelier.Etat.Chemins.CheminMedecin, QStringLiteral("Marges.cfg"))),
        QByteArray("12,0,10,20,100,170,70,100,0,0,0,0,0\r\n"));
    QVERIFY(!support::Mots(atelier.Feuille("PctEntete")).filter(QStringLiteral("Docteur NEIBRE")).isEmpty());
}

void TestFrmEntete::AFailedSaveIsToldAndChangesNothing()
{
    Atelier atelier;
    atelier.Ouvre();
    const QStringList avant = atelier.Stockees();
    atelier.Txt(10).setText(QStringLiteral("Docteur NEIBRE"));
    atelier.Ordo().PoseCrochet(
        [](const QString& instruction) { return instruction.contains(QLatin1String("CouleurPET")); });
    atelier.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("n'a pas pu être enregistrée"));
    atelier.Clique("CmdEnregistrer");
    atelier.Ordo().PoseCrochet({});
    QCOMPARE(atelier.Stockees(), avant);
    QVERIFY(atelier.Modifie());
    QCOMPARE(atelier.Txt(10).text(), QStringLiteral("Docteur NEIBRE"));
}

void TestFrmEntete::UnreadableRowsAreNotWrittenOver()
{
    Atelier atelier;
    atelier.Etat.Bases.FermeOrdo();
    common::EcritFichier(common::Joint(atelier.Etat.Chemins.CheminMedecin, QStringLiteral("Ordo.mdb")),
                         "rien");
    atelier.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("Ordo.mdb"));
    atelier.Ouvre();
    QVERIFY(!atelier.Un<QPushButton>("CmdEnregistrer").isEnabled());
}

void TestFrmEntete::CloseBoxAndEscapeDoNothing()
{
    Atelier atelier;
    atelier.Ouvre();
    QVERIFY(!atelier.Fenetre->close());
    QVERIFY(atelier.Fenetre->isVisible());
    QTest::keyClick(atelier.Fenetre, Qt::Key_Escape);
    QVERIFY(atelier.Fenetre->isVisible());
}

void TestFrmEntete::LeavingKeepsTheEditsForTheRunAndOpensTheOptions()
{
    Atelier atelier;
    atelier.Ouvre();
    const QStringList avant = atelier.Stockees();
    atelier.Txt(0).setText(QStringLiteral("12 rue des Lilas"));
    bool options = false;
    QTimer::singleShot(0, &atelier.Etat.Signaux, [&] {
        auto* fenetre = atelier.Fenetres.Presente<FrmOptions>();
        options = fenetre && fenetre->isVisible();
        QVERIFY(!atelier.Fenetres.Presente<FrmEntete>());
        if (fenetre) {
            fenetre->done(0);
        }
    });
    atelier.Clique("CmdQuitter");
    QVERIFY(options);
    QCOMPARE(atelier.Stockees(), avant);
    atelier.Ouvre();
    QCOMPARE(atelier.Txt(0).text(), QStringLiteral("12 rue des Lilas"));
    QVERIFY(atelier.Modifie());
}

void TestFrmEntete::TheStoredLetterheadComesBackOnlyAfterAQuestion()
{
    Atelier atelier;
    atelier.Ouvre();
    auto& revient = atelier.Un<QPushButton>("CmdRevient");
    QVERIFY(!revient.isVisibleTo(atelier.Fenetre));
    atelier.Txt(0).setText(QStringLiteral("12 rue des Lilas"));
    atelier.Un<QLineEdit>("TxtMG").setText(QStringLiteral("30"));
    atelier.Boites.AttendInformation(messages::CouleurDeTouteLEntete()).AttendCouleur(page::Rvb(1, 2, 3));
    atelier.Clique("CmdCouleur");
    atelier.Boites.AttendQuestion(messages::RevenirAEnteteEnregistree(), outside::Bouton::Non,
                                  outside::Bouton::Non);
    revient.click();
    QCOMPARE(atelier.Txt(0).text(), QStringLiteral("12 rue des Lilas"));
    atelier.Boites.AttendQuestion(messages::RevenirAEnteteEnregistree(), outside::Bouton::Oui,
                                  outside::Bouton::Non);
    revient.click();
    QCOMPARE(atelier.Txt(0).text(), QStringLiteral("*"));
    QCOMPARE(atelier.Un<QLineEdit>("TxtMG").text(), QStringLiteral("10"));
    QCOMPARE(atelier.Etat.Reglages.Look.CouleurEntete, page::kNoir);
    QVERIFY(!atelier.Modifie());
    QVERIFY(!revient.isVisibleTo(atelier.Fenetre));
}

void TestFrmEntete::TheRowInHandIsExplained()
{
    Atelier atelier;
    atelier.Ouvre();
    const auto& effet = atelier.Un<QLabel>("LblEffet");
    atelier.Txt(5).setFocus();
    atelier.Txt(5).setText(QStringLiteral("Tél.*"));
    QVERIFY(effet.text().contains(QStringLiteral("à la suite")));
    atelier.Txt(6).setFocus();
    atelier.Txt(6).setText(QStringLiteral("02 99"));
    QVERIFY(effet.text().contains(QLatin1String("recouvrir")));
    atelier.Txt(6).setText(QStringLiteral("02 99$"));
    QVERIFY(!effet.text().contains(QLatin1String("recouvrir")));
}

void TestFrmEntete::EnterGoesToTheNextRow()
{
    Atelier atelier;
    atelier.Ouvre();
    atelier.Txt(0).setFocus();
    QTest::keyClick(&atelier.Txt(0), Qt::Key_Return);
    QCOMPARE(atelier.Fenetre->focusWidget(), &atelier.Txt(1));
    QCOMPARE(atelier.Etat.Reglages.SaisieEntete.LigneCourante, qint16(1));
}

int main(int nombre, char** arguments)
{
    return support::LanceTest<TestFrmEntete>(nombre, arguments);
}

#include "test_frm_entete.moc"
