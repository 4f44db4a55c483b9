#include "MondeDemarrage.h"
#include "common/Erreur.h"
#include "settings/FichiersReglages.h"
#include "startup/DemarrageAuto.h"

#include <QSignalSpy>
#include <QTest>

using namespace startup;
using common::FichierExiste;
using common::Joint;
using outside::Bouton;

namespace {

const QByteArray kOptions("0,1,1,1,0,0,1,2,1,0,0,0,0,\"\",0,0,\"\",0,0,0,0,0,0,0,0,1,1,1,1\r\n");

} // namespace

class TestDemarrage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void premierDemarrage();
    void premierDemarrageChezUnMedecin();
    void policeDesCopies();
    void secondDemarrage();
    void premierDemarrageAbandonne();
    void sansMedecinAbandonne();
    void choixAbandonne();
    void choixSansSelection();
    void reprendDepuisLesOptions();
    void icone();
    void minimise();
    void signatureLitterale();
    void fenetresEnPanne();
    void demarrageAvecLeSysteme();
};

void TestDemarrage::premierDemarrage()
{
    MondeDemarrage monde;
    monde.AttendPremierDemarrage();
    QSignalSpy face(&monde.Etat.Signaux, &application::Signaux::FaceChange);
    QVERIFY(monde.Demarre());
    const QString medecin = monde.Donnee("DR NEIBRE");
    QCOMPARE(monde.Etat.Chemins.CheminTravail, monde.Data);
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, medecin);
    QCOMPARE(int(monde.Etat.Chemins.TypeStockage), 1);
    QCOMPARE(monde.RangPropose, -1);
    QCOMPARE(common::LitFichier(monde.Donnee("Options.cfg")), kOptions);
    QCOMPARE(common::LitFichier(monde.Donnee("Marges.cfg")),
             QByteArray("10,4,10,20,100,170,70,100,0,0,0,0,0\r\n"));
    QCOMPARE(common::LitFichier(monde.Donnee("Dupli.cfg")),
             QByteArray("\"Arial\",48,0,0,0,35,140,1,\"DUPLICATA\"\r\n"));
    for (const char* nom : {"Options.cfg", "Marges.cfg", "Dupli.cfg"}) {
        QCOMPARE(common::LitFichier(Joint(medecin, N(nom))), common::LitFichier(monde.Donnee(nom)));
    }
    QCOMPARE(common::LitFichier(monde.Programme("CheminBase.cfg")), QByteArray("0,\"\",1\r\n"));
    QVERIFY(FichierExiste(monde.Donnee("Medoc.mdb")));
    QVERIFY(common::DossierExiste(monde.Donnee("Certificats")));
    QVERIFY(!FichierExiste(monde.Donnee("Ordo.mdb")));
    QVERIFY(!FichierExiste(monde.Programme("Ordo.mdb")));
    QVERIFY(!FichierExiste(monde.Programme("Medoc.mdb")));
    QVERIFY(FichierExiste(monde.Programme("BasesInstal/Ordo.mdb")));
    QCOMPARE(monde.Etat.Banque.TypeBase, N("BIP"));
    QCOMPARE(monde.Ecrans_, (QStringList{N("ChoixBase"), N("ConfOrdo"), N("Fenetres")}));
    QVERIFY(face.count() >= 1);
}

void TestDemarrage::premierDemarrageChezUnMedecin()
{
    MondeDemarrage monde;
    common::CreeDossierPrive(monde.Donnee("DR NEIBRE"));
    common::EcritFichier(monde.Donnee("DR NEIBRE/Marges.cfg"), "33\r\n");
    monde.AttendPremierDemarrage();
    QVERIFY(monde.Demarre());
    QCOMPARE(common::LitFichier(monde.Donnee("DR NEIBRE/Marges.cfg")), QByteArray("33\r\n"));
    QCOMPARE(monde.Etat.Reglages.Marges.MargeGaucheEntete, 33.0F);
    QVERIFY(FichierExiste(monde.Donnee("DR NEIBRE/Options.cfg")));
}

void TestDemarrage::policeDesCopies()
{
    MondeDemarrage monde;
    Ecrans ecrans;
    ecrans.PoliceFenetre = N("Inter");
    ecrans.MontreChoixBase = [&](int) {
        ChoisitStockage(monde.Contexte, 0);
        return ValideChoixBase(monde.Contexte, 0) == SuiteChoix::Poursuit;
    };
    monde.AttendPremierDemarrage();
    QVERIFY(Demarrage(monde.Contexte, ecrans).Execute());
    QCOMPARE(common::LitFichier(monde.Donnee("DR NEIBRE/Dupli.cfg")),
             QByteArray("\"Inter\",48,0,0,0,35,140,1,\"DUPLICATA\"\r\n"));
}

void TestDemarrage::secondDemarrage()
{
    MondeDemarrage monde;
    monde.Premier();
    QVERIFY(monde.Demarre());
    QCOMPARE(monde.RangPropose, 0);
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, monde.Donnee("DR NEIBRE"));
    QCOMPARE(monde.Etat.Medecins.Selection, 0);
    QCOMPARE(int(monde.Etat.Medecins.NumMedecin), 1);
}

void TestDemarrage::premierDemarrageAbandonne()
{
    MondeDemarrage monde;
    monde.Boites.AttendContenant(outside::Genre::Information, N("VOTRE NOM D' UTILISATEUR"))
        .AttendDossier(T("Sélectionnez uniquement le répertoire à votre NOM D'UTILISATEUR"), std::nullopt)
        .AttendQuestion(T("Ce renseignement est obligatoire ; voulez-vous continuer ?"), Bouton::Non)
        .AttendStop(T("Lancement du programme interrompu par défaut de renseignement !"));
    QVERIFY(!monde.Demarre());
    QVERIFY(FichierExiste(monde.Programme("Medoc.mdb")));
}

