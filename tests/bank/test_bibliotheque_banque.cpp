#include "BanqueDeTest.h"
#include "PosteBdp.h"
#include "drugbank/Tenu.h"

#include <QDir>
#include <QTest>
#include <QUrl>

using drugbank::Pack;
using drugbank::Poignee;
using support::PosteBdp;

namespace {

constexpr qint32 kParacetamol = 90000017;
constexpr qint32 kSimvastatine = 90000213;
constexpr qint32 kAmiodarone = 90000185;
constexpr qint32 kCoamoxivel = 91000001;

QString Page(const QString& adresse)
{
    return QString::fromUtf8(common::LitFichier(QUrl(adresse).toLocalFile()));
}

} // namespace

class TestBibliothequeBanque : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rechercheDesPacks();
    void rechercheParCip_data();
    void rechercheParCip();
    void packsDUnProduit();
    void nomsCommuns();
    void generiques();
    void monographie();
    void rienNEstDuBalisage();
    void repertoireDesFiches();
    void poignees();
    void horsDeWindows1252();

private:
    PosteBdp poste_{support::DossierExtrait(), support::ThesaurusExtrait()};
};

void TestBibliothequeBanque::init()
{
    QCOMPARE(poste_.Demarre(), 0);
}

void TestBibliothequeBanque::cleanup()
{
    poste_.Libere();
}

void TestBibliothequeBanque::rechercheDesPacks()
{
    const QList<Pack> packs = poste_.Requetes->RecherchePacks(QStringLiteral("parac 1 000"), 64);
    QCOMPARE(packs.size(), 4);
    QCOMPARE(packs.first().Nom, QStringLiteral("PARACETAMOL GENERICA 1 000 mg, comprimé, plaquette(s) PVC "
                                               "aluminium de 8 comprimé(s)"));
    QCOMPARE(packs.first().Cip, QStringLiteral("3400990000070"));
    QCOMPARE(packs.first().Id, 9000007);
    QCOMPARE(packs.first().Produit, 90000038);
    QCOMPARE(packs.first().Prix, 2.2f); // the pharmacist's fee included
    QCOMPARE(poste_.Requetes->RecherchePacks(QStringLiteral("PARACÉTAMOL 1000"), 255).size(), 4);
    QCOMPARE(poste_.Requetes->RecherchePacks(QStringLiteral("cytovel"), 128).size(), 4); // of six
    QCOMPARE(poste_.Requetes->RecherchePacks(QStringLiteral("cytovel"), 128).last().Prix, 0.0f);
    QVERIFY(poste_.Requetes->RecherchePacks(QStringLiteral("ancienvel"), 255).isEmpty());
    QVERIFY(poste_.Requetes->RecherchePacks(QString(), 255).isEmpty());
    QCOMPARE(poste_.Requetes->RecherchePacks(QStringLiteral("velmont"), 64).size(), 50);
    const drugbank::LiaisonBanque& banque = *poste_.Banque;
    const Poignee page = banque.PackService_searchByNameWithPagedResult(poste_.Session, "velmont", nullptr,
                                                                        -1, nullptr, -1, 2, 50);
    const Poignee liste = banque.PagedResultPack_getResult(page);
    QVERIFY(banque.PagedResultPack_getRowCount(page) > 50);
    QCOMPARE(banque.PackList_getCount(liste), banque.PagedResultPack_getRowCount(page) - 50);
    banque.PackList_release(liste);
    banque.PagedResultPack_release(page);
}

void TestBibliothequeBanque::rechercheParCip_data()
{
    QTest::addColumn<QString>("cip");
    QTest::addColumn<qint32>("produit");
    const auto cas = [](const char* cip, qint32 produit) {
        QTest::newRow(cip) << QString::fromUtf8(cip) << produit;
    };
    cas("3400990000010", kParacetamol);
    cas("9000001", kParacetamol);
    cas("0003400990000010", kParacetamol);
    cas(" 34009 900 0001 0 ", kParacetamol);
    cas("900.000-1", 0);
    cas("0", 0);
    cas("", 0);
    cas("9000001x", 0);
    cas("٩", 0);
    cas("99999999999999999999", 0);
    cas("3400990001080", 91000006); // no longer sold, still known
    cas("3400990001120", 92000001); // its product is unknown
    cas("120001", 93000001);        // of a CIP7 with a zero in front
    cas("0120001", 93000001);
    cas("99000120001", 93000001); // of a CIP13 that lost both
    cas("0099000120001", 93000001);
}

void TestBibliothequeBanque::rechercheParCip()
{
    QFETCH(QString, cip);
    QFETCH(qint32, produit);
    poste_.Modifie(QStringLiteral(
        "insert or ignore into presentations(id, cis, cip7, cip13, libelle, nom, commercialisee, "
        "agrement) values(120001, 93000001, '0120001', '0099000120001', '', 'X', 0, 0)"));
    QCOMPARE(poste_.Requetes->ProduitDuCip(cip).value_or(0), produit);
}

