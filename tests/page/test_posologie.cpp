#include "support/PageDeTest.h"

#include <QRandomGenerator>
#include <QTest>
#include <cmath>

using namespace Qt::StringLiterals;
using page::MesureHauteur;
using page::MesureLargeur;
using support::Mots;
using support::PageDeTest;
using support::Textes;
using support::Trouve;

/// How the words of a posology flow.
class TestPosologie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unMotAussiLargeQueLaPlaceVaALaLigne();
    void unMotTropLongSortSeulDeLaMesure();
    void lePremierMotTropLongDescend();
    void laSuiteSousUnTitreCentre();
    void leMotGrasMesureTouteLaLigneEnGras();
    void lesMotsCourtsComptentLeursBlancs();
    void uneFinDeLigneRevientAuBordDuCorps();
    void unePosologieVideFinitSaLigne();
    void troisBlancsRestentTrois();
    void lesBlancsSoulignesDeLaPosologieSeVoient();
    void lApercuEtLePapierCoupentAuMemeMot();
    void textesAuHasard();
};

void TestPosologie::unMotAussiLargeQueLaPlaceVaALaLigne()
{
    PageDeTest page;
    page.Ajoute1(u"T"_s, u"longueur exacte"_s);
    // The measure is a float: the nearest one at or below the text's width is too narrow by itself.
    const float largeur = static_cast<float>(MesureLargeur(u"longueur exacte"_s, {}));
    page.Reglages.Marges.LongueurLigne = std::nextafter(largeur, 0.0F);
    QVERIFY(Trouve(page.PeintCorps(), u"exacte"_s).Y > Trouve(page.PeintCorps(), u"longueur"_s).Y);
    page.Reglages.Marges.LongueurLigne = std::nextafter(largeur, 1000.0F);
    QCOMPARE(Trouve(page.PeintCorps(), u"exacte"_s).Y, Trouve(page.PeintCorps(), u"longueur"_s).Y);
}

void TestPosologie::unMotTropLongSortSeulDeLaMesure()
{
    PageDeTest page;
    page.Reglages.Marges.LongueurLigne = 30;
    const QString longMot(40, u'w');
    page.Ajoute1(u"T"_s, u"avant "_s + longMot + u" après"_s);
    const page::Dessin dessin = page.PeintCorps();
    const page::ItemTexte mot = Trouve(dessin, longMot);
    QCOMPARE(mot.X, 20.0);
    QVERIFY(mot.Largeur > 30);
    QVERIFY(qAbs(mot.Y - Trouve(dessin, u"avant"_s).Y - MesureHauteur({})) < 1e-9);
    QVERIFY(qAbs(Trouve(dessin, u"après"_s).Y - mot.Y - MesureHauteur({})) < 1e-9);
}

void TestPosologie::lePremierMotTropLongDescend()
{
    PageDeTest page;
    page.Reglages.Marges.LongueurLigne = 30;
    const QString longMot(40, u'w');
    page.Ajoute1(u"T"_s, longMot);
    QCOMPARE(Trouve(page.PeintCorps(), longMot).Y, 100 + 2 * MesureHauteur({}));
}

void TestPosologie::laSuiteSousUnTitreCentre()
{
    PageDeTest page;
    page.Ajoute1(u"#TITRE CENTRÉ"_s, QStringList(30, u"douze"_s).join(u' '));
    const double gauche = 105 - MesureLargeur(u"#TITRE CENTRÉ"_s, {}) / 2;
    const double droite = 20 + 170; // the measure's end, counted from the body's margin
    QSet<qint64> lignes;
    for (const page::ItemTexte& mot : Textes(page.PeintCorps())) {
        QVERIFY(mot.X >= gauche - 1e-9);
        QVERIFY(mot.X + mot.Largeur <= droite);
        if (lignes.contains(qRound64(mot.Y * 1000))) {
            continue;
        }
        lignes.insert(qRound64(mot.Y * 1000));
        QVERIFY(qAbs(mot.X - gauche) < 1e-9); // each line begins there
    }
    QVERIFY(lignes.size() > 2);
}

// The line fits in plain type and does not in bold: the bold word alone decides.
void TestPosologie::leMotGrasMesureTouteLaLigneEnGras()
{
    PageDeTest page;
    const QString debut = u"une longue suite de mots sans marque jusqu'au"_s;
    const QString ligne = debut + u" bout"_s;
    const double maigre = MesureLargeur(debut + u' ', {}) + MesureLargeur(u"bout"_s, {.Gras = true});
    const double gras = MesureLargeur(ligne, {.Gras = true});
    QVERIFY(gras > maigre + 1);
    page.Reglages.Marges.LongueurLigne = static_cast<float>((maigre + gras) / 2);
    page.Ajoute1(u"T"_s, debut + u" bout*"_s);
    QVERIFY(Trouve(page.PeintCorps(), u"bout"_s).Y > Trouve(page.PeintCorps(), u"longue"_s).Y);
}

