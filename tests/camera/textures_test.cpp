#include "camera/textures.h"

#include "kit/printing.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QColor kTint(40, 90, 160);

struct Pebble {
    double left;
    double top;
    double diameter;
    double opacity;
};

// The pebbles of the tile, worked out from the numbers that define the leather: seed 42, rows and
// columns 5 points apart, odd rows moved by half of that, and four draws for each pebble.
std::vector<Pebble> pebbles()
{
    std::vector<Pebble> result;
    quint64 s = 42;
    const auto draw = [&s] {
        s = s * 6364136223846793005ULL + 1442695040888963407ULL;
        return double(s >> 33) / 2147483647.0;
    };
    for (int y = 0; y <= 155; y += 5) {
        for (double x = (y / 5) % 2 == 1 ? 2.5 : 0.0; x < 160; x += 5) {
            const double r1 = draw();
            const double r2 = draw();
            const double r3 = draw();
            const double r4 = draw();
            result.push_back({ x + 2 * r3, y + 2 * r4, r1 * 1.4 + 1.0, r2 * 0.4 + 0.35 });
        }
    }
    return result;
}

double opacitySum(const QImage &image, const QRect &area)
{
    double sum = 0;
    const QRect seen = area & image.rect();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    }
    return sum;
}

QImage knurled(QSize size, QSizeF area)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    Textures::paintKnurl(painter, area);
    return image;
}

struct Line {
    QPointF from;
    QPointF to;
};

std::vector<Line> lines(const QPainterPath &path)
{
    std::vector<Line> result;
    EXPECT_EQ(path.elementCount() % 2, 0);
    for (int i = 0; i + 1 < path.elementCount(); i += 2) {
        EXPECT_TRUE(path.elementAt(i).isMoveTo());
        EXPECT_TRUE(path.elementAt(i + 1).isLineTo());
        result.push_back({ path.elementAt(i), path.elementAt(i + 1) });
    }
    return result;
}

} // namespace

TEST(LeatherTile, Is160PointsSquare)
{
    EXPECT_EQ(Textures::leatherTileSide, 160);
    const QImage tile = Textures::leatherTile(kTint);
    EXPECT_EQ(tile.size(), QSize(160, 160));
    EXPECT_EQ(tile.devicePixelRatio(), 1);
    EXPECT_TRUE(tile.hasAlphaChannel());
}

TEST(LeatherTile, HasThePixelsOfItsScale)
{
    const QImage twice = Textures::leatherTile(kTint, 2);
    EXPECT_EQ(twice.size(), QSize(320, 320));
    EXPECT_EQ(twice.devicePixelRatio(), 2);
    const QImage larger = Textures::leatherTile(kTint, 1.15);
    EXPECT_EQ(larger.size(), QSize(184, 184));
    EXPECT_EQ(larger.deviceIndependentSize(), QSizeF(160, 160));
}

TEST(LeatherTile, IsAWholeNumberOfPixelsAtEveryZoom)
{
    for (int percent = 85; percent <= 200; percent += 5) {
        const QImage tile = Textures::leatherTile(kTint, percent / 100.0);
        EXPECT_GE(tile.width(), 160 * percent / 100.0 - 1e-9) << percent;
        EXPECT_LT(tile.width(), 160 * percent / 100.0 + 1) << percent;
        EXPECT_NEAR(tile.deviceIndependentSize().width(), 160, 1e-9) << percent;
    }
}

TEST(LeatherTile, Holds1024PebblesThatNeverTouch)
{
    const std::vector<Pebble> all = pebbles();
    EXPECT_EQ(all.size(), 1024u);
    for (const Pebble &pebble : all) {
        EXPECT_GE(pebble.diameter, 1.0);
        EXPECT_LE(pebble.diameter, 2.4);
        EXPECT_GE(pebble.opacity, 0.35);
        EXPECT_LE(pebble.opacity, 0.75);
    }
}

TEST(LeatherTile, HasEachPebbleInItsPlaceSizeAndStrength)
{
    constexpr int kScale = 8;
    const QImage tile = Textures::leatherTile(kTint, kScale);
    ASSERT_EQ(tile.width(), 160 * kScale);
    for (const Pebble &pebble : pebbles()) {
        const double radius = pebble.diameter / 2;
        const QPointF center(pebble.left + radius, pebble.top + radius);
        SCOPED_TRACE(::testing::PrintToString(center));

        // Those of the last column may lie beyond the tile's edge.
        if (center.x() < 159.9) {
            const QColor inside = tile.pixelColor((center * kScale).toPoint());
            ASSERT_NEAR(inside.alphaF(), pebble.opacity, 0.006);
            ASSERT_NEAR(inside.red(), kTint.red(), 2);
            ASSERT_NEAR(inside.green(), kTint.green(), 2);
            ASSERT_NEAR(inside.blue(), kTint.blue(), 2);
        }
        if (pebble.left + pebble.diameter < 160) {
            // Each pebble has its surroundings to itself, so what is there is its area.
            const QRect around = QRectF((pebble.left - 0.2) * kScale, (pebble.top - 0.2) * kScale,
                (pebble.diameter + 0.4) * kScale, (pebble.diameter + 0.4) * kScale)
                                     .toAlignedRect();
            const double area = std::numbers::pi * std::pow(radius * kScale, 2);
            ASSERT_NEAR(opacitySum(tile, around) / (area * pebble.opacity), 1, 0.03);
        }
    }
}

