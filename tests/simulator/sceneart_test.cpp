#include "simulator/sceneart.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Paint = QImage (*)(int, int);

int alphaAt(const QImage &image, int x, int y)
{
    return qAlpha(image.pixel(x, y));
}

QRect visiblePart(const QImage &image)
{
    QRect visible;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (alphaAt(image, x, y) > 0)
                visible |= QRect(x, y, 1, 1);
        }
    }
    return visible;
}

} // namespace

TEST(SceneArt, PaintsAtAnySize)
{
    for (const QSize size :
        { QSize(720, 450), QSize(360, 225), QSize(1, 1), QSize(37, 1000), QSize(1000, 3) }) {
        for (const Paint paint : { SceneArt::background, SceneArt::cyclist, SceneArt::subject }) {
            const QImage image = paint(size.width(), size.height());
            EXPECT_EQ(image.size(), size);
            EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
        }
    }
}

TEST(SceneArt, PaintsTheSameTownEveryTime)
{
    for (const Paint paint : { SceneArt::background, SceneArt::cyclist, SceneArt::subject })
        EXPECT_EQ(paint(480, 300), paint(480, 300));
}

TEST(SceneArt, HasAnOpaqueBackground)
{
    const QImage town = SceneArt::background(480, 300);
    for (int y = 0; y < town.height(); ++y) {
        for (int x = 0; x < town.width(); ++x)
            ASSERT_EQ(alphaAt(town, x, y), 255);
    }
}

TEST(SceneArt, ShadesTheSkyAtPixelCenters)
{
    const QImage town = SceneArt::background(720, 450);
    for (const int y : { 0, 1, 30, 60 }) {
        const double t = (y + 0.5) / (0.55 * 450);
        const auto mix = [t](double from, double to) {
            return static_cast<int>(std::floor((from + (to - from) * t) * 255 + 0.5));
        };
        EXPECT_EQ(town.pixel(700, y), qRgb(mix(0.36, 0.78), mix(0.46, 0.6), mix(0.66, 0.52))) << y;
        EXPECT_EQ(town.pixel(0, y), town.pixel(700, y));
    }
}

TEST(SceneArt, LaysARoadAcrossThePark)
{
    const QImage town = SceneArt::background(720, 450);
    EXPECT_EQ(town.pixel(300, 320), qRgb(133, 122, 107)); // 0.52, 0.48, 0.42
    EXPECT_EQ(town.pixel(300, 360), qRgb(51, 77, 46));    // 0.2, 0.3, 0.18, halves up
}

TEST(SceneArt, HangsHalfABulbAtEachEdge)
{
    const QImage town = SceneArt::background(720, 450);
    const int y = 153 + 3; // 0.34 of the height, and the bulb's middle under it
    EXPECT_EQ(town.pixel(0, y), qRgb(255, 235, 140));   // the first of three colors
    EXPECT_EQ(town.pixel(719, y), qRgb(255, 235, 140)); // bulb 33 has the same
}

TEST(SceneArt, KeepsTheCyclistsTiresOnTheRoad)
{
    const int h = 450;
    const QRect visible = visiblePart(SceneArt::cyclist(720, h));
    // The tire touches 0.715 of the height, and is drawn 3 pixels wide.
    EXPECT_EQ(visible.bottom(), static_cast<int>(std::ceil(0.715 * h + 1.5)) - 1);
    EXPECT_GT(0.715 * h, 0.7 * h);
    EXPECT_LT(0.715 * h, 0.77 * h);
}

TEST(SceneArt, PaintsTheCyclistInASmallPartOfTheFrame)
{
    const QRect visible = visiblePart(SceneArt::cyclist(720, 450));
    EXPECT_GT(visible.left(), 0.3 * 720);
    EXPECT_LT(visible.right(), 0.52 * 720);
    EXPECT_GT(visible.top(), 0.45 * 450);
}

TEST(SceneArt, WeavesTheShirtEverySixPixels)
{
    const QImage person = SceneArt::subject(720, 450);
    // The shirt begins at 0.63 of the width, 453.6: a thread covers 453.1 to 454.1, and the next
    // ones follow every six pixels.
    const int y = 400;
    for (int x = 470; x < 560; ++x)
        EXPECT_EQ(person.pixel(x, y), person.pixel(x + 6, y)) << x;
    EXPECT_NE(person.pixel(471, y), person.pixel(474, y));
}

TEST(SceneArt, RunsTheShirtOffTheBottomOfTheFrame)
{
    const QImage person = SceneArt::subject(720, 450);
    EXPECT_EQ(alphaAt(person, 533, 449), 255);
    EXPECT_EQ(alphaAt(person, 100, 449), 0);
}

TEST(SceneArt, Smiles)
{
    const QImage person = SceneArt::subject(720, 450);
    const auto mouth = [&person](int x, int y) {
        const QRgb pixel = person.pixel(x, y);
        return qRed(pixel) > qGreen(pixel) + 60 && qRed(pixel) < 140;
    };
    // The arc passes 0.016 of the width under its center, and not over it.
    const int cx = 533;
    const int cy = static_cast<int>(0.45 * 450);
    EXPECT_TRUE(mouth(cx, cy + 11));
    EXPECT_FALSE(mouth(cx, cy - 11));
}
