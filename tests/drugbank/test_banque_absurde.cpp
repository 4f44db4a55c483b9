#include "drugbank/BanqueDeTest.h"
#include "drugbank/RequetesBanque.h"

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>
#include <limits>

using namespace drugbank;

namespace {

/// A bank whose services answer nonsense, in JSON, with "@" for the nonsense of the row.
class Poste
{
public:
    explicit Poste(QByteArray reponses, const QByteArray& absurde = {}, bool copieBornee = true)
    {
        reponses.replace('@', absurde);
        QJsonParseError faute;
        const QJsonObject objet = QJsonDocument::fromJson(reponses, &faute).object();
        if (faute.error != QJsonParseError::NoError ||
            !banque_.Pose(
                {{QStringLiteral("reponses"), objet}, {QStringLiteral("copieBornee"), copieBornee}})) {
            qFatal("%s", reponses.constData());
        }
        Requetes =
            std::make_unique<RequetesBanque>(std::make_shared<LiaisonBanque>(banque_.CheminBanque()), 77);
    }
    ~Poste()
    {
        if (const QJsonArray fuites = banque_.Fuites(); !fuites.isEmpty()) {
            QTest::qFail(QJsonDocument(fuites).toJson().constData(), __FILE__, __LINE__);
        }
    }

private:
    QTemporaryDir dossier_;
    support::BanqueDeTest banque_{dossier_.path()};

public:
    std::unique_ptr<RequetesBanque> Requetes;
};

const QString kIncomplet = QStringLiteral("n'a pas donné toutes les interactions");

} // namespace

/// Whatever a bank answers: nothing crashes or goes on for ever, nothing invented is shown, every handle goes
/// back.
class TestBanqueAbsurde : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void poigneesNulles();
    void comptes_data();
    void comptes();
    void listesSansFin();
    void elementsNuls();
    void textes_data();
    void textes();
    void longueurs_data();
    void longueurs();
    void prix_data();
    void prix();
    void nombres_data();
    void nombres();
    void interactionsManquantes();
};

void TestBanqueAbsurde::poigneesNulles()
{
    const Poste poste(
        R"({"recherche": {}, "cip": {}, "documents": {}, "dci": {}, "groupes": {}, "interactions": {}})");
    QVERIFY(poste.Requetes->RecherchePacks(QStringLiteral("a"), 64).isEmpty());
    QVERIFY(poste.Requetes->NomDCI(1).isNull());
    QVERIFY(poste.Requetes->Monographie(1).isEmpty());
    QVERIFY(poste.Requetes->Generiques(1).isEmpty());
    QVERIFY(!poste.Requetes->ProduitDuCip(QStringLiteral("1")));
    const Poste creuse(R"({"recherche": {"*": {}}, "documents": {"*": [{"type": 0}]}, "mono": {},
        "groupes": {"*": [{}, {"groupe": {"id": 1}}]}, "produits": {}, "interactions": {"*": {}}})");
    QVERIFY(creuse.Requetes->RecherchePacks(QStringLiteral("a"), 64).isEmpty());
    QVERIFY(creuse.Requetes->Monographie(1).isEmpty());
    QCOMPARE(creuse.Requetes->Generiques(1), QStringList({QString(), QString()}));
    QVERIFY(creuse.Requetes->Interactions({1}, 0).isEmpty());
}

void TestBanqueAbsurde::comptes_data()
{
    QTest::addColumn<QByteArray>("compte");
    for (const char* compte : {"-1", "-2147483648", "2147483647", "\"nan\""}) {
        QTest::newRow(compte) << QByteArray(compte);
    }
}

void TestBanqueAbsurde::comptes()
{
    QFETCH(QByteArray, compte);
    const Poste poste(
        R"({"recherche": {"*": {"rangs": @, "packs": {"count": @}}}, "documents": {"*": {"count": @}},
        "groupes": {"1": {"count": @}, "2": [{"groupe": {"id": 1}}], "3": [{"groupe": {"id": 3}}]},
        "produits": {"1": {"count": @}, "3": [{"id": 3}]}, "packs": {"3": {"count": @}},
        "interactions": {"*": {"couples": [], "inconnus": {"count": @}}}})",
        compte);
    QVERIFY(poste.Requetes->RecherchePacks(QStringLiteral("a"), 64).isEmpty());
    QVERIFY(poste.Requetes->Monographie(1).isEmpty());
    QVERIFY(poste.Requetes->Generiques(1).isEmpty());
    QCOMPARE(poste.Requetes->Generiques(2), QStringList({QString()}));
    QCOMPARE(poste.Requetes->Generiques(3), QStringList({QString()}));
    QVERIFY(!poste.Requetes->Interactions({1}, 0).contains(QLatin1String("product name")));
}

