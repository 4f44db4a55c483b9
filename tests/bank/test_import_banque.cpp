#include "BanqueDeTest.h"
#include "bank/LigneDeCommande.h"
#include "bank/messages.h"
#include "support/BaseDeTest.h"

#include <QDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using namespace banque;
using support::BanqueDeTest;
using support::DossierExtrait;
using support::PhraseDEchec;

namespace {

/// A copy of the project's files, to be spoilt, and a former bank beside.
struct Essai
{
    QTemporaryDir Racine;
    QString Sources = common::Joint(Racine.path(), QStringLiteral("sources"));
    QString Banque = common::Joint(Racine.path(), QStringLiteral("banque.sqlite"));

    Essai()
    {
        common::CopieDossier(DossierExtrait(), Sources);
        common::EcritFichier(Banque, "ancienne");
    }

    banque::Demande Demandee() const { return {.Dossier = Sources, .Vers = Banque}; }
    QString Fichier(const char* nom) const { return common::Joint(Sources, QString::fromLatin1(nom)); }
    /// The former bank as it was, and nothing beside it.
    bool Intacte() const
    {
        const QDir racine(Racine.path());
        return common::LitFichier(Banque) == "ancienne" &&
               racine.entryList(QDir::Files) == QStringList{QStringLiteral("banque.sqlite")};
    }
};

QString Dci(const BanqueDeTest& banque, const QString& nom)
{
    return banque.Valeur(QStringLiteral("select dci from specialites where nom like '%1%'").arg(nom))
        .toString();
}

} // namespace

class TestImportBanque : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryLineIsAccountedFor();
    void RefusedLinesAreNamed();
    void TrapsOfThePresentations();
    void CommonNames_data();
    void CommonNames();
    void BelongingToNothingIsSetAside();
    void InformationOfTheBank();
    void ReplacesTheFormerBank();
    void TwoImportsGiveTheSameBytes();
    void InterruptionLeavesTheFormerBank();
    void FailuresLeaveTheFormerBank_data();
    void FailuresLeaveTheFormerBank();
    void FullDiskLeavesTheFormerBank();
    void OtherWordsForTheMarketFail();
    void OptionalAndUnknownFilesAreSaid();
    void ACutFileIsRefused();
    void InteractionsComeWithTheRest();
    void AThesaurusThatIsNotWholeIsRefused();
    void Arguments();
};

void TestImportBanque::EveryLineIsAccountedFor()
{
    const BanqueDeTest banque(DossierExtrait());
    QCOMPARE(banque.Bilan().Fichiers.size(), 10);
    for (const BilanFichier& fichier : banque.Bilan().Fichiers) {
        int ecartees = 0;
        for (const int nombre : fichier.Ecartees) {
            ecartees += nombre;
        }
        QCOMPARE(fichier.Gardees + fichier.Refusees + ecartees, fichier.Lues);
    }
    QCOMPARE(banque.Valeur(QStringLiteral("select count(*) from presentations")), QVariant(112));
    QCOMPARE(banque.Valeur(QStringLiteral("select count(*) from specialites")), QVariant(79));
    QCOMPARE(banque.Valeur(QStringLiteral("select count(*) from compositions")), QVariant(111));
    QCOMPARE(banque.Fichier(QStringLiteral("CIS_CPD_bdpm.txt")).Vides, 2);
}

void TestImportBanque::RefusedLinesAreNamed()
{
    const BanqueDeTest banque(DossierExtrait());
    const auto& specialites = banque.Fichier(QStringLiteral("CIS_bdpm.txt"));
    QCOMPARE(specialites.Refusees, 3);
    QCOMPARE(specialites.Remarques[0].Ligne, 6);
    QCOMPARE(specialites.Remarques[0].Motif, QStringLiteral("code CIS illisible : « 9000X999 »"));
    QCOMPARE(specialites.Remarques[1].Ligne, 10);
    QCOMPARE(specialites.Remarques[1].Motif, QStringLiteral("2 colonne(s) au lieu de 12"));
    QCOMPARE(specialites.Remarques[2].Ligne, 82);
    QVERIFY(banque.Bilan().AUnRefus());
    const QString texte = TexteBilan(banque.Bilan());
    QVERIFY2(
        texte.contains(QStringLiteral("CIS_bdpm.txt, ligne 6, refusée : code CIS illisible : « 9000X999 »")),
        qPrintable(texte));
}

