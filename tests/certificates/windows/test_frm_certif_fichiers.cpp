#include "certificates/windows/PosteCertif.h"

using namespace certificates;
using outside::Bouton;
using Poste = support::PosteCertif;

class TestFrmCertifFichiers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SaveOver();
    void SaveUnderAnotherName();
    void AButtonThatGreysItselfLeavesTheFocusToTheText();
    void SavingUnderANameLeavesTheFocusToTheList();
    void Delete();
    void Font();
    void WriteToThePage();
    void WithoutADoctor();
    void Leaving();
    void ComingBack();
    void EveryCharacterIsKept_data();
    void EveryCharacterIsKept();
    void AFailedSaveIsTold();
};

void TestFrmCertifFichiers::SaveOver()
{
    Poste poste;
    poste.Choisit(1);
    poste.Clic("CmdDecD");
    poste.Clic("CmdEnr");
    auto* menu = poste.C<QMenu>("mnuEnregistrement");
    QVERIFY(menu->isVisible());
    QCOMPARE(menu->actions().size(), 2);
    poste.F().findChild<QAction*>(QStringLiteral("mnuEnr"))->trigger();
    menu->hide();
    QCOMPARE(poste.Octets(QStringLiteral("Sport.txt")), QByteArray("      Apte\r\n      <N>\r\n"));
    QCOMPARE(poste.Octets(QStringLiteral("Sport.cfg")), QByteArray("6,0\r\n"));
    QVERIFY(!poste.C("CmdEnr")->isEnabled());
    QCOMPARE(poste.Rang(), 1);
}

void TestFrmCertifFichiers::SaveUnderAnotherName()
{
    Poste poste;
    poste.Tape(QStringLiteral("Nouveau"));
    poste.Boites.AttendEnregistre(messages::TitreEnregistrement(), poste.Fichier(QStringLiteral("Bilan")));
    poste.Clic("CmdEnr");
    QCOMPARE(poste.Octets(QStringLiteral("Bilan.txt")), QByteArray("Nouveau"));
    QCOMPARE(poste.Liste()->model()->index(1, 0).data().toString(), QStringLiteral("Bilan"));
    QCOMPARE(poste.Rang(), -1);
    QCOMPARE(poste.Texte(), QStringLiteral("Nouveau"));
    QCOMPARE(poste.Actifs(), QString());
    poste.Choisit(2);
    poste.Boites.AttendEnregistre(messages::TitreEnregistrement(), std::nullopt);
    poste.F().findChild<QAction*>(QStringLiteral("mnuEnrSous"))->trigger();
    QCOMPARE(poste.Rang(), 2);
    QVERIFY(poste.C("CmdEnr")->isEnabled());
}

void TestFrmCertifFichiers::AButtonThatGreysItselfLeavesTheFocusToTheText()
{
    Poste poste;
    poste.Choisit(0);
    poste.C("CmdEnr")->setFocus();
    poste.F().findChild<QAction*>(QStringLiteral("mnuEnr"))->trigger();
    QCOMPARE(poste.F().focusWidget(), poste.Zone());
    poste.C("CmdDecG")->setFocus();
    QTest::keyClick(poste.C("CmdDecG"), Qt::Key_Space);
    QVERIFY(!poste.C("CmdDecG")->isEnabled());
    QCOMPARE(poste.F().focusWidget(), poste.Zone());
    poste.C("CmdAnnule")->setFocus();
    QTest::keyClick(poste.C("CmdAnnule"), Qt::Key_Space);
    QCOMPARE(poste.F().focusWidget(), poste.Zone());
}

void TestFrmCertifFichiers::SavingUnderANameLeavesTheFocusToTheList()
{
    Poste poste;
    poste.Tape(QStringLiteral("Nouveau"));
    poste.C("CmdEnr")->setFocus();
    poste.Boites.AttendEnregistre(messages::TitreEnregistrement(), poste.Fichier(QStringLiteral("Bilan")));
    QTest::keyClick(poste.C("CmdEnr"), Qt::Key_Space);
    QCOMPARE(poste.F().focusWidget(), poste.Liste());
}

void TestFrmCertifFichiers::Delete()
{
    Poste poste;
    poste.Boites.AttendInformation(messages::SelectionnezLeModele());
    poste.Clic("CmdSupp");
    poste.Choisit(1);
    poste.Boites.AttendQuestion(QStringLiteral("Supprimer Sport.txt ?"), Bouton::Oui, Bouton::Non);
    poste.Clic("CmdSupp");
    QCOMPARE(poste.Liste()->model()->rowCount(), 2);
    QCOMPARE(poste.Rang(), -1);
    QCOMPARE(poste.Texte(), QString());
    QVERIFY(!common::FichierExiste(poste.Fichier(QStringLiteral("Sport.cfg"))));
}

