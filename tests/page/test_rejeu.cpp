#include "page/Rejeu.h"
#include "support/PageDeTest.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>

using namespace Qt::StringLiterals;
using page::Cible;
using page::Surface;

namespace {

QImage Image(const page::Dessin& dessin, double parPouce)
{
    const double unites = parPouce / 25.4;
    QImage image(qCeil(dessin.Largeur * unites), qCeil(dessin.Hauteur * unites), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter peintre(&image);
    page::Rejoue(dessin, peintre, unites);
    return image;
}

/// As a window shows it at 96 points an inch, on a screen of that density.
QImage ImageAuZoom(const page::Dessin& dessin, double densite)
{
    const QSizeF taille = QSizeF(dessin.Largeur, dessin.Hauteur) * page::kPixelsParMillimetre;
    QImage image((taille * densite).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(densite);
    image.fill(Qt::white);
    QPainter peintre(&image);
    page::Rejoue(dessin, peintre, page::kPixelsParMillimetre);
    return image;
}

bool EstEncre(const QImage& image, int x, int y)
{
    return image.valid(x, y) && qGray(image.pixel(x, y)) < 200;
}

/// The box of what is not paper, in millimetres.
QRectF BoiteDEncre(const QImage& image, double parPouce)
{
    QRect boite;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (EstEncre(image, x, y)) {
                boite |= QRect(x, y, 1, 1);
            }
        }
    }
    const double mm = 25.4 / parPouce;
    return {boite.x() * mm, boite.y() * mm, boite.width() * mm, boite.height() * mm};
}

QByteArray Pdf(const page::Dessin& dessin)
{
    QByteArray octets;
    QBuffer tampon(&octets);
    tampon.open(QIODevice::WriteOnly);
    QPdfWriter ecrivain(&tampon);
    ecrivain.setPageMargins({});
    ecrivain.setPageSize(QPageSize(QPageSize::A4));
    ecrivain.setResolution(1200);
    QPainter peintre(&ecrivain);
    page::Rejoue(dessin, peintre, 1200 / 25.4);
    peintre.end();
    return octets;
}

} // namespace

class TestRejeu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lEncreTientDansLaPlaceMesuree_data();
    void lEncreTientDansLaPlaceMesuree();
    void laMemePlaceATouteResolution_data();
    void laMemePlaceATouteResolution();
    void lesCaracteresRestentOuIlsSontMesures();
    void unCaractereDUneAutrePolice();
    void leSoulignementCourtSousToutLeTexte();
    void leSoulignementNeCollePasAuxLettres();
    void leSoulignementNeCollePasALEcran();
    void lesTraitsOntLeurEpaisseur();
    void deuxTraitsEgauxLeRestentALEcran();
    void leCadreNEstPasRempli();
    void lImageRemplitSaPlace();
    void laCouleurEstRougeVertBleu();
    void leFondCouvreChaquePixel();
    void lePeintreRetrouveSonEtat();
    void lePdfPorteLesPolicesEtLaPage();
};

void TestRejeu::lEncreTientDansLaPlaceMesuree_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<page::Police>("police");
    QTest::newRow("maigre") << u"Ép. ordonnance Àgjpqy"_s << page::Police{};
    QTest::newRow("gras") << u"DOLIPRANE 1 000 mg"_s << page::Police{.Taille = 14, .Gras = true};
    QTest::newRow("italique") << u"pendant le repas"_s << page::Police{.Taille = 8.5F, .Italique = true};
    QTest::newRow("Times") << u"Docteur NEIBRE"_s << page::Police{.Nom = u"Times New Roman"_s, .Taille = 22};
    QTest::newRow("grand") << u"DUPLICATA"_s << page::Police{.Taille = 48};
}

void TestRejeu::lEncreTientDansLaPlaceMesuree()
{
    QFETCH(QString, texte);
    QFETCH(page::Police, police);
    Surface cible(Cible::Imprimante, 120, 60);
    cible.CurrentX(20);
    cible.CurrentY(20);
    cible.Font(police);
    cible.Print(texte);
    const page::ItemTexte item = support::Textes(cible.Resultat())[0];
    const QRectF encre = BoiteDEncre(Image(cible.Resultat(), 300), 300);
    const double marge = 0.25; // a pixel and what a slanted letter leans over
    const QRectF place(item.X, item.Y, item.Largeur, item.Hauteur);
    QVERIFY2(place.adjusted(-marge, -marge, 2 * marge, marge).contains(encre), "l'encre sort de sa place");
    QVERIFY(encre.width() > 0.9 * item.Largeur);
    QVERIFY(encre.height() > 0.5 * item.Hauteur);
}

void TestRejeu::laMemePlaceATouteResolution_data()
{
    QTest::addColumn<double>("parPouce");
    QTest::newRow("96") << 96.0;
    QTest::newRow("150") << 150.0;
    QTest::newRow("192") << 192.0;
    QTest::newRow("600") << 600.0;
}

