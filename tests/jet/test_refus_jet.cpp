#include "jet/CopieJet.h"
#include "storage/EbaucheJet.h"
#include "storage/EnteteJet.h"
#include "support/SuiviDeTest.h"

#include <QLockFile>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using storage::FormatJet;
using support::CopieJet;
using support::DonneesJet;

namespace {

const QString kPetit = QStringLiteral("petit/Medoc.mdb");

QByteArray EnteteJet4()
{
    return QByteArray("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24) + QByteArray(4096 - 24, '\0');
}

/// A program that stands in for the reader.
QString Lecteur(const CopieJet& copie, const QByteArray& instructions)
{
    const QString chemin = copie.Dossier() + QStringLiteral(".lecteur");
    common::EcritFichier(chemin, "#!/bin/sh\n" + instructions + '\n');
    QFile::setPermissions(chemin, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return chemin;
}

} // namespace

class TestRefusJet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ReconnaitLEntete_data();
    void ReconnaitLEntete();
    void LitCeQueDitLeLecteur_data();
    void LitCeQueDitLeLecteur();
    void DitQuUneBaseJetNEstPasConvertie();
    void RefuseUneBaseProtegee_data();
    void RefuseUneBaseProtegee();
    void RefuseUnMauvaisLecteur_data();
    void RefuseUnMauvaisLecteur();
    void DitQueLeSupportEstParti();
    void RefuseUneBaseSansNosTables();
    void RefuseUneTableRenommeeParAccident_data();
    void RefuseUneTableRenommeeParAccident();
    void SupporteDesCopiesAbimees();
    void AttendLAutrePoste();
    void DitQuUnAutrePosteConvertit();
    void DitQueLeDisqueEstPlein();
};

void TestRefusJet::ReconnaitLEntete_data()
{
    QTest::addColumn<QByteArray>("debut");
    QTest::addColumn<FormatJet>("attendu");
    QTest::newRow("vide") << QByteArray() << FormatJet::Aucun;
    QTest::newRow("trop court") << QByteArray("\0\1", 2) << FormatJet::Aucun;
    QTest::newRow("autre") << QByteArray(4096, 'x') << FormatJet::Aucun;
    QTest::newRow("sqlite") << QByteArray("SQLite format 3", 16) + QByteArray(4080, '\0') << FormatJet::Aucun;
    QTest::newRow("nom seul") << EnteteJet4().first(20) << FormatJet::Coupe;
    QTest::newRow("dans l'en-tête") << EnteteJet4().first(200) << FormatJet::Coupe;
    QTest::newRow("dans une page") << EnteteJet4() + QByteArray(100, 'x') << FormatJet::Coupe;
    QTest::newRow("codée") << EnteteJet4() << FormatJet::Protege;
    QTest::newRow("plus récente") << EnteteJet4().replace(20, 1, "\2") << FormatJet::TropRecent;
    QTest::newRow("ACE") << EnteteJet4().replace(4, 15, "Standard ACE DB") << FormatJet::TropRecent;
}

void TestRefusJet::ReconnaitLEntete()
{
    QFETCH(QByteArray, debut);
    QFETCH(FormatJet, attendu);
    QCOMPARE(storage::FormatDeLEntete(debut, debut.size()), attendu);
}

void TestRefusJet::LitCeQueDitLeLecteur_data()
{
    QTest::addColumn<QByteArray>("dit");
    QTest::addColumn<bool>("bon");
    QTest::addColumn<bool>("entier");
    const QByteArray patients = "table\tPatients\t30\nlignes\t30\n";
    QTest::newRow("rien") << QByteArray() << true << false;
    QTest::newRow("entier") << patients + "fin\n" << true << true;
    QTest::newRow("coupé") << patients + "fi" << true << false;
    QTest::newRow("après la fin") << patients + "fin\nfin\n" << false << true;
    QTest::newRow("deux fois la table") << patients + patients << false << false;
    QTest::newRow("sans nombre") << QByteArray("lignes\tbeaucoup\n") << false << false;
    QTest::newRow("autre chose") << QByteArray("bonjour\n") << false << false;
    QTest::newRow("sans fin de ligne") << QByteArray(100000, 'x') << false << false;
}

void TestRefusJet::LitCeQueDitLeLecteur()
{
    QFETCH(QByteArray, dit);
    QFETCH(bool, bon);
    QFETCH(bool, entier);
    const QTemporaryDir dossier;
    storage::EbaucheJet entiere(dossier.filePath(QStringLiteral("Medoc.mdb")));
    QCOMPARE(entiere.Recoit(dit), bon);
    QCOMPARE(entiere.Entiere(), entier);
    storage::EbaucheJet morceaux(dossier.filePath(QStringLiteral("Medoc.mdb")));
    bool toujours = true;
    for (qsizetype i = 0; i < dit.size() && toujours; ++i) {
        toujours = morceaux.Recoit(dit.sliced(i, 1));
    }
    QCOMPARE(toujours, bon);
    QCOMPARE(morceaux.Entiere(), entier);
}

void TestRefusJet::DitQuUneBaseJetNEstPasConvertie()
{
    const QTemporaryDir dossier;
    const QString chemin = dossier.filePath(QStringLiteral("Medoc.mdb"));
    common::EcritFichier(chemin, EnteteJet4());
    const QString directe =
        support::PhraseDEchec([&] { storage::Base base(chemin, storage::GenreBase::Medoc); });
    QVERIFY2(directe.contains(QStringLiteral("au format Access (Jet)")), qPrintable(directe));
    storage::Bases bases;
    const QString parBases = support::PhraseDEchec([&] { bases.Medoc(dossier.path()); });
    QVERIFY2(parBases.contains(QStringLiteral("« Medoc.mdb » est une base Access protégée")),
             qPrintable(parBases));
    QCOMPARE(common::LitFichier(chemin), EnteteJet4());
}

void TestRefusJet::RefuseUneBaseProtegee_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<int>("place");
    QTest::newRow("mot de passe, Jet 4") << kPetit << 0x42;
    QTest::newRow("clé, Jet 4") << kPetit << 0x3E;
    QTest::newRow("mot de passe, Jet 3") << QStringLiteral("ancien_jet3/Ordo.mdb") << 0x43;
    QTest::newRow("clé, Jet 3") << QStringLiteral("ancien_jet3/Ordo.mdb") << 0x41;
}

