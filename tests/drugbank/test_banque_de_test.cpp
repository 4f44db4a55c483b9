#include "drugbank/BanqueDeTest.h"
#include "drugbank/RequetesBanque.h"

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>
#include <array>

using namespace drugbank;

namespace {

/// A bank of that description, loaded as the program loads it.
struct Poste
{
    explicit Poste(const char* json) : Bibliotheque(Pose(json)), Requetes(Bibliotheque, 77) {}

    std::shared_ptr<LiaisonBanque> Pose(const char* json)
    {
        QJsonParseError faute;
        const QJsonObject description = QJsonDocument::fromJson(json, &faute).object();
        if (faute.error != QJsonParseError::NoError || !Banque.Pose(description)) {
            qFatal("%s", json);
        }
        return std::make_shared<LiaisonBanque>(Banque.CheminBanque());
    }

    QTemporaryDir Dossier;
    support::BanqueDeTest Banque{Dossier.path()};
    std::shared_ptr<LiaisonBanque> Bibliotheque;
    RequetesBanque Requetes;
};

qint64 Secondes(const QDate& date)
{
    return date.startOfDay(Qt::UTC).toSecsSinceEpoch();
}

} // namespace

class TestBanqueDeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void attend();
    void ceQuiManque();
    void nonChargeable();
    void version();
    void expiration_data();
    void expiration();
    void recherche();
    void unePage();
    void cip();
    void documents();
    void groupes();
    void interactions();
    void journalQuiDure();
    void uneBibliothequeParDescription();
};

void TestBanqueDeTest::attend()
{
    const Poste poste(R"({"attentes": 2, "retourDemarrage": 7})");
    Poignee session = 0;
    QCOMPARE(poste.Bibliotheque->VidalAPI_asyncInit(&session, 2), 14);
    QVERIFY(session != 0);
    QCOMPARE(poste.Bibliotheque->VidalAPI_asyncStartResult(session, 1), 14);
    QCOMPARE(poste.Bibliotheque->VidalAPI_asyncStartResult(session, 1), 7);
    QCOMPARE(poste.Bibliotheque->VidalAPI_asyncInit(&session, 2), 14);
    QCOMPARE(poste.Bibliotheque->VidalAPI_init(&session, 2), 7);
    QCOMPARE(poste.Banque.Noms(QStringLiteral("VidalAPI_async")).size(), 4);
}

void TestBanqueDeTest::ceQuiManque()
{
    const Poste tout("{}");
    QVERIFY(tout.Bibliotheque->VidalAPI_asyncInit.Existe() &&
            tout.Bibliotheque->VidalAPI_asyncStartResult.Existe() &&
            tout.Bibliotheque->CopyStringN2.Existe());
    const Poste synchrone(R"({"asynchrone": false})");
    QVERIFY(!synchrone.Bibliotheque->VidalAPI_asyncInit.Existe() &&
            !synchrone.Bibliotheque->VidalAPI_asyncStartResult.Existe() &&
            synchrone.Bibliotheque->CopyStringN2.Existe() && synchrone.Bibliotheque->VidalAPI_init.Existe());
    const Poste sansCopie(R"({"copieBornee": false})");
    QVERIFY(sansCopie.Bibliotheque->VidalAPI_asyncInit.Existe() &&
            !sansCopie.Bibliotheque->CopyStringN2.Existe());
    const Poste ancienne(R"({"copieBornee": false, "asynchrone": false})");
    QVERIFY(!ancienne.Bibliotheque->VidalAPI_asyncInit.Existe() &&
            !ancienne.Bibliotheque->CopyStringN2.Existe());
}

void TestBanqueDeTest::nonChargeable()
{
    const Poste poste(R"({"chargeable": false})");
    QVERIFY(QFile::exists(poste.Banque.CheminBanque()));
    QVERIFY(!poste.Bibliotheque->Chargee());
}

void TestBanqueDeTest::version()
{
    const Poste poste(R"({"version": "2026 été", "retourVersion": 4})");
    std::array<char, 64> tampon = {};
    QCOMPARE(poste.Bibliotheque->VidalAPI_getVersion(tampon.data(), 64), 4);
    QCOMPARE(tampon.data(), "2026 \xE9t\xE9");
    QCOMPARE(poste.Bibliotheque->VidalAPI_getVersion(tampon.data(), 4), 4);
    QCOMPARE(tampon.data(), "202");
}

