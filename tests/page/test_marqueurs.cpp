#include "page/MarqueursTitre.h"
#include "page/MotsPosologie.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using page::Mot;

class TestMarqueurs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titre_data();
    void titre();
    void mot_data();
    void mot();
    void lesMotsSeSeparentAuxBlancsSeuls();
    void troisBlancsFontDeuxMotsVides();
    void uneFinDeLigneResteDansSonMot();
    void unMotCourtSeMesureAvecSesDeuxBlancs();
    void uneMoitieDeCaractereNeResteJamais();
    void textesAuHasard();
};

void TestMarqueurs::titre_data()
{
    QTest::addColumn<QString>("titre");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("centre");
    QTest::addColumn<bool>("compte");
    QTest::newRow("sans") << u"DOLIPRANE"_s << u"DOLIPRANE"_s << false << true;
    QTest::newRow("premier") << u"#DOLIPRANE"_s << u"DOLIPRANE"_s << true << true;
    QTest::newRow("dernier") << u"QSP 3 mois#"_s << u"QSP 3 mois"_s << false << false;
    QTest::newRow("les deux") << u"#QSP 3 mois#"_s << u"QSP 3 mois"_s << true << false;
    QTest::newRow("saut") << u"##"_s << QString() << true << false;
    QTest::newRow("seul") << u"#"_s << QString() << true << false;
    QTest::newRow("vide") << QString() << QString() << false << false;
    QTest::newRow("milieu") << u"B#12"_s << u"B#12"_s << false << true;
    QTest::newRow("trois") << u"###"_s << u"#"_s << true << false;
}

void TestMarqueurs::titre()
{
    QFETCH(QString, titre);
    const page::TitreLu lu = page::LitTitre(titre);
    QTEST(lu.Texte, "texte");
    QTEST(lu.Centre, "centre");
    QTEST(lu.Compte, "compte");
}

void TestMarqueurs::mot_data()
{
    QTest::addColumn<QString>("stocke");
    QTest::addColumn<QString>("imprime");
    QTest::addColumn<QString>("style"); // g, s, i
    QTest::newRow("nu") << u"mot"_s << u"mot"_s << QString();
    QTest::newRow("gras") << u"mot*"_s << u"mot"_s << u"g"_s;
    QTest::newRow("gras souligné") << u"mot*$"_s << u"mot"_s << u"gs"_s;
    QTest::newRow("les trois") << u"mot£*$"_s << u"mot"_s << u"gsi"_s;
    QTest::newRow("les trois, autre ordre") << u"mot$£*"_s << u"mot"_s << u"gsi"_s;
    QTest::newRow("deux fois le même") << u"mot**"_s << u"mot*"_s << u"g"_s;
    QTest::newRow("une lettre") << u"a*"_s << u"a"_s << u"g"_s;
    QTest::newRow("au milieu") << u"mo*t"_s << u"mo*"_s << u"g"_s;
    QTest::newRow("seul *") << u"*"_s << QString() << u"g"_s;
    QTest::newRow("seul $") << u"$"_s << QString() << u"s"_s;
    QTest::newRow("seul £") << u"£"_s << QString() << u"i"_s;
    QTest::newRow("les trois seuls") << u"*$£"_s << QString() << u"gsi"_s;
    QTest::newRow("virgule") << u"mot,*"_s << u"mot,"_s << u"g"_s;
    QTest::newRow("trop loin") << u"m*otte"_s << u"m*otte"_s << QString();
    QTest::newRow("vide") << QString() << QString() << QString();
    QTest::newRow("deux lettres") << u"le"_s << u"le"_s << QString();
    QTest::newRow("règle") << u"mot|"_s << u"mot|"_s << QString();
}

void TestMarqueurs::mot()
{
    QFETCH(QString, stocke);
    const QList<Mot> mots = page::MotsPosologie(stocke);
    QCOMPARE(mots.size(), 1);
    const Mot& mot = mots[0];
    QTEST(mot.Imprime(), "imprime");
    const QString style = (mot.Gras ? u"g"_s : QString()) + (mot.Souligne ? u"s"_s : QString()) +
                          (mot.Italique ? u"i"_s : QString());
    QTEST(style, "style");
}

void TestMarqueurs::lesMotsSeSeparentAuxBlancsSeuls()
{
    QCOMPARE(page::MotsPosologie(u"un\tdeux\u00A0trois quatre"_s).size(), 2);
}

void TestMarqueurs::troisBlancsFontDeuxMotsVides()
{
    const QList<Mot> mots = page::MotsPosologie(u"un   deux"_s);
    QCOMPARE(mots.size(), 4);
    QCOMPARE(mots[1].Imprime() + mots[2].Imprime() + mots[1].Mesure, QString());
}

void TestMarqueurs::uneFinDeLigneResteDansSonMot()
{
    const QList<Mot> mots = page::MotsPosologie(u"matin*\r\nsoir$ fin"_s);
    QCOMPARE(mots.size(), 2);
    QCOMPARE(mots[0].Imprime(), u"matin*\r\nsoir"_s);
    QVERIFY(mots[0].Souligne && !mots[0].Gras);
}

void TestMarqueurs::unMotCourtSeMesureAvecSesDeuxBlancs()
{
    const QList<Mot> mots = page::MotsPosologie(u"a* le les"_s);
    QCOMPARE(mots[0].Mesure, u"  a"_s);
    QCOMPARE(mots[1].Mesure, u"  le"_s);
    QCOMPARE(mots[2].Mesure, u"les"_s);
}

void TestMarqueurs::uneMoitieDeCaractereNeResteJamais()
{
    const QString mot = page::MotsPosologie(u"mo*😀"_s)[0].Imprime();
    QVERIFY(mot.isValidUtf16());
    QCOMPARE(mot, u"mo*"_s);
}

// Whatever is typed: as many words as blanks ask for, never a style without its marker, and a word
// without one comes out as it went in.
void TestMarqueurs::textesAuHasard()
{
    QRandomGenerator hasard(20261120);
    const QString alphabet = u"ab é*$£#|\r\n,1"_s;
    for (int essai = 0; essai < 20000; ++essai) {
        QString texte;
        for (int place = hasard.bounded(40); place > 0; --place) {
            texte += alphabet[hasard.bounded(int(alphabet.size()))];
        }
        const QStringList stockes = texte.split(u' ');
        const QList<Mot> mots = page::MotsPosologie(texte);
        QCOMPARE(mots.size(), stockes.size());
        for (qsizetype rang = 0; rang < mots.size(); ++rang) {
            const QString fin = stockes[rang].right(3);
            QCOMPARE(mots[rang].Gras, fin.contains(u'*'));
            QCOMPARE(mots[rang].Souligne, fin.contains(u'$'));
            QCOMPARE(mots[rang].Italique, fin.contains(u'£'));
            const int marques = mots[rang].Gras + mots[rang].Souligne + mots[rang].Italique;
            QCOMPARE(mots[rang].Imprime(), stockes[rang].chopped(qMin<int>(marques, stockes[rang].size())));
        }
    }
}

QTEST_MAIN(TestMarqueurs)
#include "test_marqueurs.moc"
