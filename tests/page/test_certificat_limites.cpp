#include "support/PageDeTest.h"

#include <QRandomGenerator>
#include <QTest>
#include <cmath>

using namespace Qt::StringLiterals;
using support::Mots;
using support::PageDeTest;
using support::Textes;

/// Texts that no doctor writes.
class TestCertificatLimites : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toutCaractereSort();
    void textesAuHasard();
    void unTexteEnorme_data();
    void unTexteEnorme();
};

void TestCertificatLimites::toutCaractereSort()
{
    PageDeTest page;
    const QString texte = u"Łukasz Ōé 東京 😀 naïve"_s;
    QCOMPARE(Mots(page.PeintCertificat(texte)), texte.split(u' '));
}

// Whatever stands in the text and in the variables, nothing fails and every place is a number.
void TestCertificatLimites::textesAuHasard()
{
    QRandomGenerator hasard(2026);
    const QStringList morceaux{u"<N>"_s,
                               u"<DN>"_s,
                               u"<AD>"_s,
                               u"<DR>"_s,
                               u"<"_s,
                               u"*"_s,
                               u"$£"_s,
                               u" "_s,
                               u"  "_s,
                               u"\r\n"_s,
                               u"\n"_s,
                               u"\r"_s,
                               u"mot"_s,
                               QString(QChar(0)),
                               u"\t"_s,
                               u"😀"_s,
                               QString(QChar(0xD83D)),
                               QString(QChar(0xDE00)),
                               QString(120, u'_'),
                               QString(200, u'm'),
                               u"AFFECTION* EXONERANTE"_s,
                               u"\u0301"_s};
    const auto texte = [&](int longueur) {
        QString resultat;
        for (int reste = hasard.bounded(longueur); reste > 0; --reste) {
            resultat += morceaux[hasard.bounded(morceaux.size())];
        }
        return resultat;
    };
    for (int essai = 0; essai < 1500; ++essai) {
        PageDeTest page;
        page.Patient.AdressePatient = texte(8);
        page.Patient.PatientCourant = texte(5);
        page.Reglages.Look.NomSignature = texte(3);
        page.Reglages.TxtSLP = hasard.bounded(2) == 0 ? texte(3) : QString::number(hasard.bounded(300));
        page.Reglages.Look.Certif.Taille = static_cast<float>(hasard.bounded(40));
        page.Reglages.Marges.LongueurLigne = static_cast<float>(hasard.bounded(-20, 200));
        page.Certificat.DecalageCertif = 2 * hasard.bounded(-40, 40);
        page.Certificat.IdentiteCertif = static_cast<quint8>(hasard.bounded(2));
        double y = 0;
        for (const page::ItemTexte& item : Textes(page.PeintCertificat(texte(60)))) {
            QVERIFY(std::isfinite(item.X) && std::isfinite(item.Y) && std::isfinite(item.Largeur));
            y = std::max(y, item.Y);
        }
        QVERIFY(std::isfinite(y));
    }
}

void TestCertificatLimites::unTexteEnorme_data()
{
    constexpr int mega = 1'000'000;
    QTest::addColumn<QString>("texte");
    QTest::newRow("one word") << QString(mega, u'w');
    QTest::newRow("blanks") << QString(mega, u' ');
    QTest::newRow("empty lines") << QString(mega, u'\n');
    QTest::newRow("short words") << u"a "_s.repeated(mega / 2);
    QTest::newRow("lines of words") << u"un texte ordinaire de certificat médical\r\n"_s.repeated(mega / 42);
    QTest::newRow("addresses") << u"<AD> "_s.repeated(mega / 5);
    QTest::newRow("markers") << u"*"_s.repeated(mega);
}

// The time grows with the text: the runner's limit stops a painting that measures all again for each word.
void TestCertificatLimites::unTexteEnorme()
{
    QFETCH(QString, texte);
    PageDeTest page;
    page.Patient.AdressePatient = u"1 rue\r\nParis"_s;
    const auto dessin = page.PeintCertificat(texte);
    QVERIFY(texte.trimmed().isEmpty() == dessin.Items.isEmpty());
}

QTEST_MAIN(TestCertificatLimites)
#include "test_certificat_limites.moc"
