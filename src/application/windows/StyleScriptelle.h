#pragma once

#include <QProxyStyle>

namespace application::style {

/// Fusion with the rows and the selection of Scriptelle: rows 26 high, a selection that looks the same
/// whether its list has the focus or not.
class StyleScriptelle : public QProxyStyle
{
    Q_OBJECT

public:
    StyleScriptelle();

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& taille,
                           const QWidget* controle) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                       const QWidget* controle) const override;
    int pixelMetric(PixelMetric mesure, const QStyleOption* option, const QWidget* controle) const override;
    int styleHint(StyleHint genre, const QStyleOption* option, const QWidget* controle,
                  QStyleHintReturn* retour) const override;
};

} // namespace application::style
