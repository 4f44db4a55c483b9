#include "drugbank/Chargement.h"
#include "drugbank/PosteBanque.h"

#include <QTest>

using namespace drugbank;
using support::Arguments;
using support::kEnCours;
using Poste = support::PosteBanque;

class TestSeance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LaDateUnix_data();
    void LaDateUnix();
    void LeChargementLitLaDateSansSession();
    void SansAideLaPharmaciePersonnelle();
    void SansProduitRienNEstDemande();
    void UnProduitAbsentLaisseLaBase();
    void LeDemarrageEnArrierePlan();
    void LaBarreDureHuitSecondes();
    void UnDemarrageLongSuitLaBarre();
    void UneSeuleFois();
    void SansArrierePlan();
    void UneVersionRefuseeEstUnEchec();
    void UnDemarrageRefuseVautSaVersion();
    void LeProduitAbsent();
    void LaBibliothequeIllisible();
    void SansSessionRienNEstAnnonce();
    void SansVersion();
    void SansDemarrage();
    void LesTextesSansCopieBornee();
};

void TestSeance::LaDateUnix_data()
{
    QTest::addColumn<qint32>("secondes");
    QTest::addColumn<QDateTime>("date");
    const auto le = [](int annee, int mois, int jour, const QTime& heure) {
        return QDateTime(QDate(annee, mois, jour), heure, Qt::UTC);
    };
    QTest::newRow("début") << 0 << le(1970, 1, 1, QTime(0, 0));
    QTest::newRow("une seconde") << 1 << le(1970, 1, 1, QTime(0, 0, 1));
    QTest::newRow("été") << 1782777600 << le(2026, 6, 30, QTime(0, 0));
    QTest::newRow("fin") << 2147483647 << le(2038, 1, 19, QTime(3, 14, 7));
    QTest::newRow("avant") << -1 << le(1969, 12, 31, QTime(23, 59, 59));
}

void TestSeance::LaDateUnix()
{
    QFETCH(qint32, secondes);
    QTEST(DateUnix(secondes), "date");
}

void TestSeance::LeChargementLitLaDateSansSession()
{
    Poste poste(R"({"expiration": "2027-03-31"})");
    poste.Charge();
    QVERIFY(poste.Banque.ModuleAide);
    QCOMPARE(poste.Banque.CheminBanque, poste.Libs.CheminBanque());
    QCOMPARE(poste.Banque.DateExpirationBase, QStringLiteral("31/03/2027"));
    QCOMPARE(Arguments(poste.Libs, "DatabaseInfoService_getExpiryDate"), QJsonArray({QJsonArray({0})}));
    QCOMPARE(poste.Banque.VidalHelper_getVidalAPIPath(2), 0);
    QVERIFY(poste.Banque.VidalHelper_getVidalAPIPath(9) != 0);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(0));
    QCOMPARE(poste.Banque.TypeBase, QStringLiteral("TVS"));
}

void TestSeance::SansAideLaPharmaciePersonnelle()
{
    Poste poste(R"({"aide": false})");
    poste.Charge();
    QVERIFY(!poste.Banque.ModuleAide);
    QCOMPARE(poste.Banque.TypeBase, QStringLiteral("BIP"));
    QVERIFY(!poste.Banque.VidalHelper_getVidalAPIPath);
    QVERIFY(!poste.Banque.Statut.Visible);
}

void TestSeance::SansProduitRienNEstDemande()
{
    Poste poste("{}");
    poste.Banque.ProduitBanque = -1;
    poste.Charge();
    QVERIFY(poste.Banque.ModuleAide);
    QCOMPARE(poste.Libs.Noms(), QStringList());
    QVERIFY(!poste.EnMemoire());
}

void TestSeance::UnProduitAbsentLaisseLaBase()
{
    Poste poste(R"({"produits": {"1": true}})");
    poste.Charge();
    QCOMPARE(poste.Banque.TypeBase, QStringLiteral("TVS"));
    QCOMPARE(poste.Libs.Noms(), QStringList({QStringLiteral("VidalHelper_getVidalAPIPath")}));
    QVERIFY(poste.Banque.DateExpirationBase.isEmpty());
}

