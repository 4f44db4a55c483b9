#include "MondeMedecins.h"
#include "common/Erreur.h"
#include "outside/Boites.h"
#include "settings/FichiersReglages.h"
#include "startup/FichiersChemins.h"
#include "startup/GestionMedecins.h"
#include "startup/PremierMedecin.h"

#include <QSignalSpy>
#include <QTest>

using namespace startup;
using common::Joint;
using outside::Bouton;
using support::Monde;

namespace {

const char* const kPremier = "Vous devez renseigner le nom du MEDECIN UTILISATEUR de ce programme\n(le seul, "
                             "ou le premier, car on peut "
                             "enregistrer plusieurs utilisateurs).";
const char* const kInvitePremier =
    "Inscrire les nom et prénom du médecin.\n(Ignorez la casse, le nom sera mis en "
    "majuscules.)\n\nRESPECTEZ LE FORMAT : \"Dr/un espace/Nom Prenom (Prenom "
    "facultatif)\"";
const char* const kFormatContinuer = "Mauvais format d'inscription ! Voulez-vous continuer ?";

} // namespace

class TestMedecins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void premierMedecin();
    void premierMedecinInsiste();
    void premierMedecinAbandonne();
    void premierMedecinMauvaisFormat();
    void premierMedecinDejaLa();
    void premierMedecinSansBaseDInstallation();
    void litLaListe();
    void change();
    void changeSansReglages();
    void changeSansRepertoire();
    void changeVersUneBaseAbimee();
    void banqueDuMedecin();
    void exige();
    void parDefaut();
    void parDefautSansSelection();
    void quitte();
};

void TestMedecins::premierMedecin()
{
    Monde monde;
    monde.Installe();
    const QString data = monde.Etat.Chemins.CheminData;
    common::CreeDossierPrive(data);
    storage::CreeBase(Joint(data, QStringLiteral("Ordo.mdb")), storage::GenreBase::Ordo);
    monde.Boites.AttendInformation(T(kPremier))
        .AttendSaisie(T(kInvitePremier), T("dr neibré "), QStringLiteral("Dr "));
    QVERIFY(InscritPremierMedecin(monde.Contexte));
    const QString dossier = Joint(data, T("DR NEIBRÉ"));
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, dossier);
    QVERIFY(common::FichierExiste(Joint(dossier, QStringLiteral("Ordo.mdb"))));
    QVERIFY(common::DossierExiste(Joint(dossier, QStringLiteral("Logo"))));
    QCOMPARE(int(monde.Etat.Medecins.NbMedecins), 1);
    QCOMPARE(monde.Etat.Medecins.Liste, (QList<Medecin>{{T("DR NEIBRÉ"), 1}}));
    QCOMPARE(common::LitFichier(Joint(data, QStringLiteral("Medecin.ini"))),
             QByteArray(" 1 \r\nDR NEIBR\xC9-1\r\n"));
}

void TestMedecins::premierMedecinInsiste()
{
    Monde monde;
    monde.Installe();
    common::CreeDossierPrive(monde.Etat.Chemins.CheminData);
    monde.Boites.AttendInformation(T(kPremier))
        .AttendSaisie(T(kInvitePremier), std::nullopt, QStringLiteral("Dr "))
        .AttendQuestion(T("Cette inscription est obligatoire ; voulez-vous continuer ?"), Bouton::Oui)
        .AttendSaisie(T(kInvitePremier), T("Dr "), QStringLiteral("Dr "))
        .AttendQuestion(T("Cette inscription est obligatoire ; voulez-vous continuer ?"), Bouton::Oui)
        .AttendSaisie(T(kInvitePremier), T("docteur x"), QStringLiteral("Dr "))
        .AttendQuestion(T(kFormatContinuer), Bouton::Oui)
        .AttendSaisie(T(kInvitePremier), T("dr martin-durand"), QStringLiteral("Dr "))
        .AttendInformation(
            T("Le trait d'union du nom est remplacé par un espace : le médecin est inscrit sous "
              "le nom \"DR MARTIN DURAND\"."));
    QVERIFY(InscritPremierMedecin(monde.Contexte));
    QCOMPARE(monde.Etat.Medecins.Liste.constFirst().Nom, QStringLiteral("DR MARTIN DURAND"));
    QVERIFY(common::DossierExiste(Joint(monde.Etat.Chemins.CheminData, QStringLiteral("DR MARTIN DURAND"))));
}

void TestMedecins::premierMedecinAbandonne()
{
    Monde monde;
    monde.Boites.AttendInformation(T(kPremier))
        .AttendSaisie(T(kInvitePremier), QString(), QStringLiteral("Dr "))
        .AttendQuestion(T("Cette inscription est obligatoire ; voulez-vous continuer ?"), Bouton::Non)
        .AttendStop(T("Lancement du programme interrompu par défaut d'inscription d'un utilisateur !"));
    QVERIFY(!InscritPremierMedecin(monde.Contexte));
}

