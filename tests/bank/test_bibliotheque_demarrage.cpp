#include "BanqueDeTest.h"
#include "PosteBdp.h"

#include <QDir>
#include <QProcess>
#include <QTest>
#include <thread>

using support::PosteBdp;

namespace {

/// A pack that the project's own files hold.
const QString kCip = QStringLiteral("3400990000010");

} // namespace

class TestBibliothequeDemarrage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exporteLInterfaceEtRienDAutre();
    void demarreEnFond();
    void demarreDeSuite();
    void demarreDeuxFois();
    void dateDExpiration();
    void version();
    void fichierRefuse_data();
    void fichierRefuse();
    void fichierAbime();
    void fichierDisparu();
    void remplaceLeFichier();
    void finPendantLeDemarrage();
    void plusieursFils();
    void argumentsAbsurdes();
    void copieLesTextes();

private:
    PosteBdp poste_{support::DossierExtrait(), support::ThesaurusExtrait()};
    bool Repond() { return poste_.Requetes->ProduitDuCip(kCip) == 90000017; }
    /// What a report says when nothing could be asked.
    QString Rapport() { return poste_.Requetes->Interactions({90000213, 0}, 0); }
};

void TestBibliothequeDemarrage::exporteLInterfaceEtRienDAutre()
{
    QStringList attendues = {QStringLiteral("BanquePublique_choisitFichier")};
#define NOM(nom, ...) attendues.append(QStringLiteral(#nom));
    DRUGBANK_FONCTIONS_BANQUE(NOM)
#undef NOM
    QCOMPARE(attendues.size(), 73);
    for (const QString& nom : std::as_const(attendues)) {
        QVERIFY2(poste_.Bibliotheque.resolve(nom.toLatin1().constData()), qPrintable(nom));
    }
#ifdef Q_OS_LINUX
    QProcess nm;
    nm.start(QStringLiteral("nm"), {QStringLiteral("-D"), QStringLiteral("--defined-only"),
                                    QStringLiteral("-j"), QStringLiteral(CHEMIN_BDP)});
    QVERIFY(nm.waitForFinished());
    QStringList exportees = QString::fromLatin1(nm.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    exportees.sort();
    attendues.sort();
    QCOMPARE(exportees, attendues);
#endif
}

void TestBibliothequeDemarrage::demarreEnFond()
{
    QCOMPARE(poste_.Banque->VidalAPI_asyncInit(&poste_.Session, PosteBdp::kProduit), 14);
    QVERIFY(poste_.Session != 0);
    QCOMPARE(poste_.Demarre(), 0);
    QVERIFY(Repond());
    poste_.Libere();
    QVERIFY(!Repond());
    QCOMPARE(poste_.Demarre(), 0);
    QVERIFY(Repond());
    poste_.Libere();
}

void TestBibliothequeDemarrage::demarreDeSuite()
{
    QCOMPARE(poste_.Banque->VidalAPI_init(&poste_.Session, PosteBdp::kProduit), 0);
    poste_.Requetes.emplace(poste_.Banque, poste_.Session);
    QVERIFY(Repond());
    poste_.Libere();
}

void TestBibliothequeDemarrage::demarreDeuxFois()
{
    qint32 seconde = 0;
    QCOMPARE(poste_.Banque->VidalAPI_asyncInit(&poste_.Session, PosteBdp::kProduit), 14);
    poste_.Banque->VidalAPI_asyncInit(&seconde, PosteBdp::kProduit);
    QCOMPARE(seconde, poste_.Session);
    QCOMPARE(poste_.Banque->VidalAPI_init(&seconde, PosteBdp::kProduit), 0);
    QCOMPARE(seconde, poste_.Session);
    QCOMPARE(poste_.Banque->VidalAPI_asyncInit(&seconde, PosteBdp::kProduit), 0);
    QCOMPARE(poste_.Banque->VidalAPI_asyncStartResult(seconde, 1), 0);
    // Another file is another session, which takes the place of this one.
    poste_.Choisit(QStringLiteral("/nulle part/banque.sqlite"));
    QCOMPARE(poste_.Banque->VidalAPI_init(&seconde, PosteBdp::kProduit), 1);
    QVERIFY(seconde != poste_.Session);
    QVERIFY(poste_.Banque->VidalAPI_asyncStartResult(poste_.Session, 1) != 0);
    poste_.Banque->VidalAPI_release(seconde);
    QCOMPARE(poste_.Banque->VidalAPI_asyncStartResult(seconde, 1), 5);
    poste_.Choisit(poste_.Fichier());
}

void TestBibliothequeDemarrage::dateDExpiration()
{
    const qint64 attendue = QDateTime(QDate(2027, 5, 18), QTime(0, 0), Qt::UTC).toSecsSinceEpoch();
    QCOMPARE(poste_.Banque->DatabaseInfoService_getExpiryDate(0), attendue);
    QCOMPARE(poste_.Demarre(), 0);
    QCOMPARE(poste_.Banque->DatabaseInfoService_getExpiryDate(poste_.Session), attendue);
    poste_.Libere();
    poste_.Choisit(QStringLiteral("/nulle part/banque.sqlite"));
    QCOMPARE(poste_.Banque->DatabaseInfoService_getExpiryDate(0), 0);
    poste_.Choisit(poste_.Fichier());
}

void TestBibliothequeDemarrage::version()
{
    QByteArray tampon(64, 'x');
    QCOMPARE(poste_.Banque->VidalAPI_getVersion(tampon.data(), 64), 0);
    QVERIFY2(tampon.startsWith("BDP 2."), tampon);
    QCOMPARE(poste_.Demarre(), 0);
    QCOMPARE(poste_.Banque->VidalAPI_getVersion(tampon.data(), 64), 0);
    QVERIFY2(QByteArray(tampon.constData())
                 .endsWith(", donn\xE9"
                           "es du 18/05/2026"),
             tampon);
    tampon.fill('x');
    QCOMPARE(poste_.Banque->VidalAPI_getVersion(tampon.data(), 4), 0);
    QCOMPARE(tampon.first(5), QByteArray("BDP\0x", 5));
    poste_.Libere();
    QVERIFY(poste_.Banque->VidalAPI_getVersion(nullptr, 64) != 0);
    QVERIFY(poste_.Banque->VidalAPI_getVersion(tampon.data(), 0) != 0);
}

void TestBibliothequeDemarrage::fichierRefuse_data()
{
    QTest::addColumn<QString>("instruction");
    QTest::addColumn<QByteArray>("contenu");
    QTest::addColumn<int>("statut");
    QTest::newRow("absent") << QString() << QByteArray() << 1;
    QTest::newRow("autre chose") << QString() << QByteArray(5000, 'a') << 2;
    QTest::newRow("autre base") << QStringLiteral("pragma application_id = 1") << QByteArray() << 2;
    QTest::newRow("autre version") << QStringLiteral("pragma user_version = 99") << QByteArray() << 3;
    QTest::newRow("sans les mots") << QStringLiteral("drop table recherche_mots") << QByteArray() << 2;
    QTest::newRow("sans interactions") << QStringLiteral("drop table interactions") << QByteArray() << 2;
    QTest::newRow("interaction sans substance")
        << QStringLiteral("delete from thesaurus_entrees where id = 3") << QByteArray() << 2;
}

void TestBibliothequeDemarrage::fichierRefuse()
{
    QFETCH(QString, instruction);
    QFETCH(QByteArray, contenu);
    QFETCH(int, statut);
    const QByteArray bonne = common::LitFichier(poste_.Fichier());
    if (!instruction.isEmpty()) {
        poste_.Modifie(instruction);
    } else if (contenu.isEmpty()) {
        QFile::remove(poste_.Fichier());
    } else {
        common::EcritFichier(poste_.Fichier(), contenu);
    }
    QCOMPARE(poste_.Demarre(), statut);
    char tampon[64];
    QCOMPARE(poste_.Banque->VidalAPI_getVersion(tampon, 64), statut); // what the program goes by
    QVERIFY(!Repond());
    QVERIFY(poste_.Requetes->RecherchePacks(QStringLiteral("par"), 255).isEmpty());
    QVERIFY(poste_.Requetes->Generiques(90000017).isEmpty());
    QVERIFY(
        Rapport().contains(QStringLiteral("Produit 90000213 (non vérifié : la banque n'est pas ouverte)")));
    poste_.Libere();
    common::EcritFichier(poste_.Fichier(), bonne);
    QCOMPARE(poste_.Demarre(), 0);
    QVERIFY(Repond());
    poste_.Libere();
}

/// A cut or overwritten file is refused or answers; it never takes the program with it.
void TestBibliothequeDemarrage::fichierAbime()
{
    const QByteArray bonne = common::LitFichier(poste_.Fichier());
    int refuses = 0;
    for (int i = 0; i < 60; ++i) {
        QByteArray abimee = bonne;
        const qsizetype lieu = (bonne.size() / 60 * i) & ~511;
        if (i % 2 == 0) {
            abimee.truncate(lieu);
        } else {
            abimee.replace(lieu, 2048, QByteArray(2048, char(i * 37)));
        }
        common::EcritFichier(poste_.Fichier(), abimee);
        const int statut = poste_.Demarre();
        QVERIFY(statut != 14);
        refuses += statut != 0;
        poste_.Requetes->RecherchePacks(QStringLiteral("a"), 255);
        poste_.Requetes->Monographie(9000001);
        poste_.Requetes->Generiques(90000017);
        QVERIFY(statut == 0 || !Rapport().isEmpty());
        poste_.Libere();
    }
    QVERIFY2(refuses >= 40, qPrintable(QString::number(refuses)));
    common::EcritFichier(poste_.Fichier(), bonne);
}

/// A drive that goes away under an open session.
void TestBibliothequeDemarrage::fichierDisparu()
{
    const QByteArray bonne = common::LitFichier(poste_.Fichier());
    QCOMPARE(poste_.Demarre(), 0);
    QVERIFY(Repond());
    QFile fichier(poste_.Fichier());
    QVERIFY(fichier.open(QIODevice::ReadWrite) && fichier.resize(100));
    QVERIFY(!Repond());
    QVERIFY(poste_.Requetes->RecherchePacks(QStringLiteral("par"), 255).isEmpty());
    QVERIFY(poste_.Requetes->Monographie(9000001).isEmpty());
    QVERIFY(Rapport().contains(
        QStringLiteral("Produit 90000213 (non vérifié : la banque ne peut plus être lue)")));
    poste_.Libere();
    common::EcritFichier(poste_.Fichier(), bonne);
}

void TestBibliothequeDemarrage::remplaceLeFichier()
{
    QCOMPARE(poste_.Demarre(), 0);
    QVERIFY(Repond());
    std::thread([&] { QVERIFY(Repond()); }).join(); // a connection of another thread's
    poste_.Libere();
#ifdef Q_OS_LINUX
    for (const QFileInfo& ouvert :
         QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::AllEntries | QDir::System)) {
        QVERIFY2(!ouvert.symLinkTarget().contains(poste_.Dossier()), qPrintable(ouvert.symLinkTarget()));
    }
#endif
    poste_.Modifie(QStringLiteral("update presentations set cis = 90000024 where id = 9000001"));
    QCOMPARE(poste_.Demarre(), 0);
    QCOMPARE(poste_.Requetes->ProduitDuCip(kCip), 90000024);
    poste_.Libere();
    poste_.Modifie(QStringLiteral("update presentations set cis = 90000017 where id = 9000001"));
}