void TestPosologie::lesMotsCourtsComptentLeursBlancs()
{
    PageDeTest page;
    page.Ajoute1(u"T"_s, u"prendre le soir"_s);
    const double vue = MesureLargeur(u"prendre le soir"_s, {});
    page.Reglages.Marges.LongueurLigne = static_cast<float>(vue + MesureLargeur(u" "_s, {}));
    QVERIFY(Trouve(page.PeintCorps(), u"soir"_s).Y > Trouve(page.PeintCorps(), u"prendre"_s).Y);
    page.Reglages.Marges.LongueurLigne = static_cast<float>(vue + 2.5 * MesureLargeur(u" "_s, {}));
    QCOMPARE(Trouve(page.PeintCorps(), u"soir"_s).Y, Trouve(page.PeintCorps(), u"prendre"_s).Y);
}

void TestPosologie::uneFinDeLigneRevientAuBordDuCorps()
{
    PageDeTest page;
    page.Ajoute1(u"#T"_s, u"matin\r\nmidi soir"_s);
    const page::Dessin dessin = page.PeintCorps();
    QCOMPARE(Trouve(dessin, u"midi"_s).X, 20.0);
    QVERIFY(qAbs(Trouve(dessin, u"midi"_s).Y - Trouve(dessin, u"matin"_s).Y - MesureHauteur({})) < 1e-9);
    QCOMPARE(Trouve(dessin, u"soir"_s).Y, Trouve(dessin, u"midi"_s).Y);
}

void TestPosologie::unePosologieVideFinitSaLigne()
{
    PageDeTest page;
    page.Reglages.Options.SautsPrescription = 1;
    page.Ajoute1(u"A"_s);
    page.Ajoute1(u"B"_s);
    QCOMPARE(Trouve(page.PeintCorps(), u"B"_s).Y, 100 + 3 * MesureHauteur({}));
}

void TestPosologie::troisBlancsRestentTrois()
{
    PageDeTest page;
    page.Ajoute1(u"T"_s, u"matin   soir"_s);
    const page::Dessin dessin = page.PeintCorps();
    QCOMPARE(Mots(dessin), (QStringList{u"T"_s, u"matin"_s, u"soir"_s}));
    const page::ItemTexte matin = Trouve(dessin, u"matin"_s);
    QVERIFY(qAbs(Trouve(dessin, u"soir"_s).X - matin.X - matin.Largeur - MesureLargeur(u"   "_s, {})) < 1e-9);
}

void TestPosologie::lesBlancsSoulignesDeLaPosologieSeVoient()
{
    PageDeTest page;
    page.Reglages.Look.Poso.Souligne = true;
    page.Ajoute1(u"T"_s, u"un deux"_s);
    QCOMPARE(Mots(page.PeintCorps()), (QStringList{u"T"_s, u"un"_s, u" "_s, u"deux"_s, u" "_s}));
}

void TestPosologie::lApercuEtLePapierCoupentAuMemeMot()
{
    PageDeTest page;
    support::RemplitDeuxZones(page);
    const auto papier = Textes(page.PeintCorps(page::Cible::Imprimante));
    const auto apercu = Textes(page.PeintCorps(page::Cible::Apercu));
    QCOMPARE(papier.size(), apercu.size());
    QVERIFY(papier.size() > 800);
    for (qsizetype rang = 0; rang < papier.size() - 2; ++rang) { // the last two are the count's, by number
        QCOMPARE(papier[rang].Texte, apercu[rang].Texte);
        QVERIFY(qAbs(papier[rang].X - apercu[rang].X) < 1e-9);
        QVERIFY(qAbs(papier[rang].Y - apercu[rang].Y - 50) < 1e-9);
    }
}

// Words without markers all come out, in order, none of them past the measure unless alone on its line.
void TestPosologie::textesAuHasard()
{
    QRandomGenerator hasard(2026);
    for (int essai = 0; essai < 300; ++essai) {
        QStringList mots;
        for (int reste = hasard.bounded(1, 60); reste > 0; --reste) {
            mots.append(QString(hasard.bounded(1, 25), QChar(u'a' + hasard.bounded(26))));
        }
        PageDeTest page;
        page.Reglages.Marges.LongueurLigne = static_cast<float>(hasard.bounded(5, 180));
        page.Ajoute1(hasard.bounded(2) == 0 ? u"TITRE"_s : u"#TITRE"_s, mots.join(u' '));
        const page::Dessin dessin = page.PeintCorps();
        QCOMPARE(Mots(dessin), QStringList{u"TITRE"_s} + mots);
        const auto textes = Textes(dessin);
        for (qsizetype rang = 2; rang < textes.size(); ++rang) {
            const bool memeLigne = textes[rang].Y == textes[rang - 1].Y;
            const double droite = textes[rang].X + textes[rang].Largeur;
            QVERIFY(!memeLigne || droite <= 20 + page.Reglages.Marges.LongueurLigne + 1e-6);
        }
    }
}

QTEST_MAIN(TestPosologie)
#include "test_posologie.moc"