void TestSeance::LeDemarrageEnArrierePlan()
{
    Poste poste(R"({"attentes": 3, "version": "3.2", "expiration": "2027-03-31",
                    "packs": [{"cip": "34", "id": 11, "produit": 101, "nom": "DOLIPRANE"}]})");
    poste.Charge();
    poste.Demarre();
    QCOMPARE(poste.Banque.MessageBanque, kEnCours);
    QCOMPARE(poste.Compte("VidalAPI_asyncInit"), 0); // events come first
    poste.Horloge.Passe(0);
    QCOMPARE(Arguments(poste.Libs, "VidalAPI_asyncInit"), QJsonArray({QJsonArray({QJsonValue::Null, 2})}));
    QCOMPARE(poste.Banque.RetourInitBanque, 14);
    QVERIFY(poste.Banque.Statut.Visible && poste.Banque.Statut.BarreVisible);
    QVERIFY(!poste.Banque.Acces);
    poste.Horloge.Passe(149);
    QCOMPARE(poste.Compte("VidalAPI_asyncStartResult"), 2);
    QVERIFY(!poste.Banque.Acces);
    poste.Horloge.Passe(1);
    QCOMPARE(Arguments(poste.Libs, "VidalAPI_asyncStartResult").last(), QJsonValue(QJsonArray({77, 1})));
    QCOMPARE(poste.Banque.RetourInitBanque, 0);
    QCOMPARE(poste.Banque.SessionBanque, 77);
    QCOMPARE(poste.Banque.VersionBanque, QStringLiteral("3.2"));
    QVERIFY(BanqueRepond(poste.Banque));
    QCOMPARE(poste.Banque.Acces->RecherchePacks(QStringLiteral("doli"), 64).size(), 1);
    QCOMPARE(poste.Banque.ProduitDuCip(QStringLiteral("34")), std::optional<qint32>(101));
}

void TestSeance::LaBarreDureHuitSecondes()
{
    Poste poste(R"({"attentes": 1, "expiration": "2027-03-31"})");
    poste.ChargeEtDemarre(999);
    QCOMPARE(poste.Banque.Statut.PG, 0);
    for (int pas = 1; pas < 8; ++pas) {
        poste.Horloge.Passe(1000);
        QCOMPARE(poste.Banque.Statut.PG, pas);
        QCOMPARE(poste.Banque.MessageBanque, kEnCours);
    }
    poste.Horloge.Passe(1);
    QCOMPARE(poste.Banque.Statut.PG, 8);
    QCOMPARE(poste.Banque.MessageBanque,
             QStringLiteral("Pharmacie initialisée\nDate d'expiration = 31/03/2027"));
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(0));
    poste.Horloge.Passe(2999);
    QVERIFY(poste.Banque.Statut.Visible);
    poste.Horloge.Passe(1);
    QVERIFY(!poste.Banque.Statut.Visible);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
}

void TestSeance::UnDemarrageLongSuitLaBarre()
{
    Poste poste(R"({"attentes": 200})"); // ten seconds
    poste.ChargeEtDemarre(9900);
    QCOMPARE(poste.Banque.Statut.PG, 8);
    QCOMPARE(poste.Banque.MessageBanque, kEnCours);
    poste.Horloge.Passe(200);
    QVERIFY(poste.Banque.MessageBanque.startsWith(QStringLiteral("Pharmacie initialisée\n")));
    QVERIFY(!poste.Banque.Statut.Annulable);
}

