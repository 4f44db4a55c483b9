#include "drugbank/BanqueDeTest.h"
#include "drugbank/Rapport.h"
#include "drugbank/RequetesBanque.h"

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

using namespace drugbank;

namespace {

constexpr Poignee kSession = 77;

/// A bank whose services answer by JSON, key by key; `champs` are further fields of its description.
class Poste
{
public:
    explicit Poste(const QByteArray& reponses, QJsonObject champs = {})
    {
        champs[QStringLiteral("reponses")] = QJsonDocument::fromJson(reponses).object();
        if (!banque_.Pose(champs)) {
            qFatal("no bank");
        }
        Banque = std::make_shared<LiaisonBanque>(banque_.CheminBanque());
        Requetes = std::make_unique<RequetesBanque>(Banque, kSession);
    }

    QJsonArray Appels() { return banque_.Appels(); }
    /// The arguments of the first call.
    QJsonArray Arguments() { return Appels().first().toObject().value(QLatin1String("arguments")).toArray(); }
    /// Handles that nobody released.
    qsizetype Ouverts() { return banque_.Fuites().size(); }

private:
    QTemporaryDir dossier_;
    support::BanqueDeTest banque_{dossier_.path()};

public:
    std::shared_ptr<LiaisonBanque> Banque;
    std::unique_ptr<RequetesBanque> Requetes;
};

constexpr auto kCouple = R"({"interactions":{"11,22,2":{"couples":[{"gravite":%1,"a":{"nom":"ASPIRINE"},)"
                         R"("b":{"nom":"WARFARINE"},"classeA":{"nom":"Salicylés"},"classeB":{"nom":"AVK"},)"
                         R"("precaution":"%2","risque":"Saignement."}],"inconnus":[]}}})";

QByteArray Couple(const QString& gravite, const QString& precaution)
{
    return QString::fromUtf8(kCouple).arg(gravite, precaution).toUtf8();
}

} // namespace

class TestRequetesBanque : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void declareLesFonctions();
    void recherchePacks();
    void lesCodesSuiventLeFiltre();
    void sansCopieBornee();
    void nomDCI();
    void monographie();
    void generiques();
    void produitDuCip();
    void rapportDUnCouple();
    void produitsInconnus();
    void produitsPrescrits();
    void reponsesAbsurdes();
    void sansBibliotheque();
};

void TestRequetesBanque::declareLesFonctions()
{
#define UN(...) +1
    QCOMPARE(0 DRUGBANK_FONCTIONS_AIDE(UN) DRUGBANK_FONCTIONS_BANQUE(UN), 73);
#undef UN
}

void TestRequetesBanque::recherchePacks()
{
    Poste poste(R"({"recherche":{"dol":{"packs":[
        {"cip":"0034","nom":"DOLIPRANE \u009cdème","id":5,"produit":101,"prix":2.18},{"cip":"35","nom":"DOL"}]}}})");
    const QList<Pack> packs = poste.Requetes->RecherchePacks(QStringLiteral("dol"), 64);
    QCOMPARE(packs.size(), 2);
    QCOMPARE(packs[0].Cip, QStringLiteral("0034"));
    QCOMPARE(packs[0].Nom, QStringLiteral("DOLIPRANE œdème"));
    QCOMPARE(packs[0].Id, 5);
    QCOMPARE(packs[0].Produit, 101);
    QCOMPARE(packs[0].Prix, 2.18f);
    QCOMPARE(packs[1].Prix, 0.0f);
    QCOMPARE(poste.Arguments(), QJsonArray({kSession, QStringLiteral("dol"), QJsonArray({0, 6, 0}), 2,
                                            QJsonArray({0, 3, 5}), 2, 1, 50}));
    QCOMPARE(poste.Ouverts(), 0);
}

