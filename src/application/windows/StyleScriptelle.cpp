#include "application/windows/StyleScriptelle.h"

#include "application/windows/Style.h"

#include <QPainter>
#include <QStyleOption>

namespace application::style {

namespace {

constexpr double kCoinRangee = 4;

/// The bar of a row of several columns has its corners at both ends alone: those of a cell within lie outside
/// of it.
QRectF Barre(const QStyleOptionViewItem& option)
{
    using Item = QStyleOptionViewItem;
    const bool suivie = option.viewItemPosition == Item::Beginning || option.viewItemPosition == Item::Middle;
    const bool suit = option.viewItemPosition == Item::Middle || option.viewItemPosition == Item::End;
    return QRectF(option.rect).adjusted(suit ? -kCoinRangee : 0, 0, suivie ? kCoinRangee : 0, 0);
}

void PeintRangee(const QStyleOptionViewItem& option, QPainter& peintre)
{
    const bool choisie = option.state & QStyle::State_Selected;
    if (option.backgroundBrush.style() != Qt::NoBrush) {
        peintre.fillRect(option.rect, option.backgroundBrush);
    }
    if (!choisie && !(option.state & QStyle::State_MouseOver)) {
        return;
    }
    const bool active = option.state & QStyle::State_Enabled;
    const QColor fond = !choisie ? Teinte(Ton::Page) : Teinte(active ? Ton::Encre : Ton::Eteint);
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(fond);
    peintre.setClipRect(option.rect, Qt::IntersectClip);
    peintre.drawRoundedRect(Barre(option), kCoinRangee, kCoinRangee);
    peintre.restore();
}

void PeintFocus(const QStyleOption& option, QPainter& peintre)
{
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen(Teinte(Ton::Encre), 1.5));
    peintre.drawRoundedRect(QRectF(option.rect).adjusted(0.75, 0.75, -0.75, -0.75), kCoinRangee, kCoinRangee);
    peintre.restore();
}

} // namespace

StyleScriptelle::StyleScriptelle() : QProxyStyle(QStringLiteral("Fusion")) {}

QSize StyleScriptelle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& taille,
                                        const QWidget* controle) const
{
    QSize resultat = QProxyStyle::sizeFromContents(type, option, taille, controle);
    if (type == CT_ItemViewItem) {
        resultat.setHeight(qMax(resultat.height(), kHauteurRangee));
    }
    return resultat;
}

void StyleScriptelle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                                    const QWidget* controle) const
{
    if (element == PE_PanelItemViewItem) {
        if (const auto* rangee = qstyleoption_cast<const QStyleOptionViewItem*>(option)) {
            PeintRangee(*rangee, *peintre);
            return;
        }
    }
    if (element == PE_PanelItemViewRow) {
        return;
    }
    if (element == PE_FrameFocusRect) {
        PeintFocus(*option, *peintre);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, peintre, controle);
}

int StyleScriptelle::pixelMetric(PixelMetric mesure, const QStyleOption* option,
                                 const QWidget* controle) const
{
    switch (mesure) {
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
        return kTailleIcone;
    case PM_FocusFrameHMargin:
        return 6;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return kMargeCarte;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return kDansGroupe;
    default:
        return QProxyStyle::pixelMetric(mesure, option, controle);
    }
}

int StyleScriptelle::styleHint(StyleHint genre, const QStyleOption* option, const QWidget* controle,
                               QStyleHintReturn* retour) const
{
    switch (genre) {
    case SH_ItemView_ShowDecorationSelected:
        return 1;
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_ToolTip_WakeUpDelay:
        return 400;
    default:
        return QProxyStyle::styleHint(genre, option, controle, retour);
    }
}

} // namespace application::style
