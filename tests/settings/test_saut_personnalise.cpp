#include "settings/FichiersReglages.h"
#include "settings/HauteurSaut.h"
#include "settings/MiseEnPage.h"
#include "settings/messages.h"
#include "support/Cabinet.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace settings;

class TestSautPersonnalise : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lePointEtLaVirgule();
    void laBoiteDeLaHauteur_data();
    void laBoiteDeLaHauteur();
    void leChargementNeDemandeRien();
    void decocherGardeLaHauteur();
    void quitterTxtSLP_data();
    void quitterTxtSLP();
    void uneHauteurStockeeHorsDeLaFeuilleNeRetientPas();
    void txtSLPSuitLesReglagesDuMedecin();
    void leMenuMetTxtSLP();
};

void TestSautPersonnalise::lePointEtLaVirgule()
{
    QCOMPARE(LitHauteurSaut(u"2.5"_s).value_or(-1), 2.5F);
    QCOMPARE(LitHauteurSaut(u"2,5"_s).value_or(-1), 2.5F);
    QCOMPARE(LitHauteurSaut(u"297"_s).value_or(-1), 297.0F);
    for (const QString& refusee : {u""_s, u"abc"_s, u"-1"_s, u"297,5"_s, u"2,5 mm"_s}) {
        QVERIFY2(!LitHauteurSaut(refusee), qPrintable(refusee));
    }
    QCOMPARE(TexteMesure(2.5F), u"2,5"_s);
}

void TestSautPersonnalise::laBoiteDeLaHauteur_data()
{
    QTest::addColumn<QString>("reponse");
    QTest::addColumn<bool>("refusee");
    QTest::addColumn<QString>("txtSLP");
    QTest::addColumn<float>("hauteur");
    QTest::newRow("point") << u"3.5"_s << false << u"3,5"_s << 3.5F;
    QTest::newRow("virgule") << u"3,5"_s << false << u"3,5"_s << 3.5F;
    QTest::newRow("vide") << u""_s << false << QString() << 1.5F;
    QTest::newRow("annuler") << QString() << false << QString() << 1.5F;
    QTest::newRow("lettres") << u"trois"_s << true << QString() << 1.5F;
}

void TestSautPersonnalise::laBoiteDeLaHauteur()
{
    QFETCH(QString, reponse);
    QFETCH(bool, refusee);
    QFETCH(QString, txtSLP);
    QFETCH(float, hauteur);
    Cabinet bureau;
    Reglages& reglages = bureau.Etat.Reglages;
    reglages.ConfOrdoActive = 1;
    reglages.Marges.HauteurSaut = 1.5F;
    bureau.Boites.AttendSaisie(messages::InviteHauteur(),
                               reponse.isNull() ? std::nullopt : std::optional(reponse), u"1,5"_s);
    if (refusee) {
        bureau.Boites.AttendInformation(messages::HauteurRefusee(reponse));
    }
    ChangeSautPersonnalise(bureau.Contexte, true);
    QCOMPARE(reglages.TxtSLP, txtSLP);
    QCOMPARE(int(reglages.Options.SautPersonnalise), txtSLP.isEmpty() ? 0 : 1);
    QCOMPARE(reglages.Marges.HauteurSaut, hauteur);
    QVERIFY(!common::FichierExiste(common::Joint(bureau.Etat.Chemins.CheminMedecin, u"Marges.cfg"_s)));
    QVERIFY(!common::FichierExiste(common::Joint(bureau.Etat.Chemins.CheminMedecin, u"Options.cfg"_s)));
}

void TestSautPersonnalise::leChargementNeDemandeRien()
{
    Cabinet bureau;
    ChangeSautPersonnalise(bureau.Contexte, true);
    QCOMPARE(int(bureau.Etat.Reglages.Options.SautPersonnalise), 1);
    ChangeSautPersonnalise(bureau.Contexte, false);
    QCOMPARE(int(bureau.Etat.Reglages.Options.SautPersonnalise), 0);
}