void TestImportBanque::TrapsOfThePresentations()
{
    const BanqueDeTest banque(DossierExtrait());
    const auto valeur = [&](const QString& colonne, const QString& libelle) {
        return banque.Valeur(
            QStringLiteral("select %1 from presentations where libelle = '%2'").arg(colonne, libelle));
    };
    QCOMPARE(valeur(QStringLiteral("prix"), QStringLiteral("1 seringue préremplie")), QVariant(1466.29));
    QCOMPARE(valeur(QStringLiteral("prix"), QStringLiteral("2 seringues préremplies")), QVariant(12532.58));
    QCOMPARE(valeur(QStringLiteral("honoraires"), QStringLiteral("1 stylo prérempli")), QVariant(1.02));
    QCOMPARE(valeur(QStringLiteral("prix_total"), QStringLiteral("1 stylo prérempli")), QVariant(14.93));
    QCOMPARE(valeur(QStringLiteral("taux"), QStringLiteral("1 stylo prérempli")), QVariant(30));
    QVERIFY(valeur(QStringLiteral("date"), QStringLiteral("6 seringues préremplies")).isNull());
    QCOMPARE(valeur(QStringLiteral("commercialisee"), QStringLiteral("6 seringues préremplies")),
             QVariant(1));
    QCOMPARE(valeur(QStringLiteral("commercialisee"), QStringLiteral("10 seringues préremplies")),
             QVariant(0));
    QCOMPARE(valeur(QStringLiteral("commercialisee"), QStringLiteral("12 seringues préremplies")),
             QVariant(0));
    QCOMPARE(valeur(QStringLiteral("commercialisee"), QStringLiteral("plaquette(s) de 30 comprimé(s)")),
             QVariant(0));
    QCOMPARE(banque.Valeur(QStringLiteral("select id = cast(cip7 as integer) and length(cip7) = 7 and "
                                          "length(cip13) = 13 from presentations where cis = 92000001")),
             QVariant(1));
    QCOMPARE(banque.Valeur(QStringLiteral("select titulaires from specialites where cis = 91000001")),
             QVariant(QStringLiteral("LABORATOIRES VELMONT")));
    QCOMPARE(banque.Valeur(QStringLiteral("select nom from specialites where cis = 91000009")),
             QVariant(QStringLiteral("TRIPHAVEL, comprimé enrobé")));
    QCOMPARE(banque.Valeur(QStringLiteral("select homeopathie from specialites where cis = 91000008")),
             QVariant(1));
}

void TestImportBanque::CommonNames_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("dci");
    const auto cas = [](const char* titre, const char* nom, const char* dci) {
        QTest::newRow(titre) << QString::fromUtf8(nom) << QString::fromUtf8(dci);
    };
    cas("alone", "PARACETAMOL VELMONT 500", "PARACÉTAMOL");
    cas("fraction before the salt", "AMLODIPINE VELMONT 5 mg", "AMLODIPINE");
    cas("water left out", "AMOXICILLINE VELMONT 500", "AMOXICILLINE");
    cas("salt left out", "TRAMADOL", "TRAMADOL");
    cas("in the order of the links", "COAMOXIVEL", "AMOXICILLINE;ACIDE CLAVULANIQUE");
    cas("salt in brackets", "PARACODVEL", "PARACÉTAMOL;CODÉINE");
    cas("an element gives way", "LITHIUM", "CARBONATE DE LITHIUM");
    cas("salt of an element", "POTASSIUM", "CHLORURE DE POTASSIUM");
    cas("each once", "TRIPHAVEL", "LÉVONORGESTREL;ÉTHINYLESTRADIOL");
    cas("homeopathic", "ARNICA", "ARNICA MONTANA");
    cas("stray blank", "INSULVEL 100", "INSULINE GLARGINE");
}

void TestImportBanque::CommonNames()
{
    static const BanqueDeTest banque(DossierExtrait());
    QFETCH(QString, nom);
    QTEST(Dci(banque, nom), "dci");
}

void TestImportBanque::BelongingToNothingIsSetAside()
{
    const BanqueDeTest banque(DossierExtrait());
    QCOMPARE(banque.Fichier(QStringLiteral("CIS_GENER_bdpm.txt")).Ecartees.value(messages::SansSpecialite()),
             6);
    QCOMPARE(banque.Valeur(QStringLiteral("select count(*) from groupes_membres where cis = 91000002")),
             QVariant(2));
    QCOMPARE(banque.Fichier(QStringLiteral("CIS_CIP_Dispo_Spec.txt")).Ecartees.value(messages::Doublon()), 1);
    QCOMPARE(banque.Valeur(QStringLiteral("select lien from avis where dossier = 'CT-100'")),
             QVariant(QStringLiteral("https://exemple.invalid/avis/100")));
    QCOMPARE(banque.Valeur(QStringLiteral("select count(*) from substances_noms where code = 90001")),
             QVariant(2));
    QCOMPARE(banque.Valeur(QStringLiteral("select nom from substances where code = 90001")),
             QVariant(QStringLiteral("PARACÉTAMOL")));
}

