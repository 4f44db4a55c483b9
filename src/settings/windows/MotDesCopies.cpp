#include "settings/windows/MotDesCopies.h"

#include "application/windows/Style.h"
#include "page/CouleurQt.h"
#include "settings/Reglages.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

namespace settings {

namespace {

constexpr int kMarge = 8;

} // namespace

MotDesCopies::MotDesCopies(QWidget* parent) : QLabel(parent)
{
    application::style::Encadre(this);
}

void MotDesCopies::MontrePolice(const page::Police& police)
{
    police_ = police;
    QFont montree(police.Nom);
    montree.setPointSizeF(std::max(police.Taille, 1.0F));
    montree.setBold(police.Gras);
    montree.setItalic(police.Italique);
    setFont(montree);
    update();
}

void MotDesCopies::MontreCouleur(page::Couleur couleur)
{
    couleur_ = couleur;
    QPalette teintes = palette();
    teintes.setColor(QPalette::WindowText, page::CouleurQt(couleur));
    setPalette(teintes);
    update();
}

void MotDesCopies::paintEvent(QPaintEvent*)
{
    QPainter peintre(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &peintre, this);
    const QString lignes = LignesDupli(text()).join(QLatin1Char('\n'));
    const QRectF place = QRectF(rect()).adjusted(kMarge, kMarge, -kMarge, -kMarge);
    const QRect etendue = fontMetrics().boundingRect({}, Qt::AlignCenter, lignes);
    const double echelle = std::min(
        {1.0, place.width() / std::max(1, etendue.width()), place.height() / std::max(1, etendue.height())});
    peintre.setFont(font());
    peintre.setPen(page::CouleurQt(couleur_));
    peintre.translate(place.center());
    peintre.scale(echelle, echelle);
    peintre.drawText(QRectF(-etendue.width(), -etendue.height(), 2 * etendue.width(), 2 * etendue.height()),
                     Qt::AlignCenter, lignes);
}

} // namespace settings
