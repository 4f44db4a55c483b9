#include "drugbank/InterfaceBanque.h"
#include "drugbank/NomsExportes.h"

#include <QHash>
#include <QTest>

using namespace drugbank;

namespace {

template <typename R, typename... A> constexpr int Octets()
{
    static_assert(sizeof(R*) > 0);
    return kOctetsArguments<A...>;
}

/// What the interface gives each function.
QHash<QByteArray, int> Calcules()
{
    QHash<QByteArray, int> octets;
#define NOTE(nom, ...) octets.insert(#nom, Octets<__VA_ARGS__>());
    DRUGBANK_FONCTIONS_AIDE(NOTE)
    DRUGBANK_FONCTIONS_BANQUE(NOTE)
    DRUGBANK_FONCTIONS_PUBLIQUES(NOTE)
#undef NOTE
    return octets;
}

/// The functions of more or less than one argument; every other one takes a handle or an address, 4 bytes.
const QHash<QByteArray, int> kAutres = {
    {"VidalHelper_getVidalAPIPath", 12},
    {"VidalAPI_init", 8},
    {"VidalAPI_asyncInit", 8},
    {"VidalAPI_asyncStartResult", 8},
    {"VidalAPI_getVersion", 8},
    {"CopyStringN2", 12},
    {"CopyString", 8},
    {"PackService_searchByNameWithPagedResult", 32},
    {"PackService_searchByCip", 8},
    {"PackService_searchByProductId", 8},
    {"DocumentService_getAllDocumentForPackId", 8},
    {"DocumentService_getMonoForPackId", 8},
    {"CommonNameGroupService_searchByProductId", 8},
    {"GenericGroupService_searchByProductId", 8},
    {"ProductService_searchByGenericGroupId", 8},
    {"InteractionService_searchInteractionCouplesForProductIds", 16},
    {"PackList_getItem", 8},
    {"ProductList_getItem", 8},
    {"ProductGenericGroupList_getItem", 8},
    {"DocumentList_getItem", 8},
    {"InteractionCoupleList_getItem", 8},
};

} // namespace

class TestNomsExportes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void octetsDesTypes();
    void octetsDesFonctions_data();
    void octetsDesFonctions();
    void toutesLesFonctions();
    void formes();
};

void TestNomsExportes::octetsDesTypes()
{
    QCOMPARE(kOctetsArguments<>, 0);
    QCOMPARE(kOctetsArguments<char>, 4);
    QCOMPARE(kOctetsArguments<std::int16_t>, 4);
    QCOMPARE(kOctetsArguments<Entier>, 4);
    QCOMPARE(kOctetsArguments<const char*>, 4);
    QCOMPARE(kOctetsArguments<double>, 8);
    QCOMPARE(kOctetsArguments<std::int64_t>, 8);
    QCOMPARE((kOctetsArguments<Poignee, double, ListeCodes, std::int64_t>), 24);
}

void TestNomsExportes::octetsDesFonctions_data()
{
    QTest::addColumn<int>("calcules");
    QTest::addColumn<int>("attendus");
    const QHash<QByteArray, int> calcules = Calcules();
    for (auto fonction = calcules.begin(); fonction != calcules.end(); ++fonction) {
        QTest::newRow(fonction.key().constData()) << fonction.value() << kAutres.value(fonction.key(), 4);
    }
}

void TestNomsExportes::octetsDesFonctions()
{
    QFETCH(int, calcules);
    QFETCH(int, attendus);
    QCOMPARE(calcules, attendus);
}

void TestNomsExportes::toutesLesFonctions()
{
    const QHash<QByteArray, int> calcules = Calcules();
    QCOMPARE(calcules.size(), 1 + 72 + 1);
    for (auto autre = kAutres.begin(); autre != kAutres.end(); ++autre) {
        QVERIFY2(calcules.contains(autre.key()), autre.key().constData());
    }
}

void TestNomsExportes::formes()
{
    QCOMPARE(NomsExportes("StringLength", 4),
             QByteArrayList({"StringLength", "StringLength@4", "_StringLength@4"}));
    QCOMPARE(NomsExportes("Sans", 0), QByteArrayList({"Sans", "Sans@0", "_Sans@0"}));
    QCOMPARE(NomsExportes("Longue", 32), QByteArrayList({"Longue", "Longue@32", "_Longue@32"}));
}

QTEST_APPLESS_MAIN(TestNomsExportes)
#include "test_noms_exportes.moc"