TEST(LeatherTile, HoldsNothingButItsPebbles)
{
    constexpr int kScale = 8;
    // Those that the tile's edge cuts are too few to matter below.
    double expected = 0;
    for (const Pebble &pebble : pebbles()) {
        if (pebble.left + pebble.diameter < 160)
            expected
                += std::numbers::pi * std::pow(pebble.diameter / 2 * kScale, 2) * pebble.opacity;
    }
    const QImage tile = Textures::leatherTile(kTint, kScale);
    EXPECT_NEAR(opacitySum(tile, tile.rect()) / expected, 1, 0.02);
    // Pebbles of a row end 0.6 points above the next row at the latest.
    for (int row = 0; row < 32; ++row)
        EXPECT_EQ(opacitySum(tile, QRect(0, int((row * 5 + 4.5) * kScale), 160 * kScale, 1)), 0);
}

TEST(LeatherTile, IsByteForByteWhatItsNumbersSay)
{
    const std::vector<Pebble> all = pebbles();
    const QImage tile = Textures::leatherTile(QColor(255, 255, 255), 8);
    QImage again(tile.size(), QImage::Format_ARGB32_Premultiplied);
    again.fill(Qt::transparent);
    {
        QPainter painter(&again);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.scale(8, 8);
        for (const Pebble &pebble : all) {
            painter.setBrush(QColor::fromRgbF(1, 1, 1, float(pebble.opacity)));
            painter.drawEllipse(QRectF(pebble.left, pebble.top, pebble.diameter, pebble.diameter));
        }
    }
    again.setDevicePixelRatio(tile.devicePixelRatio());
    EXPECT_EQ(tile, again);
}

TEST(LeatherTile, IsKeptForTheNextTime)
{
    const QImage tile = Textures::leatherTile(kTint);
    EXPECT_EQ(Textures::leatherTile(QColor(40, 90, 160)).cacheKey(), tile.cacheKey());
}

TEST(LeatherTile, OfAnotherTintIsAnotherTileAndTheOldOneStays)
{
    const QImage tile = Textures::leatherTile(kTint);
    const QImage other = Textures::leatherTile(QColor(160, 90, 40));
    EXPECT_NE(other, tile);
    EXPECT_NE(other.cacheKey(), tile.cacheKey());
    EXPECT_EQ(Textures::leatherTile(kTint).cacheKey(), tile.cacheKey());
}

TEST(LeatherTile, OfAnotherScaleIsAnotherTile)
{
    const QImage tile = Textures::leatherTile(kTint, 1);
    EXPECT_NE(Textures::leatherTile(kTint, 1.15).cacheKey(), tile.cacheKey());
    EXPECT_EQ(Textures::leatherTile(kTint, 1).cacheKey(), tile.cacheKey());
}

TEST(LeatherTile, OfAColorInAnotherNotationIsTheSameTile)
{
    EXPECT_EQ(Textures::leatherTile(kTint.toHsv()).cacheKey(),
        Textures::leatherTile(kTint.toHsv().toRgb()).cacheKey());
}

TEST(LeatherTile, OfNoColorIsGray)
{
    const QImage tile = Textures::leatherTile(QColor());
    EXPECT_EQ(tile, Textures::leatherTile(QColor(128, 128, 128)));
    EXPECT_NE(tile, Textures::leatherTile(kTint));
}

TEST(KnurlPath, CrossesItsLinesAt45Degrees)
{
    constexpr double w = 58;
    constexpr double h = 30;
    const std::vector<Line> drawn = lines(Textures::knurlPath({ w, h }));
    // From −30 in steps of 7 below 88: 17 lines each way.
    ASSERT_EQ(drawn.size(), 34u);
    for (size_t i = 0; i < 17; ++i) {
        const double x = -h + 7 * double(i);
        EXPECT_EQ(drawn[i].from, QPointF(x, 0));
        EXPECT_EQ(drawn[i].to, QPointF(x + h, h));
        EXPECT_EQ(drawn[17 + i].from, QPointF(x + h, 0));
        EXPECT_EQ(drawn[17 + i].to, QPointF(x, h));
    }
}

TEST(KnurlPath, StopsBeforeItsEnd)
{
    // From −7 below 28: a line at 28 itself is one too many.
    EXPECT_EQ(lines(Textures::knurlPath({ 21, 7 })).size(), 10u);
    EXPECT_EQ(lines(Textures::knurlPath({ 21.01, 7 })).size(), 12u);
}

TEST(KnurlPath, OfNoAreaIsEmpty)
{
    EXPECT_TRUE(Textures::knurlPath({ 0, 0 }).isEmpty());
}

TEST(Knurl, StaysWithinItsArea)
{
    const QImage image = knurled({ 60, 60 }, { 40, 30 });
    EXPECT_GT(opacitySum(image, { 0, 0, 40, 30 }), 0);
    EXPECT_EQ(opacitySum(image, { 40, 0, 20, 60 }), 0);
    EXPECT_EQ(opacitySum(image, { 0, 30, 60, 30 }), 0);
}

TEST(Knurl, IsADarkGrooveWithAFaintLitEdge)
{
    const QImage image = knurled({ 58, 58 }, { 58, 58 });
    int darkest = 0;
    int lit = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            darkest = std::max(darkest, pixel.alpha());
            if (pixel.alpha() > 0 && pixel.red() > 200)
                ++lit;
        }
    }
    // The groove is black at 55 %, and the edge beside it white.
    EXPECT_NEAR(darkest, 0.55 * 255, 12);
    EXPECT_GT(lit, 0);
}

TEST(Knurl, LeavesThePainterAsItWas)
{
    QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    painter.translate(3, 4);
    const QTransform before = painter.transform();
    Textures::paintKnurl(painter, { 20, 20 });
    EXPECT_EQ(painter.transform(), before);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::red));
    EXPECT_FALSE(painter.hasClipping());
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}
