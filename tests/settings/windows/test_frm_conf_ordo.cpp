#include "settings/windows/ConfDeTest.h"
#include "startup/windows/ProgrammeDeTest.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using namespace settings;

class TestFrmConfOrdo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheStateAtOpening();
    void TheControlsFollowTheTabOrder();
    void EveryTextBoxSelectsItself();
    void TheCloseBoxAndEscapeAreRefused();
    void TheSampleFollowsItsTriggers();
    void TheTopMarginChangesAtOnce();
    void AnOddTopMarginHasItsOwnItem();
    void TheCustomHeightIsAskedFor();
    void CancellingTheHeightClearsTheBox();
    void LeavingTheHeightEmptyWarns();
    void NoCommandPassesAnEmptyHeight();
    void TheFontOfTheRowInFocus();
    void SavingShowsWhatIsStored();
    void AnOversizedMarginGetsTheFocus();
    void BackRepaintsAndReloads();
    void HiddenItFollowsTheSettings();
    void ShownItFollowsTheHeightMenus();
    void TheHeightShowsWhatACertificatePutThere();
    void ATornMarginStopsNoPainting();
    void Picture();
};

void TestFrmConfOrdo::TheStateAtOpening()
{
    ConfDeTest conf(Personnalise);
    QCOMPARE(conf.Fenetre->windowTitle(), u"   Mise enpage de l'ordonnance"_s);
    QCOMPARE(conf.Un<QComboBox>("CboInt").count(), 4);
    QCOMPARE(conf.Un<QComboBox>("CboInt").currentText(), u"2"_s);
    QCOMPARE(conf.Un<QComboBox>("CboM").count(), 10);
    QCOMPARE(conf.Un<QComboBox>("CboM").itemText(9), u"150"_s);
    QCOMPARE(conf.Un<QComboBox>("CboM").currentText(), u"100"_s);
    QCOMPARE(conf.Champ("TxtLF").text(), u"210"_s);
    QVERIFY(conf.Champ("TxtLF").isReadOnly());
    QCOMPARE(conf.Champ("TxtHF").text(), u"297"_s);
    QCOMPARE(conf.Champ("TxtM").text(), u"20"_s);
    QVERIFY(conf.Un<QCheckBox>("ChKSLP").isChecked());
    QCOMPARE(conf.Champ("TxtSLP").text(), u"2,5"_s);
    QVERIFY(conf.Champ("TxtSLP").isEnabled());
    QCOMPARE(conf.Champ("Txt(0)").text(), u"    BIRODOGYL cp pelliculé : B/10"_s);
    QCOMPARE(conf.Champ("Txt(1)").text(), u"    1 comprimé matin , midi et soir"_s);
    QCOMPARE(conf.Un<QLabel>("LblMed(0)").text(), u"Arial(G)"_s);
    QCOMPARE(conf.Un<QLabel>("LblMed(1)").text(), u"Arial()"_s);
    QCOMPARE(int(conf.Etat.Reglages.ConfOrdoActive), 1);
    QCOMPARE(conf.Echantillon().size(), 4);
    QVERIFY(!conf.Modifie());
    QVERIFY(conf.Un<QPushButton>("CmdEnregistrer").isDefault());
}

void TestFrmConfOrdo::TheControlsFollowTheTabOrder()
{
    ConfDeTest conf(Personnalise);
    QCOMPARE(support::OrdreTab(*conf.Fenetre),
             (QStringList{u"CboM"_s,      u"TxtM"_s,    u"TxtL"_s,    u"CboInt"_s,    u"ChkS"_s,
                          u"ChKSLP"_s,    u"TxtSLP"_s,  u"TxtE"_s,    u"TxtG"_s,      u"TxtHD"_s,
                          u"TxtGD"_s,     u"TxtHddn"_s, u"TxtGddn"_s, u"Txt(0)"_s,    u"Txt(1)"_s,
                          u"CmdPolice"_s, u"TxtLF"_s,   u"TxtHF"_s,   u"CmdRetour"_s, u"CmdEnregistrer"_s}));
}

void TestFrmConfOrdo::EveryTextBoxSelectsItself()
{
    ConfDeTest conf(Personnalise);
    for (auto* champ : conf.Fenetre->findChildren<QLineEdit*>()) {
        champ->setFocus(Qt::TabFocusReason);
        QVERIFY2(champ->selectedText() == champ->text() && !champ->text().isEmpty(),
                 qPrintable(champ->objectName()));
    }
    conf.Clique("TxtL");
    QCOMPARE(conf.Champ("TxtL").selectedText(), u"170"_s);
}

