#include "MondeMedecins.h"
#include "common/Erreur.h"
#include "outside/Boites.h"
#include "settings/FichiersReglages.h"
#include "startup/GestionMedecins.h"

#include <QSignalSpy>
#include <QTest>

using namespace startup;
using common::Joint;
using outside::Bouton;

namespace {

const char* const kFormat = "Mauvais format d'inscription !";

} // namespace

class TestInscription : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inscrit();
    void inscritRien_data();
    void inscritRien();
    void inscritMauvaisFormat_data();
    void inscritMauvaisFormat();
    void inscritAvecTrait();
    void inscritDejaInscrit();
    void inscritSurRepertoireExistant();
    void inscritSansModele();
    void inscritSansCopiesRacine();
    void supprimeLeDernier();
    void supprimeSansSelection();
    void supprimeRefuse();
    void supprimePuisNumerote();
    void supprimeLeDefaut();
    void supprimeAvecLogo();
};

void TestInscription::inscrit()
{
    MondeMedecins monde({kA});
    settings::Marges marges;
    marges.MargeHauteOrdo = 77;
    settings::EcritMarges(marges, monde.Etat.Chemins.CheminTravail);
    monde.AttendNom("  dr martin paul ");
    InscritMedecin(monde.Contexte);
    const QString nom = QStringLiteral("DR MARTIN PAUL");
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, monde.Medecin(nom));
    QCOMPARE(monde.Etat.Medecins.Selection, 1);
    QCOMPARE(int(monde.Etat.Medecins.NumMedecin), 2);
    QCOMPARE(monde.Etat.Reglages.Marges.MargeHauteOrdo, 77.0F);
    for (const char* fichier : {"Ordo.mdb", "Options.cfg", "Marges.cfg", "Dupli.cfg"}) {
        QVERIFY2(common::FichierExiste(Joint(monde.Medecin(nom), QLatin1String(fichier))), fichier);
    }
    QVERIFY(!common::FichierExiste(Joint(monde.Medecin(nom), QStringLiteral("Base.cfg"))));
    QVERIFY(common::DossierExiste(Joint(monde.Medecin(nom), QStringLiteral("Logo"))));
    QCOMPARE(common::LitFichier(monde.Ini()), QByteArray(" 2 \r\nDR A-1\r\nDR MARTIN PAUL-2\r\n"));
    QCOMPARE(monde.Etat.Banque.TypeBase, QStringLiteral("BIP"));
}

void TestInscription::inscritRien_data()
{
    QTest::addColumn<support::BoitesScript::Texte>("saisie");
    QTest::newRow("annuler") << support::BoitesScript::Texte();
    QTest::newRow("vide") << support::BoitesScript::Texte(QString());
    QTest::newRow("inchangée") << support::BoitesScript::Texte(QStringLiteral("Dr "));
}

void TestInscription::inscritRien()
{
    QFETCH(support::BoitesScript::Texte, saisie);
    MondeMedecins monde({kA});
    monde.Boites.AttendSaisie(T(kInvite), saisie, QStringLiteral("Dr "));
    InscritMedecin(monde.Contexte);
    QCOMPARE(monde.Etat.Medecins.Liste.size(), 1);
}

void TestInscription::inscritMauvaisFormat_data()
{
    QTest::addColumn<QString>("saisie");
    QTest::newRow("sans titre") << QStringLiteral("Martin");
    QTest::newRow("sans espace") << QStringLiteral("DrMartin");
    QTest::newRow("titre seul") << QStringLiteral("dr");
    QTest::newRow("trait d'union seul") << QStringLiteral("dr -");
    QTest::newRow("trait au lieu de l'espace") << QStringLiteral("dr-martin");
    QTest::newRow("hors de l'arbre") << QStringLiteral("DR ../X");
    QTest::newRow("barre inverse") << QStringLiteral("DR A\\B");
    QTest::newRow("caractère de contrôle") << QStringLiteral("DR A\tB");
    QTest::newRow("caractère interdit") << QStringLiteral("DR A*B");
    QTest::newRow("guillemet") << QStringLiteral("DR \"A\"");
    QTest::newRow("point final") << QStringLiteral("DR A.");
    QTest::newRow("trop long") << QStringLiteral("DR ") + QString(200, QLatin1Char('A'));
    QTest::newRow("hors du code") << QStringLiteral("DR ŁÓDŹ");
}