void TestRejeu::laMemePlaceATouteResolution()
{
    QFETCH(double, parPouce);
    Surface cible(Cible::Imprimante, 130, 15);
    cible.CurrentX(5);
    cible.CurrentY(5);
    cible.Font({.Taille = 9});
    cible.Print(u"Prescriptions relatives au traitement de l'affection de longue durée reconnue"_s);
    const QRectF reference = BoiteDEncre(Image(cible.Resultat(), 1200), 1200);
    const QRectF encre = BoiteDEncre(Image(cible.Resultat(), parPouce), parPouce);
    const double pixel = 25.4 / parPouce;
    QVERIFY(qAbs(encre.left() - reference.left()) <= pixel);
    QVERIFY(qAbs(encre.right() - reference.right()) <= 1.5 * pixel);
    QVERIFY(qAbs(encre.top() - reference.top()) <= 1.5 * pixel);
}

// "AVAVAV" is a text that kerning pulls together; the bar behind it tells where it really ends.
void TestRejeu::lesCaracteresRestentOuIlsSontMesures()
{
    const page::Police police{.Taille = 20};
    const auto droite = [&](const QString& texte) {
        Surface cible(Cible::Imprimante, 120, 15);
        cible.Font(police);
        cible.CurrentX(2);
        cible.Print(texte);
        return BoiteDEncre(Image(cible.Resultat(), 600), 600).right();
    };
    const double attendue = page::MesureLargeur(u"AVAVAV"_s, police);
    QVERIFY(qAbs(droite(u"AVAVAV|"_s) - droite(u"|"_s) - attendue) < 0.1);
}

void TestRejeu::unCaractereDUneAutrePolice()
{
    Surface cible(Cible::Imprimante, 60, 12);
    cible.CurrentX(5);
    cible.Font({.Taille = 16});
    cible.Print(u"☎ 01"_s); // the telephone sign is in another font
    const page::ItemTexte item = support::Textes(cible.Resultat())[0];
    const QRectF encre = BoiteDEncre(Image(cible.Resultat(), 300), 300);
    QVERIFY(encre.width() > 0.8 * item.Largeur);
    QVERIFY(encre.right() <= item.X + item.Largeur + 0.3);
}

void TestRejeu::leSoulignementCourtSousToutLeTexte()
{
    Surface cible(Cible::Imprimante, 60, 12);
    const page::Police police{.Taille = 16, .Souligne = true};
    cible.Font(police);
    cible.CurrentX(5);
    cible.Print(u"un deux"_s);
    const page::ItemTexte item = support::Textes(cible.Resultat())[0];
    const QImage image = Image(cible.Resultat(), 600);
    const double parMm = 600 / 25.4;
    const page::Soulignement trait = page::MesureSoulignement(police);
    const double base = page::MesureAscendante(police) + trait.Distance + trait.Epaisseur / 2;
    for (double x = item.X + 0.1; x < item.X + item.Largeur - 0.1; x += 0.5) {
        QVERIFY(EstEncre(image, qRound(x * parMm), qRound(base * parMm)));
    }
}

// In bold too there is paper between the letters and their underline.
void TestRejeu::leSoulignementNeCollePasAuxLettres()
{
    for (const bool gras : {false, true}) {
        Surface cible(Cible::Imprimante, 60, 12);
        cible.Font({.Taille = 12, .Gras = gras, .Souligne = true});
        cible.CurrentX(5);
        cible.Print(u"MMM"_s);
        const QImage image = Image(cible.Resultat(), 600);
        int traversees = 0;
        const int x = qRound(5.6 * 600 / 25.4); // through the first letter's left stem
        for (int y = 1; y < image.height(); ++y) {
            traversees += EstEncre(image, x, y) && !EstEncre(image, x, y - 1) ? 1 : 0;
        }
        QCOMPARE(traversees, 2);
    }
}

// On the screen there is a row of paper between them, wherever the line falls between two rows of points.
void TestRejeu::leSoulignementNeCollePasALEcran()
{
    for (const double densite : {1.0, 1.25, 1.5, 2.0}) {
        for (int dixieme = 0; dixieme < 10; ++dixieme) {
            Surface cible(Cible::Imprimante, 60, 12);
            cible.Font({.Taille = 11, .Gras = true, .Souligne = true});
            cible.CurrentX(5);
            cible.CurrentY(2 + dixieme / 10.0 / page::kPixelsParMillimetre);
            cible.Print(u"HH"_s);
            const QImage image = ImageAuZoom(cible.Resultat(), densite);
            const int x = qRound(5.4 * page::kPixelsParMillimetre * densite); // the first letter's left stem
            int bas = image.height() - 1;
            while (bas > 0 && qGray(image.pixel(x, bas)) > 128) {
                --bas; // up to the rule
            }
            int haut = bas;
            while (haut > 0 && qGray(image.pixel(x, haut)) <= 128) {
                --haut; // and over it
            }
            QVERIFY2(bas - haut <= qRound(2 * densite),
                     qPrintable(u"%1, %2 : %3"_s.arg(densite).arg(dixieme).arg(bas - haut)));
        }
    }
}

