#include "page/messages.h"
#include "support/PageDeTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using page::Cible;
using support::Mots;
using support::PageDeTest;
using support::Trouve;

class TestPeintPatient : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void surPapier();
    void surApercu();
    void laPoliceDuNom();
    void leNomSansCivilite();
    void lePoids_data();
    void lePoids();
    void lAgeEtLaDateALeurPlace();
    void lesPlacesSurApercuGardentLeurDistanceAuNom();
    void laDateSeuleALeurPlace();
    void laDate_data();
    void laDate();
    void lePassageEstDemandeUneFois();
    void lePassageRepondUneDate();
    void lePassageRepondUneDateSansRienCocher();
    void lePassageAvecDateNEstPasDemande();
    void lePassageSansReponse();
    void lAgeSaisiSeTaitSansOption();
    void leModeTroisSansAge();
};

void TestPeintPatient::surPapier()
{
    PageDeTest page;
    const page::Dessin dessin = page.PeintPatient();
    QCOMPARE(Mots(dessin), (QStringList{u"Monsieur  MARTIN  Paul"_s, u"né(e) le 20/03/1953   (73 ans)"_s,
                                        u"vendredi  20  nov.  2026"_s}));
    const double ligne = page::MesureHauteur({});
    const auto textes = support::Textes(dessin);
    for (const page::ItemTexte& texte : textes) {
        QCOMPARE(texte.X, 100.0);
        QCOMPARE(texte.Encre, page::kNoir);
    }
    QCOMPARE(textes[0].Y, 74.0); // MargeHautePatient below MargeHauteEntete
    QCOMPARE(textes[1].Y, 74 + ligne);
    QCOMPARE(textes[2].Y, 74 + 3 * ligne);
}

void TestPeintPatient::surApercu()
{
    PageDeTest page;
    const auto textes = support::Textes(page.PeintPatient(Cible::Apercu));
    QCOMPARE(textes[0].Y, 24.0);
    QCOMPARE(textes[0].X, 100.0);
}

void TestPeintPatient::laPoliceDuNom()
{
    PageDeTest page;
    page.Reglages.Look.Titre = {.Nom = u"Times New Roman"_s, .Taille = 13, .Gras = true, .Souligne = true};
    page.Reglages.Look.Poso = {.Taille = 11, .Gras = true, .Italique = true, .Souligne = true};
    page.Reglages.Options.SouligneNom = 0;
    const auto textes = support::Textes(page.PeintPatient());
    QCOMPARE(textes[0].Police, (page::Police{u"Times New Roman"_s, 13, true, false, false}));
    QCOMPARE(textes[1].Police, page.Reglages.Look.Poso);
    QCOMPARE(textes[2].Police, (page::Police{u"Arial"_s, 11, false, true, true})); // bold goes off
    page.Reglages.Options.SouligneNom = 1;
    page.Reglages.Look.Titre.Souligne = false;
    QVERIFY(support::Textes(page.PeintPatient())[0].Police.Souligne);
}

void TestPeintPatient::leNomSansCivilite()
{
    PageDeTest page;
    page.Ordonnance.ChkCiv = 0;
    QCOMPARE(Mots(page.PeintPatient())[0], u"MARTIN  Paul"_s);
}

void TestPeintPatient::lePoids_data()
{
    QTest::addColumn<QString>("poids");
    QTest::addColumn<int>("affiche");
    QTest::addColumn<bool>("imprime");
    QTest::newRow("72,5") << u"72,5"_s << 1 << true;
    QTest::newRow("zéro") << u"0"_s << 1 << false;
    QTest::newRow("vide") << QString() << 1 << false;
    QTest::newRow("option à non") << u"72"_s << 0 << false;
}

void TestPeintPatient::lePoids()
{
    QFETCH(QString, poids);
    QFETCH(int, affiche);
    QFETCH(bool, imprime);
    PageDeTest page;
    page.Patient.PoidsPatient = poids;
    page.Reglages.Options.AffichePoids = static_cast<quint8>(affiche);
    const page::Dessin dessin = page.PeintPatient();
    QCOMPARE(Mots(dessin).contains(poids + u" kg"_s), imprime);
    const double ligne = page::MesureHauteur({});
    QCOMPARE(Trouve(dessin, u"vendredi  20  nov.  2026"_s).Y, 74 + (imprime ? 4 : 3) * ligne);
}

void TestPeintPatient::lAgeEtLaDateALeurPlace()
{
    PageDeTest page;
    page.Reglages.Marges.MargeHauteDDN = 80;
    page.Reglages.Marges.MargeGaucheDDN = 30;
    page.Reglages.Marges.MargeHauteDate = 60;
    page.Reglages.Marges.MargeGaucheDate = 15;
    const auto textes = support::Textes(page.PeintPatient());
    QCOMPARE(QPointF(textes[1].X, textes[1].Y), QPointF(30, 84));
    QCOMPARE(QPointF(textes[2].X, textes[2].Y), QPointF(15, 64));
}

