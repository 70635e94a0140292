// Pictures on the screen: pixel for pixel at every magnification.

#include "kit/qml/continuousframe.h"
#include "kit/qml/continuousrectangle.h"
#include "kit/qml/painteditem.h"
#include "kit/qml/softshadow.h"

#include "kit/gradients.h"
#include "kit/preferences.h"
#include "kit/printing.h"
#include "kit/zoom.h"

#include <QPainter>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr QSize kWindow(900, 700);

int darkness(const QImage &picture, int x, int y)
{
    return 255 - qGray(picture.pixel(x, y));
}

// The smallest rectangle that holds everything that isn't white.
QRect extent(const QImage &picture)
{
    QRect box;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (darkness(picture, x, y) > 0)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

QImage shapeIn(const QImage &picture)
{
    return picture.copy(extent(picture)).convertToFormat(QImage::Format_RGB32);
}

// The rasterizer's edges are a few levels apart on opposite sides of a shape.
constexpr int kRasterLevels = 10;

// In levels; 255 if the sizes differ.
int largestDifference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 255;
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            largest = std::max(largest, std::abs(darkness(one, x, y) - darkness(other, x, y)));
    }
    return largest;
}

/// A magnified interface in a white window.
class Magnified : public ::testing::TestWithParam<int>
{
protected:
    Magnified()
    {
        Preferences::shared().keepInMemory();
        m_window.resize(kWindow);
        m_window.setColor(Qt::white);
        m_stage.setParentItem(m_window.contentItem());
        m_stage.setTransformOrigin(QQuickItem::TopLeft);
    }

    void magnify(double scale) { m_stage.setScale(scale); }
    [[nodiscard]] QQuickItem *stage() { return &m_stage; }
    [[nodiscard]] QImage picture() { return m_window.grabWindow(); }

private:
    QQuickWindow m_window;
    QQuickItem m_stage;
};

class PaintedItemTest : public Magnified
{
protected:
    PaintedItemTest()
    {
        m_item.setParentItem(stage());
        m_item.setStrokeWidth(1);
        m_item.setStrokeFrom(Qt::black);
    }

    void stand(const QRectF &area)
    {
        m_item.setPosition(area.topLeft());
        m_item.setSize(area.size());
    }
    [[nodiscard]] ContinuousRectangle &item() { return m_item; }

private:
    ContinuousRectangle m_item;
};

/// Lines in all directions, but for a part.
class Lines : public PaintedItem
{
public:
    using PaintedItem::PaintedItem;

    void leaveOut(const QRectF &part) { set(m_leftOut, part); }

    void paint(QPainter *painter) override
    {
        for (double at = 0; at < width(); at += 7.3) {
            painter->drawLine(QPointF(at, 0), QPointF(width() - at, height()));
            painter->drawLine(QPointF(0, at), QPointF(width(), height() - at));
        }
    }

protected:
    [[nodiscard]] QRectF leftOut() const override { return m_leftOut; }

private:
    QRectF m_leftOut;
};

class ShadowTest : public Magnified
{
};

const auto kZooms = ::testing::Values(85, 100, 115, 130, 150, 175, 200);

} // namespace

INSTANTIATE_TEST_SUITE_P(Percent, PaintedItemTest, kZooms);
INSTANTIATE_TEST_SUITE_P(Percent, ShadowTest, kZooms);

TEST_P(PaintedItemTest, HasStrokesOfTheSameStrengthAtAllItsEdges)
{
    magnify(GetParam() / 100.0);
    // Sizes as words make them, at places as columns of words make them.
    for (const QRectF area : { QRectF(20, 30, 61.34, 18), QRectF(33.3, 47.8, 120.7, 17.5),
             QRectF(10.5, 10.5, 45, 33), QRectF(21.25, 18.75, 300.9, 211.6) }) {
        stand(area);
        const QImage shape = shapeIn(picture());
        EXPECT_LE(largestDifference(shape, shape.mirrored(true, false)), kRasterLevels)
            << area.width();
        EXPECT_LE(largestDifference(shape, shape.mirrored(false, true)), kRasterLevels)
            << area.height();
        EXPECT_GT(darkness(shape, shape.width() / 2, 0), 180) << area.width();
        EXPECT_GT(darkness(shape, 0, shape.height() / 2), 180) << area.width();
    }
}