void TestRejeu::lesTraitsOntLeurEpaisseur()
{
    for (const int epaisseur : {1, 2, 4}) {
        Surface cible(Cible::Imprimante, 40, 20);
        cible.DrawWidth(epaisseur);
        cible.Line(10, 10, 30, 10);
        const QRectF encre = BoiteDEncre(Image(cible.Resultat(), 1200), 1200);
        QVERIFY(qAbs(encre.height() - epaisseur * page::kMillimetresParTrait) < 0.05);
        QVERIFY(qAbs(encre.center().y() - 10) < 0.05);
        QVERIFY(qAbs(encre.left() - 10) < 0.05);
        QVERIFY(qAbs(encre.right() - 30) < 0.05);
    }
}

void TestRejeu::deuxTraitsEgauxLeRestentALEcran()
{
    for (const double densite : {1.0, 2.0}) {
        QSet<int> hauteurs;
        for (int dixieme = 0; dixieme < 20; ++dixieme) {
            Surface cible(Cible::Imprimante, 40, 20);
            cible.DrawWidth(2);
            cible.Line(10, 10 + dixieme / 10.0, 30, 10 + dixieme / 10.0);
            hauteurs.insert(qRound(BoiteDEncre(ImageAuZoom(cible.Resultat(), densite), 25.4).height()));
        }
        QCOMPARE(hauteurs.size(), 1);
    }
}

void TestRejeu::leCadreNEstPasRempli()
{
    Surface cible(Cible::Imprimante, 40, 20);
    cible.DrawWidth(2);
    cible.Box(10, 5, 30, 15);
    const QImage image = Image(cible.Resultat(), 300);
    const QRectF encre = BoiteDEncre(image, 300);
    QVERIFY(qAbs(encre.width() - 20.36) < 0.2);
    QVERIFY(qAbs(encre.height() - 10.36) < 0.2);
    QVERIFY(!EstEncre(image, qRound(20 * 300 / 25.4), qRound(10 * 300 / 25.4)));
}

void TestRejeu::lImageRemplitSaPlace()
{
    QImage logo(10, 10, QImage::Format_RGB32);
    logo.fill(Qt::darkBlue);
    Surface cible(Cible::Imprimante, 40, 20);
    cible.PaintPicture(logo, 10, 5, 20, 10);
    const QRectF encre = BoiteDEncre(Image(cible.Resultat(), 300), 300);
    QVERIFY(qAbs(encre.left() - 10) < 0.1 && qAbs(encre.top() - 5) < 0.1);
    QVERIFY(qAbs(encre.width() - 20) < 0.2 && qAbs(encre.height() - 10) < 0.2);
}

void TestRejeu::laCouleurEstRougeVertBleu()
{
    Surface cible(Cible::Imprimante, 20, 20);
    cible.ForeColor(page::Rvb(200, 100, 50));
    cible.DrawWidth(20);
    cible.Line(0, 10, 20, 10);
    QCOMPARE(Image(cible.Resultat(), 96).pixelColor(40, 38), QColor(200, 100, 50));
}

void TestRejeu::leFondCouvreChaquePixel()
{
    Surface face(Cible::Depart, 30, 60);
    page::PeintFond(face, 100, 100, 100, 120, 120, 120, 0, 0, true);
    for (const double densite : {1.0, 1.5, 2.0}) {
        const QImage image = ImageAuZoom(face.Resultat(), densite);
        for (int y = 0; y < image.height() - 2; ++y) {
            QVERIFY2(EstEncre(image, 20, y), qPrintable(QString::number(y)));
        }
    }
}

void TestRejeu::lePeintreRetrouveSonEtat()
{
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter peintre(&image);
    peintre.setPen(Qt::red);
    support::PageDeTest page;
    page.Ajoute1(u"A"_s, u"☎"_s);
    page::Rejoue(page.PeintFeuille(), peintre, 1);
    QCOMPARE(peintre.pen().color(), QColor(Qt::red));
    QVERIFY(!peintre.testRenderHint(QPainter::SmoothPixmapTransform));
}

void TestRejeu::lePdfPorteLesPolicesEtLaPage()
{
    support::PageDeTest page;
    support::RemplitDeuxZones(page);
    const QByteArray pdf = Pdf(page.PeintFeuille());
    QVERIFY(pdf.startsWith("%PDF"));
    QVERIFY(pdf.contains("LiberationSans-Bold"));
    QCOMPARE(pdf.count("/Type /Page\n"), 1);
    QVERIFY(pdf.contains("/ToUnicode")); // what is copied from the sheet is text
}

QTEST_MAIN(TestRejeu)
#include "test_rejeu.moc"