void TestFrmConfOrdo::TheCloseBoxAndEscapeAreRefused()
{
    ConfDeTest conf;
    QVERIFY(!conf.Fenetre->close());
    QTest::keyClick(conf.Fenetre, Qt::Key_Escape);
    QVERIFY(conf.Fenetre->isVisible());
}

void TestFrmConfOrdo::TheSampleFollowsItsTriggers()
{
    ConfDeTest conf;
    const auto y = [&](int rang) { return conf.Echantillon().value(rang).Y; };
    QCOMPARE(conf.Echantillon().value(0).X, 10.0);
    conf.Saisit("TxtM", u"25,8"_s);
    QCOMPARE(conf.Echantillon().value(0).X, 10.0);
    conf.Quitte("TxtL");
    QCOMPARE(conf.Echantillon().value(0).X, 12.5);
    const double ligne = y(1) - y(0);
    conf.Clique("ChkS");
    QVERIFY(qAbs(y(1) - y(0) - 2 * ligne) < 1e-9);
    QCOMPARE(int(conf.Etat.Reglages.Options.SautTitrePoso), 0); // stored by CmdEnregistrer alone
    const double deux = y(2) - y(1);
    conf.Un<QComboBox>("CboInt").setFocus();
    QTest::keyClick(&conf.Un<QComboBox>("CboInt"), Qt::Key_Down);
    QVERIFY(y(2) - y(1) > deux);
    QCOMPARE(int(conf.Etat.Reglages.Options.SautsPrescription), 2);
    const QString avant = support::EnTexte(conf.Un<page::Feuille>("PctMeP").DessinMontre());
    conf.Saisit("TxtL", u"30"_s);
    conf.Quitte("TxtE");
    QCOMPARE(support::EnTexte(conf.Un<page::Feuille>("PctMeP").DessinMontre()), avant);
}

void TestFrmConfOrdo::TheTopMarginChangesAtOnce()
{
    ConfDeTest conf;
    conf.Un<QComboBox>("CboM").setFocus();
    QTest::keyClick(&conf.Un<QComboBox>("CboM"), Qt::Key_Down);
    QCOMPARE(conf.Etat.Reglages.Marges.MargeHauteOrdo, 110.0F);
    QVERIFY(conf.Modifie());
}

void TestFrmConfOrdo::AnOddTopMarginHasItsOwnItem()
{
    ConfDeTest conf([](ConfDeTest& c) { c.Etat.Reglages.Marges.MargeHauteOrdo = 95.5F; });
    auto& liste = conf.Un<QComboBox>("CboM");
    QCOMPARE(liste.currentText(), u"95,5"_s);
    QCOMPARE(liste.currentIndex(), 4);
    QCOMPARE(liste.count(), 11);
    conf.Boites.AttendInformation(messages::MiseEnPageEnregistree());
    conf.Clique("CmdEnregistrer");
    QCOMPARE(conf.Etat.Reglages.Marges.MargeHauteOrdo, 95.5F);
}

void TestFrmConfOrdo::TheCustomHeightIsAskedFor()
{
    ConfDeTest conf;
    QVERIFY(!conf.Champ("TxtSLP").isEnabled());
    conf.Boites.AttendSaisie(messages::InviteHauteur(), u"3.5"_s, u"0"_s);
    conf.Clique("ChKSLP");
    QVERIFY(conf.Un<QCheckBox>("ChKSLP").isChecked());
    QVERIFY(conf.Champ("TxtSLP").isEnabled());
    QCOMPARE(conf.Champ("TxtSLP").text(), u"3,5"_s);
    QVERIFY(conf.Modifie());
    conf.Clique("ChKSLP");
    QVERIFY(!conf.Un<QCheckBox>("ChKSLP").isChecked());
    QVERIFY(!conf.Champ("TxtSLP").isEnabled());
    QCOMPARE(conf.Champ("TxtSLP").text(), QString());
    QVERIFY(!conf.Modifie());
}

void TestFrmConfOrdo::CancellingTheHeightClearsTheBox()
{
    ConfDeTest conf;
    conf.Boites.AttendSaisie(messages::InviteHauteur(), QString(), u"0"_s)
        .AttendSaisie(messages::InviteHauteur(), std::nullopt, u"0"_s);
    for (int essai = 0; essai < 2; ++essai) {
        conf.Clique("ChKSLP");
        QVERIFY(!conf.Un<QCheckBox>("ChKSLP").isChecked());
        QVERIFY(!conf.Champ("TxtSLP").isEnabled());
        QCOMPARE(int(conf.Etat.Reglages.Options.SautPersonnalise), 0);
    }
}

