#include "continuousrectangle.h"

#include "kit/gradients.h"
#include "kit/picturecache.h"

#include <QPainter>

#include <array>

using namespace Painting;

namespace {

constexpr qsizetype kKeptBytes = 4 * 1024 * 1024;

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

std::shared_future<QImage> ContinuousRectangle::paintAsync()
{
    // Buttons of a rail and cards of a grid look alike, so most rectangles are there already, or
    // are being painted.
    static PictureCache<Look, std::shared_future<QImage>> pictures(kKeptBytes);

    const Look look{
        .pixels = textureSize(),
        .measures = { width(), height(), m_radius, m_strokeWidth },
        .colors = { m_fillFrom, m_fillVia, m_fillTo, m_strokeFrom, m_strokeTo },
    };
    return pictures.picture(look, qsizetype(4) * look.pixels.width() * look.pixels.height(),
        [this] { return PaintedItem::paintAsync(); });
}
