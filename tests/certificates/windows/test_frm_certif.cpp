#include "certificates/windows/PosteCertif.h"

using namespace certificates;
using outside::Bouton;
using Poste = support::PosteCertif;

class TestFrmCertif : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AtOpening();
    void Captions();
    void ChoosingATemplate();
    void ATemplateWithoutRecord();
    void ATemplateThatIsGone();
    void AnAldTemplateIsNotWiped();
    void TheAldBoxWipesAndUndoBringsBack();
    void ShiftAndBack();
    void ShiftLeftRefuses();
    void UndoOfAShiftKeepsStep();
    void Macros_data();
    void Macros();
    void NewText();
    void CopySelection();
    void TheAldSheetStandsOnItsLines();
    void Pictures();
};

void TestFrmCertif::AtOpening()
{
    Poste poste;
    QCOMPARE(poste.Liste()->model()->rowCount(), 3);
    QCOMPARE(poste.Rang(), -1);
    QCOMPARE(poste.Texte(), QString());
    QCOMPARE(poste.Actifs(), QString());
    QVERIFY(poste.C<QRadioButton>("Optsp(1)")->isChecked());
    QCOMPARE(poste.C<QLabel>("LblF")->text(), QStringLiteral("Arial  (10      )"));
    poste.Liste()->setFocus();
    QCOMPARE(
        support::OrdreTab(poste.F()).join(u' '),
        QStringLiteral("LstCertif CmdNouveau CmdEnr CmdSupp ChkALD ChkP Lblmacro(0) Lblmacro(1) Lblmacro(2) "
                       "Lblmacro(3) Lblmacro(4) Lblmacro(5) Lblmacro(6) Optsp(0) Optsp(1) Optsp(2) Optsp(3) "
                       "TxtCert CmdDecG CmdDecD "
                       "CmdAnnule CmdPolice CmdPP CmdAide cmdInfo Image1 CmdAnn CmdEcrire"));
}

void TestFrmCertif::Captions()
{
    Poste poste;
    QStringList legendes;
    for (int i = 0; i < 7; ++i) {
        auto* macro = poste.C(qPrintable(QStringLiteral("Lblmacro(%1)").arg(i)));
        legendes += macro->text().remove(u'&');
        QCOMPARE(macro->toolTip(), QStringLiteral(" Un click pour mettre la macro dans le texte. "));
    }
    QCOMPARE(legendes.join(u' '), QStringLiteral("<N> <DN> <DJ> <AD> <DR> <EL> <NBsp>"));
    poste.Boites.AttendInformation(messages::Aide())
        .AttendInformation(messages::InsertionDesMacros())
        .AttendInformation(messages::Formatage());
    for (const char* aide : {"CmdAide", "cmdInfo", "Image1"}) {
        poste.Clic(aide);
    }
    poste.Clic("ChkP");
    QCOMPARE(poste.Certif().IdentiteCertif, 1);
    QCOMPARE(poste.F().focusWidget()->objectName(), QStringLiteral("CmdNouveau"));
}

void TestFrmCertif::ChoosingATemplate()
{
    Poste poste;
    poste.Choisit(1);
    QCOMPARE(poste.Texte(), QStringLiteral("    Apte\r\n    <N>\r\n"));
    QCOMPARE(poste.Certif().DecalageCertif, 4.0);
    QCOMPARE(poste.Actifs(), QStringLiteral("CmdDecG CmdDecD CmdEnr CmdEcrire"));
    QCOMPARE(poste.Zone()->textCursor().position(), 0);
    poste.Tape(QStringLiteral("brouillon"));
    poste.Choisit(1); // the same once more reads it again
    QCOMPARE(poste.Texte(), QStringLiteral("    Apte\r\n    <N>\r\n"));
    QTest::keyClick(poste.Liste(), Qt::Key_Up);
    QCOMPARE(poste.Texte(), QStringLiteral("Je soussigné\r\n\r\n<DR>"));
    QCOMPARE(poste.Certif().DecalageCertif, 0.0);
}

void TestFrmCertif::ATemplateWithoutRecord()
{
    Poste poste;
    common::SupprimeFichier(poste.Fichier(QStringLiteral("Arrêt.cfg")));
    poste.Choisit(2);
    poste.Certif().DecalageCertif = 6;
    poste.Choisit(0);
    QCOMPARE(poste.Certif().DecalageCertif, 6.0);
    QCOMPARE(poste.Certif().CertifALD, 1);
    QVERIFY(poste.C<QCheckBox>("ChkALD")->isChecked());
    QCOMPARE(poste.Texte(), QStringLiteral("Je soussigné\r\n\r\n<DR>"));
}

