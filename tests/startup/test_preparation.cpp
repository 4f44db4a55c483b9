#include "MondeDemarrage.h"
#include "common/Erreur.h"
#include "settings/FichiersReglages.h"
#include "startup/PreparationDonnees.h"

#include <QTest>

using namespace startup;
using common::FichierExiste;
using common::Joint;

namespace {

const QByteArray kOptions("0,1,1,1,0,0,1,2,1,0,0,0,0,\"\",0,0,\"\",0,0,0,0,0,0,0,0,1,1,1,1\r\n");

} // namespace

class TestPreparation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cheminSansDataScriptelle();
    void cheminDataAbime();
    void arbreDisparu();
    void deplaceLInstallation();
    void deplaceCommun();
    void optionsCourtes();
    void optionsAbimees();
    void positionLogo();
    void margesEffacees();
    void medecinParDefaut();
    void medecinIniAbime();
    void cheminBaseHorsListe();
};

void TestPreparation::cheminSansDataScriptelle()
{
    MondeDemarrage monde;
    common::EcritFichier(monde.Programme("CheminData.cfg"), "\"/ailleurs\"\r\n");
    monde.AttendPremierDemarrage();
    QVERIFY(monde.Demarre());
    QCOMPARE(common::LitFichier(monde.Programme("CheminData.cfg")),
             '"' + common::CheminAffiche(monde.Data).toLatin1() + "\"\r\n");
    QVERIFY(!FichierExiste(monde.Programme("CheminData.cfg.abime")));
}

void TestPreparation::cheminDataAbime()
{
    MondeDemarrage monde;
    const QByteArray abime("\"/x/DataScriptelle\0", 19);
    common::EcritFichier(monde.Programme("CheminData.cfg"), abime);
    monde.AttendPremierDemarrage();
    QVERIFY(monde.Demarre());
    QCOMPARE(common::LitFichier(monde.Programme("CheminData.cfg.abime")), abime);
}

void TestPreparation::arbreDisparu()
{
    MondeDemarrage monde;
    monde.Premier();
    common::SupprimeDossier(monde.Data);
    QVERIFY_THROWS_EXCEPTION(common::Erreur, monde.Demarre());
    QVERIFY(!common::DossierExiste(monde.Data));
}

void TestPreparation::deplaceLInstallation()
{
    MondeDemarrage monde;
    monde.Premier();
    const QByteArray medoc = common::LitFichier(monde.Donnee("Medoc.mdb"));
    common::EcritFichier(monde.Programme("Medoc.mdb"), "livrée");
    common::EcritFichier(monde.Programme("Ordo.mdb"), "livrée");
    common::EcritFichier(monde.Programme("Copie de Medoc.mdb"), "copie neuve");
    common::EcritFichier(monde.Programme("Copie de Ordo.mdb"), "copie neuve");
    common::EcritFichier(monde.Donnee("Copie de Medoc.mdb"), "ancienne");
    common::EcritFichier(monde.Donnee("Ancien_Ordo.mdb"), "ancienne");
    monde.Etat.Chemins.CheminData = monde.Data;
    DeplaceInstallation(monde.Etat.Chemins);
    NettoieCheminData(monde.Etat.Chemins);
    QCOMPARE(common::LitFichier(monde.Donnee("Medoc.mdb")), medoc);
    QCOMPARE(common::LitFichier(monde.Donnee("Copie de Medoc.mdb")), QByteArray("copie neuve"));
    for (const char* nom : {"Medoc.mdb", "Ordo.mdb", "Copie de Medoc.mdb", "Copie de Ordo.mdb"}) {
        QVERIFY2(!FichierExiste(monde.Programme(nom)), nom);
    }
    for (const char* nom : {"Ordo.mdb", "Copie de Ordo.mdb", "Ancien_Ordo.mdb"}) {
        QVERIFY2(!FichierExiste(monde.Donnee(nom)), nom);
    }
}

void TestPreparation::deplaceCommun()
{
    MondeDemarrage monde;
    monde.Premier();
    common::CreeDossier(monde.Programme("Commun/DR VIEUX"));
    common::EcritFichier(monde.Programme("Commun/DR VIEUX/Ordo.mdb"), "base");
    monde.Boites.AttendInformation(
        T("Les données du programme vont être déplacées dans le répertoire\n\n\"") +
        common::CheminAffiche(monde.Data) + N("."));
    QVERIFY(monde.Demarre());
    QCOMPARE(common::LitFichier(monde.Donnee("DR VIEUX/Ordo.mdb")), QByteArray("base"));
    QVERIFY(!common::DossierExiste(monde.Programme("Commun")));
}

