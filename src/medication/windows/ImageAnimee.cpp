#include "medication/windows/ImageAnimee.h"

#include "application/windows/Style.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>
#include <cmath>
#include <numbers>

namespace medication {

namespace {

namespace style = application::style;

constexpr int kCote = style::kHauteurBouton;
constexpr int kIcone = 16;
constexpr int kRythme = 80; // milliseconds between two pictures
constexpr int kPas = 30;    // pictures of one breath
constexpr double kRayonMin = 12;
constexpr double kRayonMax = 16;
constexpr double kOpaciteMin = 0.08;
constexpr double kOpaciteMax = 0.24;

double Entre(double debut, double fin, double part)
{
    return debut + (fin - debut) * part;
}

} // namespace

ImageAnimee::ImageAnimee(const QString& nomObjet, const QString& icone, bool alerte, const QString& texte,
                         QWidget* parent)
    : QWidget(parent), icone_(style::Icone(icone, alerte ? style::Ton::Rouge : style::Ton::Encre)),
      couleur_(style::Teinte(alerte ? style::Ton::Rouge : style::Ton::Encre))
{
    setObjectName(nomObjet);
    style::Nomme(this, texte);
    setCursor(Qt::PointingHandCursor);
    QSizePolicy place(QSizePolicy::Fixed, QSizePolicy::Fixed);
    place.setRetainSizeWhenHidden(true);
    setSizePolicy(place);
    hide();
}

void ImageAnimee::Joue()
{
    if (!isHidden()) {
        return;
    }
    show();
    QAccessibleEvent annonce(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&annonce);
}

void ImageAnimee::Arrete()
{
    hide();
}

QSize ImageAnimee::sizeHint() const
{
    return {kCote, kCote};
}

void ImageAnimee::paintEvent(QPaintEvent*)
{
    const double souffle = (1 - std::cos(2 * std::numbers::pi * pas_ / kPas)) / 2;
    const QPointF centre = QRectF(rect()).center();
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::NoPen);
    QColor halo = couleur_;
    halo.setAlphaF(static_cast<float>(Entre(kOpaciteMin, kOpaciteMax, souffle)));
    peintre.setBrush(halo);
    const double rayon = Entre(kRayonMin, kRayonMax, souffle);
    peintre.drawEllipse(centre, rayon, rayon);
    icone_.paint(&peintre, QRect((width() - kIcone) / 2, (height() - kIcone) / 2, kIcone, kIcone));
}

void ImageAnimee::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        Q_EMIT Clic();
    }
}

void ImageAnimee::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == rythme_.timerId()) {
        pas_ = (pas_ + 1) % kPas;
        update();
        return;
    }
    QWidget::timerEvent(event);
}

void ImageAnimee::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    pas_ = 0;
    rythme_.start(kRythme, this);
}

void ImageAnimee::hideEvent(QHideEvent* event)
{
    rythme_.stop();
    QWidget::hideEvent(event);
}

} // namespace medication