void TestBibliothequeBanque::packsDUnProduit()
{
    const drugbank::LiaisonBanque& banque = *poste_.Banque;
    const auto noms = [&](qint32 produit) {
        QStringList lus;
        const drugbank::TenuPacks packs(banque,
                                        banque.PackService_searchByProductId(poste_.Session, produit));
        packs.PourChacun([&](const drugbank::TenuPack& pack) {
            lus.append(pack.Texte(&drugbank::LiaisonBanque::Pack_getName).section(QStringLiteral(", "), -1));
        });
        return lus;
    };
    QCOMPARE(noms(90000465), QStringList({QStringLiteral("plaquette(s) PVC aluminium de 2 comprimé(s)"),
                                          QStringLiteral("plaquette(s) PVC aluminium de 6 comprimé(s)"),
                                          QStringLiteral("plaquette(s) PVC aluminium de 12 comprimé(s)")}));
    QCOMPARE(noms(91000005).size(), 4);
    QVERIFY(noms(91000007).isEmpty());
    QVERIFY(noms(12).isEmpty());
}

void TestBibliothequeBanque::nomsCommuns()
{
    QCOMPARE(poste_.Requetes->NomDCI(kParacetamol), QStringLiteral("PARACÉTAMOL"));
    QCOMPARE(poste_.Requetes->NomDCI(kCoamoxivel), QStringLiteral("AMOXICILLINE, ACIDE CLAVULANIQUE"));
    QVERIFY(poste_.Requetes->NomDCI(12).isNull());
    poste_.Modifie(QStringLiteral("update specialites set dci = '' where cis = 90000017"));
    QVERIFY(poste_.Requetes->NomDCI(kParacetamol).isNull()); // the program says that there is none
    poste_.Modifie(QStringLiteral("update specialites set dci = 'PARACÉTAMOL' where cis = 90000017"));
}

void TestBibliothequeBanque::generiques()
{
    // Its own group, then that of the products it can replace; the reference first in each.
    const QStringList rangs = poste_.Requetes->Generiques(kParacetamol);
    QCOMPARE(rangs.count(QString()), 2);
    QCOMPARE(rangs.indexOf(QString(), 1), 5);
    QVERIFY2(rangs[1].startsWith(QStringLiteral("  PARACETAMOL VELMONT 500 mg")), qPrintable(rangs[1]));
    QVERIFY(rangs[1].endsWith(QStringLiteral("          2.2  €")) ||
            rangs[1].endsWith(QStringLiteral("          2,2  €")));
    QVERIFY(rangs[3].startsWith(QStringLiteral("  PARACETAMOL GENERICA 500 mg")));
    QVERIFY(poste_.Requetes->Generiques(91000003).isEmpty());
    // A member that is no longer sold is not offered.
    poste_.Modifie(QStringLiteral("update specialites set commercialisee = 0 where cis = 90000024"));
    QCOMPARE(poste_.Requetes->Generiques(kParacetamol).filter(QStringLiteral("GENERICA 500")).size(), 0);
    poste_.Modifie(QStringLiteral("update specialites set commercialisee = 1 where cis = 90000024"));
    const drugbank::LiaisonBanque& banque = *poste_.Banque;
    const Poignee groupes = banque.GenericGroupService_searchByProductId(poste_.Session, kParacetamol);
    const Poignee entree = banque.ProductGenericGroupList_getItem(groupes, 0);
    const Poignee groupe = banque.ProductGenericGroup_getGenericGroup(entree);
    QCOMPARE(banque.GenericGroup_getId(groupe), 1);
    QCOMPARE(banque.GenericGroup_getActiveExcipientHomogeneity(groupe), 2);
    banque.GenericGroup_release(groupe);
    QCOMPARE(banque.GenericGroup_getActiveExcipientHomogeneity(groupe), 0);
    banque.ProductGenericGroup_release(entree);
    banque.ProductGenericGroupList_release(groupes);
}

void TestBibliothequeBanque::monographie()
{
    const QString page = Page(poste_.Requetes->Monographie(9000102));
    for (const char* texte :
         {"CYTOVEL 40 mg, solution injectable</h1>", "charset=utf-8", "ADALIMUMAB", "1\u202f545,27&nbsp;€",
          "100 %", "3400990001020", "sans prix public", "non commercialisée",
          "Base de données publique des médicaments (ANSM, HAS, Assurance Maladie)", "données du 18/05/2026",
          "extrait.php?specid=91000005"}) {
        QVERIFY2(page.contains(QString::fromUtf8(texte)), texte);
    }
    QVERIFY(!page.contains(QLatin1String("<script")));
    // What binds the prescriber stands first.
    const qsizetype conditions = page.indexOf(QStringLiteral("Conditions de prescription"));
    QVERIFY(conditions > 0 && conditions < page.indexOf(QStringLiteral("Forme :")));
    QVERIFY(Page(poste_.Requetes->Monographie(9000001)).contains(QStringLiteral("spécialité de référence")));
    QVERIFY(poste_.Requetes->Monographie(9000112).isEmpty()); // a pack without its medication
    QVERIFY(poste_.Requetes->Monographie(1).isEmpty());
}

