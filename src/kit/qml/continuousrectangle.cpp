#include "continuousrectangle.h"

#include "kit/gradients.h"

#include <QCache>
#include <QMutex>
#include <QPainter>

#include <array>

namespace {

constexpr int kKeptPixels = 512 * 1024;

struct Look {
    QSize pixels;
    std::array<double, 4> measures;
    std::array<QColor, 5> colors; ///< An absent color differs from a transparent one.

    friend bool operator==(const Look &, const Look &) = default;
};

size_t qHash(const Look &look, size_t seed = 0)
{
    seed = qHashMulti(seed, look.pixels.width(), look.pixels.height());
    seed = qHashRange(look.measures.begin(), look.measures.end(), seed);
    for (const QColor &color : look.colors)
        seed = ::qHash(color.rgba(), seed);
    return seed;
}

} // namespace

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

std::shared_future<QImage> ContinuousRectangle::startedPicture()
{
    // Buttons of a rail and cards of a grid look alike, so most rectangles are there already, or
    // are being painted.
    static QMutex mutex; // Each window may have a thread that asks.
    static QCache<Look, std::shared_future<QImage>> pictures(kKeptPixels);

    const Look look{
        .pixels = textureSize(),
        .measures = { width(), height(), m_radius, m_strokeWidth },
        .colors = { m_fillFrom, m_fillVia, m_fillTo, m_strokeFrom, m_strokeTo },
    };
    const QMutexLocker lock(&mutex);
    if (const std::shared_future<QImage> *known = pictures.object(look))
        return *known;
    const std::shared_future<QImage> started = PaintedItem::startedPicture();
    pictures.insert(
        look, new std::shared_future<QImage>(started), look.pixels.width() * look.pixels.height());
    return started;
}
