#include "continuousframe.h"

#include "kit/continuouspath.h"
#include "kit/gradients.h"

#include <QPainter>

using namespace Painting;

QRectF ContinuousFrame::leftOut() const
{
    return inset(boundingRect(), m_radius + m_rimWidth);
}

void ContinuousFrame::paint(QPainter *painter)
{
    QPainterPath corners;
    // A little beyond the edge, where smoothing would let what lies under it shine through.
    corners.addRect(boundingRect().adjusted(-1, -1, 1, 1));
    corners.addPath(continuousPath(boundingRect(), m_radius));
    corners.setFillRule(Qt::OddEvenFill);
    painter->fillPath(corners, m_ground);
    paintPanel(*painter, boundingRect(),
        { .radius = m_radius, .fill = Qt::NoBrush, .stroke = m_rim, .strokeWidth = m_rimWidth });
}
