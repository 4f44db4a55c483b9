#include "page/Surface.h"
#include "support/PageDeTest.h"

#include <QRawFont>
#include <QTest>

using namespace Qt::StringLiterals;
using page::Cible;
using page::Echelle;
using page::Surface;
using support::Mots;
using support::Textes;

class TestSurface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lesPolicesDeLaFeuilleSontInstallees_data();
    void lesPolicesDeLaFeuilleSontInstallees();
    void laLargeurEstLaSommeDesCaracteres();
    void laLargeurConnaitLesChassesDArial();
    void laLargeurDePlusieursLignesEstCelleDeLaPlusLarge();
    void unCaractereAbsentPrendCeluiDUneAutrePolice();
    void laTailleHorsDeMesureEstBornee();
    void laHauteurEstMontanteEtDescendante();
    void printFinitLaLigneAuZeroDeLEchelle();
    void printSuiteResteSurLaLigne();
    void lesFinsDeLigneDuTextePassentALaLigne_data();
    void lesFinsDeLigneDuTextePassentALaLigne();
    void lesBlancsNeLaissentRien();
    void unBlancSouligneSeVoit();
    void changerDOrigineNeDeplacePasLaPlume();
    void changerDEchelleRemetLOrigineAuCoin();
    void laTailleSuitLEchelle();
    void clsGardeEchelleEtOrigine();
    void traitsEtCadresSuiventLOrigine();
    void uneImageNulleNeSePosePas();
};

void TestSurface::lesPolicesDeLaFeuilleSontInstallees_data()
{
    QTest::addColumn<QString>("demandee");
    QTest::addColumn<QString>("trouvee");
    QTest::newRow("Arial") << u"Arial"_s << u"Liberation Sans"_s;
    QTest::newRow("Times") << u"Times New Roman"_s << u"Liberation Serif"_s;
}

void TestSurface::lesPolicesDeLaFeuilleSontInstallees()
{
    QFETCH(QString, demandee);
    QFETCH(QString, trouvee);
    QCOMPARE(QRawFont::fromFont(page::PoliceQt({.Nom = demandee})).familyName(), trouvee);
}

void TestSurface::laLargeurEstLaSommeDesCaracteres()
{
    const page::Police police{.Taille = 9};
    const QString texte = u"AVATAR Toujours fi ffl Wé"_s; // pairs that kerning and ligatures would move
    double somme = 0;
    for (const QChar caractere : texte) {
        somme += page::MesureLargeur(QString(caractere), police);
    }
    QVERIFY(somme > 30);
    QCOMPARE(page::MesureLargeur(texte, police), somme);
}

// 1139, 569 and 1706 of 2048 units an em: "a", the blank and "m" of the family.
void TestSurface::laLargeurConnaitLesChassesDArial()
{
    const double em = 72 * 25.4 / 72;
    const page::Police police{.Taille = 72};
    QVERIFY(qAbs(page::MesureLargeur(u"a"_s, police) - em * 1139 / 2048) < 0.02);
    QVERIFY(qAbs(page::MesureLargeur(u" "_s, police) - em * 569 / 2048) < 0.02);
    QVERIFY(qAbs(page::MesureLargeur(u"m"_s, police) - em * 1706 / 2048) < 0.02);
    QCOMPARE(page::MesureLargeur(QString(), police), 0.0);
}

void TestSurface::laLargeurDePlusieursLignesEstCelleDeLaPlusLarge()
{
    const page::Police police;
    const double large = page::MesureLargeur(u"la plus large des lignes"_s, police);
    QCOMPARE(page::MesureLargeur(u"courte\r\nla plus large des lignes\nmince"_s, police), large);
}

void TestSurface::unCaractereAbsentPrendCeluiDUneAutrePolice()
{
    const page::Police police;
    const QString absent = u"日"_s;
    QVERIFY(page::MesureLargeur(absent, police) > 0.5);
    QCOMPARE(page::MesureLargeur(u"\t"_s, police), page::MesureLargeur(u" "_s, police));
}