void TestRequetesBanque::lesCodesSuiventLeFiltre()
{
    Poste poste("{}");
    QVERIFY(poste.Requetes->RecherchePacks(QStringLiteral("é\u0416"), 128).isEmpty());
    QCOMPARE(poste.Arguments().at(1), QJsonValue(QStringLiteral("é?")));
    QCOMPARE(poste.Arguments().at(2), QJsonValue(QJsonArray({1, 3, 4, 5, 6, 7})));
    Poste tout("{}");
    tout.Requetes->RecherchePacks(QStringLiteral("a"), 255);
    QCOMPARE(tout.Arguments().at(2), QJsonValue(QJsonArray({0, 1, 3, 4, 5, 6, 7})));
}

void TestRequetesBanque::sansCopieBornee()
{
    Poste poste(R"({"cip":{"34":{"nom":"X"}}})", {{QStringLiteral("copieBornee"), false}});
    QVERIFY(!poste.Banque->CopyStringN2.Existe());
    QCOMPARE(LitChaineBanque(*poste.Banque, "abc"), QString(QLatin1String("abc\0", 4)));
    QCOMPARE(LitTexte(*poste.Banque, "abc"), QStringLiteral("abc"));
    QCOMPARE(LitChaineBanque(*Poste("{}").Banque, "abc"), QStringLiteral("abc"));
}

void TestRequetesBanque::nomDCI()
{
    Poste poste(R"({"dci":{"1":{"nom":"paracétamol*;codéine"},"2":{"nom":""}}})");
    QCOMPARE(poste.Requetes->NomDCI(1), QStringLiteral("PARACÉTAMOL, codéine"));
    QVERIFY(poste.Requetes->NomDCI(2).isEmpty() && !poste.Requetes->NomDCI(2).isNull());
    QVERIFY(poste.Requetes->NomDCI(3).isNull());
    QCOMPARE(poste.Ouverts(), 0);
}

void TestRequetesBanque::monographie()
{
    QByteArray dixHuit =
        R"({"documents":{"1":[{"type":2}],"2":[{"type":6}],"4":[{"type":99},{"type":-1}],"3":[)";
    for (int i = 0; i < 17; ++i) {
        dixHuit += R"({"type":6},)";
    }
    Poste poste(dixHuit + R"({"type":0}]},"mono":{"1":{"url":"u1"},"2":{"url":"u2"},"3":{"url":"u3"}}})");
    QCOMPARE(poste.Requetes->Monographie(1), QStringLiteral("u1"));
    QCOMPARE(poste.Requetes->Monographie(2), QString());
    QCOMPARE(poste.Requetes->Monographie(3), QString());
    QCOMPARE(poste.Requetes->Monographie(4), QString());
    QCOMPARE(poste.Ouverts(), 0);
}

void TestRequetesBanque::generiques()
{
    Poste poste(R"({"groupes":{"1":[{"groupe":{"id":9}},{"groupe":{"id":8}}]},"produits":{"9":[{"id":4}]},
        "packs":{"4":[{"nom":"A","prix":2.5},{"nom":"B","prix":0}]}})");
    QCOMPARE(poste.Requetes->Generiques(1),
             QStringList({QString(), QStringLiteral("  A          2.5  €"), QString()}));
    QCOMPARE(poste.Requetes->Generiques(2), QStringList());
    QCOMPARE(poste.Ouverts(), 0);
}

void TestRequetesBanque::produitDuCip()
{
    Poste poste(R"({"cip":{"34":{"produit":12}}})");
    QCOMPARE(poste.Requetes->ProduitDuCip(QStringLiteral("34")), std::optional<qint32>(12));
    QVERIFY(!poste.Requetes->ProduitDuCip(QStringLiteral("35")));
    QCOMPARE(poste.Ouverts(), 0);
}

