#include "CertificatDeTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace certificat_de_test;
using support::Mots;
using support::PageDeTest;
using support::Textes;
using support::Trouve;

/// Where the lines of an address stand, and what stands beside and below them.
class TestCertificatAdresse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uneAdresseVide();
    void uneAdresseDUneLigne();
    void uneAdresseDeCinqLignes();
    void laLigneSuivantePasseSousLAdresse();
    void ceQuiEstColleALAdresseReste();
    void rienNeSortDeLaFeuilleACoteDUneAdresse();
};

void TestCertificatAdresse::uneAdresseVide()
{
    PageDeTest page;
    const auto textes = Textes(page.PeintCertificat(u"à <AD> ce"_s));
    QCOMPARE(textes.size(), 2);
    QVERIFY(Proche(textes[1].X, kGauche + L(u"à  "_s)));
}

void TestCertificatAdresse::uneAdresseDUneLigne()
{
    PageDeTest page;
    page.Patient.AdressePatient = u"Paris"_s;
    const auto textes = Textes(page.PeintCertificat(u"à <AD> ce\r\nsuite"_s));
    QCOMPARE(QPointF(textes[1].X, textes[1].Y), QPointF(kGauche + L(u"à "_s), kHaut));
    QVERIFY(Proche(textes[2].X, kGauche + L(u"à Paris  "_s)));
    QCOMPARE(textes[2].Y, kHaut);
    QVERIFY(Proche(textes[3].Y, kHaut + 2 * H() + 1));
}

void TestCertificatAdresse::uneAdresseDeCinqLignes()
{
    PageDeTest page;
    page.Patient.AdressePatient = CinqLignes();
    const auto textes = Textes(page.PeintCertificat(u"demeurant <AD> certifie ceci"_s));
    QCOMPARE(textes.size(), 8);
    const double gauche = kGauche + L(u"demeurant "_s);
    for (int rang = 0; rang < 5; ++rang) {
        QVERIFY(Proche(textes[rang + 1].X, gauche));
        QVERIFY(Proche(textes[rang + 1].Y, kHaut + rang * H()));
    }
    QCOMPARE(textes[6].Texte, u"certifie"_s);
    QVERIFY(Proche(textes[6].X, gauche + L(u"Bâtiment C, escalier 4  "_s)));
    QCOMPARE(textes[6].Y, kHaut);
    QCOMPARE(textes[7].Y, kHaut);
}

void TestCertificatAdresse::laLigneSuivantePasseSousLAdresse()
{
    PageDeTest page;
    page.Patient.AdressePatient = u"12 rue Haute\r\n75000 PARIS"_s;
    QVERIFY(Proche(Trouve(page.PeintCertificat(u"à <AD>\r\nsuite"_s), u"suite"_s).Y, kHaut + 2 * H() + 1));
    page.Patient.AdressePatient = CinqLignes();
    QVERIFY(Proche(Trouve(page.PeintCertificat(u"à <AD>\r\nsuite"_s), u"suite"_s).Y, kHaut + 5 * H() + 1));
    page.Reglages.Marges.LongueurLigne = static_cast<float>(L(u"Bâtiment C, escalier 4"_s) + 1);
    const auto dessin = page.PeintCertificat(u"<AD> milieu retour"_s);
    QCOMPARE(Trouve(dessin, u"milieu"_s).Y, kHaut);
    QVERIFY(Trouve(dessin, u"retour"_s).Y >= kHaut + 5 * H() - kProche);
}

void TestCertificatAdresse::ceQuiEstColleALAdresseReste()
{
    PageDeTest page;
    page.Patient.AdressePatient = u"1 rue Basse\r\n75000 PARIS"_s;
    QCOMPARE(Mots(page.PeintCertificat(u"(<AD>),"_s)),
             (QStringList{u"(1 rue Basse "_s, u"75000 PARIS), "_s}));
}

void TestCertificatAdresse::rienNeSortDeLaFeuilleACoteDUneAdresse()
{
    PageDeTest page;
    page.Patient.AdressePatient = CinqLignes();
    const QString texte = u"Je soussigné certifie avoir examiné ce jour cette personne demeurant <AD> et "
                          "avoir constaté qu'elle ne présente aucune contre-indication à la pratique"_s;
    const auto dessin = page.PeintCertificat(texte);
    for (const page::ItemTexte& item : Textes(dessin)) {
        QVERIFY2(item.X + item.Largeur <= 210 + kProche, qPrintable(item.Texte));
    }
    QVERIFY(Trouve(dessin, u"pratique"_s).Y > kHaut + 5 * H());
}

QTEST_MAIN(TestCertificatAdresse)
#include "test_certificat_adresse.moc"