/// Lists that have an element at every rank.
void TestBanqueAbsurde::listesSansFin()
{
    const Poste poste(R"({"recherche": {"*": {"packs": {"count": @, "element": {"nom": "A"}}}},
        "documents": {"*": {"count": @, "element": {"type": 6}}},
        "groupes": {"*": {"count": @, "element": {"groupe": {"id": 1}}}},
        "produits": {"*": {"count": @, "element": {"id": 3}}},
        "packs": {"*": {"count": @, "element": {"nom": "A", "prix": 0}}},
        "interactions": {"*": {"couples": {"count": @, "element": {"gravite": 9}}}}})",
                      "2147483647");
    QCOMPARE(poste.Requetes->RecherchePacks(QStringLiteral("a"), 64).size(), 50);
    QVERIFY(poste.Requetes->Monographie(1).isEmpty());
    QVERIFY(!poste.Requetes->Generiques(1).isEmpty());
    QVERIFY(poste.Requetes->Interactions({1}, 0).endsWith(kIncomplet + QStringLiteral(".\r\n")));
}

void TestBanqueAbsurde::elementsNuls()
{
    const Poste poste(
        R"({"recherche": {"*": {"packs": [null, {"nom": "A"}, null]}}, "documents": {"*": [null]},
        "groupes": {"*": [null, {"groupe": {"id": 1}}]}, "produits": {"*": [null, {"id": 3}]}, "packs": {"*": [null]},
        "interactions": {"*": {"couples": [{"gravite": 2}], "inconnus": [null]}}})");
    QCOMPARE(poste.Requetes->RecherchePacks(QStringLiteral("a"), 64).size(), 1);
    QVERIFY(poste.Requetes->Monographie(1).isEmpty());
    QCOMPARE(poste.Requetes->Generiques(1), QStringList({QString()}));
    QVERIFY(poste.Requetes->Interactions({1}, 0).contains(QStringLiteral("Association déconseillée")));
}

void TestBanqueAbsurde::textes_data()
{
    QTest::addColumn<QByteArray>("texte");
    QTest::addColumn<QString>("lu");
    QTest::newRow("null") << QByteArray("null") << QString();
    QTest::newRow("number") << QByteArray("3") << QString();
    QTest::newRow("unused bytes") << QByteArray(R"("A\u0081\u00ffB")") << QStringLiteral("A\u0081ÿB");
    QTest::newRow("not Windows-1252") << QByteArray(R"("\u00c3\u00a9")") << QStringLiteral("Ã©");
    QTest::newRow("control characters")
        << QByteArray(R"("A\u0001\u001bB")") << QStringLiteral("A\u0001\u001bB");
    QTest::newRow("stops at the NUL") << QByteArray(R"("A\u0000B")") << QStringLiteral("A");
    QTest::newRow("very long") << '"' + QByteArray(1'100'000, 'x') + '"' << QString(1'000'000, u'x');
}

void TestBanqueAbsurde::textes()
{
    QFETCH(QByteArray, texte);
    QFETCH(QString, lu);
    const Poste poste(R"({"recherche": {"*": {"packs": [{"nom": @, "cip": @}]}}, "dci": {"*": {"nom": @}},
        "documents": {"*": [{"type": 0, "nom": @}]}, "mono": {"*": {"nom": @, "url": @}}, "interactions": {"*": {"couples":
        [{"a": {"nom": @}, "b": {"nom": @}, "classeA": {"nom": @}, "classeB": {"nom": @}, "risque": @, "precaution": @}],
        "inconnus": [{"nom": @}]}}})",
                      texte);
    const QList<Pack> packs = poste.Requetes->RecherchePacks(QStringLiteral("a"), 64);
    QCOMPARE(packs.size(), 1);
    QCOMPARE(packs[0].Nom, lu);
    QCOMPARE(packs[0].Cip, lu);
    QCOMPARE(poste.Requetes->NomDCI(1).size(), lu.size());
    QCOMPARE(poste.Requetes->Monographie(1), lu);
    QVERIFY(
        poste.Requetes->Interactions({1}, 0).endsWith(QLatin1String("name: ") + lu + QLatin1String("\r\n")));
}

void TestBanqueAbsurde::longueurs_data()
{
    QTest::addColumn<int>("longueur");
    QTest::addColumn<bool>("copieBornee");
    QTest::addColumn<QString>("lu");
    QTest::newRow("negative") << -1 << true << QString();
    QTest::newRow("least") << std::numeric_limits<int>::min() << true << QString();
    QTest::newRow("none") << 0 << true << QString();
    QTest::newRow("too short") << 2 << true << QStringLiteral("DO");
    QTest::newRow("too long") << 500 << true << QStringLiteral("DOLI");
    QTest::newRow("greatest") << std::numeric_limits<int>::max() << true << QStringLiteral("DOLI");
    QTest::newRow("negative, unbounded copy") << -1 << false << QString();
    QTest::newRow("too long, unbounded copy") << 500 << false << QStringLiteral("DOLI");
    QTest::newRow("greatest, unbounded copy") << std::numeric_limits<int>::max() << false << QString();
}

