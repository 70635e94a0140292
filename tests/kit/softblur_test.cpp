#include "kit/softblur.h"

#include "kit/continuouspath.h"
#include "kit/printing.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace Painting;

namespace {

// Six passes, three along each axis, each round by up to half a level.
constexpr int kRoundingLevels = 3;

struct ShadowPatch {
    QImage image;
    int sideBorder;
    int endBorder;
};

ShadowPatch shadowPatch(QSize size, int cornerRadius, int blurRadius, const QColor &color)
{
    const NinePatch patch = shadowPatchAsync(size, cornerRadius, blurRadius, color);
    return { patch.picture.get(), patch.sideBorder, patch.endBorder };
}

QImage blank(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage boxMask(QSize size, const QRect &box)
{
    QImage mask = blank(size);
    QPainter(&mask).fillRect(box, Qt::black);
    return mask;
}

int opacity(const QImage &image, int x, int y)
{
    return qAlpha(image.pixel(x, y));
}

double totalOpacity(const QImage &image)
{
    double total = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            total += opacity(image, x, y);
    }
    return total;
}

// The smallest rectangle that holds everything that isn't quite transparent.
QRect extent(const QImage &image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (opacity(image, x, y) > 0)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

// The shadow of a rounded rectangle, blurred at its full size.
QImage blurredShape(QSize size, int cornerRadius, int blurRadius)
{
    const QMargins margin(blurRadius, blurRadius, blurRadius, blurRadius);
    QImage mask = blank(size.grownBy(margin));
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(
            continuousPath(QRectF(mask.rect().marginsRemoved(margin)), cornerRadius), Qt::black);
    }
    return softBlur(mask, blurRadius, Qt::black);
}

// What a nine-patch of the picture looks like over an area of `size`.
QImage stretched(const ShadowPatch &patch, QSize size)
{
    QImage result = blank(size);
    const auto source = [](int at, int length, int whole, int border) {
        if (border == 0 || at < border)
            return at;
        const int fromEnd = length - 1 - at;
        return fromEnd < border ? whole - 1 - fromEnd : border;
    };
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            result.setPixel(x, y,
                patch.image.pixel(source(x, size.width(), patch.image.width(), patch.sideBorder),
                    source(y, size.height(), patch.image.height(), patch.endBorder)));
        }
    }
    return result;
}

} // namespace

TEST(SoftBlur, WithoutRadiusIsTheMaskInTheColor)
{
    QImage mask = blank({ 4, 3 });
    mask.setPixel(1, 1, qRgba(0, 0, 0, 255));
    mask.setPixel(2, 1, qRgba(0, 0, 0, 100));
    const QImage result = softBlur(mask, 0, Qt::red);
    EXPECT_EQ(result.size(), QSize(4, 3));
    EXPECT_EQ(result.pixel(0, 0), qRgba(0, 0, 0, 0));
    EXPECT_EQ(result.pixel(1, 1), qRgba(255, 0, 0, 255));
    EXPECT_EQ(opacity(result, 2, 1), 100);
}

