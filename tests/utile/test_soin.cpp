#include "Soin.h"

#include "ArbreDeTest.h"
#include "PagesSqlite.h"
#include "messages.h"

#include "support/SansPrivilege.h"

#include <QDirIterator>
#include <QTest>

#ifdef Q_OS_LINUX
#include <sys/mount.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using namespace support;
using utile::Bilan;
using utile::GenrePage;
using utile::Issue;

namespace {

const QDateTime kMoment(QDate(2026, 11, 21), QTime(6, 52, 18));
constexpr int kPage = 4096;

Bilan Soigne(const utile::BaseTrouvee& base)
{
    return utile::Soigne(base, kMoment);
}

/// The pages of a kind behind the first.
QList<quint32> PagesDe(const QString& chemin, GenrePage genre)
{
    const utile::PagesSqlite pages(Octets(chemin));
    QList<quint32> trouvees;
    for (quint32 page = 2; page <= pages.Nombre(); ++page) {
        if (utile::PageArbre(pages, page).Genre() == genre) {
            trouvees.append(page);
        }
    }
    return trouvees;
}

void DetruitPage(const QString& chemin, quint32 page)
{
    Gate(chemin, (page - 1LL) * kPage, QByteArray(kPage, '\xA5'));
}

qint64 Perdues(const Bilan& bilan)
{
    qint64 perdues = 0;
    for (const utile::BilanTable& table : bilan.Tables) {
        perdues += table.Perdues;
    }
    return perdues;
}

qint64 Nombre(const QMap<QString, QStringList>& contenu)
{
    qint64 nombre = 0;
    for (const QStringList& lignes : contenu) {
        nombre += lignes.size();
    }
    return nombre;
}

/// Every row that is there now was there before, in the same order.
bool EstUnePartie(const QMap<QString, QStringList>& partie, const QMap<QString, QStringList>& tout)
{
    for (auto table = partie.begin(); table != partie.end(); ++table) {
        qsizetype place = -1;
        for (const QString& ligne : table.value()) {
            if (ligne.contains(utile::messages::TexteIllisible())) {
                continue;
            }
            place = tout.value(table.key()).indexOf(ligne, place + 1);
            if (place < 0) {
                return false;
            }
        }
    }
    return true;
}

QStringList Fichiers(const QString& dossier)
{
    return QDir(dossier).entryList(QDir::Files | QDir::Hidden);
}

} // namespace

class TestSoin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void UneBaseSaineResteEgale();
    void UneBaseCompacteNEstPasTouchee();
    void UneAncienneDispositionResteTelle();
    void RangeLaCopieDansSauvegardes();
    void UnePageDeFeuilleDetruite();
    void DesOctetsRetournes();
    void DesPagesDIndexDetruites();
    void DesNoeudsDetruits();
    void UnEnteteDetruit_data();
    void UnEnteteDetruit();
    void UneSuiteDeTexteDetruite();
    void UnFichierCoupe();
    void UneBaseOccupee();
    void UneBaseEnLectureSeule();
    void LaisseCeQuiNEstPasUneBase_data();
    void LaisseCeQuiNEstPasUneBase();
    void UnJournalAbandonneEstJoue();
    void UnDisquePlein();
    void RetireUneEbaucheAbandonnee();
    void SArreteEntreDeuxBases();
};

void TestSoin::UneBaseSaineResteEgale()
{
    const ArbreDeTest arbre;
    arbre.Remplit(500);
    {
        storage::Base base(arbre.Medoc().Chemin, storage::GenreBase::Medoc);
        base.SupprimeOu(u"OrdoEnr"_s, u"rowid % 3 = 0"_s, {});
        base.SupprimeOu(u"Patients"_s, u"rowid > 300"_s, {});
    }
    const auto avant = Contenu(arbre.Medoc());
    const QByteArray octets = Octets(arbre.Medoc().Chemin);
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(bilan.Apres, utile::messages::Compactee());
    QCOMPARE(bilan.Issue, Issue::Saine);
    QCOMPARE(Contenu(arbre.Medoc()), avant);
    QVERIFY(bilan.TailleApres < bilan.TailleAvant);
    QCOMPARE(bilan.TailleApres, QFileInfo(arbre.Medoc().Chemin).size());
    QCOMPARE(bilan.Copie, arbre.Chemin(u"Ancien_Medoc 2026-11-21 06h52m18.mdb"_s));
    QCOMPARE(Octets(bilan.Copie), octets);
    QCOMPARE(Fichiers(arbre.Racine()),
             (QStringList{u"Ancien_Medoc 2026-11-21 06h52m18.mdb"_s, u"Medoc.mdb"_s}));
}