void TestFrmConfOrdo::LeavingTheHeightEmptyWarns()
{
    ConfDeTest conf(Personnalise);
    conf.Saisit("TxtSLP", {});
    conf.Boites.Attend(outside::Genre::Exclamation, messages::HauteurOubliee(), outside::Bouton::OK);
    conf.Quitte("TxtM");
    QVERIFY(conf.Boites.Epuise());
    QVERIFY(conf.Champ("TxtSLP").hasFocus());
    conf.Saisit("TxtSLP", u"4.5"_s);
    conf.Quitte("TxtM");
    QCOMPARE(conf.Champ("TxtSLP").text(), u"4,5"_s);
    QVERIFY(conf.Champ("TxtM").hasFocus());
    QCOMPARE(conf.Etat.Reglages.Marges.HauteurSaut, 4.5F);
}

void TestFrmConfOrdo::NoCommandPassesAnEmptyHeight()
{
    for (const char* commande : {"CmdEnregistrer", "CmdRetour", "ChKSLP"}) {
        ConfDeTest conf(Personnalise);
        conf.Saisit("TxtSLP", {});
        conf.Boites.Attend(outside::Genre::Exclamation, messages::HauteurOubliee(), outside::Bouton::OK);
        conf.Clique(commande);
        QVERIFY2(conf.Boites.Epuise(), commande);
        QVERIFY2(conf.Fenetre->isVisible(), commande);
        QVERIFY2(conf.Champ("TxtSLP").hasFocus(), commande);
        QVERIFY2(conf.Un<QCheckBox>("ChKSLP").isChecked(), commande);
        QCOMPARE(int(conf.Etat.Reglages.Options.SautPersonnalise), 1);
    }
}

void TestFrmConfOrdo::TheFontOfTheRowInFocus()
{
    ConfDeTest conf;
    conf.Boites
        .AttendPolice(page::Police{.Nom = u"Courier New"_s, .Taille = 12, .Gras = true, .Souligne = true})
        .AttendPolice(std::nullopt);
    conf.Clique("Txt(1)");
    QCOMPARE(conf.Etat.Reglages.TxtCourant, 1);
    conf.Clique("CmdPolice");
    QCOMPARE(conf.Un<QLabel>("LblMed(1)").text(), u"Courier New  (12  G    U)"_s);
    const QFont police = conf.Champ("Txt(1)").font();
    QCOMPARE(police.family(), u"Courier New"_s);
    QCOMPARE(police.pointSizeF(), 12.0);
    QVERIFY(police.bold() && police.underline() && !police.italic());
    QCOMPARE(conf.Echantillon().value(1).Police.Nom, u"Courier New"_s);
    QCOMPARE(conf.Echantillon().value(0).Police.Nom, u"Arial"_s);
    QVERIFY(conf.Modifie());
    QCOMPARE(conf.Etat.Reglages.Look.Poso.Nom, u"Arial"_s);
    conf.Clique("CmdPolice");
    QCOMPARE(conf.Un<QLabel>("LblMed(1)").text(), u"Courier New  (12  G    U)"_s);
}

void TestFrmConfOrdo::SavingShowsWhatIsStored()
{
    ConfDeTest conf;
    conf.Boites.AttendInformation(messages::MiseEnPageEnregistree());
    conf.Saisit("TxtM", u"12,9"_s);
    conf.Saisit("TxtE", u"70.6"_s);
    conf.Clique("CmdEnregistrer");
    QVERIFY(conf.Fenetre->isVisible());
    QCOMPARE(conf.Champ("TxtM").text(), u"12"_s);
    QCOMPARE(conf.Champ("TxtE").text(), u"71"_s);
    QVERIFY(!conf.Modifie());
}

void TestFrmConfOrdo::AnOversizedMarginGetsTheFocus()
{
    ConfDeTest conf;
    conf.Boites.AttendStop(messages::ValeurTropGrande(u"Marge haute impression patient"_s, u"99999"_s));
    conf.Saisit("TxtE", u"99999"_s);
    conf.Clique("CmdEnregistrer");
    QVERIFY(conf.Champ("TxtE").hasFocus());
    QVERIFY(conf.Modifie());
}

void TestFrmConfOrdo::BackRepaintsAndReloads()
{
    ConfDeTest conf;
    conf.Saisit("TxtM", u"33"_s);
    conf.Etat.Apercu.PctOrdo = {};
    bool options = false;
    QTimer fin; // the options wait for their own end
    connect(&fin, &QTimer::timeout, &fin, [&] {
        auto* fenetre = conf.Fenetres.Presente<FrmOptions>();
        options = fenetre && fenetre->isVisible();
        if (options) {
            fin.stop();
            fenetre->done(0);
        }
    });
    fin.start(1);
    conf.Clique("CmdRetour");
    QTRY_VERIFY(options);
    QVERIFY(!conf.Fenetre->isVisible());
    QCOMPARE(int(conf.Etat.Reglages.ConfOrdoActive), 0);
    QVERIFY(!conf.Etat.Apercu.PctOrdo.Items.isEmpty());
    conf.Fenetre->show();
    QCOMPARE(conf.Champ("TxtM").text(), u"20"_s);
}