void TestBibliothequeDemarrage::finPendantLeDemarrage()
{
    for (int i = 0; i < 50; ++i) {
        QCOMPARE(poste_.Banque->VidalAPI_asyncInit(&poste_.Session, PosteBdp::kProduit), 14);
        std::this_thread::sleep_for(std::chrono::microseconds(i * 200));
        poste_.Libere();
    }
    QCOMPARE(poste_.Demarre(), 0);
    QVERIFY(Repond());
    poste_.Libere();
}

void TestBibliothequeDemarrage::plusieursFils()
{
    std::vector<std::thread> fils;
    for (int i = 0; i < 4; ++i) {
        fils.emplace_back([this, i] {
            for (int tour = 0; tour < 30; ++tour) {
                qint32 session = 0;
                poste_.Banque->VidalAPI_asyncInit(&session, PosteBdp::kProduit);
                while (poste_.Banque->VidalAPI_asyncStartResult(session, 1) == 14) {
                    std::this_thread::yield();
                }
                drugbank::RequetesBanque requetes(poste_.Banque, session);
                const auto produit = requetes.ProduitDuCip(kCip);
                QVERIFY(!produit || produit == 90000017);
                requetes.RecherchePacks(QStringLiteral("par"), 64);
                if (tour % 4 == i) {
                    poste_.Banque->VidalAPI_release(session);
                }
            }
        });
    }
    for (std::thread& un : fils) {
        un.join();
    }
    poste_.Session = 0;
    QCOMPARE(poste_.Demarre(), 0);
    QVERIFY(Repond());
    poste_.Libere();
}