void TestSoin::UneBaseCompacteNEstPasTouchee()
{
    const ArbreDeTest arbre;
    const QByteArray avant = Octets(arbre.Ordo().Chemin);
    const Bilan bilan = Soigne(arbre.Ordo());
    QCOMPARE(bilan.Apres, utile::messages::DejaCompacte());
    QCOMPARE(Octets(arbre.Ordo().Chemin), avant);
    QVERIFY(bilan.Copie.isEmpty());
    QCOMPARE(Fichiers(arbre.Chemin(u"DR NEIBRE"_s)), QStringList{u"Ordo.mdb"_s});
}

void TestSoin::UneAncienneDispositionResteTelle()
{
    const ArbreDeTest arbre;
    arbre.Remplit(200);
    {
        storage::Base base(arbre.Medoc().Chemin, storage::GenreBase::Medoc);
        base.Execute(u"drop table Vidal"_s);
        base.Execute(u"pragma user_version = 0"_s);
    }
    const auto avant = Contenu(arbre.Medoc());
    QVERIFY(!avant.contains(u"Vidal"_s));
    QCOMPARE(Soigne(arbre.Medoc()).Apres, utile::messages::Compactee());
    QCOMPARE(Contenu(arbre.Medoc()), avant);
}

void TestSoin::RangeLaCopieDansSauvegardes()
{
    const ArbreDeTest arbre;
    common::CreeDossier(arbre.Chemin(u"Sauvegardes"_s));
    const QString prise = arbre.Chemin(u"Sauvegardes/Ancien_DR NEIBRE Ordo 2026-11-21 06h52m18.mdb"_s);
    common::EcritFichier(prise, "d'avant");
    DetruitPage(arbre.Ordo().Chemin, 3);
    const Bilan bilan = Soigne(arbre.Ordo());
    QCOMPARE(bilan.Copie, arbre.Chemin(u"Sauvegardes/Ancien_DR NEIBRE Ordo 2026-11-21 06h52m18 (2).mdb"_s));
    QCOMPARE(Octets(prise), QByteArray("d'avant"));
}

void TestSoin::UnePageDeFeuilleDetruite()
{
    const ArbreDeTest arbre;
    arbre.Remplit(1000, false);
    const auto avant = Contenu(arbre.Medoc());
    const auto feuilles = PagesDe(arbre.Medoc().Chemin, GenrePage::Feuille);
    for (qsizetype i = feuilles.size() / 3; i < feuilles.size(); i += feuilles.size() / 5) {
        DetruitPage(arbre.Medoc().Chemin, feuilles[i]);
    }
    const QByteArray octets = Octets(arbre.Medoc().Chemin);
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(bilan.Apres, utile::messages::RepareeAvecPertes());
    const auto apres = Contenu(arbre.Medoc());
    QVERIFY(EstUnePartie(apres, avant));
    QCOMPARE(Nombre(avant) - Nombre(apres), Perdues(bilan));
    QVERIFY(Perdues(bilan) > 0 && Perdues(bilan) < 500);
    QCOMPARE(Octets(bilan.Copie), octets);
    QCOMPARE(Soigne(arbre.Medoc()).Issue, Issue::Saine);
}

