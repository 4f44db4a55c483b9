#include "page/windows/VueAjustee.h"

#include "application/windows/Style.h"
#include "application/windows/StyleFeuille.h"
#include "page/windows/Feuille.h"

#include <QScrollBar>

#include <algorithm>

namespace page {

namespace style = application::style;

VueAjustee::VueAjustee(const QString& nom, const QString& titre, QWidget* parent, Ajustement ajustement)
    : QScrollArea(parent), feuille_(new page::Feuille), ajustement_(ajustement)
{
    feuille_->setObjectName(nom);
    feuille_->setAccessibleName(titre);
    viewport()->setAutoFillBackground(false);
    setWidget(feuille_);
    feuille_->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    if (ajustement_ == Ajustement::Entiere) {
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setAlignment(Qt::AlignCenter);
    }
}

QSize VueAjustee::sizeHint() const
{
    if (ajustement_ == Ajustement::Largeur) {
        return QScrollArea::sizeHint();
    }
    const Dessin& dessin = feuille_->Montree();
    return {qRound(dessin.Largeur), qRound(dessin.Hauteur)}; // its shape, at any zoom
}

void VueAjustee::Montre(const Dessin& dessin)
{
    feuille_->Montre(dessin);
    Ajuste();
}

void VueAjustee::MarqueBas(double y)
{
    feuille_->MarqueBas(y);
}

void VueAjustee::MontrePied(bool oui)
{
    verticalScrollBar()->setValue(oui ? verticalScrollBar()->maximum() : 0);
}

void VueAjustee::resizeEvent(QResizeEvent* evenement)
{
    QScrollArea::resizeEvent(evenement);
    Ajuste();
}

void VueAjustee::Ajuste()
{
    if (const double zoom = ZoomAjuste(); zoom > 0) {
        feuille_->Zoom(zoom);
    }
}

// The room of the scroll bar is kept free, so that its coming and going does not change the zoom.
double VueAjustee::ZoomAjuste() const
{
    constexpr int kBords = 2 * style::kBordFeuille;
    const Dessin& dessin = feuille_->Montree();
    const int place = width() - kBords;
    if (ajustement_ == Ajustement::Largeur) {
        return (place - verticalScrollBar()->sizeHint().width()) / std::max(1.0, dessin.Largeur);
    }
    return std::min(place / std::max(1.0, dessin.Largeur),
                    (height() - kBords) / std::max(1.0, dessin.Hauteur));
}

} // namespace page
