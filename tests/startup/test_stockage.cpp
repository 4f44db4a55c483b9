#include "MondeStockage.h"
#include "outside/Boites.h"

#include <QTest>

using namespace startup;
using common::Joint;
using outside::Bouton;

namespace {

const char* const kSupport =
    "\nVous avez choisi de travailler avec vos données enregistrées sur un support externe (par "
    "exemple : clef USB),\n\nDésignez UNIQUEMENT le LECTEUR (ou le SUPPORT) choisi.\n\n";
const char* const kTitreLecteur = "Sélectionnez uniquement le NOM du lecteur (ou support)";
const char* const kRefaireLecteur = "Vous devez faire le choix du lecteur, ou bien vous allez travailler "
                                    "avec les données enregistrées sur votre "
                                    "disque.\n\nVoulez-vous refaire le choix du lecteur ?";
const char* const kDisque = "Vous allez travailler avec les données enregistrées sur votre disque.";
const char* const kReseau =
    "\nVous êtes en réseau et vous voulez travailler avec les données sur le serveur. \n\n"
    "Sélectionnez le répertoire (...\\...\\DataScriptelle) sur le serveur.\n";
const char* const kAnnuler = "Si ce répertoire n'existe pas, il faut, en premier lieu, le créer.\n\n"
                             "Cliquez alors sur \"Annuler\" dans ce qui va suivre.";
const char* const kTitreServeur = "Sélectionnez le répertoire (...\\...\\DataScriptelle) sur le serveur.";
const char* const kTitreCreation =
    "Sélectionnez le répertoire du serveur où vous voulez créer le répertoire (...\\...\\DataScriptelle).";
const char* const kCreer =
    "Si le répertoire (...\\...\\DataScriptelle) n'existe pas,\nVoulez-vous le créer maintenant ?";
const char* const kRefaireRepertoire = "Vous devez faire le choix du répertoire, ou bien vous allez "
                                       "travailler avec les données enregistrées sur votre "
                                       "disque.\n\nVoulez-vous refaire le choix du répertoire ?";

void AttendTransfertAFaire(support::BoitesScript& boites)
{
    boites
        .AttendInformation(
            T("Vous devrez tranfèrer le contenu du répertoire "
              "\"NOM_UTILISATEUR\\DataVelmont\\DataScriptelle\" de votre disque, dans ce répertoire "
              "nouvellement créé, puis relancer le programme pour utiliser ce support."))
        .AttendInformation(T("Vous pouvez le faire \"manuellement\" ou à l'aide de la commande \"Outils \\ "
                             "Transfert de données\"."))
        .AttendInformation(
            T("Dans cette attente, vous allez travailler avec les données enregistrées sur votre disque."));
}

void AttendTransfertPasFait(support::BoitesScript& boites)
{
    boites
        .AttendInformation(T("Vous n'avez pas encore transféré le contenu du répertoire "
                             "\"NOM_UTILISATEUR\\DataVelmont\\DataScriptelle\" de votre disque."))
        .AttendInformation(
            T("Dans cette attente, vous allez travailler avec les données enregistrées sur votre disque."));
}

} // namespace

class TestStockage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void disque();
    void supportPret();
    void supportAbandonne();
    void supportAvecBarre();
    void supportSansArbreRefuse();
    void supportSansArbreCree();
    void supportVide();
    void supportProtege();
    void serveurConnu();
    void serveurVide();
    void serveurDisparuPuisChoisi();
    void serveurMauvaisRepertoire();
    void serveurSansCreation();
    void serveurCree();
    void serveurCreationAbandonnee();
};

void TestStockage::disque()
{
    MondeStockage monde(1);
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Data());
}

void TestStockage::supportPret()
{
    MondeStockage monde(2);
    monde.Fait(QStringLiteral("clef/DataScriptelle"), QStringLiteral("Medoc.mdb"));
    monde.Boites.AttendInformation(T(kSupport))
        .AttendDossier(T(kTitreLecteur), monde.Chemin(QStringLiteral("clef")));
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Chemin(QStringLiteral("clef/DataScriptelle")));
    QVERIFY(!common::FichierExiste(monde.CheminBaseCfg()));
}