void TestDemarrage::sansMedecinAbandonne()
{
    MondeDemarrage monde;
    monde.Premier();
    common::SupprimeFichier(monde.Donnee("Medecin.ini"));
    monde.Boites.AttendContenant(outside::Genre::Information, N("MEDECIN UTILISATEUR"))
        .AttendSaisie(
            T("Inscrire les nom et prénom du médecin.\n(Ignorez la casse, le nom sera mis en "
              "majuscules.)\n\nRESPECTEZ LE FORMAT : \"Dr/un espace/Nom Prenom (Prenom facultatif)\""),
            N("neibre"), N("Dr "))
        .AttendQuestion(T("Mauvais format d'inscription ! Voulez-vous continuer ?"), Bouton::Non);
    QVERIFY(!monde.Demarre());
    QVERIFY(!FichierExiste(monde.Donnee("Medecin.ini")));
}

void TestDemarrage::choixAbandonne()
{
    MondeDemarrage monde;
    monde.Premier();
    monde.Poursuit = false;
    QVERIFY(!monde.Demarre());
    QCOMPARE(monde.Ecrans_, (QStringList{N("ChoixBase")}));
}

void TestDemarrage::choixSansSelection()
{
    MondeDemarrage monde;
    const QString texte = T("Vous devez obligatoirement faire ce choix !\n\nPoursuivre ?");
    monde.Boites.AttendQuestionInformation(texte, Bouton::Oui).AttendQuestionInformation(texte, Bouton::Non);
    QVERIFY(ValideChoixBase(monde.Contexte, -1) == SuiteChoix::Reste);
    QVERIFY(ValideChoixBase(monde.Contexte, -1) == SuiteChoix::Termine);
    QVERIFY(!FichierExiste(monde.Programme("CheminBase.cfg")));
    QCOMPARE(int(monde.Etat.Chemins.TypeStockage), 0);
}

void TestDemarrage::reprendDepuisLesOptions()
{
    MondeDemarrage monde;
    monde.Premier();
    common::SupprimeFichier(monde.Donnee("Marges.cfg"));
    common::CreeDossier(monde.Donnee("Marges.cfg")); // cannot be written: both goes fail
    QVERIFY_THROWS_EXCEPTION(common::Erreur, monde.Demarre());
    common::SupprimeDossier(monde.Donnee("Marges.cfg"));

    monde.Oublie();
    int fois = 0;
    Ecrans ecrans;
    ecrans.MontreChoixBase = [&](int) {
        if (++fois == 1) {
            throw common::Erreur(N("panne"), N("ici"));
        }
        return ValideChoixBase(monde.Contexte, 0) == SuiteChoix::Poursuit;
    };
    QVERIFY(Demarrage(monde.Contexte, ecrans).Execute());
    QCOMPARE(fois, 2);
}

void TestDemarrage::icone()
{
    MondeDemarrage monde;
    monde.Premier();
    monde.Plateau.Bulle.clear();
    QVERIFY(monde.Demarre());
    QCOMPARE(monde.Plateau.Bulle, N("Scriptelle"));

    monde.Oublie();
    monde.Plateau.Bulle.clear();
    settings::Options options;
    options.IconeHorloge = 0;
    settings::EcritOptions(options, monde.Donnee("DR NEIBRE"));
    QVERIFY(monde.Demarre());
    QCOMPARE(monde.Plateau.Bulle, QString());
}

void TestDemarrage::minimise()
{
    MondeDemarrage monde;
    monde.Premier();
    settings::Options options;
    options.ReduitLancement = 1;
    settings::EcritOptions(options, monde.Donnee("DR NEIBRE"));
    QVERIFY(monde.Demarre());
    QCOMPARE(monde.Ecrans_, (QStringList{N("ChoixBase"), N("ConfOrdo"), N("Minimise"), N("Fenetres")}));
}

void TestDemarrage::signatureLitterale()
{
    MondeDemarrage monde;
    monde.Premier();
    common::CopieDossier(monde.Donnee("DR NEIBRE"), monde.Donnee("DR ANDRE"));
    common::EcritFichier(monde.Donnee("Medecin.ini"), " 1 \r\nDR ANDRE-1\r\n");
    QVERIFY(monde.Demarre());
    QCOMPARE(monde.Etat.Medecins.NomMedecinSignature, N("Docteur ANDocteurE"));
}

void TestDemarrage::fenetresEnPanne()
{
    MondeDemarrage monde;
    monde.Premier();
    Ecrans ecrans;
    ecrans.MontreChoixBase = [&](int) { return ValideChoixBase(monde.Contexte, 0) == SuiteChoix::Poursuit; };
    ecrans.ChargeFenetres = [] { throw common::Erreur(N("La base est abîmée."), N("/x/Medoc.mdb")); };
    monde.Boites.AttendStop(T("La base est abîmée.\n/x/Medoc.mdb"));
    QVERIFY(Demarrage(monde.Contexte, ecrans).Execute());
}

void TestDemarrage::demarrageAvecLeSysteme()
{
    support::Monde monde;
    monde.Etat.Reglages.Options.LanceDemarrage = 1;
    RegleDemarrageSysteme(monde.Contexte);
    QCOMPARE(monde.DemarrageSysteme.Programme,
             common::CheminAffiche(Joint(monde.Etat.Chemins.CheminTravail, N("Scriptelle.exe"))));
    monde.Etat.Reglages.Options.LanceDemarrage = 0;
    RegleDemarrageSysteme(monde.Contexte);
    QCOMPARE(monde.DemarrageSysteme.Programme, QString());
}

QTEST_GUILESS_MAIN(TestDemarrage)
#include "test_demarrage.moc"