void TestSautPersonnalise::decocherGardeLaHauteur()
{
    Cabinet bureau;
    Reglages& reglages = bureau.Etat.Reglages;
    reglages.ConfOrdoActive = 1;
    reglages.Options.SautPersonnalise = 1;
    reglages.Marges.HauteurSaut = 4;
    reglages.TxtSLP = u"4"_s;
    ChangeSautPersonnalise(bureau.Contexte, false);
    QCOMPARE(reglages.TxtSLP, QString());
    QCOMPARE(reglages.Marges.HauteurSaut, 4.0F);
}

void TestSautPersonnalise::quitterTxtSLP_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("montre");
    QTest::addColumn<float>("hauteur");
    QTest::newRow("point") << u"2.5"_s << QString() << u"2,5"_s << 2.5F;
    QTest::newRow("virgule") << u"2,5"_s << QString() << u"2,5"_s << 2.5F;
    QTest::newRow("vide") << QString() << u"Vous n'avez pas fixé la hauteur du saut de ligne !"_s << QString()
                          << 4.0F;
    QTest::newRow("lettres") << u"x"_s << messages::HauteurRefusee(u"x"_s) << u"4"_s << 4.0F;
}

void TestSautPersonnalise::quitterTxtSLP()
{
    QFETCH(QString, texte);
    QFETCH(QString, message);
    QFETCH(QString, montre);
    QFETCH(float, hauteur);
    Cabinet bureau;
    Reglages& reglages = bureau.Etat.Reglages;
    reglages.Options.SautPersonnalise = 1;
    reglages.Marges.HauteurSaut = 4;
    if (!message.isEmpty()) {
        bureau.Boites.Attend(texte.isEmpty() ? outside::Genre::Exclamation : outside::Genre::Information,
                             message, outside::Bouton::OK);
    }
    QCOMPARE(QuitteTxtSLP(bureau.Contexte, texte), message.isEmpty());
    QCOMPARE(reglages.TxtSLP, montre);
    QCOMPARE(reglages.Marges.HauteurSaut, hauteur);
}

// The doctor could not leave the window before he has changed what he did not type.
void TestSautPersonnalise::uneHauteurStockeeHorsDeLaFeuilleNeRetientPas()
{
    Cabinet bureau;
    Reglages& reglages = bureau.Etat.Reglages;
    reglages.Options.SautPersonnalise = 1;
    reglages.Marges.HauteurSaut = 500;
    reglages.TxtSLP = u"500"_s;
    QVERIFY(QuitteTxtSLP(bureau.Contexte, u"500"_s));
    QCOMPARE(reglages.Marges.HauteurSaut, 500.0F);
}

void TestSautPersonnalise::txtSLPSuitLesReglagesDuMedecin()
{
    Cabinet bureau;
    const QString chemin = bureau.Etat.Chemins.CheminMedecin;
    Reglages ecrits;
    ecrits.Options.SautPersonnalise = 1;
    ecrits.Marges.HauteurSaut = 3.5F;
    EcritOptions(ecrits.Options, chemin);
    EcritMarges(ecrits.Marges, chemin);
    ChargeReglages(bureau.Etat.Reglages, chemin);
    QCOMPARE(bureau.Etat.Reglages.TxtSLP, u"3,5"_s);
    ecrits.Options.SautPersonnalise = 0;
    EcritOptions(ecrits.Options, chemin);
    ChargeReglages(bureau.Etat.Reglages, chemin);
    QCOMPARE(bureau.Etat.Reglages.TxtSLP, QString());
}

void TestSautPersonnalise::leMenuMetTxtSLP()
{
    Cabinet bureau;
    Reglages& reglages = bureau.Etat.Reglages;
    bureau.Boites.AttendSaisie(messages::InviteHauteur(), u"2.5"_s, u"0"_s);
    QVERIFY(DemandeHauteurSaut(reglages, bureau.Boites));
    QCOMPARE(reglages.TxtSLP, u"2,5"_s);
    QCOMPARE(ChargeMiseEnPage(bureau.Contexte).TxtSLP, u"2,5"_s);
}

QTEST_MAIN(TestSautPersonnalise)
#include "test_saut_personnalise.moc"