void TestInscription::inscritMauvaisFormat()
{
    QFETCH(QString, saisie);
    MondeMedecins monde({kA});
    const QByteArray ini = common::LitFichier(monde.Ini());
    monde.Boites.AttendSaisie(T(kInvite), saisie, QStringLiteral("Dr ")).AttendStop(T(kFormat));
    InscritMedecin(monde.Contexte);
    QCOMPARE(monde.Etat.Medecins.Liste.size(), 1);
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, monde.Medecin(kA));
    QCOMPARE(common::LitFichier(monde.Ini()), ini);
}

void TestInscription::inscritAvecTrait()
{
    MondeMedecins monde({kA});
    monde.AttendNom("dr martin-durand paul");
    monde.Boites.AttendInformation(
        T("Le trait d'union du nom est remplacé par un espace : le médecin est inscrit "
          "sous le nom \"DR MARTIN DURAND PAUL\"."));
    InscritMedecin(monde.Contexte);
    QVERIFY(common::DossierExiste(monde.Medecin(QStringLiteral("DR MARTIN DURAND PAUL"))));
    LitMedecins(monde.Contexte);
    QCOMPARE(monde.Etat.Medecins.Liste[1].Nom, QStringLiteral("DR MARTIN DURAND PAUL"));
}

void TestInscription::inscritDejaInscrit()
{
    MondeMedecins monde({kA});
    monde.AttendNom("Dr A");
    monde.Boites.AttendStop(T("Un médecin est déjà inscrit sous le nom \"DR A\"."));
    InscritMedecin(monde.Contexte);
    QCOMPARE(monde.Etat.Medecins.Liste.size(), 1);
}

void TestInscription::inscritSurRepertoireExistant()
{
    MondeMedecins monde({kA});
    monde.CreeMedecin(kB);
    const QString options = Joint(monde.Medecin(kB), QStringLiteral("Options.cfg"));
    common::EcritFichier(options, "1\r\n");
    const QByteArray base = common::LitFichier(Joint(monde.Medecin(kB), QStringLiteral("Ordo.mdb")));
    monde.AttendNom("dr b");
    InscritMedecin(monde.Contexte);
    QCOMPARE(common::LitFichier(options), QByteArray("1\r\n"));
    QCOMPARE(common::LitFichier(Joint(monde.Medecin(kB), QStringLiteral("Ordo.mdb"))), base);
    QCOMPARE(monde.Etat.Medecins.Liste.size(), 2);
}

void TestInscription::inscritSansModele()
{
    MondeMedecins monde({kA});
    common::SupprimeDossier(monde.Chemin(QStringLiteral("programme/BasesInstal")));
    const QByteArray ini = common::LitFichier(monde.Ini());
    monde.AttendNom("dr b");
    monde.Boites.AttendContenant(outside::Genre::Stop, T("L'inscription du médecin est incomplète.\n"));
    InscritMedecin(monde.Contexte);
    QCOMPARE(monde.Etat.Medecins.Liste.size(), 1);
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, monde.Medecin(kA));
    QCOMPARE(common::LitFichier(monde.Ini()), ini);
}

void TestInscription::inscritSansCopiesRacine()
{
    MondeMedecins monde({kA});
    common::SupprimeFichier(Joint(monde.Etat.Chemins.CheminTravail, QStringLiteral("Dupli.cfg")));
    monde.AttendNom("dr b");
    InscritMedecin(monde.Contexte);
    QCOMPARE(monde.Etat.Medecins.Liste.size(), 2);
    QVERIFY(!common::FichierExiste(Joint(monde.Medecin(kB), QStringLiteral("Dupli.cfg"))));
}