void TestSoin::DesOctetsRetournes()
{
    const ArbreDeTest modele;
    modele.Remplit(600);
    const auto avant = Contenu(modele.Medoc());
    const QByteArray sains = Octets(modele.Medoc().Chemin);
    quint32 hasard = 12345;
    for (int essai = 0; essai < 25; ++essai) {
        const ArbreDeTest arbre;
        QByteArray octets = sains;
        for (int i = 0; i < 20; ++i) {
            hasard = hasard * 1664525U + 1013904223U;
            const auto place = static_cast<qsizetype>(hasard) % octets.size();
            octets[place] = static_cast<char>(octets[place] ^ (1 + static_cast<int>(hasard >> 29)));
        }
        common::EcritFichier(arbre.Medoc().Chemin, octets);
        const Bilan bilan = Soigne(arbre.Medoc());
        QVERIFY2(bilan.Issue == Issue::Saine || bilan.Issue == Issue::Pertes, qPrintable(bilan.Phrase));
        const auto apres = Contenu(arbre.Medoc());
        QVERIFY2(Nombre(apres) > Nombre(avant) * 3 / 5, qPrintable(QString::number(Nombre(apres))));
        if (!bilan.Copie.isEmpty()) {
            QCOMPARE(Octets(bilan.Copie), octets);
        }
    }
}

void TestSoin::DesPagesDIndexDetruites()
{
    const ArbreDeTest arbre;
    arbre.Remplit(800);
    const auto avant = Contenu(arbre.Medoc());
    for (const GenrePage genre : {GenrePage::FeuilleIndex, GenrePage::NoeudIndex}) {
        for (const quint32 page : PagesDe(arbre.Medoc().Chemin, genre)) {
            DetruitPage(arbre.Medoc().Chemin, page);
        }
    }
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(bilan.Apres, utile::messages::Reparee());
    QCOMPARE(Perdues(bilan), 0);
    QCOMPARE(Contenu(arbre.Medoc()), avant);
    const storage::Base courante(arbre.Medoc().Chemin, storage::GenreBase::Medoc);
}

void TestSoin::DesNoeudsDetruits()
{
    const ArbreDeTest arbre;
    arbre.Remplit(1500);
    const auto avant = Contenu(arbre.Medoc());
    for (const quint32 page : PagesDe(arbre.Medoc().Chemin, GenrePage::Noeud)) {
        DetruitPage(arbre.Medoc().Chemin, page);
    }
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(Contenu(arbre.Medoc()), avant);
    QCOMPARE(Perdues(bilan), 0);
}

void TestSoin::UnEnteteDetruit_data()
{
    QTest::addColumn<int>("octets");
    QTest::newRow("header") << 100;
    QTest::newRow("page") << kPage;
}

void TestSoin::UnEnteteDetruit()
{
    QFETCH(const int, octets);
    const ArbreDeTest arbre;
    arbre.Remplit(700);
    const auto avant = Contenu(arbre.Medoc());
    Gate(arbre.Medoc().Chemin, 0, QByteArray(octets, '\0'));
    const Bilan bilan = Soigne(arbre.Medoc());
    QVERIFY(bilan.Phrase.contains(utile::messages::PeutEtreSupprimees()));
    QCOMPARE(Contenu(arbre.Medoc()), avant);
}

void TestSoin::UneSuiteDeTexteDetruite()
{
    const ArbreDeTest arbre;
    arbre.Remplit(100);
    const auto avant = Contenu(arbre.Medoc());
    const QByteArray octets = Octets(arbre.Medoc().Chemin);
    const auto place = octets.indexOf(QString(1500, u'é').toUtf8(), octets.size() / 2);
    QVERIFY(place > 0);
    Gate(arbre.Medoc().Chemin, place / kPage * kPage, "\xFF\xFF\xFF\xFF");
    const Bilan bilan = Soigne(arbre.Medoc());
    const auto apres = Contenu(arbre.Medoc());
    QCOMPARE(Nombre(apres), Nombre(avant));
    const auto patients = std::ranges::find(bilan.Tables, u"Patients"_s, &utile::BilanTable::Nom);
    QCOMPARE(patients->Incompletes, 1);
    QCOMPARE(apres.value(u"Patients"_s).filter(u"[illisible]"_s).size(), 1);
    QVERIFY(apres.value(u"Patients"_s).filter(u"[illisible]"_s).first().contains(u"pénicilline"_s));
}

