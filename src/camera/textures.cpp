#include "camera/textures.h"

#include "kit/gradients.h"
#include "kit/picturecache.h"

#include <QPainter>

#include <cmath>
#include <utility>

using namespace Painting;

namespace {

constexpr int kPebbleStep = 5;
constexpr double kKnurlStep = 7;

// What a change of theme takes on the finest screen: black, white and two tints. More would be kept
// for zooms and themes that nobody comes back to.
constexpr qsizetype kKeptLeather = 8 * 1024 * 1024;
constexpr qsizetype kKeptKnurls = 4 * 1024 * 1024;

// The multiplier and increment are those of D. E. Knuth's MMIX generator; its low bits are weak,
// so a draw takes the high ones.
class PebbleGenerator
{
public:
    /// From 0 to 1.
    [[nodiscard]] double draw()
    {
        m_state = m_state * 6364136223846793005ULL + 1442695040888963407ULL;
        return double(m_state >> 33) / 2147483647.0;
    }

private:
    quint64 m_state = 42;
};

// The pebbles in black: their shapes cost far more than to tint them.
QImage pebbles(double scale)
{
    const int side = qCeil(Textures::leatherTileSide * scale);
    QImage tile(side, side, QImage::Format_ARGB32_Premultiplied);
    tile.fill(Qt::transparent);

    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // Whole pixels for the whole tile, or a seam would show where two tiles meet.
    painter.scale(
        double(side) / Textures::leatherTileSide, double(side) / Textures::leatherTileSide);

    PebbleGenerator generator;
    for (int y = 0; y < Textures::leatherTileSide; y += kPebbleStep) {
        const bool oddRow = (y / kPebbleStep) % 2 == 1;
        for (double x = oddRow ? 2.5 : 0; x < Textures::leatherTileSide; x += kPebbleStep) {
            // Every pebble takes its four draws in this order, or the pattern would change.
            const double diameter = generator.draw() * 1.4 + 1.0;
            const double opacity = generator.draw() * 0.4 + 0.35;
            const double left = x + 2 * generator.draw();
            const double top = y + 2 * generator.draw();
            painter.setBrush(gray(0, opacity));
            painter.drawEllipse(QRectF(left, top, diameter, diameter));
        }
    }
    painter.end();
    tile.setDevicePixelRatio(double(side) / Textures::leatherTileSide);
    return tile;
}

// A picture in one color, where it has been painted.
QImage tinted(QImage picture, const QColor &tint)
{
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), tint);
    return picture;
}

QSize knurlPixels(QSizeF size, double scale)
{
    return { qCeil(size.width() * scale), qCeil(size.height() * scale) };
}

// Lines drawn opaque on a picture of their own: drawn straight onto the metal, a translucent ink
// would be darker where they cross.
QImage grooves(QSizeF size, double scale, double width, double shift, const QColor &ink)
{
    QImage picture(knurlPixels(size, scale), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.translate(shift, shift);
    painter.strokePath(Textures::knurlPath(size), QPen(Qt::black, width));
    painter.end();
    return tinted(picture, ink);
}

QImage knurls(QSizeF size, double scale)
{
    QImage picture = grooves(size, scale, 1.4, 0, gray(0, 0.55));
    QPainter painter(&picture);
    painter.drawImage(QPointF(), grooves(size, scale, 0.8, 0.8, gray(1, 0.07)));
    return picture;
}

// A thousandth of a pixel per point is finer than any zoom step.
int scaleKey(double scale)
{
    return qRound(scale * 1000);
}

} // namespace

namespace Textures {

QImage leatherTile(const QColor &tint, double scale)
{
    static PictureCache<std::pair<QRgb, int>, QImage> tiles(kKeptLeather);

    const QColor color = tint.isValid() ? tint.toRgb() : gray(0.5);
    const qsizetype side = qCeil(leatherTileSide * scale);
    return tiles.picture({ color.rgba(), scaleKey(scale) }, 4 * side * side, [&] {
        return color == gray(0) ? pebbles(scale) : tinted(leatherTile(gray(0), scale), color);
    });
}

QPainterPath knurlPath(QSizeF size)
{
    QPainterPath path;
    const double w = size.width();
    const double h = size.height();
    for (double x = -h; x < w + h; x += kKnurlStep) {
        path.moveTo(x, 0);
        path.lineTo(x + h, h);
    }
    for (double x = -h; x < w + h; x += kKnurlStep) {
        path.moveTo(x + h, 0);
        path.lineTo(x, h);
    }
    return path;
}

void paintKnurl(QPainter &painter, QSizeF size)
{
    static PictureCache<std::pair<std::pair<int, int>, int>, QImage> pictures(kKeptKnurls);

    // The pixels of the device under the painter, however it is turned.
    const QTransform transform = painter.deviceTransform();
    const double scale = std::hypot(transform.m11(), transform.m12());
    if (size.isEmpty() || scale <= 0)
        return;
    const std::pair hundredths(qRound(size.width() * 100), qRound(size.height() * 100));
    const QSize pixels = knurlPixels(size, scale);
    const QImage picture = pictures.picture({ hundredths, scaleKey(scale) },
        qsizetype(4) * pixels.width() * pixels.height(), [&] { return knurls(size, scale); });

    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setClipRect(QRectF({}, size), Qt::IntersectClip);
    painter.drawImage(QRectF({}, QSizeF(picture.size()) / scale), picture);
    painter.restore();
}

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

} // namespace Textures
