#include "settings/windows/LibelleCoupe.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace settings {

LibelleCoupe::LibelleCoupe(const QString& nom, QWidget* parent) : QLabel(parent)
{
    setObjectName(nom);
    setProperty("genre", QStringLiteral("legende"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize LibelleCoupe::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

bool LibelleCoupe::event(QEvent* evenement)
{
    if (evenement->type() == QEvent::ToolTip && Coupe() != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(evenement);
}

void LibelleCoupe::paintEvent(QPaintEvent* /*evenement*/)
{
    QPainter peintre(this);
    style()->drawItemText(&peintre, contentsRect(), Qt::AlignRight | Qt::AlignVCenter, palette(), isEnabled(),
                          Coupe(), foregroundRole());
}

QString LibelleCoupe::Coupe() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

} // namespace settings