void TestFrmCertifFichiers::Font()
{
    Poste poste;
    poste.Boites.AttendPolice(page::Police{QStringLiteral("Times New Roman"), 12, true, false, false});
    poste.Clic("CmdPolice");
    QCOMPARE(poste.C<QLabel>("LblF")->text(), QStringLiteral("Times New Roman  (12  G    )"));
    QCOMPARE(poste.Zone()->font().family(), QStringLiteral("Times New Roman"));
    QVERIFY(poste.Zone()->font().bold());
}

void TestFrmCertifFichiers::WriteToThePage()
{
    Poste poste;
    poste.Choisit(1);
    QTest::mouseDClick(poste.Liste()->viewport(), Qt::LeftButton, {}, poste.Place(1));
    QVERIFY(!poste.F().isVisible());
    QCOMPARE(poste.Octets(QStringLiteral("Tmp.txt")), QByteArray("    Apte\r\n    <N>\r\n"));
    QCOMPARE(poste.Etat.Apercu.ModeApercu, 1);
    QCOMPARE(poste.Certif().IndexCertif, 1);
    QCOMPARE(poste.Certif().DecalageCertif, 4.0);
}

void TestFrmCertifFichiers::WithoutADoctor()
{
    Poste poste;
    poste.Etat.Chemins.CheminMedecin.clear();
    poste.Choisit(0);
    poste.Boites.AttendInformation(messages::SansMedecin());
    poste.Clic("CmdEcrire");
    QVERIFY(poste.F().isVisible());
    QVERIFY(!common::FichierExiste(poste.Fichier(QStringLiteral("Tmp.txt"))));
}

void TestFrmCertifFichiers::Leaving()
{
    Poste poste;
    poste.Tape(QStringLiteral("gardé"));
    QTest::keyClick(poste.Zone(), Qt::Key_Escape);
    QVERIFY(!poste.F().isVisible());
    QCOMPARE(poste.Etat.Apercu.ModeApercu, 2);
    poste.F().show();
    poste.Etat.Apercu.ModeApercu = 1;
    poste.F().close();
    QCOMPARE(poste.Etat.Apercu.ModeApercu, 2);
    QCOMPARE(poste.Texte(), QStringLiteral("gardé"));
}

void TestFrmCertifFichiers::ComingBack()
{
    Poste poste;
    poste.Choisit(1);
    poste.Clic("CmdDecD");
    poste.Clic("CmdEcrire");
    EcritModele(poste.Travail(), QStringLiteral("Bilan"), {}, {}); // another station's
    QTimer::singleShot(0, &poste.F(), [&] {
        const auto ferme = qScopeGuard([&] { poste.F().reject(); });
        QCOMPARE(poste.Rang(), 2);
        QCOMPARE(poste.Texte(), QStringLiteral("      Apte\r\n      <N>\r\n"));
        QCOMPARE(poste.Certif().DecalageCertif, 6.0);
        QVERIFY(poste.C("CmdEcrire")->isEnabled());
    });
    poste.F().Reprend();
    QCOMPARE(poste.Etat.Apercu.ModeApercu, 2);
}

void TestFrmCertifFichiers::EveryCharacterIsKept_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::newRow("no-break blank") << QByteArray("37\xA0\xB0\r\n");
    QTest::newRow("lone line feed") << QByteArray("a\nb\r\n");
    QTest::newRow("tab") << QByteArray("a\tb");
    QTest::newRow("blank lines") << QByteArray("\r\n\r\na\r\n\r\n");
    QTest::newRow("a megabyte") << QByteArray("Je soussign\xE9\r\n").repeated(75'000);
}

void TestFrmCertifFichiers::EveryCharacterIsKept()
{
    QFETCH(QByteArray, octets);
    Poste poste;
    common::EcritFichier(poste.Fichier(QStringLiteral("Sport.txt")), octets);
    poste.Choisit(1);
    poste.F().findChild<QAction*>(QStringLiteral("mnuEnr"))->trigger();
    QCOMPARE(poste.Octets(QStringLiteral("Sport.txt")), octets);
}

void TestFrmCertifFichiers::AFailedSaveIsTold()
{
    Poste poste;
    poste.Choisit(1);
    common::SupprimeFichier(poste.Fichier(QStringLiteral("Sport.txt")));
    common::CreeDossier(poste.Fichier(QStringLiteral("Sport.txt")));
    poste.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("Sport.txt"));
    poste.F().findChild<QAction*>(QStringLiteral("mnuEnr"))->trigger();
    QVERIFY(poste.C("CmdEnr")->isEnabled());
}

int main(int nombre, char** arguments)
{
    return support::LanceTest<TestFrmCertifFichiers>(nombre, arguments);
}

#include "test_frm_certif_fichiers.moc"
