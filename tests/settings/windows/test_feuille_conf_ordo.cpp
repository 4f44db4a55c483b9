#include "outside/Horloge.h"
#include "page/Peintres.h"
#include "prescription/Impression.h"
#include "settings/windows/ConfDeTest.h"
#include "support/BaseDeTest.h"

using namespace Qt::StringLiterals;
using namespace settings;

/// `FrmConfOrdo.PctFeuille`: the whole sheet.
class TestFeuilleConfOrdo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheSheetFollowsEachKey();
    void TheSheetIsWhatPrints();
    void TheSheetIsWhollyVisible();
};

void TestFeuilleConfOrdo::TheSheetFollowsEachKey()
{
    ConfDeTest conf;
    const auto titre = [&] {
        return support::Trouve(conf.Un<page::Feuille>("PctFeuille").DessinMontre(),
                               u"BIRODOGYL cp pelliculé : B/10"_s);
    };
    QCOMPARE(titre().X, 20.0);
    QVERIFY(!conf.Modifie());
    conf.Saisit("TxtM", u"2"_s);
    QCOMPARE(titre().X, 2.0);
    QVERIFY(conf.Modifie());
    QCOMPARE(conf.Etat.Reglages.Marges.MargeGaucheOrdo, 20.0F);
    conf.Saisit("TxtM", u"20"_s);
    QVERIFY(!conf.Modifie());
}

void TestFeuilleConfOrdo::TheSheetIsWhatPrints()
{
    ConfDeTest conf([](ConfDeTest& c) {
        auto& options = c.Etat.Reglages.Options;
        options.IncrementeMedicaments = 1;
        options.TotalMedicaments = 1;
        storage::Base& ordo = c.Etat.Bases.Ordo(c.Etat.Chemins.CheminMedecin);
        support::AjouteLigne(ordo, u"Entete"_s, {0, u"Docteur NEIBRE"_s, u"Arial"_s, 14, 1, 0, 0, 3});
        support::AjouteLigne(ordo, u"Entete"_s, {22, u"Bas de page"_s, u"Arial"_s, 8, 0, 1, 0, 0});
    });
    conf.Boites.AttendPolice(page::Police{.Nom = u"Times New Roman"_s, .Taille = 13, .Italique = true})
        .AttendSaisie(messages::InviteHauteur(), u"3.5"_s, u"0"_s)
        .AttendInformation(messages::MiseEnPageEnregistree());
    conf.Saisit("TxtM", u"33"_s);
    conf.Saisit("TxtL", u"40"_s); // wraps
    conf.Saisit("TxtHD", u"60"_s);
    conf.Saisit("TxtGD", u"15"_s);
    conf.Clique("ChkS");
    conf.Clique("Txt(1)");
    conf.Clique("CmdPolice");
    conf.Clique("ChKSLP");
    const QString montree = support::EnTexte(conf.Un<page::Feuille>("PctFeuille").DessinMontre());
    conf.Clique("CmdEnregistrer");

    patients::Patient& patient = conf.Etat.Patient;
    patient.PatientCourant = u"Madame  MARTIN  Jeanne"_s;
    patient.NomSeul = u"MARTIN  Jeanne"_s;
    patient.DateNaissance = u"14/07/1958"_s;
    patient.PoidsPatient = u"62"_s;
    patient.AgePatient = page::TexteAge(patient.DateNaissance, conf.Etat.Reglages.Options,
                                        conf.Contexte.Dehors.Horloge.Aujourdhui());
    conf.Prescrit(u"BIRODOGYL cp pelliculé : B/10"_s, u"1 comprimé matin, midi et soir"_s);
    conf.Prescrit(u"EFFERALGAN CODEINE cp efferv séc : 2T/8"_s, u"2 comprimés matin, midi et soir"_s);
    conf.Etat.Ordonnance.NbMedZone1 = 2;
    QVERIFY(prescription::ImprimeDocument(conf.Contexte));
    const QString imprimee =
        support::EnTexte(conf.Imprimantes.Travaux.constLast().Travail.Pages.constFirst());
    QCOMPARE(montree.split(u'\n'), imprimee.split(u'\n'));
    QVERIFY(montree.contains(u"Bas de page"_s) && montree.contains(u"Times New Roman"_s));
}

void TestFeuilleConfOrdo::TheSheetIsWhollyVisible()
{
    ConfDeTest conf;
    const auto& feuille = conf.Un<page::Feuille>("PctFeuille");
    for (const QSize taille : {QSize(1366, 768), QSize(1900, 1000), QSize(1300, 1000)}) {
        conf.Fenetre->resize(taille);
        QApplication::processEvents();
        const QRect visible = feuille.visibleRegion().boundingRect();
        QVERIFY(visible.height() >= feuille.height() - 1 && visible.width() >= feuille.width() - 1);
        QVERIFY(feuille.height() > taille.height() / 2);
    }
}

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    application::style::Installe(application);
    TestFeuilleConfOrdo test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_feuille_conf_ordo.moc"