void TestBibliothequeBanque::rienNEstDuBalisage()
{
    poste_.Libere();
    const QByteArray bonne = common::LitFichier(poste_.Fichier());
    const QString piege = QStringLiteral("<b onclick=\"x\">&amp; ''");
    for (const char* colonne :
         {"specialites set nom", "specialites set forme", "specialites set statut",
          "specialites set titulaires", "compositions set nom", "compositions set element",
          "presentations set libelle", "presentations set indications", "conditions set texte",
          "disponibilites set statut", "disponibilites set lien", "groupes set libelle", "avis set texte",
          "avis set motif", "avis set lien", "information set valeur"}) {
        poste_.Modifie(
            QStringLiteral("update %1 = '<b onclick=\"x\">&amp; '''''").arg(QLatin1String(colonne)));
    }
    QCOMPARE(poste_.Demarre(), 0);
    for (qint32 pack = 9000001; pack <= 9000111; ++pack) {
        const QString adresse = poste_.Requetes->Monographie(pack);
        QVERIFY(!adresse.isEmpty());
        const QString page = Page(adresse);
        QVERIFY(!page.contains(QLatin1String("onclick=\"")));
        QVERIFY(page.contains(piege.toHtmlEscaped()));
    }
    poste_.Libere();
    common::EcritFichier(poste_.Fichier(), bonne);
}

void TestBibliothequeBanque::repertoireDesFiches()
{
    const QByteArray ancien = qgetenv("TMPDIR");
    const QString accentue = common::Joint(poste_.Dossier(), QStringLiteral("Été à Łódź 100 %"));
    common::CreeDossier(accentue);
    qputenv("TMPDIR", accentue.toUtf8());
    const QString adresse = poste_.Requetes->Monographie(9000001);
    qputenv("TMPDIR", ancien);
    QVERIFY2(adresse.startsWith(QLatin1String("file:///")) && adresse.toLatin1() == adresse.toUtf8(),
             qPrintable(adresse));
    const QFileInfo fichier(QUrl(adresse).toLocalFile());
    QVERIFY(fichier.path().startsWith(accentue) && fichier.size() > 0);
    const auto autres = QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther;
    QVERIFY(!(QFile::permissions(fichier.path()) & autres));
    QCOMPARE(poste_.Requetes->Monographie(9000002), adresse); // the same product
    poste_.Libere();
    QVERIFY(QDir(accentue).isEmpty());
    if (ancien.isNull()) {
        qunsetenv("TMPDIR");
    }
}

void TestBibliothequeBanque::poignees()
{
    const drugbank::LiaisonBanque& banque = *poste_.Banque;
    const Poignee page = banque.PackService_searchByNameWithPagedResult(poste_.Session, "parac", nullptr, 0,
                                                                        nullptr, 0, 1, 50);
    const Poignee liste = banque.PagedResultPack_getResult(page);
    const Poignee pack = banque.PackList_getItem(liste, 0);
    const Poignee encore = banque.PackList_getItem(liste, 0);
    QVERIFY(pack != encore);
    // Another kind's functions see nothing in it, and do not release it.
    QCOMPARE(banque.Product_getId(pack), 0);
    QCOMPARE(banque.PackList_getCount(pack), 0);
    banque.Product_release(pack);
    QVERIFY(banque.Pack_getId(pack) != 0);
    // A text outlives the lists that it came from and the session, and ends with its record.
    const char* const nom = banque.Pack_getName(pack);
    QCOMPARE(banque.Pack_getName(pack), nom);
    banque.PackList_release(liste);
    banque.PagedResultPack_release(page);
    banque.Pack_release(encore);
    poste_.Libere();
    QVERIFY(QByteArray(nom).startsWith("PARACETAMOL"));
    QCOMPARE(banque.PackList_getCount(liste), 0);
    banque.Pack_release(pack);
    QCOMPARE(QByteArray(banque.Pack_getName(pack)), QByteArray());
    banque.Pack_release(pack);
}

void TestBibliothequeBanque::horsDeWindows1252()
{
    poste_.Modifie(
        QStringLiteral("update specialites set nom = 'ALPHA ≥ 5 μg, β‑bloquant Łódź – œuf, 1\u202f000 ﬁ ⟐' "
                       "where cis = 90000185"));
    poste_.Libere();
    QCOMPARE(poste_.Demarre(), 0);
    const QString rapport = poste_.Requetes->Interactions({kAmiodarone, kSimvastatine}, 0);
    QVERIFY2(rapport.contains(QStringLiteral("1- : ALPHA >= 5 µg, bêta-bloquant Lódz – œuf, 1 000 fi ?\r\n")),
             qPrintable(rapport.left(120)));
    QVERIFY(Page(poste_.Requetes->Monographie(9000040))
                .contains(QStringLiteral("ALPHA ≥ 5 μg, β‑bloquant Łódź")));
}

QTEST_GUILESS_MAIN(TestBibliothequeBanque)
#include "test_bibliotheque_banque.moc"
