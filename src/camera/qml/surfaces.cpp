#include "surfaces.h"

#include "camera/housing.h"
#include "camera/textures.h"
#include "kit/continuouspath.h"
#include "kit/gradients.h"
#include "kit/softblur.h"

#include <QConicalGradient>
#include <QLinearGradient>
#include <QPainter>

namespace {

constexpr double kRingWidth = 12;
constexpr double kRingGlow = 6;

// The light on turned metal: two bright fans, opposite each other.
QBrush turnedSheen(const QPointF &center, double strength)
{
    QConicalGradient sheen(center, 60);
    for (const double fan : { 0.0, 0.5 }) {
        sheen.setColorAt(fan, gray(1, 0));
        sheen.setColorAt(fan + 0.13, gray(1, strength));
        sheen.setColorAt(fan + 0.26, gray(1, 0));
    }
    sheen.setColorAt(1, gray(1, 0));
    return sheen;
}

} // namespace

void CameraSurface::setC(const HVColors &colors)
{
    // Themes count as equal by their id alone, which is what tells two palettes apart.
    if (assign(m_c, colors))
        Q_EMIT cChanged();
}

void CameraBodyBackground::setDisplay(const QRectF &display)
{
    if (assign(m_display, display))
        Q_EMIT displayChanged();
}

std::shared_future<QImage> CameraBodyBackground::startedPicture()
{
    return Housing::startedPicture(Housing::Body{
        .size = size().toSize(), .display = m_display, .colors = c(), .pixels = textureSize() });
}

std::shared_future<QImage> DisplayGlass::startedPicture()
{
    return Housing::startedPicture(
        Housing::Glass{ .size = size().toSize(), .colors = c(), .pixels = textureSize() });
}

void DialFace::setTurn(qreal degrees)
{
    if (assign(m_turn, degrees))
        Q_EMIT turnChanged();
}

void DialFace::setLit(bool lit)
{
    if (assign(m_lit, lit))
        Q_EMIT litChanged();
}

void DialFace::paint(QPainter *painter)
{
    const QRectF area = boundingRect();
    const QRectF outer = inset(area, 2);
    const QRectF inner = inset(area, 9);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);

    painter->setBrush(verticalBrush(outer, gray(m_lit ? 0.36 : 0.3), {}, gray(0.06)));
    painter->drawEllipse(outer);

    // The knurling turns with the dial; light and shade on the metal stay where the lamp is.
    QPainterPath rim;
    rim.addEllipse(outer);
    rim.addEllipse(inner);
    painter->save();
    painter->setClipPath(rim);
    painter->translate(area.center());
    painter->rotate(m_turn);
    painter->translate(-area.center());
    Textures::paintKnurl(*painter, area.size());
    painter->restore();

    painter->setBrush(turnedSheen(area.center(), 0.22));
    painter->drawPath(rim);

    painter->setBrush(verticalBrush(inner, gray(0.22), {}, gray(0.1)));
    painter->drawEllipse(inner);
    painter->setBrush(turnedSheen(area.center(), 0.12));
    painter->drawEllipse(inner);

    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(verticalBrush(outer, gray(1, 0.34), {}, gray(0, 0.7)), 1));
    painter->drawEllipse(inset(outer, 0.5));
    painter->setPen(QPen(verticalBrush(inner, gray(0, 0.75), {}, gray(1, 0.16)), 1));
    painter->drawEllipse(inset(inner, 0.5));
}

void KnurlTexture::paint(QPainter *painter)
{
    Textures::paintKnurl(*painter, size());
}

void ProgressArc::setFraction(qreal fraction)
{
    if (assign(m_fraction, qBound(0.0, fraction, 1.0)))
        Q_EMIT fractionChanged();
}

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

    const double scale = renderScale();
    QImage mask(textureSize(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    {
        QPainter ink(&mask);
        ink.scale(scale, scale);
        ink.setRenderHint(QPainter::Antialiasing);
        ink.strokePath(arc, pen);
    }
    QColor glow = c().glow();
    glow.setAlphaF(0.6f);
    painter->drawImage(boundingRect(), softBlur(mask, kRingGlow * scale, glow));
    painter->strokePath(arc, pen);
}