void TestBanqueDeTest::expiration_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<qint64>("secondes");
    const qint64 fin = Secondes(QDate(2028, 2, 29));
    QTest::newRow("iso") << QByteArray(R"({"expiration": "2028-02-29"})") << fin;
    QTest::newRow("french") << QByteArray(R"({"expiration": "29/02/2028"})") << fin;
    QTest::newRow("with a time") << QByteArray(R"({"expiration": "2028-02-29T01:00:00"})") << fin + 3600;
    QTest::newRow("seconds") << QByteArray(R"({"expiration": 86400})") << qint64(86400);
    QTest::newRow("none") << QByteArray("{}") << Secondes(QDate(2027, 3, 31));
    QTest::newRow("beyond 2038") << QByteArray(R"({"expiration": "2099-12-31"})")
                                 << Secondes(QDate(2099, 12, 31));
}

void TestBanqueDeTest::expiration()
{
    QFETCH(QByteArray, json);
    QFETCH(qint64, secondes);
    const Poste poste(json.constData());
    QCOMPARE(poste.Bibliotheque->DatabaseInfoService_getExpiryDate(0), secondes);
}

void TestBanqueDeTest::recherche()
{
    Poste poste(
        R"({"packs": [{"nom": "CALCIUM VITAMINE D3", "prix": 1.5}, {"nom": "Bévitine"}, {"nom": "ORACILLINE"}]})");
    const QList<Pack> packs = poste.Requetes.RecherchePacks(QStringLiteral("Vit "), 64);
    QCOMPARE(packs.size(), 2);
    QCOMPARE(packs[0].Id, 1);
    QCOMPARE(packs[0].Prix, 1.5f);
    QCOMPARE(packs[1].Nom, QStringLiteral("Bévitine"));
    QCOMPARE(poste.Requetes.RecherchePacks(QStringLiteral("bÉV"), 64).size(), 1);
    QVERIFY(poste.Requetes.RecherchePacks(QStringLiteral("zzz"), 64).isEmpty());
    QCOMPARE(poste.Banque.Fuites(), QJsonArray());
}

void TestBanqueDeTest::unePage()
{
    QByteArray json = R"({"packs": [)";
    for (int i = 1; i <= 60; ++i) {
        json += R"({"nom": "DOLIPRANE )" + QByteArray::number(i) + (i < 60 ? "\"}," : "\"}]}");
    }
    Poste poste(json.constData());
    const QList<Pack> packs = poste.Requetes.RecherchePacks(QStringLiteral("dol"), 64);
    QCOMPARE(packs.size(), 50);
    QCOMPARE(packs.last().Nom, QStringLiteral("DOLIPRANE 50"));
}

void TestBanqueDeTest::cip()
{
    const Poste poste(
        R"({"packs": [{"cip": "0340093", "produit": 5}, {"cip": 3400930000011, "produit": 6}]})");
    QCOMPARE(poste.Requetes.ProduitDuCip(QStringLiteral("340093")), std::optional<qint32>(5));
    QCOMPARE(poste.Requetes.ProduitDuCip(QStringLiteral("0340093")), std::optional<qint32>(5));
    QCOMPARE(poste.Requetes.ProduitDuCip(QStringLiteral("3400930000011")), std::optional<qint32>(6));
    QCOMPARE(poste.Requetes.ProduitDuCip(QStringLiteral("1")), std::optional<qint32>());
    QCOMPARE(poste.Requetes.ProduitDuCip(QString()), std::optional<qint32>());
}

void TestBanqueDeTest::documents()
{
    Poste poste(
        R"({"documents": [{"pack": 1, "type": 2, "url": "saumon"}, {"pack": 2, "type": 2, "url": "non"},
        {"pack": 2, "type": 0, "url": "mono"}, {"pack": 3, "type": 6, "url": "rcp"}]})");
    QCOMPARE(poste.Requetes.Monographie(1), QStringLiteral("saumon"));
    QCOMPARE(poste.Requetes.Monographie(2), QStringLiteral("mono"));
    QCOMPARE(poste.Requetes.Monographie(3), QString());
    QCOMPARE(poste.Requetes.Monographie(4), QString());
}

