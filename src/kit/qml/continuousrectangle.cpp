#include "continuousrectangle.h"

#include "kit/continuouspath.h"
#include "kit/gradients.h"
#include "kit/picture.h"
#include "kit/picturecache.h"

#include <QtMath>

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

Painting::NinePatch ContinuousRectangle::patchAsync() const
{
    // Buttons of a rail and cards of a grid look alike, so most rectangles are there already, or
    // are being painted.
    static PictureCache<Look, std::shared_future<QImage>> pictures(kKeptBytes);

    // Between its corners a rectangle looks the same from left to right, and without a gradient
    // from top to bottom too.
    const double radius = qMin(m_radius, qMin(width(), height()) / 2);
    const int corner = qCeil((cornerReach(radius) + m_strokeWidth) * renderScale()) + 1;
    const int longest = 2 * corner + 1;
    const bool isFlat = !m_fillTo.isValid() && !m_strokeTo.isValid();
    const QSize pixels = deviceSize();
    const QSize shape = pixels.boundedTo({ longest, isFlat ? longest : pixels.height() });
    const QSizeF points(
        width() * shape.width() / pixels.width(), height() * shape.height() / pixels.height());

    const Look look{
        .pixels = shape,
        .measures = { points.width(), points.height(), m_radius, m_strokeWidth },
        .colors = { m_fillFrom, m_fillVia, m_fillTo, m_strokeFrom, m_strokeTo },
    };
    const QRectF area({}, points);
    const PanelStyle style{
        .radius = m_radius,
        .fill = verticalBrush(area, m_fillFrom, m_fillVia, m_fillTo),
        .stroke = verticalBrush(area, m_strokeFrom, {}, m_strokeTo),
        .strokeWidth = m_strokeWidth,
    };
    const auto paint = [area, style](QPainter &painter) { paintPanel(painter, area, style); };
    return { .picture = pictures.picture(look, qsizetype(4) * shape.width() * shape.height(),
                 [&] { return paintAsync(shape, points, paint); }),
        .sideBorder = shape.width() < pixels.width() ? corner : 0,
        .endBorder = shape.height() < pixels.height() ? corner : 0 };
}
