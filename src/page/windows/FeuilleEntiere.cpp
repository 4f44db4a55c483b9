#include "page/windows/FeuilleEntiere.h"

#include "application/windows/StyleFeuille.h"
#include "page/windows/Feuille.h"

#include <algorithm>

namespace page {

namespace style = application::style;

FeuilleEntiere::FeuilleEntiere(page::Feuille* feuille, QWidget* parent) : QWidget(parent), feuille_(feuille)
{
    feuille_->setParent(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize FeuilleEntiere::sizeHint() const
{
    const Dessin& dessin = feuille_->Montree();
    return QSize(qRound(dessin.Largeur), qRound(dessin.Hauteur));
}

void FeuilleEntiere::resizeEvent(QResizeEvent* evenement)
{
    QWidget::resizeEvent(evenement);
    const Dessin& dessin = feuille_->Montree();
    const double largeur = (width() - 2 * style::kBordFeuille) / dessin.Largeur;
    const double hauteur = (height() - 2 * style::kBordFeuille) / dessin.Hauteur;
    feuille_->Zoom(std::max(0.0, std::min(largeur, hauteur)));
    feuille_->move((width() - feuille_->width()) / 2, (height() - feuille_->height()) / 2);
}

} // namespace page
