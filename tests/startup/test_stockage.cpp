#include "outside/Boites.h"
#include "startup/DialoguesStockage.h"
#include "startup/FichiersChemins.h"
#include "support/Monde.h"

#include <QTest>

using namespace startup;
using common::Joint;
using outside::Bouton;
using support::Monde;

namespace {

const char* const kUtilisateur =
    "         Sélectionnez le répertoire où seront enregistrées les données du programme sur le disque dur "
    "de votre "
    "ordinateur.\n\nCe répertoire doit être celui qui porte  \"VOTRE NOM D' UTILISATEUR\",   et dont "
    "l'emplacement diffère selon les versions de Windows :\n\n- Dans \"Documents And settings\" sous XP\n- "
    "Dans "
    "\"Utilisateurs ou Users\" pour les versions ultérieures (Seven, 8, 10)";
const char* const kTitreUtilisateur = "Sélectionnez uniquement le répertoire à votre NOM D'UTILISATEUR";
const char* const kObligatoire = "Ce renseignement est obligatoire ; voulez-vous continuer ?";
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
const char* const kInenregistrable = "Le nom de ce répertoire contient des caractères que le programme ne "
                                     "peut pas enregistrer.\nChoisissez un "
                                     "autre répertoire.";

QString T(const char* texte)
{
    return QString::fromUtf8(texte);
}

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

/// A world whose storage is settled, with the path files' directory.
struct MondeStockage : Monde
{
    explicit MondeStockage(quint8 type)
    {
        common::CreeDossier(Etat.Chemins.CheminInstallation);
        common::CreeDossier(Etat.Chemins.CheminData);
        Etat.Chemins.TypeStockage = type;
        Etat.Chemins.CheminTravail.clear();
        Etat.Chemins.IndexStockage = static_cast<quint8>(type - 1);
    }

    QString CheminBaseCfg() const
    {
        return Joint(Etat.Chemins.CheminInstallation, QStringLiteral("CheminBase.cfg"));
    }

    /// A directory below this world, made, with a file in it when `nom` is given.
    QString Fait(const QString& dossier, const QString& nom = {}) const
    {
        common::CreeDossier(Chemin(dossier));
        if (!nom.isEmpty()) {
            common::EcritFichier(Joint(Chemin(dossier), nom), "x");
        }
        return Chemin(dossier);
    }

    void Regle() { RegleCheminTravail(Contexte); }
    QString Travail() const { return Etat.Chemins.CheminTravail; }
    QString Data() const { return Etat.Chemins.CheminData; }
};

} // namespace

class TestStockage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void premierDemarrage();
    void premierDemarrageRepris();
    void premierDemarrageAbandonne();
    void premierDemarrageNomInenregistrable();
    void fichierCheminData();
    void fichierCheminBase();
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

void TestStockage::premierDemarrage()
{
    MondeStockage monde(1);
    monde.Etat.Chemins.CheminData.clear();
    const QString utilisateur = monde.Fait(QStringLiteral("neibre"));
    monde.Boites.AttendInformation(T(kUtilisateur)).AttendDossier(T(kTitreUtilisateur), utilisateur);
    QVERIFY(DemandeCheminData(monde.Contexte));
    const QString arbre = utilisateur + QStringLiteral("/DataVelmont/DataScriptelle");
    QCOMPARE(monde.Data(), arbre);
    QVERIFY(common::DossierExiste(arbre));
#ifdef Q_OS_UNIX
    const auto autres =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(!(QFile::permissions(arbre) & autres));
    QVERIFY(!(QFile::permissions(utilisateur + QStringLiteral("/DataVelmont")) & autres));
#endif
    QCOMPARE(
        common::LitFichier(Joint(monde.Etat.Chemins.CheminInstallation, QStringLiteral("CheminData.cfg"))),
        '"' + common::CheminAffiche(arbre).toLatin1() + "\"\r\n");
}

void TestStockage::premierDemarrageRepris()
{
    MondeStockage monde(1);
    const QString utilisateur = monde.Fait(QStringLiteral("neibre"));
    monde.Boites.AttendInformation(T(kUtilisateur))
        .AttendDossier(T(kTitreUtilisateur), std::nullopt)
        .AttendQuestion(T(kObligatoire), Bouton::Oui)
        .AttendDossier(T(kTitreUtilisateur), utilisateur);
    QVERIFY(DemandeCheminData(monde.Contexte));
}

void TestStockage::premierDemarrageAbandonne()
{
    MondeStockage monde(1);
    monde.Boites.AttendInformation(T(kUtilisateur))
        .AttendDossier(T(kTitreUtilisateur), std::nullopt)
        .AttendQuestion(T(kObligatoire), Bouton::Non)
        .AttendStop(T("Lancement du programme interrompu par défaut de renseignement !"));
    QVERIFY(!DemandeCheminData(monde.Contexte));
    QVERIFY(!common::FichierExiste(
        Joint(monde.Etat.Chemins.CheminInstallation, QStringLiteral("CheminData.cfg"))));
}

void TestStockage::premierDemarrageNomInenregistrable()
{
    MondeStockage monde(1);
    const QString utilisateur = monde.Fait(QStringLiteral("neibre"));
    monde.Boites.AttendInformation(T(kUtilisateur))
        .AttendDossier(T(kTitreUtilisateur), monde.Fait(QStringLiteral("Łukasz")))
        .AttendInformation(T(kInenregistrable))
        .AttendDossier(T(kTitreUtilisateur), utilisateur);
    QVERIFY(DemandeCheminData(monde.Contexte));
    QVERIFY(monde.Data().startsWith(utilisateur));
}

void TestStockage::fichierCheminData()
{
    MondeStockage monde(1);
    Chemins& chemins = monde.Etat.Chemins;
    const QString fichier = Joint(chemins.CheminInstallation, QStringLiteral("CheminData.cfg"));
    const QString arbre = chemins.CheminData;
    EcritCheminData(chemins);
    chemins.CheminData.clear();
    LitCheminData(chemins);
    QCOMPARE(chemins.CheminData, arbre);

    for (const QByteArray& abime : {QByteArray("\"ouvert"), QByteArray("\"a\"\r\n\0", 6), QByteArray()}) {
        common::EcritFichier(fichier, abime);
        LitCheminData(chemins);
        QCOMPARE(chemins.CheminData, QString());
        EcritCheminData(chemins);
        QCOMPARE(common::LitFichier(fichier + QStringLiteral(".abime")), abime);
    }
}

void TestStockage::fichierCheminBase()
{
    MondeStockage monde(3);
    Chemins& chemins = monde.Etat.Chemins;
    Medecins& medecins = monde.Etat.Medecins;
    chemins.IndexStockage = 0;
    EcritCheminBase(chemins, medecins);
    QCOMPARE(common::LitFichier(monde.CheminBaseCfg()), QByteArray("0,\"\",1\r\n"));
    common::EcritFichier(monde.CheminBaseCfg(), "2,\"/srv/DataScriptelle\",4\r\n");
    QCOMPARE(static_cast<int>(LitCheminBase(chemins, medecins)),
             static_cast<int>(settings::Lecture::Complete));
    QCOMPARE(int(chemins.IndexStockage), 2);
    QCOMPARE(chemins.CheminBase, QStringLiteral("/srv/DataScriptelle"));
    QCOMPARE(int(medecins.NumMedecinDefaut), 4);
    common::EcritFichier(monde.CheminBaseCfg(), "1\r\n");
    LitCheminBase(chemins, medecins);
    QCOMPARE(int(chemins.IndexStockage), 1);
    QCOMPARE(int(medecins.NumMedecinDefaut), 4);
}

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