void TestBanqueAbsurde::longueurs()
{
    QFETCH(int, longueur);
    QFETCH(bool, copieBornee);
    QFETCH(QString, lu);
    const Poste poste(R"({"longueur": @, "dci": {"*": {"nom": "doli"}}})", QByteArray::number(longueur),
                      copieBornee);
    QCOMPARE(poste.Requetes->NomDCI(1), lu);
}

void TestBanqueAbsurde::prix_data()
{
    QTest::addColumn<QByteArray>("prix");
    for (const char* prix :
         {"\"nan\"", "\"inf\"", "\"-inf\"", "1e300", "-1e300", "1e-300", "null", "\"x\""}) {
        QTest::newRow(prix) << QByteArray(prix);
    }
}

/// No price that a bank may have meant.
void TestBanqueAbsurde::prix()
{
    QFETCH(QByteArray, prix);
    const Poste poste(
        R"({"recherche": {"*": {"packs": [{"nom": "A", "prix": @}]}}, "groupes": {"*": [{"groupe": {"id": 1}}]},
        "produits": {"*": [{"id": 3}]}, "packs": {"*": [{"nom": "A", "prix": @}, {"nom": "B", "prix": 2}]}})",
        prix);
    QCOMPARE(poste.Requetes->RecherchePacks(QStringLiteral("a"), 64).value(0).Prix, 0.0f);
    QCOMPARE(poste.Requetes->Generiques(1), QStringList({QString(), QStringLiteral("  B          2  €")}));
}

void TestBanqueAbsurde::nombres_data()
{
    QTest::addColumn<QByteArray>("nombre");
    for (const char* nombre : {"-1", "4", "17", "2147483647", "-2147483648", "null"}) {
        QTest::newRow(nombre) << QByteArray(nombre);
    }
}

/// Ids, types and severities that the bank cannot mean.
void TestBanqueAbsurde::nombres()
{
    QFETCH(QByteArray, nombre);
    const Poste poste(
        R"({"recherche": {"*": {"packs": [{"id": @, "produit": @}]}}, "documents": {"*": [{"type": @, "id": @}]},
        "mono": {"*": {"url": "u"}}, "groupes": {"*": [{"groupe": {"id": @, "homogeneite": @}}]}, "produits": {"*": [{"id": @}]},
        "packs": {"*": [{"nom": "A", "prix": 1}]}, "interactions": {"*": {"couples": [{"id": @, "gravite": @}]}}})",
        nombre);
    QCOMPARE(poste.Requetes->RecherchePacks(QStringLiteral("a"), 64).value(0).Id, nombre.toInt());
    QCOMPARE(poste.Requetes->Monographie(1).isEmpty(),
             nombre != "4" && nombre != "null"); // 4 and 0 are types
    QCOMPARE(poste.Requetes->Generiques(1).size(), 2);
    QCOMPARE(poste.Requetes->Interactions({1}, 0).contains(QLatin1String("interaction : - \r\n")),
             nombre != "null");
}

/// What the bank does not give must not look like no interaction.
void TestBanqueAbsurde::interactionsManquantes()
{
    const auto rapport = [](const QByteArray& interactions) {
        const Poste poste(R"({"interactions": @})", interactions);
        return poste.Requetes->Interactions({1, 2}, 0);
    };
    QVERIFY(rapport("{}").contains(kIncomplet));
    QVERIFY(rapport(R"({"*": {"couples": {"count": -1}}})").contains(kIncomplet));
    QVERIFY(rapport(R"({"*": {"couples": {"count": 2}}})").contains(kIncomplet));
    const QString un = rapport(R"({"*": {"couples": [null, {"gravite": 3, "a": {"nom": "UN"}}]}})");
    QVERIFY(un.contains(QLatin1String("1- : UN")) && un.contains(kIncomplet));
    QVERIFY(rapport(R"({"*": {"couples": [], "inconnus": {"count": -1}}})").contains(kIncomplet));
    QVERIFY(rapport(R"({"*": {}})").isEmpty());
    QVERIFY(rapport(R"({"*": {"couples": [], "inconnus": []}})").isEmpty());
}

QTEST_GUILESS_MAIN(TestBanqueAbsurde)
#include "test_banque_absurde.moc"
