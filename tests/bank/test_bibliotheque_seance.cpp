#include "BanqueDeTest.h"
#include "bank/Importateur.h"
#include "drugbank/Banque.h"
#include "drugbank/Chargement.h"
#include "support/Monde.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace drugbank;

namespace {

/// The program with the open bank beside it, as it is installed; its bank file may be missing.
struct Poste : support::Monde
{
    explicit Poste(bool avecFichier)
    {
        common::CreeDossier(Etat.Chemins.CheminProgramme);
        const QFileInfo bibliotheque(QStringLiteral(CHEMIN_BDP));
        if (!QFile::copy(bibliotheque.filePath(),
                         common::Joint(Etat.Chemins.CheminProgramme, bibliotheque.fileName()))) {
            qFatal("%s", CHEMIN_BDP);
        }
        if (avecFichier) {
            banque::Importe({.Dossier = support::DossierExtrait(),
                             .Vers = Chemin(QStringLiteral("programme/banque.sqlite")),
                             .Interactions = {}});
        }
        Etat.Banque.TypeBase = QStringLiteral("BDP");
        Etat.Banque.ProduitBanque = kProduitPublic;
        Etat.Seance.Charge(Contexte);
    }
    ~Poste() { Etat.Seance.Ferme(Contexte); }
    Poste(const Poste&) = delete;
    Poste& operator=(const Poste&) = delete;

    void Demarre()
    {
        Etat.Seance.Demarre(Contexte);
        Horloge.Passe(0);
        for (int sonde = 0; sonde < 400 && Etat.Banque.RetourInitBanque == kStatutEnCours; ++sonde) {
            QTest::qSleep(5);
            Horloge.Passe(50);
        }
        Horloge.Passe(30'000);
    }
};

} // namespace

class TestBibliothequeSeance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LaSessionRepond();
    void LeFichierSeRemplaceEntreDeuxSessions();
    void SansFichierElleLeDit();
};

void TestBibliothequeSeance::LaSessionRepond()
{
    Poste poste(true);
    const Banque& banque = poste.Etat.Banque;
    const QString davance = banque.DateExpirationBase;
    poste.Demarre();
    QCOMPARE(davance, banque.DateExpirationBase);
    QCOMPARE(banque.RetourInitBanque, 0);
    QVERIFY(BanqueRepond(banque) && !banque.VersionBanque.isEmpty());
    QVERIFY(!banque.DateExpirationBase.isEmpty() && banque.DateExpirationBase != QLatin1String("01/01/1970"));
    QCOMPARE(banque.MessageBanque,
             QStringLiteral("Pharmacie initialisée\nDate d'expiration = ") + banque.DateExpirationBase);
    QCOMPARE(banque.Acces->RecherchePacks(QStringLiteral("velmont"), 64).size(), 50);
}

void TestBibliothequeSeance::LeFichierSeRemplaceEntreDeuxSessions()
{
    Poste poste(true);
    poste.Demarre();
    poste.Etat.Seance.Libere(poste.Contexte);
    const QString fichier = poste.Chemin(QStringLiteral("programme/banque.sqlite"));
    const QString recent = poste.Chemin(QStringLiteral("recente.sqlite"));
    QVERIFY(QFile::copy(fichier, recent) && QFile::remove(fichier) && QFile::rename(recent, fichier));
    poste.Demarre();
    QCOMPARE(poste.Etat.Banque.RetourInitBanque, 0);
    QVERIFY(BanqueRepond(poste.Etat.Banque));
}

void TestBibliothequeSeance::SansFichierElleLeDit()
{
    Poste poste(false);
    poste.Demarre();
    const Banque& banque = poste.Etat.Banque;
    QVERIFY(banque.RetourInitBanque != 0);
    QVERIFY(!BanqueRepond(banque) && !banque.Statut.Visible);
    QCOMPARE(banque.BanqueInitialisee, quint8(1));
    QVERIFY(!banque.MessageBanque.contains(QStringLiteral("initialisée")));
}

QTEST_GUILESS_MAIN(TestBibliothequeSeance)
#include "test_bibliotheque_seance.moc"
