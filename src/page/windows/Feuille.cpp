#include "page/windows/Feuille.h"

#include "application/windows/Style.h"
#include "application/windows/StyleFeuille.h"
#include "page/Rejeu.h"
#include "page/Surface.h"

#include <QPaintEvent>
#include <QPainter>

namespace page {

namespace style = application::style;

Feuille::Feuille(QWidget* parent) : QWidget(parent), zoom_(kPixelsParMillimetre)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    resize(sizeHint());
}

void Feuille::Montre(const Dessin& dessin)
{
    dessin_ = dessin;
    ReprendTaille();
}

void Feuille::AvecPapier(bool oui)
{
    papier_ = oui;
    ReprendTaille();
}

void Feuille::MarqueBas(double y)
{
    bas_ = y;
    update();
}

void Feuille::Zoom(double pixelsParMm)
{
    zoom_ = pixelsParMm;
    ReprendTaille();
}

void Feuille::ReprendTaille()
{
    updateGeometry();
    resize(sizeHint());
    update();
}

QSizeF Feuille::TailleDeLaFeuille() const
{
    return QSizeF(dessin_.Largeur, dessin_.Hauteur) * zoom_;
}

QSize Feuille::sizeHint() const
{
    const QSizeF feuille = TailleDeLaFeuille();
    const int bord = papier_ ? 2 * style::kBordFeuille : 0;
    return QSize(qCeil(feuille.width()) + bord, qCeil(feuille.height()) + bord);
}

void Feuille::paintEvent(QPaintEvent* evenement)
{
    QPainter peintre(this);
    peintre.setClipRect(evenement->rect());
    if (papier_) {
        peintre.translate(style::kBordFeuille, style::kBordFeuille);
        PeintPapier(peintre);
    }
    peintre.setClipRect(QRectF(QPointF(), TailleDeLaFeuille()), Qt::IntersectClip);
    Rejoue(dessin_, peintre, zoom_);
    if (bas_ > 0) {
        PeintMarque(peintre);
    }
}

void Feuille::PeintPapier(QPainter& peintre) const
{
    const QRectF feuille(QPointF(), TailleDeLaFeuille());
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(QColor::fromRgba(style::kOmbre));
    const QRectF dessous = feuille.translated(0, style::kDescenteOmbre);
    for (int ombre = style::kEtendueOmbre; ombre > 0; --ombre) {
        peintre.drawRoundedRect(dessous.adjusted(-ombre, -ombre, ombre, ombre), ombre, ombre);
    }
    peintre.fillRect(feuille, QColor(style::kPapier));
    peintre.setPen(QPen(QColor(style::kBordDuPapier), 1));
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRect(feuille.adjusted(-0.5, -0.5, 0.5, 0.5));
}

void Feuille::PeintMarque(QPainter& peintre) const
{
    const QSizeF taille = TailleDeLaFeuille();
    const double y = bas_ * zoom_;
    peintre.fillRect(QRectF(QPointF(0, y), QPointF(taille.width(), taille.height())),
                     QColor::fromRgba(style::kHorsDuPapier));
    peintre.setPen(QPen(QColor(style::kMarqueInterdit), 1, Qt::DashLine));
    peintre.drawLine(QPointF(0, y), QPointF(taille.width(), y));
    QFont police = font();
    police.setPointSizeF(style::kPoliceMarque);
    peintre.setFont(police);
    peintre.drawText(QRectF(0, y, taille.width() - style::kDansGroupe, style::kHauteurRangee),
                     Qt::AlignRight | Qt::AlignTop, QStringLiteral("Bas de la feuille"));
}

} // namespace page