void TestStockage::supportAbandonne()
{
    MondeStockage monde(2);
    monde.Boites.AttendInformation(T(kSupport))
        .AttendDossier(T(kTitreLecteur), std::nullopt)
        .AttendQuestionInformation(T(kRefaireLecteur), Bouton::Oui)
        .AttendDossier(T(kTitreLecteur), std::nullopt)
        .AttendQuestionInformation(T(kRefaireLecteur), Bouton::Non);
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Data());
    QCOMPARE(int(monde.Etat.Chemins.TypeStockage), 2);
}

void TestStockage::supportAvecBarre()
{
    MondeStockage monde(2);
    monde.Fait(QStringLiteral("clef/DataScriptelle"), QStringLiteral("Medoc.mdb"));
    monde.Boites.AttendInformation(T(kSupport))
        .AttendDossier(T(kTitreLecteur), T("E:\\dossier"))
        .AttendInformation(T("Indiquez seulement le nom du lecteur !"))
        .AttendDossier(T(kTitreLecteur), monde.Chemin(QStringLiteral("clef")));
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Chemin(QStringLiteral("clef/DataScriptelle")));
}

void TestStockage::supportSansArbreRefuse()
{
    MondeStockage monde(2);
    const QString clef = monde.Fait(QStringLiteral("clef"));
    const QString arbre = common::CheminAffiche(Joint(clef, QStringLiteral("DataScriptelle")));
    monde.Boites.AttendInformation(T(kSupport))
        .AttendDossier(T(kTitreLecteur), clef)
        .AttendQuestion(T("Le répertoire \"") + arbre + T("\" n'existe pas.\nVoulez-vous le créer ?"),
                        Bouton::Non)
        .AttendInformation(T(kDisque));
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Data());
    QVERIFY(!common::DossierExiste(arbre));
}

void TestStockage::supportSansArbreCree()
{
    MondeStockage monde(2);
    const QString clef = monde.Fait(QStringLiteral("clef"));
    const QString arbre = common::CheminAffiche(Joint(clef, QStringLiteral("DataScriptelle")));
    monde.Boites.AttendInformation(T(kSupport))
        .AttendDossier(T(kTitreLecteur), clef)
        .AttendQuestion(T("Le répertoire \"") + arbre + T("\" n'existe pas.\nVoulez-vous le créer ?"),
                        Bouton::Oui);
    AttendTransfertAFaire(monde.Boites);
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Data());
    QVERIFY(common::DossierExiste(arbre));
}

void TestStockage::supportVide()
{
    MondeStockage monde(2);
    monde.Fait(QStringLiteral("clef/DataScriptelle/DR NEIBRE"));
    monde.Boites.AttendInformation(T(kSupport))
        .AttendDossier(T(kTitreLecteur), monde.Chemin(QStringLiteral("clef")));
    AttendTransfertPasFait(monde.Boites);
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Data());
}

void TestStockage::supportProtege()
{
    MondeStockage monde(2);
    const QString clef = monde.Chemin(QStringLiteral("clef"));
    common::EcritFichier(clef, "a file, so that nothing can be created below");
    const QString arbre = common::CheminAffiche(Joint(clef, QStringLiteral("DataScriptelle")));
    monde.Boites.AttendInformation(T(kSupport))
        .AttendDossier(T(kTitreLecteur), clef)
        .AttendQuestion(T("Le répertoire \"") + arbre + T("\" n'existe pas.\nVoulez-vous le créer ?"),
                        Bouton::Oui)
        .AttendContenant(outside::Genre::Stop, arbre)
        .AttendInformation(T(kDisque));
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Data());
}

void TestStockage::serveurConnu()
{
    MondeStockage monde(3);
    monde.Etat.Chemins.CheminBase = monde.Fait(QStringLiteral("srv/DataScriptelle"), QStringLiteral("x"));
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Chemin(QStringLiteral("srv/DataScriptelle")));
}

