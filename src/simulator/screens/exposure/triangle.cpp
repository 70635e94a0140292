#include "triangle.h"

#include "kit/continuouspath.h"
#include "kit/softblur.h"

#include <QPainter>
#include <QPainterPath>

void Triangle::paint(QPainter *painter)
{
    const QRectF area = Painting::inset(boundingRect(), m_glow);
    QPainterPath shape(QPointF(area.center().x(), area.top()));
    shape.lineTo(area.bottomRight());
    shape.lineTo(area.bottomLeft());
    shape.closeSubpath();

    const QSize pixels = textureSize();
    QImage mask(pixels, QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    {
        QPainter painting(&mask);
        painting.scale(pixels.width() / width(), pixels.height() / height());
        painting.setRenderHint(QPainter::Antialiasing);
        painting.fillPath(shape, Qt::black);
    }
    painter->drawImage(boundingRect(), Painting::softBlur(mask, m_glow * renderScale(), m_ink));
    painter->fillPath(shape, m_ink);
}