void TestSoin::UnFichierCoupe()
{
    const ArbreDeTest modele;
    modele.Remplit(300);
    const auto avant = Contenu(modele.Medoc());
    const QByteArray sains = Octets(modele.Medoc().Chemin);
    qint64 dernier = 0;
    for (qsizetype taille = 50; taille < sains.size(); taille += sains.size() / 40 + 13) {
        const ArbreDeTest arbre;
        common::EcritFichier(arbre.Medoc().Chemin, sains.first(taille));
        const Bilan bilan = Soigne(arbre.Medoc());
        if (bilan.Issue == Issue::Laissee) {
            QVERIFY(taille < sains.size() / 3);
            QVERIFY2(Octets(arbre.Medoc().Chemin) == sains.first(taille),
                     qPrintable(QString::number(taille)));
            continue;
        }
        QCOMPARE(bilan.Issue, Issue::Pertes);
        const auto apres = Contenu(arbre.Medoc());
        QVERIFY2(EstUnePartie(apres, avant), qPrintable(QString::number(taille)));
        dernier = Nombre(apres);
        QCOMPARE(Octets(bilan.Copie), sains.first(taille));
    }
    QVERIFY(dernier > Nombre(avant) * 9 / 10);
}

void TestSoin::UneBaseOccupee()
{
    const ArbreDeTest arbre;
    arbre.Remplit(10);
    const QByteArray avant = Octets(arbre.Medoc().Chemin);
    storage::Base base(arbre.Medoc().Chemin, storage::GenreBase::Medoc);
    storage::Transaction transaction(base);
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(bilan.Avant, utile::messages::EnService());
    QCOMPARE(bilan.Issue, Issue::Laissee);
    QVERIFY(bilan.Copie.isEmpty());
    QCOMPARE(Octets(arbre.Medoc().Chemin), avant);
}