void TestBibliothequeDemarrage::argumentsAbsurdes()
{
    QCOMPARE(poste_.Demarre(), 0);
    drugbank::LiaisonBanque& banque = *poste_.Banque;
    QVERIFY(banque.VidalAPI_init(nullptr, 3) != 0);
    QVERIFY(banque.VidalAPI_asyncInit(nullptr, -7) != 0);
    banque.VidalAPI_release(-1);
    banque.VidalAPI_release(poste_.Session + 1);
    QVERIFY(Repond());
    const qint32 s = poste_.Session;
    for (const qint32 absurde :
         {0, -1, 1, std::numeric_limits<qint32>::max(), std::numeric_limits<qint32>::min()}) {
        for (const qint32 session : {s, absurde}) {
            const qint32 page = banque.PackService_searchByNameWithPagedResult(
                session, absurde == 1 ? nullptr : "par", nullptr, absurde, nullptr, absurde, absurde,
                absurde);
            QCOMPARE(page != 0, session == s);
            banque.PagedResultPack_release(page);
            QCOMPARE(banque.PackService_searchByCip(session, nullptr), 0);
            QCOMPARE(banque.DocumentService_getMonoForPackId(session, absurde), 0);
            QCOMPARE(banque.CommonNameGroupService_searchByProductId(session, absurde), 0);
            const qint32 packs = banque.PackService_searchByProductId(session, absurde);
            QCOMPARE(banque.PackList_getCount(packs), 0);
            QCOMPARE(banque.PackList_getItem(packs, absurde), 0);
            banque.PackList_release(packs);
            const qint32 groupes = banque.GenericGroupService_searchByProductId(session, absurde);
            QCOMPARE(banque.ProductGenericGroupList_getCount(groupes), 0);
            banque.ProductGenericGroupList_release(groupes);
            banque.InteractionResult_release(banque.InteractionService_searchInteractionCouplesForProductIds(
                session, nullptr, absurde, absurde));
        }
        // A session is no record.
        QCOMPARE(banque.Pack_getId(absurde == 0 ? s : absurde), 0);
        QCOMPARE(QByteArray(banque.Pack_getName(absurde)), QByteArray());
        QCOMPARE(banque.Pack_getPublicPrice(absurde), 0.0);
        QCOMPARE(banque.InteractionCouple_getProductA(absurde), 0);
        banque.Pack_release(absurde);
    }
    poste_.Libere();
}

void TestBibliothequeDemarrage::copieLesTextes()
{
    const drugbank::LiaisonBanque& banque = *poste_.Banque;
    QCOMPARE(banque.StringLength(nullptr), 0);
    QCOMPARE(banque.StringLength("abc"), 3);
    QByteArray tampon(8, 'x');
    banque.CopyStringN2(tampon.data(), "abc", 2);
    QCOMPARE(tampon, QByteArray("abxxxxxx"));
    banque.CopyStringN2(tampon.data(), "abc", 8);
    QCOMPARE(tampon, QByteArray("abc\0xxxx", 8));
    banque.CopyStringN2(tampon.data(), "zzz", -1);
    banque.CopyStringN2(nullptr, "zzz", 3);
    banque.CopyString(nullptr, "zzz");
    QCOMPARE(tampon, QByteArray("abc\0xxxx", 8));
    banque.CopyString(tampon.data(), nullptr);
    QCOMPARE(tampon.front(), '\0');
    QCOMPARE(drugbank::LitTexte(banque, "d\xE9j\xE0"), QStringLiteral("déjà"));
}

QTEST_GUILESS_MAIN(TestBibliothequeDemarrage)
#include "test_bibliotheque_demarrage.moc"