TEST_P(PaintedItemTest, ShowsACircleRoundWhereverItStands)
{
    magnify(GetParam() / 100.0);
    item().setRadius(100);
    item().setFillFrom(Qt::black);
    for (const QRectF area : { QRectF(20, 30, 6, 6), QRectF(17.3, 29.9, 34, 34),
             QRectF(40.4, 11.6, 57.5, 57.5), QRectF(12.5, 33.25, 162, 162) }) {
        stand(area);
        const QImage shape = shapeIn(picture());
        EXPECT_EQ(shape.size(), QSize(shape.height(), shape.height()));
        EXPECT_LE(largestDifference(shape, shape.mirrored(true, false)), kRasterLevels)
            << area.width();
        EXPECT_LE(
            largestDifference(shape, shape.transformed(QTransform().rotate(90))), kRasterLevels)
            << area.width();
    }
}

TEST_P(PaintedItemTest, LooksTheSameAfterAMoveByAFraction)
{
    magnify(GetParam() / 100.0);
    item().setRadius(8);
    stand({ 40, 40, 73.2, 31.7 });
    const QImage shape = shapeIn(picture());
    for (const double by : { 0.1, 0.25, 0.5, 0.75, 0.9, 3.3 }) {
        item().setPosition({ 40, 40 + by });
        EXPECT_EQ(shapeIn(picture()), shape) << by;
        stage()->setPosition({ by, -by });
        EXPECT_EQ(shapeIn(picture()), shape) << by;
    }
}

TEST_P(PaintedItemTest, LooksAsIfItHadBeenPaintedWhole)
{
    const double scale = GetParam() / 100.0;
    magnify(scale);
    item().setFillFrom(QColor(0, 0, 0, 60));
    for (const bool isFlat : { true, false }) {
        item().setFillTo(isFlat ? QColor() : QColor(0, 0, 0, 200));
        for (const double radius : { 0.0, 9.0, 60.0 }) {
            item().setRadius(radius);
            for (const QSizeF size : { QSizeF(300.9, 211.6), QSizeF(310.3, 24), QSizeF(31, 200) }) {
                stand({ { 20.3, 30.8 }, size });
                const QRectF area({}, size);
                const QImage shape = shapeIn(picture());
                QImage whole(shape.size(), QImage::Format_RGB32);
                whole.fill(Qt::white);
                QPainter painter(&whole);
                painter.scale(whole.width() / size.width(), whole.height() / size.height());
                Painting::paintPanel(painter, area,
                    { .radius = radius,
                        .fill = Painting::verticalBrush(area, QColor(0, 0, 0, 60), {},
                            isFlat ? QColor() : QColor(0, 0, 0, 200)),
                        .stroke = QColor(Qt::black),
                        .strokeWidth = 1 });
                painter.end();
                EXPECT_LE(largestDifference(shape, whole), 2)
                    << isFlat << ' ' << radius << ' ' << size.width();
            }
        }
    }
}

TEST_P(PaintedItemTest, LooksTheSameAroundWhatItLeavesOut)
{
    const double scale = GetParam() / 100.0;
    magnify(scale);
    const QRectF area(20.3, 30.8, 310.4, 240.7);
    Lines lines(stage());
    lines.setPosition(area.topLeft());
    lines.setSize(area.size());
    const QImage whole = picture();
    for (const QRectF part : { QRectF(60.2, 50.9, 200.3, 150.1), QRectF(0, 40, 310.4, 100),
             QRectF(-50, -50, 200, 200), QRectF(300, 230, 10.4, 10.7) }) {
        lines.leaveOut(part);
        const QImage around = picture();
        const QRectF hole((area.topLeft() + part.topLeft()) * scale, part.size() * scale);
        const QRect emptied = hole.adjusted(3, 3, -3, -3).toRect() & extent(whole);
        for (int y = 0; y < whole.height(); ++y) {
            for (int x = 0; x < whole.width(); ++x) {
                if (emptied.contains(x, y)) {
                    ASSERT_EQ(darkness(around, x, y), 0) << x << ", " << y;
                } else if (!hole.contains(x + 0.5, y + 0.5)) {
                    ASSERT_EQ(around.pixel(x, y), whole.pixel(x, y)) << x << ", " << y;
                }
            }
        }
    }
}

TEST_P(PaintedItemTest, StandsWithinHalfAPixelOfItsPlace)
{
    const double scale = GetParam() / 100.0;
    magnify(scale);
    for (const double at : { 40.0, 40.2, 40.4, 40.6, 40.8 }) {
        stand({ at, at, 80, 60 });
        const QRect shown = extent(picture());
        EXPECT_NEAR(shown.left(), at * scale, 0.51);
        EXPECT_NEAR(shown.top(), at * scale, 0.51);
        EXPECT_NEAR(shown.width(), 80 * scale, 0.51);
        EXPECT_NEAR(shown.height(), 60 * scale, 0.51);
    }
}