void TestSeance::UneSeuleFois()
{
    Poste poste("{}");
    poste.ChargeEtDemarre(0);
    poste.Demarre();
    poste.Horloge.Passe(60'000);
    poste.Demarre();
    poste.Horloge.Passe(60'000);
    QCOMPARE(poste.Compte("VidalAPI_asyncInit"), 1);
    QVERIFY(!poste.Banque.Statut.Visible);
}

void TestSeance::SansArrierePlan()
{
    Poste poste(R"({"asynchrone": false})");
    poste.ChargeEtDemarre(0);
    QVERIFY(poste.Banque.Statut.Visible && poste.Banque.Statut.BarreVisible);
    QCOMPARE(poste.Compte("VidalAPI_init"), 0); // the window is painted first
    poste.Horloge.Passe(50);
    QCOMPARE(Arguments(poste.Libs, "VidalAPI_init"), QJsonArray({QJsonArray({QJsonValue::Null, 2})}));
    QVERIFY(BanqueRepond(poste.Banque));
    QCOMPARE(poste.Compte("VidalAPI_asyncStartResult"), 0);
    poste.Horloge.Passe(8000);
    QVERIFY(poste.Banque.MessageBanque.startsWith(QStringLiteral("Pharmacie initialisée\n")));
}

void TestSeance::UneVersionRefuseeEstUnEchec()
{
    Poste poste(R"({"retourVersion": 7, "packs": [{"cip": "34", "nom": "DOLIPRANE"}]})");
    poste.ChargeEtDemarre(60'000);
    QCOMPARE(poste.Banque.RetourInitBanque, 7);
    QCOMPARE(poste.Banque.MessageBanque, kEnCours); // nothing else was said
    QVERIFY(!poste.Banque.Statut.Visible);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
    QCOMPARE(poste.Banque.SessionBanque, 77);
    QCOMPARE(poste.Banque.Acces->RecherchePacks(QStringLiteral("doli"), 64).size(), 1);
    QVERIFY(!BanqueRepond(poste.Banque));
    QVERIFY(!poste.Banque.ProduitDuCip);
}

void TestSeance::UnDemarrageRefuseVautSaVersion()
{
    Poste poste(R"({"retourDemarrage": 5})");
    poste.ChargeEtDemarre(8000);
    QCOMPARE(poste.Banque.RetourInitBanque, 0);
    QVERIFY(poste.Banque.MessageBanque.startsWith(QStringLiteral("Pharmacie initialisée\n")));
}

void TestSeance::LeProduitAbsent()
{
    Poste poste(R"({"produits": {"1": true}})");
    poste.ChargeEtDemarre(0);
    QCOMPARE(poste.Banque.MessageBanque, QStringLiteral("\n\nPharmacie non installée"));
    QVERIFY(poste.Banque.Statut.Visible && !poste.Banque.Statut.BarreVisible);
    poste.Horloge.Passe(1999);
    QVERIFY(!poste.Banque.MessageBanque.contains(QStringLiteral("Retour")));
    poste.Horloge.Passe(1);
    QCOMPARE(poste.Banque.MessageBanque,
             QStringLiteral("\n\nPharmacie non installée\n\nRetour init = 21   =>  Echec initialisation"));
    QCOMPARE(poste.Banque.RetourInitBanque, 21);
    QCOMPARE(poste.Banque.ChargementBanque, quint8(0));
    poste.Horloge.Passe(2999);
    QVERIFY(poste.Banque.Statut.Visible && poste.Banque.ModuleAide);
    poste.Horloge.Passe(1);
    QVERIFY(!poste.Banque.Statut.Visible && !poste.Banque.ModuleAide);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
    QVERIFY(!poste.Banque.Acces);
}

void TestSeance::LaBibliothequeIllisible()
{
    Poste poste(R"({"chargeable": false})");
    poste.ChargeEtDemarre(0);
    QCOMPARE(poste.Banque.RetourInitBanque, 16);
    QCOMPARE(poste.Banque.MessageBanque, QStringLiteral("\n\nvidalapi dll ne peut être chargée !"
                                                        "\n\nRetour init = 16   =>  Echec initialisation"));
    QVERIFY(poste.Banque.Statut.Visible && !poste.Banque.Statut.BarreVisible);
    poste.Horloge.Passe(3000);
    QVERIFY(!poste.Banque.Statut.Visible);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
}

void TestSeance::SansSessionRienNEstAnnonce()
{
    Poste poste;
    poste.PoseBibliotheque(BANQUE_NUE);
    poste.ChargeEtDemarre(60'000);
    QCOMPARE(poste.Banque.RetourInitBanque, 0);
    QCOMPARE(poste.Banque.VersionBanque, QString(64, u'v'));
    QCOMPARE(poste.Banque.MessageBanque, kEnCours);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
    QVERIFY(poste.Banque.Acces && !BanqueRepond(poste.Banque));
    QVERIFY(poste.Banque.DateExpirationBase.isEmpty());
}

void TestSeance::SansVersion()
{
    Poste poste;
    poste.PoseBibliotheque(BANQUE_SANS_VERSION);
    poste.ChargeEtDemarre(60'000);
    QVERIFY(poste.Banque.RetourInitBanque != 0);
    QCOMPARE(poste.Banque.MessageBanque, kEnCours);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
}

void TestSeance::SansDemarrage()
{
    Poste poste;
    poste.PoseBibliotheque(BANQUE_SANS_DEMARRAGE);
    poste.ChargeEtDemarre(60'000);
    QVERIFY(poste.Banque.RetourInitBanque != 0);
    QCOMPARE(poste.Banque.MessageBanque, kEnCours);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
    QVERIFY(!poste.Banque.Statut.Visible && !BanqueRepond(poste.Banque));
}

void TestSeance::LesTextesSansCopieBornee()
{
    Poste poste(R"({"copieBornee": false, "packs": [{"cip": "34", "nom": "DOLIPRANE"}]})");
    poste.ChargeEtDemarre(1000);
    QCOMPARE(poste.Banque.Acces->RecherchePacks(QStringLiteral("doli"), 64).constFirst().Nom,
             QStringLiteral("DOLIPRANE"));
    QVERIFY(poste.Compte("CopyString") > 0);
}

QTEST_MAIN(TestSeance)
#include "test_seance.moc"