void TestPreparation::optionsCourtes()
{
    MondeDemarrage monde;
    monde.Premier();
    common::EcritFichier(monde.Donnee("Options.cfg"),
                         "1,0,0,0,0,0,0,4,2,1,1,1,1,\"P, x\",1,1,\"L\",1,5,6\r\n");
    QVERIFY(monde.Demarre());
    QCOMPARE(common::LitFichier(monde.Donnee("Options.cfg")),
             QByteArray("1,0,0,0,0,0,0,4,2,1,1,1,1,\"P, x\",1,1,\"L\",1,5,6,0,0,0,0,0,1,1,1,1\r\n"));
    QVERIFY(!FichierExiste(monde.Donnee("Options.cfg.abime")));
    QCOMPARE(common::LitFichier(monde.Donnee("DR NEIBRE/Options.cfg")), kOptions);
}

void TestPreparation::optionsAbimees()
{
    MondeDemarrage monde;
    monde.Premier();
    const QByteArray abime("1,0,quoi,0\r\n");
    common::EcritFichier(monde.Donnee("Options.cfg"), abime);
    QVERIFY(monde.Demarre());
    QCOMPARE(common::LitFichier(monde.Donnee("Options.cfg.abime")), abime);
    QCOMPARE(common::LitFichier(monde.Donnee("Options.cfg")),
             QByteArray("1,0,1,1,0,0,1,2,1,0,0,0,0,\"\",0,0,\"\",0,0,0,0,0,0,0,0,1,1,1,1\r\n"));
}

void TestPreparation::positionLogo()
{
    for (const int lue : {0, 1, 2, 3}) {
        MondeDemarrage monde;
        monde.Premier();
        settings::Options options;
        options.PositionLogo = static_cast<quint8>(lue);
        settings::EcritOptions(options, monde.Data);
        common::SupprimeFichier(monde.Donnee("DR NEIBRE/Options.cfg"));
        QVERIFY(monde.Demarre());
        QCOMPARE(int(monde.Etat.Reglages.Options.PositionLogo), lue == 2 ? 2 : 1);
    }
}

void TestPreparation::margesEffacees()
{
    MondeDemarrage monde;
    monde.Premier();
    common::SupprimeFichier(monde.Donnee("Marges.cfg"));
    common::EcritFichier(monde.Donnee("Dupli.cfg"), "\"Verdana\"\r\n");
    QVERIFY(monde.Demarre());
    QVERIFY(FichierExiste(monde.Donnee("Marges.cfg")));
    QCOMPARE(common::LitFichier(monde.Donnee("Dupli.cfg")), QByteArray("\"Verdana\"\r\n"));
}

void TestPreparation::medecinParDefaut()
{
    MondeDemarrage monde;
    monde.Premier();
    common::CopieDossier(monde.Donnee("DR NEIBRE"), monde.Donnee("DR B"));
    common::EcritFichier(monde.Donnee("Medecin.ini"), " 5 \r\nDR NEIBRE-1\r\nDR B-5\r\n");
    common::EcritFichier(monde.Programme("CheminBase.cfg"), "0,\"\",5\r\n");
    QVERIFY(monde.Demarre());
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, monde.Donnee("DR B"));

    monde.Oublie();
    common::EcritFichier(monde.Programme("CheminBase.cfg"), "0,\"\",3\r\n");
    QVERIFY(monde.Demarre());
    QCOMPARE(int(monde.Etat.Medecins.IndexMedecin), 0);
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, monde.Donnee("DR NEIBRE"));
}

void TestPreparation::medecinIniAbime()
{
    MondeDemarrage monde;
    monde.Premier();
    const QList<QByteArray> contenus = {QByteArray(), QByteArray("\x89PNG\0\0", 6),
                                        QByteArray(" 1 \r\nSANS\r\n")};
    for (const QByteArray& contenu : contenus) {
        common::EcritFichier(monde.Donnee("Medecin.ini"), contenu);
        QVERIFY(monde.Demarre());
        QVERIFY(monde.Etat.Medecins.Liste.isEmpty());
        QCOMPARE(monde.Etat.Chemins.CheminMedecin, QString());
        QCOMPARE(monde.Ecrans_, (QStringList{N("ChoixBase"), N("ConfOrdo")}));
        QCOMPARE(common::LitFichier(monde.Donnee("Medecin.ini")), contenu);
        monde.Oublie();
    }
}

void TestPreparation::cheminBaseHorsListe()
{
    MondeDemarrage monde;
    monde.Premier();
    for (const QByteArray& contenu : {QByteArray("7,\"\",1\r\n"), QByteArray("0,\"ouvert"), QByteArray()}) {
        common::EcritFichier(monde.Programme("CheminBase.cfg"), contenu);
        QVERIFY(monde.Demarre());
        QCOMPARE(monde.RangPropose, -1);
        monde.Oublie();
    }
}

QTEST_GUILESS_MAIN(TestPreparation)
#include "test_preparation.moc"