void TestImportBanque::InformationOfTheBank()
{
    const BanqueDeTest banque(DossierExtrait());
    const auto information = [&](const char* cle) {
        return banque
            .Valeur(QStringLiteral("select valeur from information where cle = '%1'").arg(QLatin1String(cle)))
            .toString();
    };
    QCOMPARE(information("date_donnees"), QStringLiteral("2026-05-18"));
    QCOMPARE(information("expiration"), QStringLiteral("2027-05-18"));
    QVERIFY(information("source").contains(QStringLiteral("ANSM")));
    QCOMPARE(banque.Valeur(QStringLiteral("pragma integrity_check")), QVariant(QStringLiteral("ok")));
}

void TestImportBanque::ReplacesTheFormerBank()
{
    const Essai essai;
    Importe(essai.Demandee());
    QVERIFY(common::LitFichier(essai.Banque).startsWith("SQLite format 3"));
    QCOMPARE(QDir(essai.Racine.path()).entryList(QDir::Files).size(), 1);
}

void TestImportBanque::TwoImportsGiveTheSameBytes()
{
    const BanqueDeTest une(DossierExtrait());
    const BanqueDeTest autre(DossierExtrait());
    QCOMPARE(common::LitFichier(une.Chemin()), common::LitFichier(autre.Chemin()));
}

void TestImportBanque::InterruptionLeavesTheFormerBank()
{
    int appels = 0;
    Essai compte;
    Importe(compte.Demandee(), [&](const QString&, qint64, qint64) { return ++appels > 0; });
    QVERIFY(appels >= 20);
    for (int arret = 1; arret <= appels; ++arret) {
        const Essai essai;
        int reste = arret;
        bool interrompu = false;
        try {
            Importe(essai.Demandee(), [&](const QString&, qint64, qint64) { return --reste > 0; });
        } catch (const Interruption&) {
            interrompu = true;
        }
        QVERIFY(interrompu);
        QVERIFY(essai.Intacte());
    }
}

void TestImportBanque::FailuresLeaveTheFormerBank_data()
{
    QTest::addColumn<QString>("fichier");
    QTest::addColumn<QByteArray>("contenu");
    QTest::addColumn<QString>("phrase");
    QTest::newRow("missing") << QStringLiteral("CIS_COMPO_bdpm.txt") << QByteArray()
                             << QStringLiteral("« CIS_COMPO_bdpm.txt » manque");
    QTest::newRow("empty") << QStringLiteral("CIS_MITM.txt") << QByteArray("\r\n")
                           << QStringLiteral("« CIS_MITM.txt » ne contient aucune ligne lisible");
    QTest::newRow("another file") << QStringLiteral("CIS_CIP_bdpm.txt") << QByteArray("<html>\n<body>\n")
                                  << QStringLiteral(
                                         "« CIS_CIP_bdpm.txt » n'a pas la forme attendue : 2 lignes sur 2");
}

void TestImportBanque::FailuresLeaveTheFormerBank()
{
    QFETCH(QString, fichier);
    QFETCH(QByteArray, contenu);
    QFETCH(QString, phrase);
    const Essai essai;
    const QString chemin = common::Joint(essai.Sources, fichier);
    common::SupprimeFichier(chemin);
    if (!contenu.isEmpty()) {
        common::EcritFichier(chemin, contenu);
    }
    const QString dite = PhraseDEchec([&] { Importe(essai.Demandee()); });
    QVERIFY2(dite.contains(phrase), qPrintable(dite));
    QVERIFY(essai.Intacte());
    const QString absent = PhraseDEchec(
        [&] { Importe({.Dossier = essai.Sources + QStringLiteral("/rien"), .Vers = essai.Banque}); });
    QVERIFY2(absent.contains(QStringLiteral("n'existe pas")), qPrintable(absent));
    const QString nulle = PhraseDEchec([&] {
        Importe({.Dossier = DossierExtrait(), .Vers = essai.Racine.path() + QStringLiteral("/nul/b")});
    });
    QVERIFY2(nulle.contains(QStringLiteral("n'existe pas")), qPrintable(nulle));
}

/// A limit on the size of a file stands for the disk that fills up.
void TestImportBanque::FullDiskLeavesTheFormerBank()
{
#ifdef Q_OS_UNIX
    const Essai essai;
    const auto signalAvant = ::signal(SIGXFSZ, SIG_IGN);
    rlimit avant{};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &avant), 0);
    const rlimit court{16 * 1024, avant.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &court), 0);
    const QString dite = PhraseDEchec([&] { Importe(essai.Demandee()); });
    ::setrlimit(RLIMIT_FSIZE, &avant);
    ::signal(SIGXFSZ, signalAvant);
    QVERIFY2(dite.contains(QStringLiteral("Le disque de la banque « banque.sqlite »")), qPrintable(dite));
    QVERIFY(essai.Intacte());
#else
    QSKIP("this system has no limit on the size of a file");
#endif
}