TEST_P(PaintedItemTest, FollowsTheScaleOfEveryAncestor)
{
    const double scale = GetParam() / 100.0;
    stand({ 10, 10, 96, 48 });
    EXPECT_EQ(extent(picture()).size(), QSize(96, 48));
    QQuickItem middle;
    middle.setParentItem(stage());
    middle.setTransformOrigin(QQuickItem::TopLeft);
    middle.setScale(1.5);
    item().setParentItem(&middle);
    magnify(scale);
    const QSize expected = (QSizeF(96, 48) * scale * 1.5).toSize();
    PaintedItem painted(&middle);
    painted.setSize({ 96, 48 });
    EXPECT_EQ(painted.textureSize(), expected);
    const QImage shape = shapeIn(picture());
    EXPECT_EQ(shape.size(), expected);
    EXPECT_LE(largestDifference(shape, shape.mirrored(true, true)), kRasterLevels);
    item().setParentItem(nullptr);
}

TEST_P(PaintedItemTest, OutsideAMagnifiedTreeHasThePixelsThatItCovers)
{
    CNZoom::setValue(GetParam() / 100.0);
    PaintedItem painted(stage());
    painted.setSize({ 100, 50 });
    EXPECT_EQ(painted.textureSize(), QSize(100, 50));
    CNZoom::setValue(1);
}

TEST_F(PaintedItemTest, SurvivesBeingShrunkToNothingTurnedAndMirrored)
{
    SoftShadow shadow;
    shadow.setParentItem(stage());
    shadow.setSize({ 60, 40 });
    shadow.setBlur(5);
    stand({ 100, 100, 60, 40 });
    item().setFillFrom(Qt::black);
    const QRect usual = extent(picture());
    for (const double scale : { 0.0, 1e-9, -1.0, 1.0 }) {
        item().setScale(scale);
        shadow.setScale(scale);
        EXPECT_EQ(extent(picture()).isEmpty(), scale == 0) << scale;
    }
    EXPECT_EQ(extent(picture()), usual);
    item().setRotation(90);
    EXPECT_TRUE(extent(picture()).contains(QRect(112, 92, 36, 56)));
}

TEST_P(PaintedItemTest, AFrameHasFourCornersAndARim)
{
    const double scale = GetParam() / 100.0;
    magnify(scale);
    ContinuousFrame frame(stage());
    frame.setPosition({ 20.3, 30.8 });
    frame.setSize({ 301.2, 200.6 });
    frame.setRadius(14);
    frame.setGround(QColor(200, 30, 30));
    frame.setRim(Qt::black);
    frame.setRimWidth(1);
    const QImage shown = picture();
    const QImage shape = shapeIn(shown);
    EXPECT_LE(largestDifference(shape, shape.mirrored(true, false)), kRasterLevels);
    EXPECT_LE(largestDifference(shape, shape.mirrored(false, true)), kRasterLevels);
    EXPECT_EQ(shape.pixelColor(0, 0), QColor(200, 30, 30));
    EXPECT_GT(darkness(shape, shape.width() / 2, 0), 180);
    EXPECT_GT(darkness(shape, 0, shape.height() / 2), 180);
    for (const QPoint at : { QPoint(40, 40), QPoint(40, 5), QPoint(5, 40) })
        EXPECT_EQ(darkness(shape, int(at.x() * scale), int(at.y() * scale)), 0) << at.x();
}

TEST_P(ShadowTest, HasNoSeamAnywhere)
{
    magnify(GetParam() / 100.0);
    SoftShadow shadow;
    shadow.setParentItem(stage());
    shadow.setRadius(46);
    shadow.setBlur(16);
    for (const QRectF area : { QRectF(40.2, 50.3, 340.5, 260.9), QRectF(40, 40, 333.3, 75) }) {
        shadow.setPosition(area.topLeft());
        shadow.setSize(area.size());
        const QImage shown = picture();
        const QRect box = extent(shown);
        const QImage shape = shapeIn(shown);
        EXPECT_LE(largestDifference(shape, shape.mirrored(true, false)), kRasterLevels);
        EXPECT_LE(largestDifference(shape, shape.mirrored(false, true)), kRasterLevels);
        // Nothing turns lighter on the way to the middle.
        for (int y = box.top(); y < box.center().y(); ++y) {
            for (int x = box.left(); x < box.center().x(); ++x) {
                ASSERT_LE(darkness(shown, x, y), darkness(shown, x + 1, y)) << x << ", " << y;
                ASSERT_LE(darkness(shown, x, y), darkness(shown, x, y + 1)) << x << ", " << y;
            }
        }
        EXPECT_GT(darkness(shown, box.center().x(), box.center().y()), 200);
    }
}