void TestSoin::UneBaseEnLectureSeule()
{
    const ArbreDeTest arbre;
    OuvreATous(arbre.Racine());
    OuvreATous(arbre.Chemin(u"DR NEIBRE"_s));
    QFile::setPermissions(arbre.Medoc().Chemin, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    const SansPrivilege personne;
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(bilan.Avant, utile::messages::LectureSeule());
    QCOMPARE(bilan.Issue, Issue::Laissee);
    QCOMPARE(Fichiers(arbre.Racine()), QStringList{u"Medoc.mdb"_s});
}

void TestSoin::LaisseCeQuiNEstPasUneBase_data()
{
    QTest::addColumn<QByteArray>("contenu");
    QTest::addColumn<QString>("etat");
    QByteArray chiffre(40 * kPage, '\0');
    quint32 hasard = 7;
    for (char& octet : chiffre) {
        hasard = hasard * 1664525U + 1013904223U;
        octet = static_cast<char>(hasard >> 24);
    }
    QByteArray jet(2 * kPage, '\0');
    jet.replace(4, 15, "Standard Jet DB");
    QByteArray recente = jet;
    recente[0x14] = 5;
    QTest::newRow("empty") << QByteArray() << utile::messages::Vide();
    QTest::newRow("text") << QByteArray("bonjour") << utile::messages::PasUneBase();
    QTest::newRow("encrypted") << chiffre << utile::messages::PasUneBase();
    QTest::newRow("Jet of another time") << recente << utile::messages::Jet();
    const ArbreDeTest autre;
    QTest::newRow("the other kind") << Octets(autre.Ordo().Chemin) << utile::messages::PasUneBase();
    Gate(autre.Medoc().Chemin, 60, QByteArray("\0\0\0\x07", 4));
    QTest::newRow("newer") << Octets(autre.Medoc().Chemin) << utile::messages::TropRecente();
}

void TestSoin::LaisseCeQuiNEstPasUneBase()
{
    QFETCH(const QByteArray, contenu);
    const ArbreDeTest arbre;
    common::EcritFichier(arbre.Medoc().Chemin, contenu);
    const Bilan bilan = Soigne(arbre.Medoc());
    QTEST(bilan.Avant, "etat");
    QCOMPARE(bilan.Issue, Issue::Laissee);
    QVERIFY(!bilan.Phrase.isEmpty());
    QCOMPARE(Octets(arbre.Medoc().Chemin), contenu);
    QCOMPARE(Fichiers(arbre.Racine()), QStringList{u"Medoc.mdb"_s});
}

/// What a program that was killed in the middle of a writing leaves: pages written, and how they were.
void TestSoin::UnJournalAbandonneEstJoue()
{
    const ArbreDeTest arbre;
    arbre.Remplit(300);
    const QString chemin = arbre.Medoc().Chemin;
    const auto avant = Contenu(arbre.Medoc());
    QByteArray octets;
    QByteArray journal;
    {
        storage::Base base(chemin, storage::GenreBase::Medoc);
        base.Execute(u"pragma cache_size = 5"_s);
        base.Execute(u"begin immediate"_s);
        base.Execute(u"update Patients set Precautions = 'autre'"_s);
        octets = Octets(chemin);
        journal = Octets(chemin + u"-journal"_s);
        base.Execute(u"rollback"_s);
    }
    common::EcritFichier(chemin, octets);
    common::EcritFichier(chemin + u"-journal"_s, journal);
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(bilan.Issue, Issue::Saine);
    QCOMPARE(Contenu(arbre.Medoc()), avant);
    QVERIFY(!QFile::exists(chemin + u"-journal"_s));
    QCOMPARE(Octets(bilan.Copie), octets);
    QCOMPARE(Octets(bilan.Copie + u"-journal"_s), journal);
}

void TestSoin::UnDisquePlein()
{
#ifdef Q_OS_LINUX
    const QTemporaryDir dossier;
    const QByteArray point = dossier.path().toUtf8();
    if (::mount("tmpfs", point.constData(), "tmpfs", 0, "size=1m") != 0) {
        QSKIP("needs the right to mount a small disk");
    }
    {
        const ArbreDeTest modele;
        modele.Remplit(900, false);
        const QByteArray octets = Octets(modele.Medoc().Chemin);
        const QString chemin = dossier.filePath(u"Medoc.mdb"_s);
        common::EcritFichier(chemin, octets);
        const Bilan bilan = Soigne({chemin, storage::GenreBase::Medoc, dossier.path()});
        const QByteArray apres = Octets(chemin);
        const QStringList fichiers = Fichiers(dossier.path());
        ::umount2(point.constData(), MNT_DETACH);
        QVERIFY2(octets.size() > 600000 && octets.size() < 1000000,
                 qPrintable(QString::number(octets.size())));
        QCOMPARE(bilan.Issue, Issue::Laissee);
        QVERIFY2(bilan.Phrase.contains(u"plein"_s), qPrintable(bilan.Phrase));
        QCOMPARE(apres, octets);
        QCOMPARE(fichiers, QStringList{u"Medoc.mdb"_s});
    }
#else
    QSKIP("needs a small disk");
#endif
}

void TestSoin::RetireUneEbaucheAbandonnee()
{
    const ArbreDeTest arbre;
    common::EcritFichier(arbre.Chemin(u"Medoc.mdb.utile.tmp"_s), "à moitié");
    common::EcritFichier(arbre.Chemin(u"Medoc.mdb.utile.tmp-journal"_s), "à moitié");
    QCOMPARE(Soigne(arbre.Medoc()).Issue, Issue::Saine);
    QCOMPARE(Fichiers(arbre.Racine()), QStringList{u"Medoc.mdb"_s});
}

void TestSoin::SArreteEntreDeuxBases()
{
    const ArbreDeTest arbre;
    QList<Bilan> bilans;
    utile::SoigneTout(
        {arbre.Medoc(), arbre.Ordo()}, kMoment, [](int rang) { return rang == 0; },
        [&](int, const Bilan& bilan) { bilans.append(bilan); });
    QCOMPARE(bilans.size(), 2);
    QCOMPARE(bilans[0].Issue, Issue::Saine);
    QCOMPARE(bilans[1].Phrase, utile::messages::ArretDemande());
}

QTEST_GUILESS_MAIN(TestSoin)
#include "test_soin.moc"