void TestFrmConfOrdo::HiddenItFollowsTheSettings()
{
    ConfDeTest conf;
    conf.Fenetre->hide();
    conf.Boites.AttendSaisie(messages::InviteHauteur(), u"2.5"_s, u"0"_s);
    prescription::FixeHauteurPersonnelle(conf.Contexte);
    QVERIFY(conf.Un<QCheckBox>("ChKSLP").isChecked());
    QCOMPARE(conf.Champ("TxtSLP").text(), u"2,5"_s);
    prescription::RetablitHauteurNormale(conf.Contexte);
    QVERIFY(!conf.Un<QCheckBox>("ChKSLP").isChecked());
    QCOMPARE(conf.Champ("TxtSLP").text(), QString());
    conf.Fenetre->show();
    QVERIFY(!conf.Modifie());
}

// The tray's menu stays within reach while the window is open.
void TestFrmConfOrdo::ShownItFollowsTheHeightMenus()
{
    ConfDeTest conf;
    conf.Boites.AttendSaisie(messages::InviteHauteur(), u"9.5"_s, u"0"_s)
        .AttendSaisie(messages::InviteHauteur(), u"9.5"_s, u"9,5"_s);
    prescription::FixeHauteurPersonnelle(conf.Contexte);
    QVERIFY(!conf.Modifie()); // the menu has written it
    prescription::RetablitHauteurNormale(conf.Contexte);
    QVERIFY(!conf.Modifie());
    const double avant = conf.Echantillon().value(2).Y;
    conf.Saisit("TxtL", u"150"_s);
    prescription::FixeHauteurPersonnelle(conf.Contexte);
    QVERIFY(conf.Un<QCheckBox>("ChKSLP").isChecked());
    QVERIFY(conf.Champ("TxtSLP").isEnabled());
    QCOMPARE(conf.Champ("TxtSLP").text(), u"9,5"_s);
    QVERIFY(conf.Echantillon().value(2).Y > avant);
    QCOMPARE(conf.Champ("TxtL").text(), u"150"_s); // what he typed stays
    prescription::RetablitHauteurNormale(conf.Contexte);
    QVERIFY(!conf.Un<QCheckBox>("ChKSLP").isChecked());
    QVERIFY(!conf.Champ("TxtSLP").isEnabled());
    QCOMPARE(conf.Echantillon().value(2).Y, avant);
    conf.Saisit("TxtL", u"170"_s);
    QVERIFY(!conf.Modifie());
}

void TestFrmConfOrdo::TheHeightShowsWhatACertificatePutThere()
{
    ConfDeTest conf;
    conf.Fenetre->hide();
    conf.PoseCertificat(u"Repos"_s);
    prescription::Repeint(conf.Contexte);
    QCOMPARE(conf.Champ("TxtSLP").text(), u"0"_s);
    conf.Fenetre->show();
    QVERIFY(!conf.Champ("TxtSLP").isEnabled());
    QVERIFY(!conf.Un<QCheckBox>("ChKSLP").isChecked());
    QVERIFY(!conf.Modifie());
}

void TestFrmConfOrdo::ATornMarginStopsNoPainting()
{
    ConfDeTest conf;
    for (const QString& texte : {u"1e300"_s, u"-1e300"_s, u"-5"_s, u""_s, u"é"_s}) {
        for (const char* nom : {"TxtM", "TxtL", "TxtE", "TxtG", "TxtHD", "TxtGddn"}) {
            conf.Saisit(nom, texte);
        }
        conf.Fenetre->grab();
    }
    QVERIFY(conf.Modifie());
}

void TestFrmConfOrdo::Picture()
{
    ConfDeTest conf(Personnalise);
    conf.Saisit("TxtM", u"25"_s);
    support::Capture(*conf.Fenetre, u"FrmConfOrdo"_s);
    const QRect ecran(0, 0, 1366, 768);
    QVERIFY(ecran.width() >= conf.Fenetre->minimumSizeHint().width());
    QVERIFY(ecran.height() - 48 >= conf.Fenetre->minimumSizeHint().height());
}

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    application::style::Installe(application);
    TestFrmConfOrdo test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_frm_conf_ordo.moc"