void TestSurface::laTailleHorsDeMesureEstBornee()
{
    QVERIFY(page::MesureHauteur({.Taille = 0}) > 0);
    QVERIFY(page::MesureHauteur({.Taille = -5}) > 0);
    QVERIFY(page::MesureHauteur({.Taille = 1e9F}) < 1000);
}

// 1854 and 434 of 2048 units.
void TestSurface::laHauteurEstMontanteEtDescendante()
{
    const double em = 72 * 25.4 / 72;
    const page::Police police{.Taille = 72};
    QVERIFY(qAbs(page::MesureHauteur(police) - em * (1854 + 434) / 2048) < 0.03);
    QVERIFY(qAbs(page::MesureAscendante(police) - em * 1854 / 2048) < 0.03);
    QCOMPARE(Surface(Cible::Autre).TextHeight(), page::MesureHauteur({}));
}

void TestSurface::printFinitLaLigneAuZeroDeLEchelle()
{
    Surface cible(Cible::Imprimante);
    cible.ScaleLeft(-20);
    cible.CurrentX(30);
    cible.CurrentY(50);
    cible.Print(u"mot"_s);
    const page::ItemTexte mot = Textes(cible.Resultat()).constFirst();
    QCOMPARE(mot.X, 50.0);
    QCOMPARE(mot.Y, 50.0);
    QCOMPARE(mot.Largeur, cible.TextWidth(u"mot"_s));
    QCOMPARE(cible.CurrentX(), 0.0);
    QCOMPARE(cible.CurrentY(), 50 + cible.TextHeight());
}

void TestSurface::printSuiteResteSurLaLigne()
{
    Surface cible(Cible::Imprimante);
    cible.PrintSuite(u"un "_s);
    cible.PrintSuite(u"deux"_s);
    QCOMPARE(Textes(cible.Resultat())[1].X, cible.TextWidth(u"un "_s));
    QCOMPARE(cible.CurrentX(), cible.TextWidth(u"un deux"_s));
    QCOMPARE(cible.CurrentY(), 0.0);
}

void TestSurface::lesFinsDeLigneDuTextePassentALaLigne_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("CR LF") << u"un\r\ndeux"_s;
    QTest::newRow("LF") << u"un\ndeux"_s;
    QTest::newRow("CR") << u"un\rdeux"_s;
}

void TestSurface::lesFinsDeLigneDuTextePassentALaLigne()
{
    QFETCH(QString, texte);
    Surface cible(Cible::Imprimante);
    cible.ScaleLeft(-20);
    cible.CurrentX(60);
    cible.PrintSuite(texte);
    const auto textes = Textes(cible.Resultat());
    QCOMPARE(Mots(cible.Resultat()), (QStringList{u"un"_s, u"deux"_s}));
    QCOMPARE(textes[0].X, 80.0);
    QCOMPARE(textes[1].X, 20.0);
    QCOMPARE(textes[1].Y, cible.TextHeight());
    QCOMPARE(cible.CurrentX(), cible.TextWidth(u"deux"_s));
}

void TestSurface::lesBlancsNeLaissentRien()
{
    Surface cible(Cible::Imprimante);
    cible.PrintSuite(u"   "_s);
    cible.Print();
    cible.Print(QString());
    QVERIFY(cible.Resultat().Items.isEmpty());
    QCOMPARE(cible.CurrentY(), 2 * cible.TextHeight());
}

void TestSurface::unBlancSouligneSeVoit()
{
    Surface cible(Cible::Imprimante);
    cible.FontUnderline(true);
    cible.PrintSuite(u" "_s);
    QCOMPARE(cible.Resultat().Items.size(), 1);
}