void TestImportBanque::OtherWordsForTheMarketFail()
{
    const Essai essai;
    const QString chemin = essai.Fichier("CIS_CIP_bdpm.txt");
    common::EcritFichier(chemin, common::LitFichier(chemin).replace("Présentation active", "Active"));
    const QString dite = PhraseDEchec([&] { Importe(essai.Demandee()); });
    QVERIFY2(dite.contains(QStringLiteral("Aucune présentation")), qPrintable(dite));
    QVERIFY(essai.Intacte());
}

void TestImportBanque::OptionalAndUnknownFilesAreSaid()
{
    const Essai essai;
    common::SupprimeFichier(essai.Fichier("CIS_HAS_SMR_bdpm.txt"));
    common::EcritFichier(essai.Fichier("CIS_InfoImportantes.txt"), "x");
    const Bilan bilan = Importe(essai.Demandee());
    QCOMPARE(bilan.Avertissements,
             (QStringList{messages::FichierFacultatifAbsent(QStringLiteral("CIS_HAS_SMR_bdpm.txt")),
                          messages::FichierInconnu(QStringLiteral("CIS_InfoImportantes.txt"))}));
    QCOMPARE(bilan.Fichiers.size(), 9);
}

/// A download that broke off ends within a line; a whole last line may lack its end.
void TestImportBanque::ACutFileIsRefused()
{
    const Essai essai;
    const QString chemin = essai.Fichier("CIS_CIP_bdpm.txt");
    const QByteArray entier = common::LitFichier(chemin).chopped(1);
    QVERIFY(!entier.endsWith('\n'));
    common::EcritFichier(chemin, entier.left(entier.lastIndexOf('\n') + 12));
    const QString dite = PhraseDEchec([&] { Importe(essai.Demandee()); });
    QVERIFY2(dite.contains(QStringLiteral("« CIS_CIP_bdpm.txt » est coupé à sa dernière ligne")),
             qPrintable(dite));
    QVERIFY(essai.Intacte());
    common::EcritFichier(chemin, entier);
    QCOMPARE(Importe(essai.Demandee()).Fichiers.size(), 10);
}

void TestImportBanque::AThesaurusThatIsNotWholeIsRefused()
{
    const Essai essai;
    Demande demande = essai.Demandee();
    demande.Interactions = essai.Fichier("thesaurus.txt");
    const QByteArray entier =
        common::LitFichier(DossierExtrait() + QStringLiteral("/thesaurus/interactions.txt"));
    common::EcritFichier(demande.Interactions, entier.left(entier.size() / 2));
    const QString coupe = PhraseDEchec([&] { Importe(demande); });
    QVERIFY2(coupe.contains(QStringLiteral("n'est pas entier")), qPrintable(coupe));
    common::EcritFichier(demande.Interactions,
                         QByteArray(entier).replace("Association DECONSEILLEE", "DECONSEILLEE"));
    const QString illisible = PhraseDEchec([&] { Importe(demande); });
    QVERIFY2(illisible.contains(QStringLiteral("n'ont pas de niveau lisible")), qPrintable(illisible));
    QVERIFY(essai.Intacte());
}

void TestImportBanque::InteractionsComeWithTheRest()
{
    const Essai essai;
    Demande demande = essai.Demandee();
    demande.Interactions = DossierExtrait() + QStringLiteral("/thesaurus/interactions.txt");
    QVERIFY(!Importe(demande).Interactions.isEmpty());
    common::EcritFichier(essai.Banque, "ancienne");
    demande.Interactions = essai.Fichier("CIS_MITM.txt");
    QVERIFY(!PhraseDEchec([&] { Importe(demande); }).isEmpty());
    demande.Interactions = essai.Fichier("rien.txt");
    const QString absent = PhraseDEchec([&] { Importe(demande); });
    QVERIFY2(absent.contains(QStringLiteral("« rien.txt » : le fichier n'existe pas")), qPrintable(absent));
    QVERIFY(essai.Intacte());
}

void TestImportBanque::Arguments()
{
    const auto lit = [](const char* texte) { return LitArguments(QString::fromLatin1(texte).split(u' ')); };
    QCOMPARE(lit("importer ici --vers la --date 2026-05-18")->DateDonnees, QDate(2026, 5, 18));
    QCOMPARE(lit("importer ici --interactions t --vers la")->Interactions, QStringLiteral("t"));
    QCOMPARE(lit("importer ici --vers la")->Vers, QStringLiteral("la"));
    for (const char* faux : {"", "importer", "importer ici", "importer ici --vers", "lire ici --vers la",
                             "importer ici --vers la --date hier", "importer ici --autre la"}) {
        QVERIFY2(!lit(faux), faux);
    }
}

QTEST_GUILESS_MAIN(TestImportBanque)
#include "test_import_banque.moc"
