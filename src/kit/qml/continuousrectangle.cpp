#include "continuousrectangle.h"

#include "kit/gradients.h"

#include <QPainter>

void ContinuousRectangle::paint(QPainter *painter)
{
    const QRectF area = boundingRect();
    paintPanel(*painter, area,
        {
            .radius = m_radius,
            .fill = verticalBrush(area, m_fillFrom, m_fillVia, m_fillTo),
            .stroke = verticalBrush(area, m_strokeFrom, {}, m_strokeTo),
            .strokeWidth = m_strokeWidth,
        });
}