void TestStockage::serveurVide()
{
    MondeStockage monde(3);
    monde.Etat.Chemins.CheminBase = monde.Fait(QStringLiteral("srv/DataScriptelle"));
    monde.Fait(QStringLiteral("srv/DataScriptelle/DR NEIBRE"), QStringLiteral("Ordo.mdb"));
    AttendTransfertPasFait(monde.Boites);
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Data());
}

void TestStockage::serveurDisparuPuisChoisi()
{
    MondeStockage monde(3);
    monde.Etat.Chemins.CheminBase = monde.Chemin(QStringLiteral("disparu/DataScriptelle"));
    const QString serveur = monde.Fait(QStringLiteral("srv/DataScriptelle"));
    monde.Boites.AttendInformation(T(kReseau))
        .AttendInformation(T(kAnnuler))
        .AttendDossier(T(kTitreServeur), serveur);
    monde.Regle();
    QCOMPARE(monde.Travail(), serveur);
    QCOMPARE(monde.Etat.Chemins.CheminBase, serveur);
    QCOMPARE(common::LitFichier(monde.CheminBaseCfg()),
             "2,\"" + common::CheminAffiche(serveur).toLatin1() + "\",1\r\n");
}

void TestStockage::serveurMauvaisRepertoire()
{
    MondeStockage monde(3);
    monde.Boites.AttendInformation(T(kReseau))
        .AttendInformation(T(kAnnuler))
        .AttendDossier(T(kTitreServeur), monde.Fait(QStringLiteral("srv")))
        .AttendInformation(T("Le répertoire choisi n'est pas\"DataScriptelle\""))
        .AttendInformation(T("Dans l'attente de refaire votre choix, vous allez travailler avec les données "
                             "enregistrées sur votre disque."));
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Data());
    QCOMPARE(monde.Etat.Chemins.CheminBase, QString());
    QVERIFY(!common::FichierExiste(monde.CheminBaseCfg()));
}

void TestStockage::serveurSansCreation()
{
    MondeStockage monde(3);
    monde.Boites.AttendInformation(T(kReseau))
        .AttendInformation(T(kAnnuler))
        .AttendDossier(T(kTitreServeur), std::nullopt)
        .AttendQuestionInformation(T(kCreer), Bouton::Non)
        .AttendInformation(T(kDisque));
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Data());
}

void TestStockage::serveurCree()
{
    MondeStockage monde(3);
    const QString serveur = monde.Fait(QStringLiteral("srv"));
    monde.Boites.AttendInformation(T(kReseau))
        .AttendInformation(T(kAnnuler))
        .AttendDossier(T(kTitreServeur), std::nullopt)
        .AttendQuestionInformation(T(kCreer), Bouton::Oui)
        .AttendDossier(T(kTitreCreation), std::nullopt)
        .AttendQuestionInformation(T(kRefaireRepertoire), Bouton::Oui)
        .AttendDossier(T(kTitreCreation), serveur);
    AttendTransfertAFaire(monde.Boites);
    monde.Regle();
    const QString arbre = Joint(serveur, QStringLiteral("DataScriptelle"));
    QVERIFY(common::DossierExiste(arbre));
    QCOMPARE(monde.Travail(), monde.Data());
    QCOMPARE(monde.Etat.Chemins.CheminBase, arbre);
    QCOMPARE(common::LitFichier(monde.CheminBaseCfg()),
             "2,\"" + common::CheminAffiche(arbre).toLatin1() + "\",1\r\n");
}

void TestStockage::serveurCreationAbandonnee()
{
    MondeStockage monde(3);
    monde.Boites.AttendInformation(T(kReseau))
        .AttendInformation(T(kAnnuler))
        .AttendDossier(T(kTitreServeur), std::nullopt)
        .AttendQuestionInformation(T(kCreer), Bouton::Oui)
        .AttendDossier(T(kTitreCreation), std::nullopt)
        .AttendQuestionInformation(T(kRefaireRepertoire), Bouton::Non)
        .AttendInformation(T(kDisque));
    monde.Regle();
    QCOMPARE(monde.Travail(), monde.Data());
}

QTEST_GUILESS_MAIN(TestStockage)
#include "test_stockage.moc"
