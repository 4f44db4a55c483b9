#include "page/windows/VueAjustee.h"

#include "application/windows/Style.h"
#include "application/windows/StyleFeuille.h"
#include "page/windows/Feuille.h"

#include <QScrollBar>

#include <algorithm>

namespace page {

namespace style = application::style;

VueAjustee::VueAjustee(const QString& nom, const QString& titre, QWidget* parent)
    : QScrollArea(parent), feuille_(new page::Feuille)
{
    feuille_->setObjectName(nom);
    feuille_->setAccessibleName(titre);
    viewport()->setAutoFillBackground(false);
    setWidget(feuille_);
    feuille_->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
}

void VueAjustee::Montre(const Dessin& dessin)
{
    feuille_->Montre(dessin);
    Ajuste();
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

// The room of the scroll bar is kept free, so that its coming and going does not change the zoom.
void VueAjustee::Ajuste()
{
    const int bords = 2 * style::kBordFeuille + verticalScrollBar()->sizeHint().width();
    const double place = (width() - bords) / std::max(1.0, feuille_->Montree().Largeur);
    if (place > 0) {
        feuille_->Zoom(place);
    }
}

} // namespace page
