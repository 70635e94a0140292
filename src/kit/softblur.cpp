#include "kit/softblur.h"

#include "kit/continuouspath.h"
#include "kit/picture.h"
#include "kit/picturecache.h"

#include <QPainter>

#include <array>
#include <cmath>
#include <vector>

namespace Painting {

namespace {

// A dozen of the largest shadows on the finest screens.
constexpr qsizetype kKeptBytes = 16 * 1024 * 1024;

// One byte of opacity a pixel, rows from the top.
struct Plane {
    int width;
    int height;
    std::vector<uchar> bytes;

    [[nodiscard]] uchar *row(int y) { return bytes.data() + size_t(y) * size_t(width); }
    [[nodiscard]] const uchar *row(int y) const { return bytes.data() + size_t(y) * size_t(width); }
};

[[nodiscard]] Plane transposed(const Plane &plane)
{
    Plane result{ plane.height, plane.width, std::vector<uchar>(plane.bytes.size()) };
    for (int y = 0; y < plane.height; ++y) {
        const uchar *source = plane.row(y);
        for (int x = 0; x < plane.width; ++x)
            result.row(x)[y] = source[x];
    }
    return result;
}

// A box blur of 2 · reach + 1 pixels along the columns; beyond the ends lies transparency. All
// columns advance together, a row at a time: running sums over neighboring bytes, which the
// compiler turns into vector arithmetic.
void blurColumns(Plane &plane, int reach)
{
    const size_t width = size_t(plane.width);
    // Division by the window's height as a product: 255 · 2^24 and its rounding fit 32 bits.
    const int window = 2 * reach + 1;
    const quint32 share = quint32(((1 << 24) + window / 2) / window);

    const Plane source = plane;
    std::vector<quint32> sums(width, 0);
    for (int y = -reach; y < plane.height; ++y) {
        if (const int entering = y + reach; entering < plane.height) {
            const uchar *bytes = source.row(entering);
            for (size_t x = 0; x < width; ++x)
                sums[x] += bytes[x];
        }
        if (const int leaving = y - reach - 1; leaving >= 0) {
            const uchar *bytes = source.row(leaving);
            for (size_t x = 0; x < width; ++x)
                sums[x] -= bytes[x];
        }
        if (y >= 0) {
            uchar *target = plane.row(y);
            for (size_t x = 0; x < width; ++x)
                target[x] = uchar((sums[x] * share + (1U << 23)) >> 24);
        }
    }
}

// A rounded rectangle of `size` with the margin that softBlur() wants.
QImage roundedMask(QSize size, int cornerRadius, int margin)
{
    const QMargins margins(margin, margin, margin, margin);
    QImage mask(size.grownBy(margins), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(
        continuousPath(QRectF(mask.rect().marginsRemoved(margins)), cornerRadius), Qt::black);
    return mask;
}

struct PatchKey {
    QSize size; ///< Of the shape as it is drawn in the picture.
    int cornerRadius;
    int blurRadius;
    QRgb color;

    friend bool operator==(const PatchKey &, const PatchKey &) = default;
};

size_t qHash(const PatchKey &key, size_t seed = 0)
{
    return qHashMulti(
        seed, key.size.width(), key.size.height(), key.cornerRadius, key.blurRadius, key.color);
}

} // namespace

QImage softBlur(const QImage &mask, double radius, const QColor &color)
{
    const QImage alpha = mask.convertToFormat(QImage::Format_Alpha8);
    Plane plane{ alpha.width(), alpha.height(), {} };
    plane.bytes.resize(size_t(plane.width) * size_t(plane.height));
    for (int y = 0; y < plane.height; ++y)
        std::copy_n(alpha.constScanLine(y), plane.width,
            plane.bytes.begin() + std::ptrdiff_t(y) * plane.width);

    // The reaches of the three boxes add up to the radius: the blur fills its margin and never
    // leaves it.
    // Rows are blurred as columns of the transpose.
    for (int direction = 0; direction < 2; ++direction) {
        for (int pass = 0; pass < 3; ++pass) {
            if (const int reach = (int(radius) + pass) / 3; reach > 0)
                blurColumns(plane, reach);
        }
        plane = transposed(plane);
    }

    std::array<QRgb, 256> inks;
    for (int opacity = 0; opacity < 256; ++opacity) {
        inks[size_t(opacity)] = qPremultiply(
            qRgba(color.red(), color.green(), color.blue(), (opacity * color.alpha() + 127) / 255));
    }
    QImage result(alpha.size(), QImage::Format_ARGB32_Premultiplied);
    result.setDevicePixelRatio(mask.devicePixelRatio());
    for (int y = 0; y < plane.height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        const uchar *opacities = plane.row(y);
        for (int x = 0; x < plane.width; ++x)
            line[x] = inks[opacities[x]];
    }
    return result;
}

NinePatch shadowPatchAsync(QSize size, int cornerRadius, int blurRadius, const QColor &color)
{
    static PictureCache<PatchKey, std::shared_future<QImage>> pictures(kKeptBytes);

    // The blur reaches inwards as far as outwards: in the middle of a side longer than twice that
    // and the corner's reach, nothing changes along it.
    const int corner = int(std::ceil(cornerReach(cornerRadius))) + blurRadius;
    const int longest = 2 * corner + 1;
    const QSize shape = size.boundedTo({ longest, longest });
    const int border = corner + blurRadius;
    const int sideBorder = shape.width() == longest ? border : 0;
    const int endBorder = shape.height() == longest ? border : 0;

    const PatchKey key{ shape, cornerRadius, blurRadius, color.rgba() };
    const QSize pixels = shape.grownBy({ blurRadius, blurRadius, blurRadius, blurRadius });
    const auto make
        = [=] { return softBlur(roundedMask(shape, cornerRadius, blurRadius), blurRadius, color); };
    return { .picture = pictures.picture(key, qsizetype(4) * pixels.width() * pixels.height(),
                 [&] { return runAsync(make); }),
        .sideBorder = sideBorder,
        .endBorder = endBorder };
}

} // namespace Painting
