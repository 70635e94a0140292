#include "progressarc.h"

#include "camera/geometry.h"
#include "kit/continuouspath.h"
#include "kit/gradients.h"
#include "kit/softblur.h"

#include <QPainter>

using namespace Painting;

void ProgressArc::paint(QPainter *painter)
{
    // Room for the glow around the stroke.
    const QRectF circle = inset(boundingRect(), Geometry::ringWidth / 2 + Geometry::ringGlow);
    painter->setRenderHint(QPainter::Antialiasing);

    painter->setPen(QPen(c().track(), Geometry::ringWidth));
    painter->drawEllipse(circle);
    if (m_fraction <= 0)
        return;

    QPainterPath arc;
    arc.arcMoveTo(circle, 90);
    arc.arcTo(circle, 90, -360 * m_fraction);
    const QPen pen(c().glow(), Geometry::ringWidth, Qt::SolidLine, Qt::RoundCap);

    const QSize pixels = textureSize();
    QImage mask(pixels, QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    {
        QPainter ink(&mask);
        ink.scale(pixels.width() / width(), pixels.height() / height());
        ink.setRenderHint(QPainter::Antialiasing);
        ink.strokePath(arc, pen);
    }
    QColor glow = c().glow();
    glow.setAlphaF(0.6f);
    painter->drawImage(boundingRect(), softBlur(mask, Geometry::ringGlow * renderScale(), glow));
    painter->strokePath(arc, pen);
}