void TestInscription::supprimeLeDernier()
{
    MondeMedecins monde({kA});
    monde.Boites.AttendInformation(T("On ne peut supprimer le dernier médecin enregistré !"));
    SupprimeMedecin(monde.Contexte);
    QVERIFY(common::DossierExiste(monde.Medecin(kA)));
}

void TestInscription::supprimeSansSelection()
{
    MondeMedecins monde({kA, kB});
    monde.Etat.Medecins.Selection = -1;
    monde.Boites.AttendInformation(T("Sélectionnez un médecin dans la liste !"));
    SupprimeMedecin(monde.Contexte);
    QCOMPARE(monde.Etat.Medecins.Liste.size(), 2);
}

void TestInscription::supprimeRefuse()
{
    MondeMedecins monde({kA, kB});
    monde.Boites.AttendQuestion(T("Supprimer DR A de la liste ?"), Bouton::Non, Bouton::Non);
    SupprimeMedecin(monde.Contexte);
    QCOMPARE(monde.Etat.Medecins.Liste.size(), 2);
    QVERIFY(common::FichierExiste(Joint(monde.Medecin(kA), QStringLiteral("Ordo.mdb"))));
}

void TestInscription::supprimePuisNumerote()
{
    MondeMedecins monde({kA, kB, kC});
    ChangeMedecin(monde.Contexte, 1);
    monde.Boites.AttendQuestion(T("Supprimer DR B de la liste ?"), Bouton::Oui, Bouton::Non);
    QSignalSpy face(&monde.Etat.Signaux, &application::Signaux::FaceChange);
    SupprimeMedecin(monde.Contexte);
    QCOMPARE(common::LitFichier(monde.Ini()), QByteArray(" 3 \r\nDR A-1\r\nDR C-3\r\n"));
    QVERIFY(!common::DossierExiste(monde.Medecin(kB)));
    QCOMPARE(monde.Etat.Medecins.Selection, -1);
    QCOMPARE(monde.Etat.Chemins.CheminMedecin, QString());
    QCOMPARE(face.count(), 1);

    monde.AttendNom("dr d");
    InscritMedecin(monde.Contexte);
    QCOMPARE(common::LitFichier(monde.Ini()), QByteArray(" 4 \r\nDR A-1\r\nDR C-3\r\nDR D-4\r\n"));
}

void TestInscription::supprimeLeDefaut()
{
    MondeMedecins monde({kA, kB});
    ChangeMedecin(monde.Contexte, 1);
    monde.Etat.Medecins.NumMedecinDefaut = 2;
    monde.Boites.AttendQuestion(T("Supprimer DR B de la liste ?"), Bouton::Oui, Bouton::Non);
    SupprimeMedecin(monde.Contexte);
    QCOMPARE(int(monde.Etat.Medecins.NumMedecinDefaut), 1);
    QVERIFY(!common::FichierExiste(
        Joint(monde.Etat.Chemins.CheminInstallation, QStringLiteral("CheminBase.cfg"))));
}

void TestInscription::supprimeAvecLogo()
{
    MondeMedecins monde({kA, kB});
    const QString logo = Joint(monde.Medecin(kA), QStringLiteral("Logo/photo.bmp"));
    common::EcritFichier(logo, "image");
    monde.Boites.AttendQuestion(T("Supprimer DR A de la liste ?"), Bouton::Oui, Bouton::Non);
    SupprimeMedecin(monde.Contexte);
    QCOMPARE(common::LitFichier(logo), QByteArray("image"));
    QVERIFY(!common::FichierExiste(Joint(monde.Medecin(kA), QStringLiteral("Ordo.mdb"))));
    QCOMPARE(monde.Etat.Medecins.Liste.size(), 1);
}

QTEST_GUILESS_MAIN(TestInscription)
#include "test_inscription.moc"
