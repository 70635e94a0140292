#include "pictureframe.h"

#include "kit/continuouspath.h"

#include <QPainter>

void PictureFrame::paint(QPainter *painter)
{
    const QRectF area = boundingRect();
    QPainterPath corners = Painting::continuousPath(area, m_radius);
    corners.addRect(area.adjusted(-1, -1, 1, 1)); // even-odd: what is outside of the first
    painter->fillPath(corners, m_surround);
    painter->strokePath(Painting::continuousPath(Painting::inset(area, 0.5), m_radius - 0.5),
        QPen(c().fieldEdge(), 1));
}