void TestRequetesBanque::rapportDUnCouple()
{
    const QString debut = QStringLiteral("        1- : ASPIRINE\r\n        Salicylés\r\n\r\n"
                                         "        2- : WARFARINE\r\n        AVK\r\n\r\n");
    const QString risque =
        QStringLiteral("Type de risque :   \r\n---------------------\r\nSaignement.\r\n\r\n");
    const QString fin =
        QStringLiteral("\r\n\r\n<<<<<  ") + QString(106, u'-') + QStringLiteral("  >>>>>\r\n\r\n\r\n");
    Poste poste(Couple(QStringLiteral("3"), QStringLiteral("Suivre.\\nBien")));
    QCOMPARE(poste.Requetes->Interactions({11, 22}, 2),
             debut +
                 QStringLiteral("Niveau d'interaction :  Association contre-indiquée\r\n"
                                "----------------------------\r\n\r\n") +
                 risque +
                 QStringLiteral("Commentaires sur les précautions: \r\n"
                                "-----------------------------------------------\r\nSuivre.\r\n\r\nBien") +
                 fin);
    QCOMPARE(poste.Ouverts(), 0);
    QCOMPARE(Poste(Couple(QStringLiteral("7"), QString())).Requetes->Interactions({11, 22}, 2),
             debut + QStringLiteral("Niveau d'interaction : - \r\n\r\n") + risque + fin);
}

void TestRequetesBanque::produitsInconnus()
{
    Poste poste(R"({"interactions":{"0,0":{"couples":[],"inconnus":[{"nom":"X"},{"nom":"Y"}]}}})");
    const QString un = QStringLiteral("unknown product interactions:\r\n\r\n product name: ");
    QCOMPARE(poste.Requetes->Interactions({0}, 0),
             un + QStringLiteral("X\r\n") + un + QStringLiteral("Y\r\n"));
    QCOMPARE(poste.Ouverts(), 0);
}

void TestRequetesBanque::produitsPrescrits()
{
    const auto produits = [](const char* rangs) {
        return ProduitsPrescrits(QString::fromUtf8(rangs).split(u'|'));
    };
    QCOMPARE(ProduitsPrescrits({}), QList<qint32>({0}));
    QCOMPARE(produits("1|1"), QList<qint32>({0}));
    QCOMPARE(produits("11|1|22"), QList<qint32>({11, 22}));
    QCOMPARE(produits("11|22|abc"), QList<qint32>({11, 22, 0}));
    QCOMPARE(produits("9999999999"), QList<qint32>({0}));
}

void TestRequetesBanque::reponsesAbsurdes()
{
    Poste poste(R"({"recherche":{"a":{"packs":{"count":-1}},"b":{"packs":{"count":2147483647}},
        "c":{"packs":[null,{"nom":null,"cip":"\u0081"}]}}})");
    QVERIFY(poste.Requetes->RecherchePacks(QStringLiteral("a"), 0).isEmpty());
    QVERIFY(poste.Requetes->RecherchePacks(QStringLiteral("b"), 0).isEmpty());
    const QList<Pack> packs = poste.Requetes->RecherchePacks(QStringLiteral("c"), 0);
    QCOMPARE(packs.size(), 1);
    QVERIFY(packs[0].Nom.isEmpty());
    QCOMPARE(packs[0].Cip, QStringLiteral("\u0081"));
    QCOMPARE(poste.Ouverts(), 0);
}

void TestRequetesBanque::sansBibliotheque()
{
    const auto absente = std::make_shared<LiaisonBanque>(QStringLiteral("/nulle/part"));
    RequetesBanque requetes(absente, 0);
    QVERIFY(!absente->Chargee());
    QVERIFY(requetes.RecherchePacks(QStringLiteral("a"), 64).isEmpty());
    QVERIFY(requetes.Interactions({0}, 0).contains(QStringLiteral("pas donné")));
    QVERIFY(LitChaineBanque(*absente, "abc").isEmpty());
}

QTEST_GUILESS_MAIN(TestRequetesBanque)
#include "test_requetes_banque.moc"
