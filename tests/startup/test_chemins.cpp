#include "MondeStockage.h"
#include "outside/Boites.h"
#include "startup/FichiersChemins.h"

#include <QTest>

using namespace startup;
using common::Joint;
using outside::Bouton;

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
const char* const kInenregistrable = "Le nom de ce répertoire contient des caractères que le programme ne "
                                     "peut pas enregistrer.\nChoisissez un "
                                     "autre répertoire.";

} // namespace

class TestChemins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void premierDemarrage();
    void premierDemarrageRepris();
    void premierDemarrageAbandonne();
    void premierDemarrageNomInenregistrable();
    void fichierCheminData();
    void fichierCheminBase();
};

void TestChemins::premierDemarrage()
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

void TestChemins::premierDemarrageRepris()
{
    MondeStockage monde(1);
    const QString utilisateur = monde.Fait(QStringLiteral("neibre"));
    monde.Boites.AttendInformation(T(kUtilisateur))
        .AttendDossier(T(kTitreUtilisateur), std::nullopt)
        .AttendQuestion(T(kObligatoire), Bouton::Oui)
        .AttendDossier(T(kTitreUtilisateur), utilisateur);
    QVERIFY(DemandeCheminData(monde.Contexte));
}

void TestChemins::premierDemarrageAbandonne()
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

void TestChemins::premierDemarrageNomInenregistrable()
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

void TestChemins::fichierCheminData()
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

void TestChemins::fichierCheminBase()
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

QTEST_GUILESS_MAIN(TestChemins)
#include "test_chemins.moc"
