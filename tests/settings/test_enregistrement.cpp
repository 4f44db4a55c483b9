#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Nombres.h"
#include "settings/ChampsReglages.h"
#include "settings/Enregistrement.h"
#include "settings/Reglages.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace settings;

namespace {

/// One field of each type.
struct Melange
{
    quint8 Octet = 7;
    qint16 Court = 8;
    qint32 Long = 9;
    float Simple = 1.5F;
    QString Texte = QStringLiteral("avant");

    auto Champs() { return std::tie(Octet, Court, Long, Simple, Texte); }
    bool operator==(const Melange&) const = default;
};

QString TexteAuHasard(QRandomGenerator& hasard)
{
    static const QString alphabet = QStringLiteral(" ,;.'éàçÉœ€ABCxyz0189-/\\:()");
    QString texte;
    for (int i = hasard.bounded(12); i > 0; --i) {
        texte += alphabet[hasard.bounded(static_cast<int>(alphabet.size()))];
    }
    return texte;
}

} // namespace

class TestEnregistrement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ecritLesDefauts();
    void lit_data();
    void lit();
    void arreteAuDommage();
    void ecritLesTextes_data();
    void ecritLesTextes();
    void ecritLesSimples();
    void relitCeQuIlEcrit();
    void supporteNImporteQuoi();
    void gardeLeFichierAbime();
    void gardeChaqueFichierAbime();
    void neGardePasUnFichierCourt();
    void nEcritPasLeMeme();
    void laisseLeFichierQuandLaCopieEchoue();
};

void TestEnregistrement::ecritLesDefauts()
{
    Options options;
    Marges marges;
    Dupli dupli;
    QCOMPARE(TexteEnregistrement(ChampsOptions(options)),
             QByteArray("0,1,1,1,0,0,1,2,1,0,0,0,0,\"\",0,0,\"\",0,0,0,0,0,0,0,0,1,1,1,1\r\n"));
    QCOMPARE(TexteEnregistrement(ChampsMarges(marges)),
             QByteArray("10,4,10,20,100,170,70,100,0,0,0,0,0\r\n"));
    QCOMPARE(TexteEnregistrement(ChampsDupli(dupli)),
             QByteArray("\"Arial\",48,0,0,0,35,140,1,\"DUPLICATA\"\r\n"));
}

void TestEnregistrement::lit_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<int>("etat");
    QTest::addColumn<Melange>("attendu");

    const auto ligne = [](const char* nom, const QByteArray& octets, Lecture etat, const Melange& attendu) {
        QTest::newRow(nom) << octets << static_cast<int>(etat) << attendu;
    };
    const Melange plein{1, -2, 70000, 12.5F, QStringLiteral("a,b")};
    const auto un = [](quint8 octet) {
        Melange melange;
        melange.Octet = octet;
        return melange;
    };
    ligne("exact", "1,-2,70000,12.5,\"a,b\"\r\n", Lecture::Complete, plein);
    ligne("sans fin de ligne", "1,-2,70000,12.5,\"a,b\"", Lecture::Complete, plein);
    ligne("sur plusieurs lignes", "1\r\n-2\n70000\r12.5,\"a,b\"\r\n", Lecture::Complete, plein);
    ligne("blancs devant", "  1,\t-2, 70000 , 12.5,   \"a,b\"", Lecture::Complete, plein);
    ligne("texte nu", "1,2,3,4,Canon MX\r\n", Lecture::Complete, {1, 2, 3, 4, QStringLiteral("Canon MX")});
    ligne("accents", "1,2,3,4,\"\xE9t\xE9 \x80\"", Lecture::Complete, {1, 2, 3, 4, QStringLiteral("été €")});
    ligne("simple sans zero", "1,2,3,.5,\"\"", Lecture::Complete, {1, 2, 3, 0.5F, QString()});
    ligne("entier avec point", "1.0,2.5,3.5,-0.25,\"\"", Lecture::Complete, {1, 2, 4, -0.25F, QString()});
    ligne("champs de plus", "1,-2,70000,12.5,\"a,b\",9,9\r\n", Lecture::Complete, plein);
    ligne("plus court", "1\r\n", Lecture::Courte, un(1));
    ligne("fini par une virgule", "1,", Lecture::Courte, un(1));
    ligne("lignes vides a la fin", "1\r\n\r\n", Lecture::Courte, un(1));
    ligne("vide", "", Lecture::Abimee, {});
    ligne("blancs seuls", " \r\n", Lecture::Abimee, {});
    ligne("pas un nombre", "1,deux,3,4,\"\"", Lecture::Abimee, un(1));
    ligne("nombre vide", "1,,3,4,\"\"", Lecture::Abimee, un(1));
    ligne("octet trop grand", "256,2,3,4,\"\"", Lecture::Abimee, {});
    ligne("octet negatif", "-1,2,3,4,\"\"", Lecture::Abimee, {});
    ligne("court trop grand", "1,32768,3,4,\"\"", Lecture::Abimee, un(1));
    ligne("long trop grand", "1,8,2147483648,4,\"\"", Lecture::Abimee, un(1));
    ligne("simple trop grand", "1,8,9,1e39,\"\"", Lecture::Abimee, un(1));
    ligne("nan", "1,8,9,nan,\"\"", Lecture::Abimee, un(1));
    ligne("inf", "1,8,9,inf,\"\"", Lecture::Abimee, un(1));
    ligne("hexadecimal", "0x10,8,9,1,\"\"", Lecture::Abimee, {});
    ligne("guillemet ouvert", "1,8,9,1.5,\"abc\r\n", Lecture::Abimee, un(1));
    ligne("nul apres", QByteArray("1,8,9,1.5,\"avant\"\r\n\0", 20), Lecture::Abimee, un(1));
    ligne("nul dans un texte", QByteArray("1,8,9,1.5,\"a\0b\"", 15), Lecture::Abimee, un(1));
    ligne("binaire", QByteArray("\x89PNG\r\n\x1A\n\0\0", 10), Lecture::Abimee, {});
}