void TestSurface::changerDOrigineNeDeplacePasLaPlume()
{
    Surface cible(Cible::Imprimante);
    cible.CurrentX(10);
    cible.CurrentY(100);
    cible.ScaleLeft(-20);
    cible.ScaleTop(-4);
    QCOMPARE(cible.CurrentX(), -10.0);
    QCOMPARE(cible.CurrentY(), 96.0);
    cible.PrintSuite(u"x"_s);
    QCOMPARE(Textes(cible.Resultat())[0].X, 10.0);
    QCOMPARE(Textes(cible.Resultat())[0].Y, 100.0);
}

void TestSurface::changerDEchelleRemetLOrigineAuCoin()
{
    Surface cible(Cible::Imprimante);
    cible.ScaleLeft(-20);
    cible.CurrentX(10);
    cible.ScaleMode(Echelle::Twips);
    QCOMPARE(cible.ScaleLeft(), 0.0);
    QCOMPARE(cible.CurrentX(), 30 * 56.7);
    cible.ScaleMode(Echelle::Millimetres);
    QCOMPARE(cible.CurrentX(), 30.0);
}

void TestSurface::laTailleSuitLEchelle()
{
    Surface cible(Cible::Apercu);
    QCOMPARE(cible.ScaleHeight(), 297.0);
    cible.ScaleMode(Echelle::Twips);
    QCOMPARE(cible.ScaleWidth(), 210 * 56.7);
    cible.ScaleMode(Echelle::Pixels);
    QCOMPARE(cible.ScaleWidth(), 210 * 96 / 25.4);
    QCOMPARE(cible.TextWidth(u"mot"_s), page::MesureLargeur(u"mot"_s, {}) * 96 / 25.4);
}

void TestSurface::clsGardeEchelleEtOrigine()
{
    Surface cible(Cible::Autre);
    cible.ScaleMode(Echelle::Twips);
    cible.ScaleLeft(-567);
    cible.Print(u"mot"_s);
    cible.Cls();
    QVERIFY(cible.Resultat().Items.isEmpty());
    QCOMPARE(cible.CurrentX(), 0.0);
    QCOMPARE(cible.CurrentY(), 0.0);
    cible.PrintSuite(u"mot"_s);
    QCOMPARE(Textes(cible.Resultat())[0].X, 10.0);
}

void TestSurface::traitsEtCadresSuiventLOrigine()
{
    Surface cible(Cible::Imprimante);
    cible.ScaleLeft(-5);
    cible.ScaleTop(-1);
    cible.DrawWidth(2);
    cible.ForeColor(page::Rvb(1, 2, 3));
    cible.Line(0, 0, 10, 0);
    cible.Box(0, 0, 10, 20);
    const auto trait = std::get<page::ItemTrait>(cible.Resultat().Items[0]);
    const auto cadre = std::get<page::ItemCadre>(cible.Resultat().Items[1]);
    QCOMPARE(trait.X, 5.0);
    QCOMPARE(trait.X2, 15.0);
    QCOMPARE(trait.Y2, 1.0);
    QCOMPARE(trait.Epaisseur, 2);
    QCOMPARE(trait.Encre, 1U + 2 * 256 + 3 * 65536);
    QCOMPARE(cadre.Y2, 21.0);
}

void TestSurface::uneImageNulleNeSePosePas()
{
    Surface cible(Cible::Imprimante);
    QImage image(4, 4, QImage::Format_RGB32);
    cible.PaintPicture(QImage(), 0, 0, 10, 10);
    cible.PaintPicture(image, 0, 0, 0, 10);
    QVERIFY(cible.Resultat().Items.isEmpty());
    cible.ScaleMode(Echelle::Twips);
    cible.PaintPicture(image, 567, 567, 1134, 567);
    const auto posee = std::get<page::ItemImage>(cible.Resultat().Items[0]);
    QCOMPARE(posee.X, 10.0);
    QCOMPARE(posee.Largeur, 20.0);
    QCOMPARE(posee.Hauteur, 10.0);
}

QTEST_MAIN(TestSurface)
#include "test_surface.moc"