void TestRefusJet::RefuseUneBaseProtegee()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
    QFETCH(QString, base);
    QFETCH(int, place);
    CopieJet copie(base);
    QByteArray octets = copie.Contenu();
    octets[place] = static_cast<char>(octets[place] ^ 'm');
    copie.Ecris(octets);
    const QString phrase = copie.Convertit();
    QVERIFY2(phrase.contains(QStringLiteral("protégée par un mot de passe")), qPrintable(phrase));
    QVERIFY(copie.Intacte());
}

void TestRefusJet::RefuseUnMauvaisLecteur_data()
{
    QTest::addColumn<QByteArray>("instructions");
    QTest::addColumn<QString>("attendu");
    const QString endommagee = QStringLiteral("est endommagée");
    QTest::newRow("absent") << QByteArray() << QStringLiteral("« scriptelle-jet », manque");
    QTest::newRow("tué") << QByteArray("echo brouillon > \"$2\"; kill -9 $$") << endommagee;
    QTest::newRow("échec") << QByteArray("echo brouillon > \"$2\"; exit 4") << endommagee;
    QTest::newRow("se tait") << QByteArray("echo brouillon > \"$2\"; exec sleep 60")
                             << QStringLiteral("ne se termine pas");
    QTest::newRow("dit n'importe quoi") << QByteArray("echo bonjour; exec sleep 60") << endommagee;
    QTest::newRow("s'arrête trop tôt") << QByteArray("printf 'table\\tPatients\\t30\\n'") << endommagee;
    QTest::newRow("ment") << QByteArray("printf 'table\\tPatients\\t0\\nfin\\n'") << endommagee;
    QTest::newRow("disque plein") << QByteArray("exit 5") << QStringLiteral("est plein");
    QTest::newRow("disque en panne") << QByteArray("exit 7") << QStringLiteral("ne répond pas");
}

void TestRefusJet::RefuseUnMauvaisLecteur()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
    QFETCH(QByteArray, instructions);
    QFETCH(QString, attendu);
    const CopieJet copie(kPetit, QStringLiteral("données"));
    const QString lecteur =
        instructions.isEmpty() ? copie.Dossier() + QStringLiteral(".absent") : Lecteur(copie, instructions);
    const QString phrase = copie.Convertit({.Lecteur = lecteur, .SilenceMax = 500});
    QVERIFY2(phrase.contains(attendu), qPrintable(phrase));
    QVERIFY(phrase.contains(QStringLiteral("Medoc.mdb")));
    QVERIFY(copie.Intacte());
}

/// A stick that is pulled out is no damaged file: its reading is tried again.
void TestRefusJet::DitQueLeSupportEstParti()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
    const CopieJet copie(kPetit);
    const QString lecteur = Lecteur(copie, "rm \"$1\"; exit 4");
    const QString phrase = copie.Convertit({.Lecteur = lecteur});
    QVERIFY2(phrase.contains(QStringLiteral("« Medoc.mdb » n'existe pas")), qPrintable(phrase));
    QVERIFY(copie.Fichiers().isEmpty());
}

void TestRefusJet::RefuseUneBaseSansNosTables()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
    const CopieJet copie(QStringLiteral("petit/Ordo.mdb"));
    const QString phrase =
        support::PhraseDEchec([&] { storage::ConvertitSiJet(copie.Chemin(), storage::GenreBase::Medoc); });
    QVERIFY2(phrase.contains(QStringLiteral("aucune des tables")), qPrintable(phrase));
    QVERIFY(copie.Intacte());
}