void TestEnregistrement::lit()
{
    QFETCH(QByteArray, octets);
    QFETCH(int, etat);
    QFETCH(Melange, attendu);
    Melange lu;
    QCOMPARE(static_cast<int>(LitChamps(octets, lu.Champs())), etat);
    QCOMPARE(lu.Octet, attendu.Octet);
    QCOMPARE(lu.Court, attendu.Court);
    QCOMPARE(lu.Long, attendu.Long);
    QCOMPARE(lu.Simple, attendu.Simple);
    QCOMPARE(lu.Texte, attendu.Texte);
}

void TestEnregistrement::arreteAuDommage()
{
    Options options;
    options.FormatA4 = 0;
    const QByteArray octets("1,0,0,0,1,1,0,4,2,1,999,1,1,\"X\",1,1,\"\",1,1,1,1,1,1,1,1,0,0,0,1");
    QCOMPARE(static_cast<int>(LitChamps(octets, ChampsOptions(options))), static_cast<int>(Lecture::Abimee));
    QCOMPARE(int(options.SautTitrePoso), 1);
    QCOMPARE(int(options.BarreMenu), 0);
    QCOMPARE(options.Imprimante, QString());
    QCOMPARE(int(options.FormatA4), 0);
}

void TestEnregistrement::ecritLesTextes_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QByteArray>("octets");
    QTest::newRow("vide") << QString() << QByteArray("\"\"");
    QTest::newRow("virgule") << QStringLiteral("HP, bureau") << QByteArray("\"HP, bureau\"");
    QTest::newRow("accents") << QStringLiteral("été œ €") << QByteArray("\"\xE9t\xE9 \x9C \x80\"");
    QTest::newRow("guillemet") << QStringLiteral("a\"b") << QByteArray("\"a'b\"");
    QTest::newRow("fin de ligne") << QStringLiteral("a\r\nb") << QByteArray("\"a  b\"");
    QTest::newRow("hors du code") << QStringLiteral("Łódź")
                                  << QByteArray("\"?\xF3"
                                                "d?\"");
}

void TestEnregistrement::ecritLesTextes()
{
    QFETCH(QString, texte);
    QFETCH(QByteArray, octets);
    QCOMPARE(TexteChamp(texte), octets);
}

void TestEnregistrement::ecritLesSimples()
{
    QCOMPARE(TexteChamp(12.5F), QByteArray("12.5"));
    QCOMPARE(TexteChamp(10.0F), QByteArray("10"));
    QCOMPARE(TexteChamp(-0.1F), QByteArray("-0.1"));
    QCOMPARE(TexteChamp(qint16(-32768)), QByteArray("-32768"));
}

void TestEnregistrement::relitCeQuIlEcrit()
{
    QRandomGenerator hasard(20112026);
    for (int i = 0; i < 2000; ++i) {
        Melange ecrit{static_cast<quint8>(hasard.bounded(256)),
                      static_cast<qint16>(hasard.bounded(-32768, 32768)),
                      static_cast<qint32>(hasard.generate()),
                      static_cast<float>(hasard.bounded(-99999, 99999)) / 64, TexteAuHasard(hasard)};
        ecrit.Simple = common::TexteSimple(ecrit.Simple).toFloat();
        Melange relu;
        QCOMPARE(static_cast<int>(LitChamps(TexteEnregistrement(ecrit.Champs()), relu.Champs())),
                 static_cast<int>(Lecture::Complete));
        QVERIFY2(relu == ecrit, qPrintable(ecrit.Texte));
    }
}

