#include "progressarc.h"

#include "kit/continuouspath.h"
#include "kit/gradients.h"
#include "kit/softblur.h"

#include <QPainter>

using namespace Painting;

namespace {

constexpr double kRingWidth = 12;
constexpr double kRingGlow = 6;

} // namespace

void ProgressArc::paint(QPainter *painter)
{
    // Room for the glow around the stroke.
    const QRectF circle = inset(boundingRect(), kRingWidth / 2 + kRingGlow);
    painter->setRenderHint(QPainter::Antialiasing);

    QColor track = c().glow();
    track.setAlphaF(0.12f);
    painter->setPen(QPen(track, kRingWidth));
    painter->drawEllipse(circle);
    if (m_fraction <= 0)
        return;

    QPainterPath arc;
    arc.arcMoveTo(circle, 90);
    arc.arcTo(circle, 90, -360 * m_fraction);
    const QPen pen(c().glow(), kRingWidth, Qt::SolidLine, Qt::RoundCap);

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
    painter->drawImage(boundingRect(), softBlur(mask, kRingGlow * renderScale(), glow));
    painter->strokePath(arc, pen);
}