TEST(SoftBlur, GivesPremultipliedPixelsOfTheMasksSizeAndRatio)
{
    QImage mask = boxMask({ 40, 30 }, { 10, 10, 20, 10 });
    mask.setDevicePixelRatio(2);
    const QImage result = softBlur(mask, 6, Qt::white);
    EXPECT_EQ(result.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(result.size(), QSize(40, 30));
    EXPECT_EQ(result.devicePixelRatio(), 2);
}

TEST(SoftBlur, LooksAtTheMasksOpacityAlone)
{
    QImage red = blank({ 30, 30 });
    QPainter(&red).fillRect(10, 10, 10, 10, Qt::red);
    const QImage black = boxMask({ 30, 30 }, { 10, 10, 10, 10 });
    EXPECT_EQ(softBlur(red, 6, Qt::blue), softBlur(black, 6, Qt::blue));
    EXPECT_EQ(softBlur(black.convertToFormat(QImage::Format_Alpha8), 6, Qt::blue),
        softBlur(black, 6, Qt::blue));
}

TEST(SoftBlur, LeavesTheMaskAsItIs)
{
    const QImage mask = boxMask({ 30, 30 }, { 10, 10, 10, 10 });
    const QImage before = mask.copy();
    EXPECT_NE(softBlur(mask, 6, Qt::blue), mask);
    EXPECT_EQ(mask, before);
}

TEST(SoftBlur, WearsTheColorEverywhere)
{
    const QImage result
        = softBlur(boxMask({ 60, 60 }, { 20, 20, 20, 20 }), 9, QColor(200, 100, 50));
    for (int x = 0; x < 60; ++x) {
        const QRgb pixel = result.pixel(x, 30);
        EXPECT_NEAR(qRed(pixel), 200 * qAlpha(pixel) / 255.0, 1);
        EXPECT_NEAR(qGreen(pixel), 100 * qAlpha(pixel) / 255.0, 1);
        EXPECT_NEAR(qBlue(pixel), 50 * qAlpha(pixel) / 255.0, 1);
    }
}

TEST(SoftBlur, IsAsTranslucentAsTheColor)
{
    const QImage result
        = softBlur(boxMask({ 60, 60 }, { 0, 0, 60, 60 }), 6, QColor(255, 255, 255, 51));
    EXPECT_EQ(opacity(result, 30, 30), 51);
    EXPECT_EQ(softBlur(boxMask({ 9, 9 }, { 0, 0, 9, 9 }), 0, Qt::transparent), blank({ 9, 9 }));
}

TEST(SoftBlur, KeepsTheOpacityInAllWhateverTheRadius)
{
    const QImage mask = boxMask({ 120, 120 }, { 40, 40, 40, 40 });
    for (const int radius : { 1, 2, 3, 5, 8, 9, 12, 20, 28, 39 }) {
        const double total = totalOpacity(softBlur(mask, radius, Qt::black));
        EXPECT_NEAR(total / totalOpacity(mask), 1, 0.01) << radius;
    }
}

TEST(SoftBlur, SpreadsNoFurtherThanItsRadius)
{
    const QRect box(60, 60, 30, 20);
    for (int radius = 0; radius <= 50; ++radius) {
        const QRect reach = extent(softBlur(boxMask({ 150, 150 }, box), radius, Qt::black));
        EXPECT_TRUE(box.adjusted(-radius, -radius, radius, radius).contains(reach)) << radius;
        EXPECT_TRUE(reach.contains(box)) << radius;
    }
}

TEST(SoftBlur, IsNotCutOffByAMarginOfItsRadius)
{
    // The same shape with room to spare gives the same picture.
    for (int radius = 0; radius <= 30; ++radius) {
        const int side = 40 + 2 * radius;
        const QImage tight
            = softBlur(boxMask({ side, side }, { radius, radius, 40, 40 }), radius, Qt::black);
        const QImage roomy
            = softBlur(boxMask({ side + 40, side + 40 }, { radius + 20, radius + 20, 40, 40 }),
                radius, Qt::black);
        EXPECT_EQ(roomy.copy(20, 20, side, side), tight) << radius;
        EXPECT_EQ(totalOpacity(roomy), totalOpacity(tight)) << radius;
    }
}

TEST(SoftBlur, SpreadsOverMostOfItsRadius)
{
    // The last levels of a wide blur fade below what a byte can hold.
    for (int radius = 1; radius <= 28; ++radius) {
        const QImage result
            = softBlur(boxMask({ 150, 150 }, { 60, 60, 30, 30 }), radius, Qt::black);
        EXPECT_GE(60 - extent(result).left(), radius * 2 / 3) << radius;
    }
}

TEST(SoftBlur, OfAFractionOfAPixelReachesTheWholePixelsOfIt)
{
    const QImage mask = boxMask({ 90, 90 }, { 30, 30, 30, 30 });
    EXPECT_EQ(softBlur(mask, 10.9, Qt::black), softBlur(mask, 10, Qt::black));
    EXPECT_EQ(softBlur(mask, 0.9, Qt::black), softBlur(mask, 0, Qt::black));
}

TEST(SoftBlur, IsUniformFarInside)
{
    for (const int radius : { 3, 8, 14, 28 }) {
        const QRect box(30, 30, 120, 120);
        const QImage result = softBlur(boxMask({ 180, 180 }, box), radius, Qt::black);
        const QRect inside = box.adjusted(radius, radius, -radius, -radius);
        for (int y = inside.top(); y <= inside.bottom(); ++y) {
            for (int x = inside.left(); x <= inside.right(); ++x)
                ASSERT_EQ(opacity(result, x, y), 255) << radius << " at " << x << ", " << y;
        }
    }
}

TEST(SoftBlur, IsHalfAsOpaqueOnAStraightEdge)
{
    // Beside the edge as much lies above one half as below it.
    const QImage result = softBlur(boxMask({ 200, 200 }, { 50, 50, 100, 100 }), 20, Qt::black);
    EXPECT_NEAR(opacity(result, 49, 100) + opacity(result, 50, 100), 255, kRoundingLevels);
    EXPECT_NEAR(opacity(result, 100, 149) + opacity(result, 100, 150), 255, kRoundingLevels);
}

TEST(SoftBlur, FadesSteadilyAcrossAnEdge)
{
    const QImage result = softBlur(boxMask({ 200, 200 }, { 50, 50, 100, 100 }), 24, Qt::black);
    for (int x = 1; x <= 100; ++x)
        EXPECT_GE(opacity(result, x, 100), opacity(result, x - 1, 100)) << x;
}

TEST(SoftBlur, IsTheSameFromAllSides)
{
    const QImage result = softBlur(boxMask({ 101, 101 }, { 30, 30, 41, 41 }), 17, Qt::black);
    EXPECT_EQ(result, result.mirrored(true, false));
    EXPECT_EQ(result, result.mirrored(false, true));
    for (int y = 0; y < 101; ++y) {
        for (int x = 0; x < y; ++x)
            EXPECT_NEAR(opacity(result, x, y), opacity(result, y, x), 1);
    }
}

TEST(SoftBlur, ComesCloseToAGaussian)
{
    // Across a straight edge a Gaussian gives the error function.
    for (const int radius : { 6, 9, 14, 20, 28, 40 }) {
        const QImage result
            = softBlur(boxMask({ 300, 300 }, { 100, 100, 100, 100 }), radius, Qt::black);
        const double sigma = radius / 3.0 + 0.5;
        for (int x = 100 - radius; x < 100 + radius; ++x) {
            const double expected = 0.5 * std::erfc((100 - (x + 0.5)) / (sigma * std::sqrt(2.0)));
            EXPECT_NEAR(opacity(result, x, 150) / 255.0, expected, 0.03) << radius << " at " << x;
        }
    }
}

TEST(SoftBlur, OfNothingIsNothing)
{
    EXPECT_TRUE(softBlur(QImage(), 10, Qt::black).isNull());
    EXPECT_EQ(totalOpacity(softBlur(blank({ 30, 20 }), 10, Qt::black)), 0);
    EXPECT_EQ(softBlur(boxMask({ 1, 1 }, { 0, 0, 1, 1 }), 50, Qt::black).size(), QSize(1, 1));
}

TEST(ShadowPatch, OfALargeShapeIsASmallPictureWithOneLineToStretch)
{
    const ShadowPatch patch = shadowPatch({ 900, 500 }, 20, 12, Qt::black);
    EXPECT_GT(patch.sideBorder, 0);
    EXPECT_EQ(patch.endBorder, patch.sideBorder);
    EXPECT_EQ(patch.image.width(), 2 * patch.sideBorder + 1);
    EXPECT_EQ(patch.image.height(), 2 * patch.endBorder + 1);
    EXPECT_LT(patch.image.width(), 200);
}

TEST(ShadowPatch, StretchedIsTheShadowOfTheWholeShape)
{
    struct Shape {
        QSize size;
        int corner;
        int blur;
    };
    for (const Shape &shape : { Shape{ { 300, 200 }, 20, 12 }, Shape{ { 160, 260 }, 10, 5 },
             Shape{ { 200, 200 }, 0, 8 }, Shape{ { 220, 150 }, 16, 20 } }) {
        SCOPED_TRACE(shape.corner);
        const QImage whole = blurredShape(shape.size, shape.corner, shape.blur);
        const ShadowPatch patch = shadowPatch(shape.size, shape.corner, shape.blur, Qt::black);
        ASSERT_GT(patch.sideBorder, 0);
        ASSERT_GT(patch.endBorder, 0);
        const QImage nine = stretched(patch, whole.size());
        for (int y = 0; y < whole.height(); ++y) {
            for (int x = 0; x < whole.width(); ++x)
                ASSERT_NEAR(opacity(nine, x, y), opacity(whole, x, y), 2) << x << ", " << y;
        }
    }
}

TEST(ShadowPatch, ServesEveryLargeSize)
{
    const QColor color(0, 0, 0, 90);
    const ShadowPatch one = shadowPatch({ 900, 500 }, 20, 12, color);
    const ShadowPatch other = shadowPatch({ 400, 3000 }, 20, 12, color);
    EXPECT_EQ(one.image.cacheKey(), other.image.cacheKey());
    EXPECT_EQ(one.sideBorder, other.sideBorder);
}

TEST(ShadowPatch, OfASmallShapeFitsThatShapeAlone)
{
    const ShadowPatch patch = shadowPatch({ 24, 10 }, 5, 4, Qt::black);
    EXPECT_EQ(patch.sideBorder, 0);
    EXPECT_EQ(patch.endBorder, 0);
    EXPECT_EQ(patch.image.size(), QSize(24 + 8, 10 + 8));
    EXPECT_NE(patch.image.size(), shadowPatch({ 25, 10 }, 5, 4, Qt::black).image.size());
}

TEST(ShadowPatch, OfAShapeThatIsShortOnOneSideIsStretchedAlongTheOther)
{
    for (const QSize size : { QSize(900, 12), QSize(12, 900), QSize(201, 20), QSize(20, 201) }) {
        SCOPED_TRACE(size.width());
        const ShadowPatch patch = shadowPatch(size, 6, 4, Qt::black);
        EXPECT_EQ(patch.sideBorder > 0, size.width() > size.height());
        EXPECT_EQ(patch.endBorder > 0, size.height() > size.width());
        const QImage whole = blurredShape(size, 6, 4);
        const QImage shown = stretched(patch, whole.size());
        for (int y = 0; y < whole.height(); ++y) {
            for (int x = 0; x < whole.width(); ++x)
                ASSERT_NEAR(opacity(shown, x, y), opacity(whole, x, y), 1) << x << ", " << y;
        }
    }
}

TEST(ShadowPatch, OfALowShapeServesEveryWidth)
{
    const QImage one = shadowPatch({ 1200, 75 }, 22, 8, Qt::black).image;
    for (int width = 400; width < 1200; ++width)
        ASSERT_EQ(shadowPatch({ width, 75 }, 22, 8, Qt::black).image.cacheKey(), one.cacheKey());
}

TEST(ShadowPatch, IsLetGoAfterManyOthers)
{
    const QImage first = shadowPatch({ 200, 200 }, 40, 40, Qt::black).image;
    for (int width = 201; width < 1001; ++width)
        std::ignore = shadowPatch({ 200, 200 }, 40, 40, QColor(width % 256, width / 256, 0));
    EXPECT_NE(shadowPatch({ 200, 200 }, 40, 40, Qt::black).image.cacheKey(), first.cacheKey());
}

TEST(ShadowPatch, BeginsToStretchWhereOneLineIsLeftInTheMiddle)
{
    // Corners of 10 ease over 16 pixels, and the blur of 6 reaches as far inwards.
    EXPECT_EQ(shadowPatch({ 45, 45 }, 10, 6, Qt::black).sideBorder, 16 + 2 * 6);
    EXPECT_EQ(shadowPatch({ 45, 45 }, 10, 6, Qt::black).endBorder, 16 + 2 * 6);
    EXPECT_EQ(shadowPatch({ 44, 45 }, 10, 6, Qt::black).sideBorder, 0);
    EXPECT_EQ(shadowPatch({ 45, 44 }, 10, 6, Qt::black).endBorder, 0);
}

TEST(ShadowPatch, IsKeptForTheNextTime)
{
    const ShadowPatch once = shadowPatch({ 30, 20 }, 5, 4, Qt::red);
    EXPECT_EQ(shadowPatch({ 30, 20 }, 5, 4, Qt::red).image.cacheKey(), once.image.cacheKey());
}

TEST(ShadowPatch, DiffersByColorCornerAndBlur)
{
    const QImage image = shadowPatch({ 300, 200 }, 5, 4, Qt::red).image;
    EXPECT_NE(shadowPatch({ 300, 200 }, 5, 4, Qt::blue).image, image);
    EXPECT_NE(shadowPatch({ 300, 200 }, 5, 4, QColor(255, 0, 0, 128)).image, image);
    EXPECT_NE(shadowPatch({ 300, 200 }, 9, 4, Qt::red).image, image);
    EXPECT_NE(shadowPatch({ 300, 200 }, 5, 7, Qt::red).image, image);
}

TEST(ShadowPatch, WithoutBlurIsTheShapeItself)
{
    const ShadowPatch patch = shadowPatch({ 20, 20 }, 0, 0, Qt::black);
    EXPECT_EQ(opacity(patch.image, 0, 0), 255);
    EXPECT_EQ(opacity(patch.image, patch.image.width() - 1, patch.image.height() - 1), 255);
}

TEST(ShadowPatch, OfAnEmptyShapeShowsNothing)
{
    EXPECT_EQ(totalOpacity(shadowPatch({ 0, 0 }, 5, 4, Qt::black).image), 0);
}
