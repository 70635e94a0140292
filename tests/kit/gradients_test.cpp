#include "kit/gradients.h"

#include "kit/printing.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>

#include <gtest/gtest.h>

using namespace Painting;

using namespace Qt::StringLiterals;

namespace {

QImage painted(QSize size, const QRectF &area, const PanelStyle &style)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintPanel(painter, area, style);
    return image;
}

} // namespace

TEST(VerticalBrush, RunsDownTheAreaFromTopToBottom)
{
    const QBrush brush = verticalBrush({ 10, 20, 30, 40 }, Qt::red, {}, Qt::blue);
    const auto *gradient = static_cast<const QLinearGradient *>(brush.gradient());
    ASSERT_EQ(brush.style(), Qt::LinearGradientPattern);
    EXPECT_EQ(gradient->start(), QPointF(10, 20));
    EXPECT_EQ(gradient->finalStop(), QPointF(10, 60));
    EXPECT_EQ(
        gradient->stops(), QGradientStops({ { 0, QColor(Qt::red) }, { 1, QColor(Qt::blue) } }));
}

TEST(VerticalBrush, PassesTheMiddleHalfWay)
{
    const QBrush brush = verticalBrush({ 0, 0, 10, 10 }, Qt::red, Qt::green, Qt::blue);
    ASSERT_EQ(brush.style(), Qt::LinearGradientPattern);
    EXPECT_EQ(brush.gradient()->stops(),
        QGradientStops(
            { { 0, QColor(Qt::red) }, { 0.5, QColor(Qt::green) }, { 1, QColor(Qt::blue) } }));
}

TEST(VerticalBrush, IsFlatWithoutABottom)
{
    EXPECT_EQ(verticalBrush({ 0, 0, 10, 10 }, Qt::red, {}, {}), QBrush(Qt::red));
}

TEST(Panel, FillsItsAreaToTheEdgesAndRoundsTheCorners)
{
    const QImage image = painted({ 60, 40 }, { 5, 5, 50, 30 }, { .radius = 10, .fill = Qt::red });
    EXPECT_EQ(image.pixelColor(30, 20), QColor(Qt::red));
    // Smoothing may cost the outermost pixels a level of their opacity.
    EXPECT_GE(image.pixelColor(30, 5).alpha(), 254);
    EXPECT_GE(image.pixelColor(30, 34).alpha(), 254);
    EXPECT_GE(image.pixelColor(5, 20).alpha(), 254);
    EXPECT_GE(image.pixelColor(54, 20).alpha(), 254);
    EXPECT_EQ(image.pixelColor(5, 5).alpha(), 0);
    EXPECT_EQ(image.pixelColor(30, 4).alpha(), 0);
    EXPECT_EQ(image.pixelColor(30, 35).alpha(), 0);
}

TEST(Panel, HasItsStrokeInsideTheEdge)
{
    const QImage image = painted(
        { 60, 40 }, { 5, 5, 50, 30 }, { .radius = 8, .stroke = Qt::red, .strokeWidth = 2 });
    EXPECT_EQ(image.pixelColor(30, 4).alpha(), 0);
    EXPECT_GE(image.pixelColor(30, 5).alpha(), 254);
    EXPECT_GE(image.pixelColor(30, 6).alpha(), 254);
    EXPECT_EQ(image.pixelColor(30, 7).alpha(), 0);
    EXPECT_GE(image.pixelColor(5, 20).alpha(), 254);
    EXPECT_EQ(image.pixelColor(4, 20).alpha(), 0);
}

TEST(Panel, WithoutStrokeWidthHasNoStroke)
{
    const PanelStyle plain{ .radius = 8, .fill = Qt::red };
    PanelStyle inked = plain;
    inked.stroke = Qt::blue;
    const QRectF area(5, 5, 50, 30);
    EXPECT_EQ(painted({ 60, 40 }, area, inked), painted({ 60, 40 }, area, plain));
}

TEST(Panel, WithoutAreaPaintsNothing)
{
    const PanelStyle style{ .radius = 8, .fill = Qt::red, .stroke = Qt::blue, .strokeWidth = 2 };
    const QImage image = painted({ 20, 20 }, {}, style);
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x)
            ASSERT_EQ(image.pixelColor(x, y).alpha(), 0) << x << ", " << y;
    }
}

TEST(Gray, RunsFromBlackToWhite)
{
    EXPECT_EQ(gray(0).name(QColor::HexArgb), u"#ff000000"_s);
    EXPECT_EQ(gray(1).name(QColor::HexArgb), u"#ffffffff"_s);
    EXPECT_EQ(gray(0.2, 0.4).name(QColor::HexArgb), u"#66333333"_s);
}
