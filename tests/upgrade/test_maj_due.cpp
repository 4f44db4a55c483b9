#include "application/messages.h"
#include "common/Erreur.h"
#include "startup/DialoguesStockage.h"
#include "startup/MondeDemarrage.h"
#include "support/BaseDeTest.h"
#include "upgrade/MajDue.h"
#include "upgrade/messages.h"

#include <QTest>

using common::FichierExiste;
using outside::Bouton;
namespace messages = upgrade::messages;

namespace {

/// A practice that has started once; a new version has just been installed over it.
struct MondeInstalle : MondeDemarrage
{
    MondeInstalle()
    {
        Premier();
        for (const char* nom : {"BasesInstal/Copie de Medoc.mdb", "BasesInstal/Copie de Ordo.mdb"}) {
            const bool medoc = QByteArray(nom).endsWith("Medoc.mdb");
            storage::CreeBase(Programme(nom), medoc ? storage::GenreBase::Medoc : storage::GenreBase::Ordo,
                              storage::ContenuInitial::Aucun);
        }
        common::CopieFichier(Programme("BasesInstal/Copie de Medoc.mdb"), Programme("Copie de Medoc.mdb"));
        Etat.Bases.FermeMedoc();
        storage::Base medoc(Donnee("Medoc.mdb"), storage::GenreBase::Medoc);
        support::AjouteLigne(medoc, N("Biblio"), {N("titre"), N("posologie")});
    }

    MondeInstalle& AttendAnnonce()
    {
        Boites.AttendInformation(messages::MajDue());
        return *this;
    }
    void AttendMaj(const QString& arbre)
    {
        Boites.AttendDossier(messages::TitreRepertoireMaJ(), arbre)
            .AttendInformation(arbre.contains(N("DataVelmont")) ? messages::PatientezDisque()
                                                                : messages::PatientezSupport())
            .AttendInformation(messages::Terminee())
            .AttendInformation(messages::AutreSupport());
    }
    void AttendAbandon()
    {
        Boites.AttendContenant(outside::Genre::Stop, N("vos bases de données sont telles qu'elles étaient"),
                               Bouton::OK);
    }
    QStringList Biblio(const QString& fichier)
    {
        storage::Base medoc(fichier, storage::GenreBase::Medoc);
        return support::Lignes(medoc, N("Biblio"));
    }
};

} // namespace

class TestMajDue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void surLeDisque();
    void unSecondEssai();
    void renonce();
    void surUnServeur();
    void modelesAbsents();
    void medecinAbime();
    void repriseAuDemarrage();
    void repriseSurLeServeur();
    void redemarre();
    void redemarreImpossible();
};

/// The template that the installer left beside the program makes the upgrade due in the same run.
void TestMajDue::surLeDisque()
{
    MondeInstalle monde;
    monde.AttendAnnonce().AttendMaj(monde.Data);
    QVERIFY(monde.Demarre());
    QVERIFY(!FichierExiste(monde.Programme("Copie de Medoc.mdb")));
    QVERIFY(!FichierExiste(monde.Donnee("Copie de Medoc.mdb")));
    QVERIFY(!FichierExiste(monde.Donnee("Copie de Ordo.mdb")));
    QVERIFY(FichierExiste(monde.Donnee("Ancien_Medoc.mdb")));
    QVERIFY(FichierExiste(monde.Donnee("DR NEIBRE/Ancien_Ordo.mdb")));
    QCOMPARE(monde.Biblio(monde.Donnee("Medoc.mdb")), QStringList{N("titre|posologie")});
    // The next start finds nothing to do.
    monde.Oublie();
    QVERIFY(monde.Demarre());
}

void TestMajDue::unSecondEssai()
{
    MondeInstalle monde;
    monde.AttendAnnonce();
    monde.Boites.AttendDossier(messages::TitreRepertoireMaJ(), std::nullopt)
        .AttendQuestion(messages::RefaireEssai(), Bouton::Oui)
        .AttendDossier(messages::TitreRepertoireMaJ(), monde.Utilisateur)
        .AttendQuestion(messages::RefaireEssai(), Bouton::Oui);
    monde.AttendMaj(monde.Data);
    QVERIFY(monde.Demarre());
}

void TestMajDue::renonce()
{
    MondeInstalle monde;
    monde.AttendAnnonce();
    monde.Boites.AttendDossier(messages::TitreRepertoireMaJ(), std::nullopt)
        .AttendQuestion(messages::RefaireEssai(), Bouton::Non)
        .AttendInformation(messages::ProcedureInterrompue());
    QVERIFY(!monde.Demarre());
    QVERIFY(monde.Ecrans_.isEmpty());
    QVERIFY(FichierExiste(monde.Donnee("Copie de Medoc.mdb")));
    QVERIFY(!FichierExiste(monde.Donnee("Ancien_Medoc.mdb")));
}

void TestMajDue::surUnServeur()
{
    MondeInstalle monde;
    const QString serveur = monde.Chemin(N("serveur/DataScriptelle"));
    common::CopieDossier(monde.Data, serveur);
    monde.AttendAnnonce().AttendMaj(serveur);
    QVERIFY(monde.Demarre());
    QCOMPARE(monde.Biblio(common::Joint(serveur, N("Medoc.mdb"))), QStringList{N("titre|posologie")});
    QVERIFY(FichierExiste(common::Joint(serveur, N("DR NEIBRE/Ancien_Ordo.mdb"))));
    QVERIFY(!FichierExiste(monde.Donnee("Copie de Medoc.mdb")));
    QVERIFY(!FichierExiste(monde.Donnee("Ancien_Medoc.mdb")));
}