void TestMedecins::premierMedecinMauvaisFormat()
{
    Monde monde;
    monde.Boites.AttendInformation(T(kPremier))
        .AttendSaisie(T(kInvitePremier), T("dr ../x"), QStringLiteral("Dr "))
        .AttendQuestion(T(kFormatContinuer), Bouton::Non);
    QVERIFY(!InscritPremierMedecin(monde.Contexte));
    QVERIFY(!common::DossierExiste(monde.Etat.Chemins.CheminData));
}

void TestMedecins::premierMedecinDejaLa()
{
    Monde monde;
    monde.Installe();
    const QString dossier = Joint(monde.Etat.Chemins.CheminData, kA);
    common::CreeDossierPrive(dossier);
    common::EcritFichier(Joint(dossier, QStringLiteral("Ordo.mdb")), "sa base");
    monde.Boites.AttendInformation(T(kPremier))
        .AttendSaisie(T(kInvitePremier), T("dr a"), QStringLiteral("Dr "));
    QVERIFY(InscritPremierMedecin(monde.Contexte));
    QCOMPARE(common::LitFichier(Joint(dossier, QStringLiteral("Ordo.mdb"))), QByteArray("sa base"));
}

void TestMedecins::premierMedecinSansBaseDInstallation()
{
    Monde monde;
    common::CreeDossierPrive(monde.Etat.Chemins.CheminData);
    monde.Boites.AttendInformation(T(kPremier))
        .AttendSaisie(T(kInvitePremier), T("dr a"), QStringLiteral("Dr "));
    QVERIFY_THROWS_EXCEPTION(common::Erreur, InscritPremierMedecin(monde.Contexte));
    QVERIFY(monde.Etat.Medecins.Liste.isEmpty());
}

void TestMedecins::litLaListe()
{
    Monde monde;
    LitMedecins(monde.Contexte);
    QVERIFY(monde.Etat.Medecins.Liste.isEmpty());
    common::CreeDossierPrive(monde.Etat.Chemins.CheminData);
    common::EcritFichier(Joint(monde.Etat.Chemins.CheminData, QStringLiteral("Medecin.ini")),
                         " 5 \r\nNEIBRE-2\r\nSANS TRAIT\r\nDR MARTIN-DURAND PAUL-4\r\n");
    monde.Etat.Medecins.NumMedecin = 4;
    QSignalSpy changes(&monde.Etat.Signaux, &application::Signaux::MedecinsChanges);
    LitMedecins(monde.Contexte);
    QCOMPARE(monde.Etat.Medecins.Liste,
             (QList<Medecin>{{QStringLiteral("NEIBRE"), 2}, {QStringLiteral("DR MARTIN"), 4}}));
    QCOMPARE(int(monde.Etat.Medecins.NbMedecins), 5);
    QCOMPARE(monde.Etat.Medecins.Selection, 1);
    QCOMPARE(changes.count(), 1);
}

void TestMedecins::change()
{
    MondeMedecins monde({kA, kB});
    settings::Marges marges;
    marges.MargeGaucheEntete = 42;
    settings::EcritMarges(marges, monde.Medecin(kB));
    monde.Etat.Choix.NoeudChoisi = 3;
    QSignalSpy change(&monde.Etat.Signaux, &application::Signaux::MedecinChange);
    QSignalSpy face(&monde.Etat.Signaux, &application::Signaux::FaceChange);
    ChangeMedecin(monde.Contexte, 1);
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, monde.Medecin(kB));
    QCOMPARE(int(monde.Etat.Medecins.NumMedecin), 2);
    QCOMPARE(monde.Etat.Medecins.Selection, 1);
    QCOMPARE(monde.Etat.Reglages.Marges.MargeGaucheEntete, 42.0F);
    QCOMPARE(monde.Etat.Choix.NoeudChoisi, medication::kAucunNoeud);
    QVERIFY(common::DossierExiste(Joint(monde.Medecin(kB), QStringLiteral("Logo"))));
    QCOMPARE(change.count(), 1);
    QCOMPARE(face.count(), 1);
    QCOMPARE(monde.Etat.Bases.Ordo(monde.Etat.Chemins.CheminMedecin).Chemin(),
             Joint(monde.Medecin(kB), QStringLiteral("Ordo.mdb")));

    for (const int rang : {-1, 2, 99}) {
        ChangeMedecin(monde.Contexte, rang);
        QCOMPARE(monde.Etat.Medecins.Selection, 1);
    }
    QCOMPARE(change.count(), 1);
}

