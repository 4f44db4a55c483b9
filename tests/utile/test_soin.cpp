#include "Soin.h"

#include "ArbreDeTest.h"
#include "messages.h"

#include "backup/VerrouArbre.h"
#include "support/SansPrivilege.h"

#include <QProcess>
#include <QTest>

#include <filesystem>

#ifdef Q_OS_LINUX
#include <sys/mount.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using namespace support;
using utile::Bilan;
using utile::Issue;

namespace {

const QDateTime kMoment(QDate(2026, 11, 21), QTime(6, 52, 18));
constexpr int kPage = 4096;

Bilan Soigne(const utile::BaseTrouvee& base)
{
    return utile::Soigne(base, kMoment);
}

void DetruitPage(const QString& chemin, quint32 page)
{
    Gate(chemin, (page - 1LL) * kPage, QByteArray(kPage, '\xA5'));
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
    void RetireLeSecondNomDUneBase();
    void UnTravailInacheve_data();
    void UnTravailInacheve();
    void UnAutreUtileGardeSonEbauche();
    void UneBaseOccupee();
    void UneBaseOuverteAilleurs();
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

/// A program that was killed before the new file took its place leaves the base with two names: the second
/// would change with it.
void TestSoin::RetireLeSecondNomDUneBase()
{
    const ArbreDeTest arbre;
    const QString second = arbre.Chemin(u"Ancien_Medoc 2026-11-20 06h52m18.mdb"_s);
    const QString copie = arbre.Chemin(u"Ancien_Medoc 2026-11-19 06h52m18.mdb"_s);
    std::filesystem::create_hard_link(QFile(arbre.Medoc().Chemin).filesystemFileName(),
                                      QFile(second).filesystemFileName());
    common::CopieFichier(arbre.Medoc().Chemin, copie);
    QCOMPARE(Soigne(arbre.Medoc()).Issue, Issue::Saine);
    QVERIFY(!QFile::exists(second));
    QVERIFY(QFile::exists(copie));
}

void TestSoin::UnTravailInacheve_data()
{
    QTest::addColumn<QString>("fichier");
    QTest::addColumn<QString>("travail");
    QTest::newRow("upgrade") << u"MiseAJour.cfg"_s << u"mise à jour"_s;
    QTest::newRow("transfer") << u"Transfert.pret/Medoc.mdb"_s << u"transfert"_s;
    QTest::newRow("transfer into a directory") << u"DR NEIBRE/Transfert.pret/Ordo.mdb"_s << u"transfert"_s;
    QTest::newRow("restoration") << u"Restauration.sqlar"_s << u"restauration"_s;
}

/// Scriptelle finishes it at its start, with the files that it left.
void TestSoin::UnTravailInacheve()
{
    QFETCH(const QString, fichier);
    QFETCH(const QString, travail);
    const ArbreDeTest arbre;
    arbre.Remplit(300, false);
    DetruitPage(arbre.Medoc().Chemin, 40);
    common::CreeDossier(QFileInfo(arbre.Chemin(fichier)).path());
    common::EcritFichier(arbre.Chemin(fichier), "Echange\nMedoc.mdb\n");
    for (const auto& base : {arbre.Medoc(), arbre.Ordo()}) {
        const QByteArray avant = Octets(base.Chemin);
        const QStringList fichiers = Fichiers(QFileInfo(base.Chemin).path());
        const Bilan bilan = Soigne(base);
        QCOMPARE(bilan.Avant, utile::messages::EnAttente());
        QCOMPARE(bilan.Apres, utile::messages::Inchangee());
        QCOMPARE(bilan.Issue, Issue::Laissee);
        QVERIFY2(bilan.Phrase.startsWith(u"Démarrez d'abord Scriptelle sur ces données : "_s),
                 qPrintable(bilan.Phrase));
        QVERIFY2(bilan.Phrase.contains(travail), qPrintable(bilan.Phrase));
        QCOMPARE(Octets(base.Chemin), avant);
        QCOMPARE(Fichiers(QFileInfo(base.Chemin).path()), fichiers);
    }
}

void TestSoin::UnAutreUtileGardeSonEbauche()
{
    const ArbreDeTest arbre;
    const backup::VerrouArbre autre(arbre.Racine());
    common::EcritFichier(arbre.Chemin(u"Medoc.mdb.utile.tmp"_s), "en cours");
    QCOMPARE(Soigne(arbre.Medoc()).Avant, utile::messages::EnService());
    QCOMPARE(Octets(arbre.Chemin(u"Medoc.mdb.utile.tmp"_s)), QByteArray("en cours"));
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

void TestSoin::UneBaseOuverteAilleurs()
{
#ifdef Q_OS_LINUX
    const ArbreDeTest arbre;
    QProcess autre;
    autre.start(u"tail"_s, {u"-f"_s, arbre.Medoc().Chemin});
    QVERIFY(autre.waitForStarted() && autre.waitForReadyRead());
    const Bilan bilan = Soigne(arbre.Medoc());
    autre.kill();
    autre.waitForFinished();
    QCOMPARE(bilan.Avant, utile::messages::EnService());
    QVERIFY2(bilan.Phrase.contains(u"« tail »"_s), qPrintable(bilan.Phrase));
#else
    QSKIP("the system does not tell who has a file open");
#endif
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
