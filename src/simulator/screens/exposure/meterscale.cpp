#include "meterscale.h"

#include "simulator/screens/exposure/meterreading.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr int kThirds = 9; // of a stop, on each side of the middle
constexpr double kSideMargin = 8;
constexpr double kTicksTop = 3;

} // namespace

MeterScale::MeterScale(QQuickItem *parent)
    : CameraSurface(parent)
{
    // The ink is one of the palette's.
    connect(this, &MeterScale::lookChanged, this, &MeterScale::needleChanged);
}

void MeterScale::setOffset(double stops)
{
    if (m_offset == stops)
        return;
    m_offset = stops;
    Q_EMIT needleChanged();
}

double MeterScale::x(double place) const
{
    return width() / 2 + (width() / 2 - kSideMargin) * place;
}

qreal MeterScale::needleX() const
{
    return x(meterDeflection(m_offset));
}

QColor MeterScale::needleInk() const
{
    switch (meterReading(m_offset)) {
    case MeterReading::Correct:
        return c().good();
    case MeterReading::BeyondTheScale:
        return c().bad();
    case MeterReading::Off:
        break;
    }
    return c().warn();
}

void MeterScale::paint(QPainter *painter)
{
    QColor dim = c().oledDim();
    dim.setAlphaF(0.6F);
    // Whole and half pixels apart: ticks of equal width look equal only where edges are sharp.
    const double pixel = 1 / renderScale();
    for (int i = -kThirds; i <= kThirds; ++i) {
        const bool wholeStop = i % 3 == 0;
        const double tickWidth = wholeStop ? 2 : 1;
        const double left = std::round((x(double(i) / kThirds) - tickWidth / 2) / pixel) * pixel;
        const double tickHeight = wholeStop ? 14 : 8;
        // All hang from the middle line of the highest.
        const double tickTop = kTicksTop + (14 - tickHeight) / 2;
        painter->fillRect(
            QRectF(left, tickTop, tickWidth, tickHeight), wholeStop ? c().oledText() : dim);
    }
}

void MeterScale::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    CameraSurface::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.width() != oldGeometry.width())
        Q_EMIT needleChanged();
}