void TestBanqueDeTest::groupes()
{
    Poste poste(R"({"groupes": [{"id": 7, "homogeneite": 1, "produits": [101, 102]}],
        "packs": [{"produit": 101, "nom": "A", "prix": 2}, {"produit": 102, "nom": "B", "prix": 0}]})");
    QCOMPARE(poste.Requetes.Generiques(102), QStringList({QString(), QStringLiteral("  A          2  €")}));
    QVERIFY(poste.Requetes.Generiques(103).isEmpty());
}

void TestBanqueDeTest::interactions()
{
    Poste poste(R"({"produitsBanque": [{"id": 1, "nom": "UN"}, {"id": 2, "nom": "DEUX"}],
        "packs": [{"produit": 9, "nom": "NEUF cp"}],
        "interactions": [{"a": 1, "b": 2, "gravite": 2, "classeA": "CA"}, {"a": 1, "b": 3, "gravite": -1},
                         {"a": 1, "b": 4}],
        "inconnus": [9, {"id": 8, "nom": "HUIT"}]})");
    const auto rapport = [&](const QList<qint32>& produits, int niveau) {
        return poste.Requetes.Interactions(produits, niveau);
    };
    QVERIFY(rapport({1, 2}, 2).contains(QLatin1String("1- : UN\r\n        CA\r\n\r\n        2- : DEUX\r\n")));
    QVERIFY(rapport({1, 2}, 3).isEmpty() && rapport({1}, 0).isEmpty() && rapport({0}, 0).isEmpty());
    QVERIFY(rapport({1, 3}, 3).contains(QLatin1String("interaction : - ")));
    QVERIFY(rapport({1, 4}, 0).contains(QLatin1String("A prendre en compte")));
    QVERIFY(rapport({8, 9}, 0).contains(QLatin1String("name: NEUF cp\r\n")));
    QVERIFY(rapport({8, 9}, 0).contains(QLatin1String("name: HUIT\r\n")));
    QCOMPARE(poste.Banque.Fuites(), QJsonArray());
}

void TestBanqueDeTest::journalQuiDure()
{
    Poste poste(R"({"packs": [{"nom": "éa", "cip": "1"}]})");
    const Poignee perdue = poste.Bibliotheque->PackService_searchByCip(77, "1");
    poste.Bibliotheque->Pack_getName(perdue);
    const QJsonArray appels = poste.Banque.Appels();
    QCOMPARE(appels.size(), 2);
    QCOMPARE(appels[0].toObject(),
             QJsonObject({{QStringLiteral("nom"), QStringLiteral("PackService_searchByCip")},
                          {QStringLiteral("arguments"), QJsonArray({77, QStringLiteral("1")})}}));
    const QJsonArray fuites = {
        QJsonObject{{QStringLiteral("poignee"), perdue},
                    {QStringLiteral("appel"), QStringLiteral("PackService_searchByCip")}}};
    const QString chemin = poste.Banque.CheminBanque();
    poste.Requetes = RequetesBanque(nullptr, 0);
    poste.Bibliotheque.reset();
    QCOMPARE(poste.Banque.Fuites(), fuites);
    const LiaisonBanque encore(chemin);
    const Poignee autre = encore.PackService_searchByCip(77, "1");
    QVERIFY(autre != 0 && autre != perdue);
    encore.Pack_release(autre);
    QCOMPARE(poste.Banque.Fuites(), fuites);
}

void TestBanqueDeTest::uneBibliothequeParDescription()
{
    Poste poste(R"({"packs": [{"nom": "ANCIEN", "produit": 1}]})");
    const auto suivante = poste.Pose(R"({"packs": [{"nom": "NOUVEAU", "produit": 2}]})");
    RequetesBanque requetes(suivante, 77);
    QCOMPARE(poste.Requetes.RecherchePacks(QString(), 64).first().Nom, QStringLiteral("ANCIEN"));
    QCOMPARE(requetes.RecherchePacks(QString(), 64).first().Nom, QStringLiteral("NOUVEAU"));
}

QTEST_GUILESS_MAIN(TestBanqueDeTest)
#include "test_banque_de_test.moc"
