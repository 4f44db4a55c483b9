#include "application/windows/StyleFeuille.h"
#include "page/windows/Feuille.h"
#include "support/PageDeTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
namespace style = application::style;

namespace {

QImage Vue(page::Feuille& feuille, qreal densite = 1)
{
    QImage image(feuille.size() * densite, QImage::Format_RGB32);
    image.setDevicePixelRatio(densite);
    image.fill(Qt::lightGray);
    feuille.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

int NombreDe(const QImage& image, QRgb couleur)
{
    int nombre = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            nombre += image.pixel(x, y) == couleur ? 1 : 0;
        }
    }
    return nombre;
}

} // namespace

class TestFeuille : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laTailleSuitLeZoom();
    void lePapierEstBlancSurUnFondCalme();
    void sansPapierLeFondRestesCeluiDeLaFenetre();
    void laMarqueDuBasSeVoit();
    void lesTextesSeVoientADeuxDensites();
    void laFeuilleMontreSonPropreDessin();
};

void TestFeuille::laTailleSuitLeZoom()
{
    page::Feuille feuille;
    const int bord = 2 * style::kBordFeuille;
    QCOMPARE(feuille.sizeHint(), QSize(794 + bord, 1123 + bord));
    feuille.Zoom(2);
    QCOMPARE(feuille.size(), QSize(420 + bord, 594 + bord));
    feuille.AvecPapier(false);
    QCOMPARE(feuille.size(), QSize(420, 594));
}

void TestFeuille::lePapierEstBlancSurUnFondCalme()
{
    page::Feuille feuille;
    feuille.Zoom(1);
    const QImage vue = Vue(feuille);
    QCOMPARE(vue.pixelColor(vue.rect().center()), QColor(Qt::white));
    QCOMPARE(vue.pixelColor(0, 0), QColor(Qt::lightGray));
    QVERIFY(NombreDe(vue, style::kBordDuPapier) > 600);
    const int sousLaFeuille = style::kBordFeuille + 297 + 3;
    QVERIFY(vue.pixelColor(100, sousLaFeuille).lightness() < QColor(Qt::lightGray).lightness());
}

void TestFeuille::sansPapierLeFondRestesCeluiDeLaFenetre()
{
    page::Feuille feuille;
    feuille.AvecPapier(false);
    QCOMPARE(Vue(feuille).pixelColor(100, 100), QColor(Qt::lightGray));
}

void TestFeuille::laMarqueDuBasSeVoit()
{
    page::Feuille feuille;
    QCOMPARE(NombreDe(Vue(feuille), style::kMarqueInterdit), 0);
    feuille.MarqueBas(200);
    const QImage vue = Vue(feuille);
    QVERIFY(NombreDe(vue, style::kMarqueInterdit) > 300);
    const int y = style::kBordFeuille + qRound(200 * 96 / 25.4);
    QVERIFY(NombreDe(vue.copy(0, y - 2, vue.width(), 5), style::kMarqueInterdit) > 300);
    QVERIFY(NombreDe(vue.copy(0, y + 3, vue.width(), 25), style::kMarqueInterdit) > 10); // its words
    feuille.MarqueBas(0);
    QCOMPARE(NombreDe(Vue(feuille), style::kMarqueInterdit), 0);
}

void TestFeuille::lesTextesSeVoientADeuxDensites()
{
    support::PageDeTest page;
    page.Ajoute1(u"DOLIPRANE"_s, u"matin"_s);
    page::Feuille feuille;
    feuille.Montre(page.PeintFeuille());
    const auto encre = [](const QImage& image) {
        int nombre = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                nombre += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
            }
        }
        return nombre;
    };
    const int simple = encre(Vue(feuille));
    const int double_ = encre(Vue(feuille, 2));
    QVERIFY(simple > 300);
    QVERIFY2(double_ > 3 * simple, qPrintable(QStringLiteral("%1 %2").arg(simple).arg(double_)));
}

void TestFeuille::laFeuilleMontreSonPropreDessin()
{
    page::Feuille feuille;
    page::Dessin dessin{.Largeur = 100, .Hauteur = 50, .Items = {}};
    feuille.Montre(dessin);
    dessin.Largeur = 10;
    QCOMPARE(feuille.Montree().Largeur, 100.0);
    QCOMPARE(feuille.DessinMontre().Hauteur, 50.0);
}

QTEST_MAIN(TestFeuille)
#include "test_feuille.moc"
