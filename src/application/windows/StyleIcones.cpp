#include "application/windows/Style.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <array>

namespace application::style {

namespace {

constexpr std::array kTailles = {18, 27, 36, 54, 72};

QString FichierIcone(const QString& nom, int pixels)
{
    const auto* taille = std::ranges::find_if(kTailles, [&](int rendue) { return rendue >= pixels; });
    return QStringLiteral(":/icones/%1-%2.png")
        .arg(nom)
        .arg(taille == kTailles.end() ? kTailles.back() : *taille);
}

/// The picture at the left of `pixels`: a button's icon is wider than high, to keep off the word.
QPixmap PeintIcone(const QString& nom, const QSize& pixels, const QColor& couleur)
{
    const int cote = qMin(pixels.width(), pixels.height());
    QImage image(FichierIcone(nom, cote));
    if (image.isNull()) {
        qWarning("No icon '%s' in cmake/icones.txt", qPrintable(nom));
        return {};
    }
    image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.height() != cote) {
        image = image.scaled(cote, cote, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    image = image.copy(0, (cote - pixels.height()) / 2, pixels.width(), pixels.height());
    QPainter peintre(&image);
    peintre.setCompositionMode(QPainter::CompositionMode_SourceIn);
    peintre.fillRect(image.rect(), couleur);
    peintre.end();
    return QPixmap::fromImage(image);
}

/// Tints the pictures of one icon when they are painted.
class MoteurIcone : public QIconEngine
{
public:
    MoteurIcone(QString nom, Ton ton) : nom_(std::move(nom)), ton_(ton) {}

    QIconEngine* clone() const override { return new MoteurIcone(*this); }

    void paint(QPainter* peintre, const QRect& place, QIcon::Mode mode, QIcon::State etat) override
    {
        const double densite = peintre->device()->devicePixelRatioF();
        peintre->drawPixmap(place, scaledPixmap(place.size() * densite, mode, etat, densite));
    }

    QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State etat) override
    {
        return scaledPixmap(taille, mode, etat, 1);
    }

    QPixmap scaledPixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State, qreal) override
    {
        const Ton ton = mode == QIcon::Disabled ? Ton::Eteint : mode == QIcon::Selected ? Ton::Blanc : ton_;
        const QColor couleur = Teinte(ton);
        const QString cle = QStringLiteral("icone %1 %2 %3").arg(nom_, couleur.name()).arg(pixels.width());
        QPixmap image;
        if (!QPixmapCache::find(cle, &image)) {
            image = PeintIcone(nom_, pixels, couleur);
            QPixmapCache::insert(cle, image);
        }
        return image;
    }

private:
    QString nom_;
    Ton ton_;
};

} // namespace

QIcon Icone(const QString& nom, Ton ton)
{
    return QIcon(new MoteurIcone(nom, ton));
}

QIcon Icone(const QString& nom, bool clair)
{
    return Icone(nom, clair ? Ton::Blanc : Ton::Encre);
}

} // namespace application::style