/// One letter of a name in the catalogue: a whole table would be lost without a word.
void TestRefusJet::RefuseUneTableRenommeeParAccident_data()
{
    QTest::addColumn<QString>("fichier");
    QTest::addColumn<QByteArray>("nom");
    QTest::newRow("lines") << kPetit << QByteArray("OrdoEnr");
    QTest::newRow("patients") << kPetit << QByteArray("Patients");
    QTest::newRow("patients of version 1") << QStringLiteral("ancien/Ordo.mdb") << QByteArray("Patients");
}

void TestRefusJet::RefuseUneTableRenommeeParAccident()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
    QFETCH(QString, fichier);
    QFETCH(QByteArray, nom);
    CopieJet copie(fichier);
    QByteArray octets = copie.Contenu();
    // Jet 4 keeps a name in its short form, one byte a character, or in two.
    QByteArray large;
    for (const char lettre : std::as_const(nom)) {
        large.append(lettre).append('\0');
    }
    octets.replace(nom, nom.chopped(1) + 'q');
    octets.replace(large, large.chopped(2) + QByteArray("q\0", 2));
    QVERIFY(octets != copie.Contenu());
    copie.Ecris(octets);
    const QString phrase = copie.Convertit();
    QVERIFY2(phrase.contains(QStringLiteral("est endommagée")), qPrintable(phrase));
    QVERIFY(copie.Intacte());
}

/// Bytes turned over, pages emptied, ends cut off: the file is refused and left alone, or read with every
/// row.
void TestRefusJet::SupporteDesCopiesAbimees()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
    QRandomGenerator hasard(20261120);
    const QByteArray entier = common::LitFichier(DonneesJet::Chemin(kPetit));
    int refusees = 0;
    for (int essai = 0; essai < 250; ++essai) {
        CopieJet copie(kPetit);
        QByteArray octets = entier;
        for (int i = hasard.bounded(1, 41); i > 0; --i) {
            octets[hasard.bounded(static_cast<int>(octets.size()))] = static_cast<char>(hasard.bounded(256));
        }
        if (essai % 5 == 0) {
            octets.truncate(hasard.bounded(static_cast<int>(octets.size() / 4096)) * 4096);
        }
        if (essai % 5 == 1) {
            octets.replace(hasard.bounded(1, 100) * 4096, 4096, QByteArray(4096, '\0'));
        }
        copie.Ecris(octets);
        const QString phrase = copie.Convertit({.SilenceMax = 5000});
        if (phrase.isEmpty()) {
            // An empty file is no Jet file: it is left alone, and who opens it says so.
            QVERIFY(octets.isEmpty() || common::LitFichier(copie.Garde()) == octets);
            continue;
        }
        ++refusees;
        QVERIFY2(phrase.contains(QStringLiteral("Medoc.mdb")), qPrintable(phrase));
        QVERIFY2(copie.Intacte(), qPrintable(QString::number(essai)));
    }
    QVERIFY(refusees > 50);
}

void TestRefusJet::AttendLAutrePoste()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
    const CopieJet copie(kPetit);
    QLockFile autre(copie.Chemin() + QStringLiteral(".lock"));
    QVERIFY(autre.tryLock());
    support::SuiviDeTest suivi;
    QTimer::singleShot(400, this, [&] { autre.unlock(); });
    QCOMPARE(copie.Convertit({.Suivi = &suivi}), QString());
    QVERIFY(suivi.Attentes > 0);
    QCOMPARE(copie.Fichiers().size(), 2);
}

void TestRefusJet::DitQuUnAutrePosteConvertit()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
    const CopieJet copie(kPetit);
    {
        QLockFile autre(copie.Chemin() + QStringLiteral(".lock"));
        QVERIFY(autre.tryLock());
        const QString phrase = copie.Convertit({.AttenteMax = 300});
        QVERIFY2(phrase.contains(QStringLiteral("sur un autre poste")), qPrintable(phrase));
    }
    QVERIFY(copie.Intacte());
}

/// A limit on the size of a file stands for the disk that fills up.
void TestRefusJet::DitQueLeDisqueEstPlein()
{
#ifdef Q_OS_UNIX
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
    const CopieJet copie(kPetit);
    const auto signalAvant = ::signal(SIGXFSZ, SIG_IGN);
    rlimit avant{};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &avant), 0);
    const rlimit court{8192, avant.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &court), 0);
    const QString phrase = copie.Convertit();
    ::setrlimit(RLIMIT_FSIZE, &avant);
    ::signal(SIGXFSZ, signalAvant);
    QVERIFY2(phrase.contains(QStringLiteral("Le disque de la base de données « Medoc.mdb »")),
             qPrintable(phrase));
    QVERIFY(copie.Intacte());
#else
    QSKIP("this system has no limit on the size of a file");
#endif
}

QTEST_GUILESS_MAIN(TestRefusJet)
#include "test_refus_jet.moc"