void TestPeintPatient::lesPlacesSurApercuGardentLeurDistanceAuNom()
{
    PageDeTest page;
    page.Reglages.Marges.MargeHauteDDN = 80;
    page.Reglages.Marges.MargeHauteDate = 60;
    page.Reglages.Marges.MargeGaucheDate = 15;
    const auto textes = support::Textes(page.PeintPatient(Cible::Apercu));
    QCOMPARE(textes[0].Y, 24.0);
    QCOMPARE(QPointF(textes[1].X, textes[1].Y), QPointF(0, 34));
    QCOMPARE(QPointF(textes[2].X, textes[2].Y), QPointF(15, 14));
}

void TestPeintPatient::laDateSeuleALeurPlace()
{
    PageDeTest page;
    page.Reglages.Marges.MargeHauteDate = 60;
    const auto textes = support::Textes(page.PeintPatient());
    QCOMPARE(QPointF(textes[1].X, textes[1].Y), QPointF(100, 74 + page::MesureHauteur({})));
    QCOMPARE(QPointF(textes[2].X, textes[2].Y), QPointF(0, 64));
}

void TestPeintPatient::laDate_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<int>("imprime");
    QTest::addColumn<QString>("texte");
    QTest::newRow("date") << u"07/01/2010"_s << 1 << u"jeudi  7  janv.  2010"_s;
    QTest::newRow("pas une date") << u"abcdefghij"_s << 1 << u"abcdefghij"_s;
    QTest::newRow("sans date") << QString() << 1 << QString();
    QTest::newRow("option à non") << u"07/01/2010"_s << 0 << QString();
}

void TestPeintPatient::laDate()
{
    QFETCH(QString, date);
    QFETCH(int, imprime);
    QFETCH(QString, texte);
    PageDeTest page;
    page.Patient.DateOrdo = date;
    page.Reglages.Options.ImprimeDate = static_cast<quint8>(imprime);
    QCOMPARE(Mots(page.PeintPatient()).value(2), texte);
}

void TestPeintPatient::lePassageEstDemandeUneFois()
{
    PageDeTest page;
    page.Patient.ModePatient = 2;
    page.Patient.DateNaissance.clear();
    page.Boites.AttendSaisie(page::messages::InviteAge(), u"45 ans"_s);
    QCOMPARE(Mots(page.PeintPatient(Cible::Apercu))[1], u"45 ans"_s);
    QCOMPARE(page.Patient.ModePatient, 3);
    QCOMPARE(page.Patient.DateNaissance, QString());
    QCOMPARE(Mots(page.PeintPatient())[1], u"45 ans"_s);
}

void TestPeintPatient::lePassageRepondUneDate()
{
    PageDeTest page;
    page.Patient.ModePatient = 2;
    page.Patient.DateNaissance.clear();
    page.Boites.AttendSaisie(page::messages::InviteAge(), u"20/03/1953"_s);
    QCOMPARE(Mots(page.PeintPatient())[1], u"né(e) le 20/03/1953   (73 ans)"_s);
    QCOMPARE(page.Patient.DateNaissance, u"20/03/1953"_s);
    QCOMPARE(page.Patient.AgeSaisi, u"né(e) le 20/03/1953   (73 ans)"_s);
}

void TestPeintPatient::lePassageRepondUneDateSansRienCocher()
{
    PageDeTest page;
    page.Patient.ModePatient = 2;
    page.Reglages.Options.AfficheAge = page.Reglages.Options.AfficheDDN = 0;
    page.Boites.AttendSaisie(page::messages::InviteAge(), u"20/03/1953"_s);
    QCOMPARE(Mots(page.PeintPatient()).size(), 2); // name and date
    QCOMPARE(page.Patient.AgeSaisi, QString());
}

void TestPeintPatient::lePassageAvecDateNEstPasDemande()
{
    PageDeTest page;
    page.Patient.ModePatient = 2;
    QCOMPARE(Mots(page.PeintPatient())[1], u"né(e) le 20/03/1953   (73 ans)"_s);
    QCOMPARE(page.Patient.ModePatient, 3);
}

void TestPeintPatient::lePassageSansReponse()
{
    PageDeTest page;
    page.Patient.ModePatient = 2;
    page.Patient.DateNaissance.clear();
    page.Boites.AttendSaisie(page::messages::InviteAge(), std::nullopt);
    const page::Dessin dessin = page.PeintPatient();
    QCOMPARE(Mots(dessin).size(), 2);
    QCOMPARE(support::Textes(dessin)[1].Y, 74 + 3 * page::MesureHauteur({})); // its line stays blank
    QCOMPARE(page.Patient.ModePatient, 3);
}

void TestPeintPatient::lAgeSaisiSeTaitSansOption()
{
    PageDeTest page;
    page.Patient.ModePatient = 3;
    page.Patient.DateNaissance.clear();
    page.Patient.AgeSaisi = u"45 ans"_s;
    page.Reglages.Options.AfficheAge = page.Reglages.Options.AfficheDDN = 0;
    QVERIFY(!Mots(page.PeintPatient()).contains(u"45 ans"_s));
    page.Reglages.Options.AfficheDDN = 1;
    QVERIFY(Mots(page.PeintPatient()).contains(u"45 ans"_s));
}

void TestPeintPatient::leModeTroisSansAge()
{
    PageDeTest page;
    page.Patient.ModePatient = 3;
    QCOMPARE(Mots(page.PeintPatient()).size(), 2);
}

QTEST_MAIN(TestPeintPatient)
#include "test_peint_patient.moc"