void TestMajDue::modelesAbsents()
{
    MondeInstalle monde;
    common::SupprimeFichier(monde.Programme("BasesInstal/Copie de Medoc.mdb"));
    monde.AttendAbandon();
    QVERIFY(monde.Demarre());
    QVERIFY(FichierExiste(monde.Donnee("Copie de Medoc.mdb")));
    QCOMPARE(monde.Biblio(monde.Donnee("Medoc.mdb")), QStringList{N("titre|posologie")});
}

/// One damaged database keeps nobody from working; the upgrade stays due until it can be made.
void TestMajDue::medecinAbime()
{
    MondeInstalle monde;
    const QByteArray sain = common::LitFichier(monde.Donnee("DR NEIBRE/Ordo.mdb"));
    common::EcritFichier(monde.Donnee("DR NEIBRE/Ordo.mdb"), "pas une base");
    monde.AttendAnnonce();
    monde.Boites.AttendDossier(messages::TitreRepertoireMaJ(), monde.Data)
        .AttendInformation(messages::PatientezDisque());
    monde.AttendAbandon();
    monde.Boites.AttendContenant(outside::Genre::Stop, N("Ordo.mdb"), Bouton::OK); // the doctor's look
    QVERIFY(monde.Demarre());
    QCOMPARE(monde.Ecrans_.first(), N("ChoixBase"));
    QVERIFY(FichierExiste(monde.Donnee("Copie de Medoc.mdb")));
    QVERIFY(!FichierExiste(monde.Donnee("MiseAJour.cfg")));
    QCOMPARE(monde.Biblio(monde.Donnee("Medoc.mdb")), QStringList{N("titre|posologie")});

    common::EcritFichier(monde.Donnee("DR NEIBRE/Ordo.mdb"), sain);
    monde.Oublie();
    monde.AttendAnnonce().AttendMaj(monde.Data);
    QVERIFY(monde.Demarre());
    QVERIFY(FichierExiste(monde.Donnee("DR NEIBRE/Ancien_Ordo.mdb")));
    QVERIFY(!FichierExiste(monde.Donnee("Copie de Medoc.mdb")));
}

/// An upgrade cut short in its exchange is finished before anything is read or moved.
void TestMajDue::repriseAuDemarrage()
{
    MondeInstalle monde;
    common::SupprimeFichier(monde.Programme("Copie de Medoc.mdb"));
    common::DeplaceFichier(monde.Donnee("Medoc.mdb"), monde.Donnee("Copie de Medoc.mdb"));
    common::EcritFichier(monde.Donnee("MiseAJour.cfg"), "Echange\nMedoc.mdb\n");
    QVERIFY(monde.Demarre());
    QCOMPARE(monde.Biblio(monde.Donnee("Medoc.mdb")), QStringList{N("titre|posologie")});
    QVERIFY(!FichierExiste(monde.Donnee("MiseAJour.cfg")));
}

void TestMajDue::repriseSurLeServeur()
{
    MondeInstalle monde;
    common::SupprimeFichier(monde.Programme("Copie de Medoc.mdb"));
    const QString serveur = monde.Chemin(N("serveur/DataScriptelle"));
    common::CopieDossier(monde.Data, serveur);
    const QString medoc = common::Joint(serveur, N("Medoc.mdb"));
    common::DeplaceFichier(medoc, common::Joint(serveur, N("Copie de Medoc.mdb")));
    common::EcritFichier(common::Joint(serveur, N("MiseAJour.cfg")), "Echange\nMedoc.mdb\n");
    common::EcritFichier(monde.Programme("CheminBase.cfg"),
                         "2,\"" + common::CheminAffiche(serveur).toUtf8() + "\",1\r\n");
    monde.RangChoisi = 2;
    QVERIFY(monde.Demarre());
    QCOMPARE(monde.Etat.Chemins.CheminTravail, serveur);
    QVERIFY(FichierExiste(medoc));
}

void TestMajDue::redemarre()
{
    support::Monde monde;
    monde.Plateau.Bulle = N("Scriptelle");
    monde.Boites.AttendInformation(T("Le programme doit redémarrer après la mise à jour."));
    upgrade::Redemarre(monde.Contexte);
    QCOMPARE(monde.Plateau.Bulle, QString());
    QCOMPARE(monde.Lanceur.Relances, QList<QStringList>{QStringList{common::CheminAffiche(common::Joint(
                                         monde.Etat.Chemins.CheminProgramme, N("Scriptelle.exe")))}});
}

void TestMajDue::redemarreImpossible()
{
    support::Monde monde;
    monde.Lanceur.Reussit = false;
    monde.Boites.AttendInformation(messages::Redemarrage())
        .AttendStop(application::messages::RedemarrageImpossible());
    upgrade::Redemarre(monde.Contexte);
}

QTEST_GUILESS_MAIN(TestMajDue)
#include "test_maj_due.moc"