void TestMedecins::changeSansReglages()
{
    MondeMedecins monde({kA, kB});
    monde.Etat.Reglages.Marges.MargeGaucheEntete = 33;
    ChangeMedecin(monde.Contexte, 1);
    QCOMPARE(monde.Etat.Reglages.Marges.MargeGaucheEntete, 33.0F);
}

void TestMedecins::changeSansRepertoire()
{
    MondeMedecins monde({kA, kB});
    common::SupprimeDossier(monde.Medecin(kB));
    monde.Etat.Reglages.Look.NomSignature = QStringLiteral("Docteur A");
    ChangeMedecin(monde.Contexte, 1);
    monde.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("Ordo.mdb"));
    DitBaseDuMedecinAbsente(monde.Contexte);
    QVERIFY(monde.Boites.Epuise());
    QVERIFY(!common::DossierExiste(monde.Medecin(kB)));
    QCOMPARE(monde.Etat.Reglages.Look.NomSignature, QString());
    QCOMPARE(int(monde.Etat.Medecins.NumMedecin), 2);
}

void TestMedecins::changeVersUneBaseAbimee()
{
    MondeMedecins monde({kA, kB});
    const QString ordo = Joint(monde.Medecin(kB), QStringLiteral("Ordo.mdb"));
    common::EcritFichier(ordo, "pas une base");
    monde.Boites.AttendContenant(outside::Genre::Stop, common::CheminAffiche(ordo));
    ChangeMedecin(monde.Contexte, 1);
    QCOMPARE(common::LitFichier(ordo), QByteArray("pas une base"));
}

void TestMedecins::banqueDuMedecin()
{
    MondeMedecins monde({kA, kB});
    drugbank::Banque& banque = monde.Etat.Banque;
    drugbank::Banque tvs;
    tvs.TypeBase = QStringLiteral("TVS");
    tvs.NiveauInteraction = 2;
    tvs.ProduitBanque = 1;
    settings::EcritBaseCfg(tvs, monde.Medecin(kB));
    banque.ModuleAide = true;
    ChangeMedecin(monde.Contexte, 1);
    QCOMPARE(banque.TypeBase, QStringLiteral("TVS"));
    QCOMPARE(banque.NiveauInteraction, 2);
    banque.FiltreBanque = 128;
    ChangeMedecin(monde.Contexte, 0);
    QCOMPARE(banque.TypeBase, QStringLiteral("BIP"));
    QCOMPARE(banque.FiltreBanque, 64);
    banque.ModuleAide = false;
    ChangeMedecin(monde.Contexte, 1);
    QCOMPARE(banque.TypeBase, QStringLiteral("BIP"));
    QCOMPARE(banque.ProduitBanque, 1);
}

void TestMedecins::exige()
{
    Monde monde;
    monde.Boites.AttendInformation(T("Choisissez d'abord un médecin utilisateur."));
    QVERIFY(!ExigeMedecin(monde.Contexte));
    monde.PoseMedecin();
    QVERIFY(ExigeMedecin(monde.Contexte));
}

void TestMedecins::parDefaut()
{
    MondeMedecins monde({kA, kB});
    ChangeMedecin(monde.Contexte, 1);
    monde.Boites.AttendInformation(
        T("DR B sera le médecin sélectionné par défaut à l'ouverture du programme ."));
    PoseMedecinParDefaut(monde.Contexte);
    QCOMPARE(
        common::LitFichier(Joint(monde.Etat.Chemins.CheminInstallation, QStringLiteral("CheminBase.cfg"))),
        QByteArray("0,\"\",2\r\n"));
}

void TestMedecins::parDefautSansSelection()
{
    MondeMedecins monde({kA, kB});
    monde.Etat.Medecins.Selection = -1;
    monde.Boites.AttendInformation(T("Sélectionnez un médecin !"));
    PoseMedecinParDefaut(monde.Contexte);
    QCOMPARE(
        common::LitFichier(Joint(monde.Etat.Chemins.CheminInstallation, QStringLiteral("CheminBase.cfg"))),
        QByteArray("0,\"\",1\r\n"));
}

void TestMedecins::quitte()
{
    MondeMedecins monde({kA});
    QVERIFY(QuitteMedecins(monde.Contexte));
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, monde.Medecin(kA));
    monde.Etat.Medecins.Selection = -1;
    monde.Boites.AttendInformation(T("Sélectionnez un nom de médecin."));
    QVERIFY(!QuitteMedecins(monde.Contexte));
    monde.Etat.Medecins.Liste.clear();
    QVERIFY(QuitteMedecins(monde.Contexte));
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, QString());
    QCOMPARE(int(monde.Etat.Medecins.NumMedecin), 0);
}

QTEST_GUILESS_MAIN(TestMedecins)
#include "test_medecins.moc"
