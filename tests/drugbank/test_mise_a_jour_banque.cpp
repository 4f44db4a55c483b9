#include "bank/InformationBanque.h"
#include "common/Fichiers.h"
#include "drugbank/Banque.h"
#include "drugbank/BanquePublique.h"
#include "drugbank/Chargement.h"
#include "drugbank/MiseAJourBanque.h"
#include "drugbank/ProgresBanque.h"
#include "drugbank/RemplacementBanque.h"
#include "drugbank/messagesMaj.h"
#include "medication/Choix.h"
#include "support/Monde.h"

#include <QDir>
#include <QLockFile>
#include <QSignalSpy>
#include <QTest>

using namespace drugbank;

namespace {

QString Extrait()
{
    return QStringLiteral(RACINE_PROJET "/bank/extrait");
}

QString Thesaurus()
{
    return Extrait() + QStringLiteral("/thesaurus/interactions.txt");
}

/// A program directory with a former bank file, and an update of it.
struct Poste : support::Monde
{
    QString Banque = CheminBanqueMiseAJour(Etat.Chemins);

    Poste()
    {
        common::CreeDossier(Etat.Chemins.CheminInstallation);
        common::EcritFichier(Banque, "ancienne");
    }

    banque::Demande Demandee(const QString& thesaurus = {}) const
    {
        return {.Dossier = Extrait(), .Vers = Banque, .Interactions = thesaurus};
    }
    /// The former bank as it was, and nothing beside it.
    bool Intacte() const
    {
        return common::LitFichier(Banque) == "ancienne" &&
               QDir(Etat.Chemins.CheminInstallation).entryList(QDir::Files) ==
                   QStringList{QStringLiteral("banque.sqlite")};
    }
};

void AttendLaFin(MiseAJourBanque& maj)
{
    QSignalSpy fin(&maj, &MiseAJourBanque::Finie);
    QVERIFY(fin.wait(20'000));
    QVERIFY(!maj.EnCours());
}

} // namespace

class TestMiseAJourBanque : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheNewBankReplacesTheFormerOne();
    void ProgressGrowsToItsEnd();
    void CancelledLeavesTheFormerOne();
    void TheEndOfTheProgramLeavesTheFormerOne();
    void TwoUpdatesDoNotRunTogether();
    void AFailureIsSaid();
    void TheOpenBankIsClosedAlone();
    void TheFileOfAnUpdateComesFirst();
    void WhatIsNoBankIsNone();
    void ReservesOfTheData();
};

void TestMiseAJourBanque::TheNewBankReplacesTheFormerOne()
{
    Poste poste;
    QThread* fil = nullptr;
    QByteArray alors;
    MiseAJourBanque maj(poste.Demandee(Thesaurus()), [&] {
        fil = QThread::currentThread();
        alors = common::LitFichier(poste.Banque);
    });
    maj.Lance();
    QVERIFY(maj.EnCours());
    AttendLaFin(maj);
    QCOMPARE(int(maj.Resultat().Fin), int(banque::Fin::AvecRefus));
    QVERIFY(maj.Resultat().Bilan.contains(QStringLiteral("refusée : ")));
    QCOMPARE(fil, QThread::currentThread());
    QCOMPARE(alors, QByteArray("ancienne"));
    const auto information = LitBanquePublique(poste.Etat.Chemins);
    QVERIFY(information);
    QCOMPARE(information->DateDonnees, QDate(2026, 5, 18));
    QVERIFY(information->Interactions > 0);
    QVERIFY(maj.Resultat().Phrase.contains(QStringLiteral("18/05/2026")));
}

void TestMiseAJourBanque::ProgressGrowsToItsEnd()
{
    const Poste poste;
    MiseAJourBanque maj(poste.Demandee(Thesaurus()), [] {});
    int part = 0;
    QStringList mots;
    connect(&maj, &MiseAJourBanque::Avance, &maj, [&](int nouvelle, const QString& texte) {
        QVERIFY(nouvelle >= part && nouvelle <= ProgresBanque::kTotal);
        part = nouvelle;
        mots.append(texte);
    });
    maj.Lance();
    AttendLaFin(maj);
    QCOMPARE(part, ProgresBanque::kTotal);
    QVERIFY(mots.contains(
        messages::MajAvance(QStringLiteral("CIS_bdpm.txt"), QStringLiteral("82"), QStringLiteral("82"))));
    QVERIFY(mots.contains(messages::MajAvanceFichier(QStringLiteral("interactions.txt"))));
    QVERIFY(mots.constLast().startsWith(QStringLiteral("interactions.txt : ")));
}

void TestMiseAJourBanque::CancelledLeavesTheFormerOne()
{
    const Poste poste;
    bool liberee = false;
    MiseAJourBanque maj(poste.Demandee(), [&] { liberee = true; });
    maj.Lance();
    QTest::qSleep(300); // the import waits for its leave, or is under way
    maj.Annule();
    AttendLaFin(maj);
    QCOMPARE(int(maj.Resultat().Fin), int(banque::Fin::Interrompue));
    QCOMPARE(maj.Resultat().Phrase, messages::MajAnnulee());
    QVERIFY(!liberee);
    QVERIFY(poste.Intacte());
}

void TestMiseAJourBanque::TheEndOfTheProgramLeavesTheFormerOne()
{
    const Poste poste;
    for (const int attente : {0, 300}) {
        MiseAJourBanque maj(poste.Demandee(), [] {});
        maj.Lance();
        QTest::qSleep(attente);
    }
    QVERIFY(poste.Intacte());
}

void TestMiseAJourBanque::TwoUpdatesDoNotRunTogether()
{
    const Poste poste;
    QLockFile autre(poste.Banque + QStringLiteral(".verrou"));
    QVERIFY(autre.tryLock());
    MiseAJourBanque maj(poste.Demandee(), [] {});
    maj.Lance();
    AttendLaFin(maj);
    QCOMPARE(int(maj.Resultat().Fin), int(banque::Fin::Echec));
    QVERIFY(maj.Resultat().Phrase.contains(QStringLiteral("Un autre import")));
    autre.unlock();
    QVERIFY(poste.Intacte());
}

void TestMiseAJourBanque::AFailureIsSaid()
{
    const Poste poste;
    banque::Demande demande = poste.Demandee();
    demande.Dossier = poste.Chemin(QStringLiteral("absent"));
    MiseAJourBanque maj(demande, [] {});
    maj.Lance();
    AttendLaFin(maj);
    QVERIFY(maj.Resultat().Phrase.contains(QStringLiteral("n'existe pas")));
    QVERIFY(maj.Resultat().Phrase.endsWith(QStringLiteral("La base d'avant reste en place.")));
    QVERIFY(poste.Intacte());
    QCOMPARE(RefusDeLaMaj({}), messages::MajSansDossier());
    demande.Interactions = demande.Dossier;
    QVERIFY(RefusDeLaMaj(demande).contains(QStringLiteral("n'existe pas")));
}

void TestMiseAJourBanque::TheOpenBankIsClosedAlone()
{
    support::Monde monde;
    Banque& banque = monde.Etat.Banque;
    banque.TypeBase = QStringLiteral("TVS");
    banque.BanqueInitialisee = 1;
    LibereBanquePublique(monde.Contexte);
    QCOMPARE(int(banque.BanqueInitialisee), 1);
    banque.TypeBase = QStringLiteral("BDP");
    banque.ProduitBanque = 3;
    banque.ProduitDuCip = [](const QString&) { return std::nullopt; };
    LibereBanquePublique(monde.Contexte);
    QCOMPARE(int(banque.BanqueInitialisee), 0);
    QVERIFY(!banque.Acces);
    QVERIFY(!banque.ProduitDuCip);
    QCOMPARE(int(monde.Etat.Choix.BaseChangee), 1);
}

void TestMiseAJourBanque::TheFileOfAnUpdateComesFirst()
{
    support::Monde monde;
    startup::Chemins& chemins = monde.Etat.Chemins;
    chemins.CheminInstallation = monde.Chemin(QStringLiteral("installation"));
    const QString livree = common::Joint(chemins.CheminProgramme, QStringLiteral("banque.sqlite"));
    QCOMPARE(FichierBanquePublique(chemins), livree);
    common::CreeDossier(chemins.CheminInstallation);
    common::EcritFichier(CheminBanqueMiseAJour(chemins), "neuve");
    QCOMPARE(FichierBanquePublique(chemins), CheminBanqueMiseAJour(chemins));
    QVERIFY(!BanquePubliquePresente(chemins));
    common::CreeDossier(chemins.CheminProgramme);
    common::EcritFichier(common::Joint(chemins.CheminProgramme, QStringLiteral("scriptelle-bdp.dll")), "x");
    QVERIFY(BanquePubliquePresente(chemins));
}

void TestMiseAJourBanque::WhatIsNoBankIsNone()
{
    const Poste poste;
    QVERIFY(!LitBanquePublique(poste.Etat.Chemins));
    QCOMPARE(common::LitFichier(poste.Banque), QByteArray("ancienne"));
    common::EcritFichier(poste.Banque, {});
    QVERIFY(!LitBanquePublique(poste.Etat.Chemins));
    common::SupprimeFichier(poste.Banque);
    QVERIFY(!LitBanquePublique(poste.Etat.Chemins));
    storage::CreeBase(poste.Banque, storage::GenreBase::Medoc);
    QVERIFY(!LitBanquePublique(poste.Etat.Chemins));
}

void TestMiseAJourBanque::ReservesOfTheData()
{
    banque::InformationBanque entiere{.DateDonnees = QDate(2026, 5, 18),
                                      .Expiration = QDate(2027, 5, 18),
                                      .Specialites = 15'000,
                                      .Interactions = 1600};
    QCOMPARE(Reserves(entiere, QDate(2027, 5, 18)), QStringList());
    QCOMPARE(Reserves(entiere, QDate(2027, 5, 19)),
             QStringList{messages::BaseExpiree(QStringLiteral("18/05/2027"))});
    entiere.Specialites = 79;
    entiere.Interactions = 0;
    QCOMPARE(Reserves(entiere, QDate(2026, 11, 20)),
             (QStringList{messages::BaseIncomplete(79), messages::BaseSansInteraction()}));
    entiere.Nature = QStringLiteral("extrait");
    QCOMPARE(Reserves(entiere, QDate(2026, 11, 20)).constFirst(),
             messages::BaseExtrait(QStringLiteral("extrait")));
}

QTEST_GUILESS_MAIN(TestMiseAJourBanque)

#include "test_mise_a_jour_banque.moc"
