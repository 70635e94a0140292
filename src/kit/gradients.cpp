#include "kit/gradients.h"

#include "kit/continuouspath.h"

#include <QLinearGradient>
#include <QPainter>

namespace Painting {

QBrush verticalBrush(
    const QRectF &area, const QColor &top, const QColor &middle, const QColor &bottom)
{
    if (!bottom.isValid())
        return top;
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, top);
    if (middle.isValid())
        gradient.setColorAt(0.5, middle);
    gradient.setColorAt(1, bottom);
    return gradient;
}

void paintPanel(QPainter &painter, const QRectF &area, const PanelStyle &style)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousPath(area, style.radius), style.fill);
    if (style.strokeWidth <= 0)
        return;
    const double inset = style.strokeWidth / 2;
    painter.strokePath(
        continuousPath(area.adjusted(inset, inset, -inset, -inset), style.radius - inset),
        QPen(style.stroke, style.strokeWidth));
}

QColor gray(double white, double opacity)
{
    return QColor::fromRgbF(float(white), float(white), float(white), float(opacity));
}

} // namespace Painting
