#include "simulator/scenerenderer.h"

#include <QColor>

#include <gtest/gtest.h>

#include <cmath>

namespace {

QImage gray(int value)
{
    QImage image(480, 300, QImage::Format_RGBA8888_Premultiplied);
    image.fill(QColor(value, value, value));
    return image;
}

QRectF scaled(const QRectF &region, const QImage &image)
{
    return { region.x() * image.width(), region.y() * image.height(),
        region.width() * image.width(), region.height() * image.height() };
}

} // namespace

TEST(SceneMetrics, OfAUniformPictureAreItsGrayAlone)
{
    const SceneMetrics metrics = SceneRenderer::metrics(gray(128));
    EXPECT_NEAR(metrics.meanLuma, 128 / 255.0, 1e-12);
    EXPECT_NEAR(metrics.backgroundDetail, 0, 1e-12);
    EXPECT_NEAR(metrics.moverDetail, 0, 1e-12);
    EXPECT_NEAR(metrics.subjectDetail, 0, 1e-12);
    EXPECT_NEAR(metrics.noise, 0, 1e-9);
}

TEST(SceneMetrics, WeighColorsAsVideoDoes)
{
    QImage image = gray(0);
    image.fill(QColor(255, 0, 0));
    EXPECT_NEAR(SceneRenderer::metrics(image).meanLuma, 0.2126, 1e-12);
    image.fill(QColor(0, 255, 0));
    EXPECT_NEAR(SceneRenderer::metrics(image).meanLuma, 0.7152, 1e-12);
    image.fill(QColor(0, 0, 255));
    EXPECT_NEAR(SceneRenderer::metrics(image).meanLuma, 0.0722, 1e-12);
}

TEST(SceneMetrics, LookForGrainOnTheSkyAlone)
{
    QImage image = gray(128);
    const QRectF sky = scaled(SceneRenderer::skyRegion, image);
    const auto sprinkle = [&image](int x, int y) { image.setPixel(x, y, qRgb(200, 200, 200)); };
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2) {
            if (!sky.adjusted(-3, -3, 3, 3).contains(x, y))
                sprinkle(x, y);
        }
    }
    EXPECT_NEAR(SceneRenderer::metrics(image).noise, 0, 1e-9);
    sprinkle(static_cast<int>(sky.center().x()), static_cast<int>(sky.center().y()));
    EXPECT_GT(SceneRenderer::metrics(image).noise, 0.001);
}

TEST(SceneMetrics, MeasureDetailUpToTheRegionsLastPixel)
{
    // The lights' region spans x from 24 to 216 and y from 90 to 138, both inclusive.
    const auto detailOfDotAt = [](int x, int y) {
        QImage image = gray(0);
        image.setPixel(x, y, qRgb(255, 255, 255));
        return SceneRenderer::metrics(image).backgroundDetail;
    };
    // A dot inside counts eight times (four itself, one at each neighbor), one just outside once.
    constexpr double pixels = 193 * 49;
    EXPECT_NEAR(detailOfDotAt(100, 100), 8 / pixels, 1e-12);
    EXPECT_NEAR(detailOfDotAt(216, 138), 6 / pixels, 1e-12);
    EXPECT_NEAR(detailOfDotAt(217, 120), 1 / pixels, 1e-12);
    EXPECT_NEAR(detailOfDotAt(218, 120), 0, 1e-12);
    EXPECT_NEAR(detailOfDotAt(24, 90), 6 / pixels, 1e-12);
    EXPECT_NEAR(detailOfDotAt(23, 120), 1 / pixels, 1e-12);
    EXPECT_NEAR(detailOfDotAt(22, 120), 0, 1e-12);
}

TEST(SceneMetrics, ReadOneRowAndColumnInThreeForTheMean)
{
    QImage image = gray(0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (x % 3 != 0 || y % 3 != 0)
                image.setPixel(x, y, qRgb(255, 255, 255));
        }
    }
    EXPECT_EQ(SceneRenderer::metrics(image).meanLuma, 0);
}