void TestFrmCertif::ATemplateThatIsGone()
{
    Poste poste;
    poste.Choisit(0);
    common::SupprimeFichier(poste.Fichier(QStringLiteral("Sport.txt")));
    poste.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("Sport.txt"));
    poste.Choisit(1);
    QCOMPARE(poste.Rang(), -1);
    QCOMPARE(poste.Texte(), QStringLiteral("Je soussigné\r\n\r\n<DR>"));
    QCOMPARE(poste.Certif().DecalageCertif, 0.0);
    poste.Tape(QStringLiteral("tapé"));
    QCOMPARE(poste.Rang(), -1);
}

void TestFrmCertif::AnAldTemplateIsNotWiped()
{
    Poste poste;
    poste.Choisit(2);
    QCOMPARE(poste.Texte(), BandeauALD1());
    QVERIFY(poste.C<QCheckBox>("ChkALD")->isChecked());
    QCOMPARE(poste.Certif().ChargeCertif, 0);
    QCOMPARE(poste.Actifs(), QStringLiteral("CmdEnr CmdEcrire"));
    poste.Choisit(1);
    QVERIFY(!poste.C<QCheckBox>("ChkALD")->isChecked());
    QCOMPARE(poste.Texte(), QStringLiteral("    Apte\r\n    <N>\r\n"));
}

void TestFrmCertif::TheAldBoxWipesAndUndoBringsBack()
{
    Poste poste;
    poste.Choisit(1);
    poste.Tape(QStringLiteral("tapé"));
    const QString avant = poste.Texte();
    poste.Clic("ChkALD");
    QCOMPARE(poste.Texte(),
             BandeauALD1() + QStringLiteral("\r\n").repeated(5) + BandeauALD2() + QStringLiteral("\r\n"));
    QCOMPARE(poste.Certif().CertifALD, 1);
    QCOMPARE(poste.Certif().DecalageCertif, 0.0);
    QCOMPARE(poste.Actifs(), QStringLiteral("CmdEnr CmdEcrire"));
    QCOMPARE(poste.F().focusWidget()->objectName(), QStringLiteral("CmdEcrire"));
    poste.Zone()->undo();
    QCOMPARE(poste.Texte(), avant);
    QCOMPARE(poste.Certif().CertifALD, 0);
    QCOMPARE(poste.Certif().DecalageCertif, 4.0);
    QVERIFY(!poste.C<QCheckBox>("ChkALD")->isChecked());
    poste.Zone()->redo();
    QVERIFY(poste.C<QCheckBox>("ChkALD")->isChecked());
    poste.Clic("ChkALD");
    QCOMPARE(poste.Texte(), QString());
    QCOMPARE(poste.Certif().CertifALD, 0);
    QCOMPARE(poste.Actifs(), QStringLiteral("CmdDecG CmdDecD CmdEnr"));
    QCOMPARE(poste.F().focusWidget()->objectName(), QStringLiteral("CmdNouveau"));
}

void TestFrmCertif::ShiftAndBack()
{
    Poste poste;
    poste.Choisit(0);
    poste.Clic("CmdDecD");
    poste.Clic("CmdDecD");
    QCOMPARE(poste.Texte(), QStringLiteral("    Je soussigné\r\n    \r\n    <DR>\r\n"));
    QCOMPARE(poste.Certif().DecalageCertif, 4.0);
    QCOMPARE(poste.Actifs(), QStringLiteral("CmdAnnule CmdDecG CmdDecD CmdEnr CmdEcrire"));
    poste.Clic("CmdDecG");
    QCOMPARE(poste.Texte(), QStringLiteral("  Je soussigné\r\n  \r\n  <DR>\r\n"));
    QCOMPARE(poste.Certif().DecalageCertif, 2.0);
    poste.Clic("CmdAnnule");
    QCOMPARE(poste.Texte(), QStringLiteral("Je soussigné\r\n\r\n<DR>"));
    QCOMPARE(poste.Certif().DecalageCertif, 0.0);
    QVERIFY(!poste.C("CmdAnnule")->isEnabled());
}

void TestFrmCertif::ShiftLeftRefuses()
{
    Poste poste;
    poste.Choisit(0);
    poste.Clic("CmdDecG");
    QCOMPARE(poste.Texte(), QStringLiteral("Je soussigné\r\n\r\n<DR>"));
    QCOMPARE(poste.Certif().DecalageCertif, 0.0);
    QCOMPARE(poste.Actifs(), QStringLiteral("CmdAnnule CmdDecD CmdEnr CmdEcrire"));
    poste.Clic("CmdAnnule");
    QVERIFY(poste.C("CmdDecG")->isEnabled());
}