void TestEnregistrement::supporteNImporteQuoi()
{
    QRandomGenerator hasard(2);
    const QByteArray alphabet("0123456789.,-\"\r\n eE\t\0x\xE9", 23);
    for (int i = 0; i < 20000; ++i) {
        QByteArray octets;
        for (int n = hasard.bounded(60); n > 0; --n) {
            octets += alphabet[hasard.bounded(static_cast<int>(alphabet.size()))];
        }
        Melange lu;
        const Lecture etat = LitChamps(octets, lu.Champs());
        QVERIFY(etat != Lecture::Absente);
        Melange relu;
        const bool entier = LitChamps(TexteEnregistrement(lu.Champs()), relu.Champs()) == Lecture::Complete;
        QVERIFY2(entier, octets.toPercentEncoding().constData());
    }
}

void TestEnregistrement::gardeLeFichierAbime()
{
    QTemporaryDir dossier;
    const QString chemin = common::Joint(dossier.path(), QStringLiteral("Marges.cfg"));
    const QByteArray abime("10,4,\"ouvert\r\n");
    common::EcritFichier(chemin, abime);
    Marges marges;
    EcritEnregistrement(chemin, ChampsMarges(marges));
    QCOMPARE(common::LitFichier(chemin + QStringLiteral(".abime")), abime);
    QCOMPARE(common::LitFichier(chemin), QByteArray("10,4,10,20,100,170,70,100,0,0,0,0,0\r\n"));
}

void TestEnregistrement::gardeChaqueFichierAbime()
{
    QTemporaryDir dossier;
    const QString chemin = common::Joint(dossier.path(), QStringLiteral("Marges.cfg"));
    const QString garde = chemin + QStringLiteral(".abime");
    Marges marges;
    for (const char* abime : {"un", "deux", "deux", "trois"}) {
        common::EcritFichier(chemin, abime);
        EcritEnregistrement(chemin, ChampsMarges(marges));
        QCOMPARE(common::LitFichier(garde), QByteArray(abime));
    }
    QCOMPARE(common::LitFichier(garde + QStringLiteral(".2")), QByteArray("un"));
    QCOMPARE(common::LitFichier(garde + QStringLiteral(".3")), QByteArray("deux"));
    QVERIFY(!common::FichierExiste(garde + QStringLiteral(".4")));
}

void TestEnregistrement::neGardePasUnFichierCourt()
{
    QTemporaryDir dossier;
    const QString chemin = common::Joint(dossier.path(), QStringLiteral("Marges.cfg"));
    common::EcritFichier(chemin, "10,4\r\n");
    Marges marges;
    EcritEnregistrement(chemin, ChampsMarges(marges));
    QVERIFY(!common::FichierExiste(chemin + QStringLiteral(".abime")));
}

void TestEnregistrement::nEcritPasLeMeme()
{
    QTemporaryDir dossier;
    const QString chemin = common::Joint(dossier.path(), QStringLiteral("Marges.cfg"));
    Marges marges;
    EcritEnregistrement(chemin, ChampsMarges(marges));
    const QDateTime hier(QDate(2026, 11, 19), QTime(8, 0));
    QFile fichier(chemin);
    QVERIFY(fichier.open(QIODevice::ReadWrite) && fichier.setFileTime(hier, QFile::FileModificationTime));
    fichier.close();
    EcritEnregistrement(chemin, ChampsMarges(marges));
    QCOMPARE(QFileInfo(chemin).lastModified(), hier);
    marges.HauteurSaut = 3;
    EcritEnregistrement(chemin, ChampsMarges(marges));
    QVERIFY(QFileInfo(chemin).lastModified() != hier);
}

void TestEnregistrement::laisseLeFichierQuandLaCopieEchoue()
{
    QTemporaryDir dossier;
    const QString chemin = common::Joint(dossier.path(), QStringLiteral("Marges.cfg"));
    common::EcritFichier(chemin, "cassé");
    common::CreeDossier(chemin + QStringLiteral(".abime")); // the copy cannot be made
    Marges marges;
    QVERIFY_THROWS_EXCEPTION(common::Erreur, EcritEnregistrement(chemin, ChampsMarges(marges)));
    QCOMPARE(common::LitFichier(chemin), QByteArray("cassé"));
}

QTEST_APPLESS_MAIN(TestEnregistrement)
#include "test_enregistrement.moc"