void TestFrmCertif::UndoOfAShiftKeepsStep()
{
    Poste poste;
    poste.Choisit(0);
    poste.Clic("CmdDecD");
    poste.Clic("CmdDecD");
    poste.Zone()->undo();
    QCOMPARE(poste.Certif().DecalageCertif, 2.0);
    poste.Zone()->undo();
    QCOMPARE(poste.Certif().DecalageCertif, 0.0);
    QCOMPARE(poste.Rang(), 0);
    poste.Zone()->undo();
    QCOMPARE(poste.Texte(), QString());
    QCOMPARE(poste.Rang(), -1);
}

void TestFrmCertif::Macros_data()
{
    QTest::addColumn<int>("macro");
    QTest::addColumn<int>("option");
    QTest::addColumn<QString>("texte");
    QTest::newRow("N") << 0 << 1 << " <N>";
    QTest::newRow("EL") << 5 << 0 << " <EL>";
    QTest::newRow("NBsp") << 6 << 1 << QString(50, u' ');
    QTest::newRow("NBsp 100") << 6 << 3 << QString(100, u' ');
}

void TestFrmCertif::Macros()
{
    QFETCH(int, macro);
    QFETCH(int, option);
    QFETCH(QString, texte);
    Poste poste;
    poste.Choisit(0);
    QTextCursor caret = poste.Zone()->textCursor();
    caret.setPosition(2);
    poste.Zone()->setTextCursor(caret);
    poste.Clic(qPrintable(QStringLiteral("Optsp(%1)").arg(option)));
    poste.Clic(qPrintable(QStringLiteral("Lblmacro(%1)").arg(macro)));
    QCOMPARE(poste.Texte(), QStringLiteral("Je") + texte + QStringLiteral(" soussigné\r\n\r\n<DR>"));
    QCOMPARE(QGuiApplication::clipboard()->text(), texte);
    QCOMPARE(poste.F().focusWidget(), poste.Zone());
    QCOMPARE(poste.Zone()->textCursor().position(), 2 + texte.size());
}

void TestFrmCertif::NewText()
{
    Poste poste;
    poste.Choisit(1);
    poste.Boites.AttendInformation(messages::EcrivezLeTexte());
    poste.Clic("CmdNouveau");
    QCOMPARE(poste.Texte(), QString());
    QCOMPARE(poste.Certif().DecalageCertif, 0.0);
    QCOMPARE(poste.Actifs(), QStringLiteral("CmdDecG CmdDecD CmdEnr"));
    QCOMPARE(poste.F().focusWidget(), poste.Zone());
    poste.Tape(QStringLiteral("a"));
    QVERIFY(poste.C("CmdEcrire")->isEnabled());
}

void TestFrmCertif::CopySelection()
{
    Poste poste;
    poste.Choisit(0);
    poste.Boites.Attend(outside::Genre::Exclamation, messages::PasDeSelection(), Bouton::OK);
    poste.Clic("CmdPP");
    poste.Zone()->selectAll();
    poste.Boites.AttendInformation(messages::SelectionCopiee());
    poste.Clic("CmdPP");
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Je soussigné\n\n<DR>"));
}

void TestFrmCertif::TheAldSheetStandsOnItsLines()
{
    Poste poste;
    poste.Clic("ChkALD");
    QCOMPARE(poste.Zone()->horizontalScrollBar()->maximum(), 0);
    for (QTextBlock bloc = poste.Zone()->document()->begin(); bloc.isValid(); bloc = bloc.next()) {
        const auto sauts = bloc.text().count(QChar(QChar::LineSeparator));
        QCOMPARE(bloc.layout()->lineCount(), static_cast<int>(sauts) + 1);
    }
}

void TestFrmCertif::Pictures()
{
    Poste poste;
    poste.Choisit(1);
    support::Capture(poste.F(), QStringLiteral("FrmCertif, modele"));
    poste.Clic("ChkALD");
    support::Capture(poste.F(), QStringLiteral("FrmCertif, ALD"));
    poste.F().resize(poste.F().minimumSizeHint());
    QCoreApplication::processEvents();
    support::Capture(poste.F(), QStringLiteral("FrmCertif, petite"));
}

int main(int nombre, char** arguments)
{
    return support::LanceTest<TestFrmCertif>(nombre, arguments);
}

#include "test_frm_certif.moc"
