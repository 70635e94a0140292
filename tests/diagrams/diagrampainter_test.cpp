#include "diagrams/diagrampainter.h"

#include "diagrams/diagramcatalogue.h"
#include "diagrams/recording.h"
#include "kit/continuouspath.h"
#include "kit/printing.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <numbers>

using namespace Diagrams;
using namespace Qt::StringLiterals;

namespace {

using Kind = Mark::Kind;
using Work = std::function<void(const DiagramPainter &)>;

const QColor kInk(10, 200, 90, 204); // with an opacity of its own, 0.8
const QColor kText(240, 230, 220);
constexpr QSizeF kDesign(400, 260);
constexpr QSizeF kWide(800, 260);
constexpr QSizeF kHalf(200, 130);

// What `work` paints on a canvas of this size.
std::vector<Mark> marks(QSizeF size, const Work &work)
{
    RecordingCanvas canvas;
    {
        QPainter painter(&canvas);
        work({ .ctx = painter, .size = size, .ink = kInk, .text = kText });
    }
    return canvas.marks();
}

std::vector<Mark> marks(QSizeF size, const Shape &shape)
{
    return marks(size, [&](const DiagramPainter &painter) { painter.draw(shape); });
}

std::vector<Mark> marksOf(Kind kind, const std::vector<Mark> &all)
{
    std::vector<Mark> found;
    for (const Mark &mark : all) {
        if (mark.kind == kind)
            found.push_back(mark);
    }
    return found;
}

// The outline of each shape, once: what was stroked at full ink.
std::vector<QPainterPath> outlines(QSizeF size, const Shape &shape)
{
    std::vector<QPainterPath> found;
    for (const Mark &mark : marks(size, shape)) {
        if (mark.kind == Kind::Stroke && mark.pen.color() == kInk)
            found.push_back(mark.path);
    }
    return found;
}

std::vector<double> fills(const Shape &shape)
{
    std::vector<double> found;
    for (const Mark &mark : marks(kDesign, shape)) {
        if (mark.kind == Kind::Fill)
            found.push_back(mark.brush.color().alphaF() / kInk.alphaF());
    }
    return found;
}

void expectPoints(const QPainterPath &path, const std::vector<QPointF> &expected)
{
    ASSERT_EQ(path.elementCount(), int(expected.size()));
    for (int i = 0; i < path.elementCount(); ++i) {
        EXPECT_NEAR(path.elementAt(i).x, expected[i].x(), 1e-9) << i;
        EXPECT_NEAR(path.elementAt(i).y, expected[i].y(), 1e-9) << i;
    }
}

void expectArea(const QRectF &area, const QRectF &expected)
{
    EXPECT_NEAR(area.left(), expected.left(), 1e-9);
    EXPECT_NEAR(area.top(), expected.top(), 1e-9);
    EXPECT_NEAR(area.right(), expected.right(), 1e-9);
    EXPECT_NEAR(area.bottom(), expected.bottom(), 1e-9);
}

void expectSamePath(const QPainterPath &path, const QPainterPath &expected)
{
    std::vector<QPointF> points;
    for (int i = 0; i < expected.elementCount(); ++i)
        points.emplace_back(expected.elementAt(i));
    expectPoints(path, points);
}

void expectFills(const Shape &shape, const std::vector<double> &expected)
{
    const std::vector<double> found = fills(shape);
    ASSERT_EQ(found.size(), expected.size());
    for (size_t i = 0; i < found.size(); ++i)
        EXPECT_NEAR(found[i], expected[i], 1e-4) << i; // a color keeps 16 bits
}

// How far a curve of the platform may lie from the circle that it stands for.
constexpr double kCurve = 0.02;

// The platform places letters on a grid of 64 steps a point.
constexpr double kLetter = 1.0 / 64;

const Shape kSegment = Line{ .points = { { 100, 50 }, { 300, 200 } } };
const Shape kOrdinaryBox = Box{ 40, 30, 120, 80, 12, 0.3 };

std::vector<Mark> callout(QSizeF size, const Callout &callout)
{
    return marks(size, [&](const DiagramPainter &painter) { painter.label(callout); });
}

// The text of a callout: where it was drawn and how large it is.
struct Written {
    QFont font;
    QRectF area;
};

Written written(const std::vector<Mark> &all)
{
    const std::vector<Mark> texts = marksOf(Kind::Text, all);
    if (texts.size() != 1) {
        ADD_FAILURE() << texts.size() << " texts";
        return {};
    }
    const RecordingCanvas canvas;
    const QFontMetricsF metrics(texts[0].font, &canvas);
    return { texts[0].font,
        QRectF(texts[0].baseline - QPointF(0, metrics.ascent()),
            QSizeF(metrics.horizontalAdvance(texts[0].text), metrics.height())) };
}

QImage picture(QSize size, const Work &work)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    work({ .ctx = painter, .size = size, .ink = Qt::white, .text = Qt::white });
    return image;
}

bool isBlank(const QImage &image)
{
    QImage blank(image.size(), image.format());
    blank.fill(Qt::transparent);
    return image == blank;
}

} // namespace

// Fitting

TEST(DiagramPainter, TakesDesignNumbersAsTheyAreOnACanvasOfTheDesignsSize)
{
    expectPoints(outlines(kDesign, kSegment).at(0), { { 100, 50 }, { 300, 200 } });
}

TEST(DiagramPainter, CentersTheDesignOnAWiderCanvas)
{
    expectPoints(outlines(kWide, kSegment).at(0), { { 300, 50 }, { 500, 200 } });
}

TEST(DiagramPainter, CentersTheDesignOnAHigherCanvas)
{
    expectPoints(outlines({ 400, 560 }, kSegment).at(0), { { 100, 200 }, { 300, 350 } });
}

TEST(DiagramPainter, ShrinksWithTheCanvas)
{
    expectPoints(outlines(kHalf, kSegment).at(0), { { 50, 25 }, { 150, 100 } });
}

TEST(DiagramPainter, GrowsWithTheCanvas)
{
    expectPoints(outlines({ 1000, 1000 }, kSegment).at(0), { { 250, 300 }, { 750, 675 } });
}

// Ink

TEST(DiagramPainter, StrokesAnOutlineTwiceAndFillsItFirst)
{
    const std::vector<Mark> all = marks(kDesign, kOrdinaryBox);
    ASSERT_EQ(all.size(), 3u);
    EXPECT_EQ(all[0].kind, Kind::Fill);
    EXPECT_NEAR(all[0].brush.color().alphaF(), 0.8 * 0.3, 1e-4);
    EXPECT_EQ(all[1].kind, Kind::Stroke);
    EXPECT_NEAR(all[1].pen.color().alphaF(), 0.8 * 0.35, 1e-4);
    EXPECT_NEAR(all[1].pen.widthF(), 4, 1e-9);
    EXPECT_EQ(all[2].kind, Kind::Stroke);
    EXPECT_EQ(all[2].pen.color(), kInk);
    EXPECT_NEAR(all[2].pen.widthF(), 1.6, 1e-9);
    for (const Mark &mark : all) {
        expectSamePath(mark.path, all[0].path);
        EXPECT_TRUE(mark.antialiased);
        const QColor color = mark.kind == Kind::Fill ? mark.brush.color() : mark.pen.color();
        EXPECT_EQ(color.rgb(), kInk.rgb());
    }
}

TEST(DiagramPainter, StrokesWithRoundCapsAndJoins)
{
    for (const Mark &mark : marks(kDesign, kSegment)) {
        EXPECT_EQ(mark.pen.capStyle(), Qt::RoundCap);
        EXPECT_EQ(mark.pen.joinStyle(), Qt::RoundJoin);
        EXPECT_EQ(mark.pen.style(), Qt::SolidLine);
    }
}

TEST(DiagramPainter, StrokesScaleDownToSixTenthsAndNoFurther)
{
    const struct {
        QSizeF canvas;
        double k;
    } cases[] = { { kDesign, 1 }, { kWide, 1 }, { { 800, 520 }, 2 }, { { 240, 156 }, 0.6 },
        { { 244, 260 }, 0.61 }, { kHalf, 0.6 }, { { 42, 27 }, 0.6 } };
    for (const auto &[canvas, k] : cases) {
        SCOPED_TRACE(::testing::PrintToString(canvas));
        const std::vector<Mark> all
            = marks(canvas, Line{ .points = { { 0, 0 }, { 400, 260 } }, .width = 5 });
        ASSERT_EQ(all.size(), 2u);
        EXPECT_NEAR(all[0].pen.widthF(), 7.4 * k, 1e-9);
        EXPECT_NEAR(all[1].pen.widthF(), 5 * k, 1e-9);
    }
}

TEST(DiagramPainter, LeavesThePainterAsItWas)
{
    QImage image(400, 260, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QPen pen(Qt::red, 7);
    const QBrush brush(Qt::blue);
    QFont font;
    font.setPointSizeF(33);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.setFont(font);
    const DiagramPainter diagram{ .ctx = painter, .size = kDesign, .ink = kInk, .text = kText };
    for (const DiagramKind kind : allDiagramKinds())
        diagram.draw(kind);
    diagram.caption(u"words"_s);
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(painter.brush(), brush);
    EXPECT_EQ(painter.font(), font);
    EXPECT_TRUE(painter.transform().isIdentity());
    EXPECT_FALSE(painter.hasClipping());
}

// Simple shapes

TEST(Box, HasContinuousCornersThatScale)
{
    expectSamePath(
        outlines(kDesign, kOrdinaryBox).at(0), Painting::continuousPath({ 40, 30, 120, 80 }, 12));
    expectSamePath(
        outlines(kWide, kOrdinaryBox).at(0), Painting::continuousPath({ 240, 30, 120, 80 }, 12));
    expectSamePath(
        outlines(kHalf, kOrdinaryBox).at(0), Painting::continuousPath({ 20, 15, 60, 40 }, 6));
}

TEST(Box, HasCornersOfSixAndAFillOfATenthUnlessToldOtherwise)
{
    const Shape plain = Box{ 40, 30, 120, 80 };
    expectSamePath(
        outlines(kDesign, plain).at(0), Painting::continuousPath({ 40, 30, 120, 80 }, 6));
    expectFills(plain, { 0.1 });
}

TEST(Box, WithoutFillIsStrokedOnly)
{
    EXPECT_EQ(fills(Box{ 40, 30, 120, 80, 6, 0 }).size(), 0u);
    EXPECT_EQ(fills(Box{ 40, 30, 120, 80, 6, -0.5 }).size(), 0u);
    EXPECT_EQ(outlines(kDesign, Box{ 40, 30, 120, 80, 6, 0 }).size(), 1u);
}

TEST(Circle, LiesAroundItsCenter)
{
    const Shape circle = Circle{ 200, 150, 34, 0.2 };
    expectArea(outlines(kDesign, circle).at(0).boundingRect(), { 166, 116, 68, 68 });
    expectArea(outlines(kWide, circle).at(0).boundingRect(), { 366, 116, 68, 68 });
    expectArea(outlines(kHalf, circle).at(0).boundingRect(), { 83, 58, 34, 34 });
    expectFills(circle, { 0.2 });
}

TEST(Ellipse, HasItsHalfAxes)
{
    const Shape ellipse = Ellipse{ 110, 80, 34, 7, 0.1 };
    expectArea(outlines(kDesign, ellipse).at(0).boundingRect(), { 76, 73, 68, 14 });
    expectArea(outlines(kWide, ellipse).at(0).boundingRect(), { 276, 73, 68, 14 });
    expectArea(outlines(kHalf, ellipse).at(0).boundingRect(), { 38, 36.5, 34, 7 });
    expectFills(ellipse, { 0.1 });
}

TEST(Line, OpenIsNeverFilled)
{
    const Shape open
        = Line{ .points = { { 10, 10 }, { 50, 10 }, { 50, 60 } }, .closed = false, .fill = 0.5 };
    EXPECT_EQ(fills(open).size(), 0u);
    expectPoints(outlines(kDesign, open).at(0), { { 10, 10 }, { 50, 10 }, { 50, 60 } });
}

TEST(Line, ClosedGoesBackToItsStartAndIsFilled)
{
    const Shape closed
        = Line{ .points = { { 10, 10 }, { 50, 10 }, { 50, 60 } }, .closed = true, .fill = 0.5 };
    expectFills(closed, { 0.5 });
    expectPoints(
        outlines(kDesign, closed).at(0), { { 10, 10 }, { 50, 10 }, { 50, 60 }, { 10, 10 } });
    expectPoints(outlines(kHalf, closed).at(0), { { 5, 5 }, { 25, 5 }, { 25, 30 }, { 5, 5 } });
}

TEST(Line, ClosedIsFilledWhereItCrossesItself)
{
    // A star of five points, whose middle is gone round twice.
    std::vector<QPointF> star;
    for (int i = 0; i < 5; ++i) {
        const double angle = 2 * i * 2 * std::numbers::pi / 5;
        star.emplace_back(200 + 100 * std::sin(angle), 130 - 100 * std::cos(angle));
    }
    const QImage image = picture({ 400, 260 }, [&](const DiagramPainter &painter) {
        painter.line({ .points = star, .closed = true, .fill = 0.5 });
    });
    EXPECT_NEAR(image.pixelColor(200, 130).alphaF(), 0.5, 0.01);
}

TEST(Arc, RunsClockwiseFromItsStartToItsEnd)
{
    const QPainterPath right = outlines(kDesign, Arc{ 200, 130, 60, -70, 70 }).at(0);
    EXPECT_NEAR(
        right.pointAtPercent(0).y(), 130 - 60 * std::sin(70 * std::numbers::pi / 180), kCurve);
    EXPECT_NEAR(right.pointAtPercent(0.5).x(), 260, kCurve);
    EXPECT_NEAR(right.pointAtPercent(0.5).y(), 130, kCurve);
    EXPECT_NEAR(
        right.pointAtPercent(1).y(), 130 + 60 * std::sin(70 * std::numbers::pi / 180), kCurve);
    EXPECT_GT(right.boundingRect().left(), 200);
}

TEST(Arc, BulgesUpwardsFromTwoHundredDegreesOn)
{
    const QPainterPath up = outlines(kWide, Arc{ 200, 160, 120, 200, 340 }).at(0);
    EXPECT_NEAR(up.pointAtPercent(0.5).x(), 400, kCurve);
    EXPECT_NEAR(up.pointAtPercent(0.5).y(), 40, kCurve);
    EXPECT_LT(up.boundingRect().bottom(), 160);
    const QPainterPath small = outlines(kHalf, Arc{ 200, 160, 120, 200, 340 }).at(0);
    EXPECT_NEAR(small.pointAtPercent(0.5).x(), 100, kCurve);
    EXPECT_NEAR(small.pointAtPercent(0.5).y(), 20, kCurve);
}

TEST(Arc, GoesOnThroughTheStartOfTheCircle)
{
    // From six o'clock over nine and twelve to three.
    const QPainterPath path = outlines(kDesign, Arc{ 200, 130, 50, 90, 0 }).at(0);
    EXPECT_NEAR(path.length(), 2 * std::numbers::pi * 50 * 0.75, 10 * kCurve);
    EXPECT_NEAR(path.boundingRect().left(), 150, kCurve);
    EXPECT_NEAR(path.boundingRect().top(), 80, kCurve);
}

TEST(Arc, IsNeverFilledAndNotClosed)
{
    EXPECT_EQ(fills(Arc{ 200, 130, 60, 0, 300 }).size(), 0u);
    const QPainterPath path = outlines(kDesign, Arc{ 200, 130, 60, 0, 300 }).at(0);
    EXPECT_NEAR(path.length(), 2 * std::numbers::pi * 60 * 300 / 360, 10 * kCurve);
}

// Composite shapes

TEST(LensBarrel, HasARingAtEachEvenDivision)
{
    const Shape lens = LensBarrel{ 90, 130, 200, 50, 2 };
    const std::vector<QPainterPath> parts = outlines(kDesign, lens);
    ASSERT_EQ(parts.size(), 4u);
    expectSamePath(parts[0], Painting::continuousPath({ 90, 80, 200, 100 }, 4));
    expectSamePath(parts[1], Painting::continuousPath({ 90 + 200 / 3.0 - 8, 77, 16, 106 }, 3));
    expectSamePath(parts[2], Painting::continuousPath({ 90 + 400 / 3.0 - 8, 77, 16, 106 }, 3));
    expectArea(parts[3].boundingRect(), { 284, 82, 12, 96 });
    expectFills(lens, { 0.1, 0.18, 0.18, 0.25 });
}

TEST(LensBarrel, WithoutRingsIsABarrelAndItsFrontElement)
{
    const Shape lens = LensBarrel{ 90, 130, 200, 50, 0 };
    EXPECT_EQ(outlines(kDesign, lens).size(), 2u);
    expectFills(lens, { 0.1, 0.25 });
}

TEST(LensBarrel, CarriesASingleRingInItsMiddle)
{
    const std::vector<QPainterPath> parts = outlines(kDesign, LensBarrel{ 120, 130, 150, 50, 1 });
    ASSERT_EQ(parts.size(), 3u);
    EXPECT_NEAR(parts[1].boundingRect().center().x(), 195, 1e-9);
}

TEST(LensBarrel, ScalesWithItsCorners)
{
    const std::vector<QPainterPath> parts = outlines(kHalf, LensBarrel{ 120, 130, 150, 50, 1 });
    ASSERT_EQ(parts.size(), 3u);
    expectSamePath(parts[0], Painting::continuousPath({ 60, 40, 75, 50 }, 2));
    expectSamePath(parts[1], Painting::continuousPath({ 93.5, 38.5, 8, 53 }, 1.5));
}

TEST(LensBarrelDeathTest, CanNotHaveLessThanNoRings)
{
    EXPECT_DEATH(marks(kDesign, LensBarrel{ 90, 130, 200, 50, -1 }), "-1 rings");
}

TEST(CameraBody, HasHumpBodyGripAndDialInThisOrder)
{
    const Shape camera = CameraBody{ 110, 90, 180, 110, true, true };
    const std::vector<QPainterPath> parts = outlines(kDesign, camera);
    ASSERT_EQ(parts.size(), 4u);
    expectPoints(
        parts[0], { { 174.8, 90 }, { 185.6, 64 }, { 221.6, 64 }, { 232.4, 90 }, { 174.8, 90 } });
    expectSamePath(parts[1], Painting::continuousPath({ 110, 90, 180, 110 }, 14));
    expectSamePath(parts[2], Painting::continuousPath({ 106, 98, 39.6, 94 }, 12));
    expectArea(parts[3].boundingRect(), { 246, 78, 16, 16 });
    expectFills(camera, { 0.12, 0.1, 0.2, 0.2 });
}

TEST(CameraBody, AlwaysHasItsDial)
{
    expectFills(CameraBody{ 110, 90, 180, 110, false, false }, { 0.1, 0.2 });
    expectFills(CameraBody{ 110, 90, 180, 110, true, false }, { 0.12, 0.1, 0.2 });
    expectFills(CameraBody{ 110, 90, 180, 110, false, true }, { 0.1, 0.2, 0.2 });
}

TEST(Legs, AreThreeHeavyLinesTheRearOneShorter)
{
    const Shape legs = Legs{ 200, 112, 120, 240 };
    const std::vector<QPainterPath> parts = outlines(kDesign, legs);
    ASSERT_EQ(parts.size(), 3u);
    expectPoints(parts[0], { { 200, 112 }, { 80, 240 } });
    expectPoints(parts[1], { { 200, 112 }, { 320, 240 } });
    expectPoints(parts[2], { { 200, 112 }, { 206, 232 } });
    EXPECT_EQ(fills(legs).size(), 0u);
    for (const Mark &mark : marks(kDesign, legs))
        EXPECT_NEAR(mark.pen.widthF(), mark.pen.color() == kInk ? 3 : 5.4, 1e-9);
}

// Callouts

TEST(Label, IsALeaderThenADotThenTheText)
{
    const std::vector<Mark> all = callout(kDesign, { u"Grip"_s, { 60, 150 }, { 112, 150 } });
    ASSERT_EQ(all.size(), 3u);
    EXPECT_EQ(all[0].kind, Kind::Stroke);
    EXPECT_EQ(all[1].kind, Kind::Fill);
    EXPECT_EQ(all[2].kind, Kind::Text);
    EXPECT_EQ(all[2].text, u"Grip"_s);
    EXPECT_EQ(all[2].pen.color(), kText);
}

TEST(Label, HasALeaderAndADotThatNeverScale)
{
    for (const QSizeF canvas : { kDesign, kWide, kHalf, QSizeF(1600, 1040) }) {
        SCOPED_TRACE(::testing::PrintToString(canvas));
        const std::vector<Mark> all = callout(canvas, { u"Grip"_s, { 60, 150 }, { 112, 150 } });
        const double s = std::min(canvas.width() / 400, canvas.height() / 260);
        const double left = (canvas.width() - 400 * s) / 2;

        const QPen &pen = all.at(0).pen;
        expectPoints(all.at(0).path, { { left + 60 * s, 150 * s }, { left + 112 * s, 150 * s } });
        EXPECT_NEAR(pen.widthF(), 0.8, 1e-9);
        EXPECT_NEAR(pen.color().alphaF(), 0.55, 1e-4);
        EXPECT_EQ(pen.capStyle(), Qt::FlatCap);
        ASSERT_EQ(pen.dashPattern().size(), 2);
        EXPECT_NEAR(pen.dashPattern()[0] * pen.widthF(), 3, 1e-9);
        EXPECT_NEAR(pen.dashPattern()[1] * pen.widthF(), 2, 1e-9);
        EXPECT_EQ(pen.dashOffset(), 0);

        expectArea(all.at(1).path.boundingRect(), { left + 112 * s - 2, 150 * s - 2, 4, 4 });
        EXPECT_EQ(all.at(1).brush.color(), kText);
    }
}

TEST(Label, StopsShrinkingAtEightPoints)
{
    const struct {
        QSizeF canvas;
        double size;
    } cases[] = { { kDesign, 11 }, { kWide, 11 }, { { 800, 520 }, 22 }, { { 320, 208 }, 8.8 },
        { { 290, 260 }, 8 }, { kHalf, 8 }, { { 42, 27 }, 8 } };
    for (const auto &[canvas, size] : cases) {
        SCOPED_TRACE(::testing::PrintToString(canvas));
        const QFont font = written(callout(canvas, { u"Grip"_s, { 60, 150 }, { 112, 150 } })).font;
        EXPECT_NEAR(font.pointSizeF(), size, 1e-9);
        EXPECT_EQ(font.weight(), QFont::DemiBold);
    }
}

TEST(Label, LeftOfItsTargetEndsAtItsPlace)
{
    for (const QSizeF canvas : { kDesign, kHalf }) {
        const double s = canvas.width() / 400;
        const QRectF area
            = written(callout(canvas, { u"Mode dial"_s, { 60, 150 }, { 112, 20 } })).area;
        EXPECT_NEAR(area.right(), 60 * s, kLetter);
        EXPECT_NEAR(area.center().y(), 150 * s, kLetter);
    }
}

TEST(Label, RightOfItsTargetBeginsAtItsPlace)
{
    for (const QSizeF canvas : { kDesign, kHalf }) {
        const double s = canvas.width() / 400;
        const QRectF area
            = written(callout(canvas, { u"Mode dial"_s, { 330, 95 }, { 254, 86 } })).area;
        EXPECT_NEAR(area.left(), 330 * s, kLetter);
        EXPECT_NEAR(area.center().y(), 95 * s, kLetter);
    }
}

TEST(Label, AboveItsTargetStandsOnItsPlace)
{
    for (const QSizeF canvas : { kDesign, kHalf }) {
        const double s = canvas.width() / 400;
        const QRectF area
            = written(callout(canvas, { u"Fixer"_s, { 330, 100 }, { 330, 140 } })).area;
        EXPECT_NEAR(area.bottom(), 100 * s, kLetter);
        EXPECT_NEAR(area.center().x(), 330 * s, kLetter);
    }
}

TEST(Label, BelowItsTargetOrOnItHangsFromItsPlace)
{
    for (const QPointF target : { QPointF(200, 190), QPointF(200, 230) }) {
        const QRectF area = written(callout(kDesign, { u"Rail"_s, { 200, 230 }, target })).area;
        EXPECT_NEAR(area.top(), 230, kLetter);
        EXPECT_NEAR(area.center().x(), 200, kLetter);
    }
}

TEST(Label, NeverCoversItsOwnLeader)
{
    for (const DiagramKind kind : allDiagramKinds()) {
        for (const Callout &one : drawing(kind).callouts) {
            const std::vector<Mark> all = callout(kDesign, one);
            const QRectF inside = written(all).area.adjusted(kLetter, kLetter, -kLetter, -kLetter);
            EXPECT_FALSE(all.at(0).path.intersects(inside)) << qPrintable(one.text);
        }
    }
}

TEST(Label, ShowsMarkupAsItStands)
{
    EXPECT_EQ(
        callout(kDesign, { u"<b>x</b>"_s, { 60, 150 }, { 112, 150 } }).at(2).text, u"<b>x</b>"_s);
}

TEST(Label, WithoutTextHasALeaderAndADotOnly)
{
    const std::vector<Mark> all = callout(kDesign, { QString(), { 60, 150 }, { 112, 150 } });
    EXPECT_EQ(marksOf(Kind::Stroke, all).size(), 1u);
    EXPECT_EQ(marksOf(Kind::Fill, all).size(), 1u);
    EXPECT_EQ(marksOf(Kind::Text, all).size(), 0u);
}

TEST(Caption, StandsLowInTheMiddle)
{
    const struct {
        QSizeF canvas;
        QPointF place;
        double size;
    } cases[] = { { kDesign, { 200, 250 }, 10 }, { kWide, { 400, 250 }, 10 },
        { kHalf, { 100, 125 }, 8 }, { { 800, 520 }, { 400, 500 }, 20 } };
    for (const auto &[canvas, place, size] : cases) {
        SCOPED_TRACE(::testing::PrintToString(canvas));
        const std::vector<Mark> all
            = marks(canvas, [](const DiagramPainter &painter) { painter.caption(u"A lens"_s); });
        ASSERT_EQ(all.size(), 1u);
        const Written words = written(all);
        EXPECT_NEAR(words.area.center().x(), place.x(), kLetter);
        EXPECT_NEAR(words.area.center().y(), place.y(), kLetter);
        EXPECT_NEAR(words.font.pointSizeF(), size, 1e-9);
        EXPECT_EQ(words.font.weight(), QFont::Bold);
        EXPECT_NEAR(all[0].pen.color().alphaF(), 0.7, 1e-4);
        EXPECT_EQ(all[0].pen.color().rgb(), kText.rgb());
    }
}

// Nothing

TEST(DiagramPainter, PaintsNothingOfWhatHasNoExtent)
{
    const Shape shapes[] = { Line{}, Line{ .points = { { 50, 50 } } },
        Line{ .points = { { 50, 50 }, { 50, 50 } }, .closed = true, .fill = 1 },
        Box{ 50, 50, 0, 0 }, Box{ 50, 50, 0, 20 }, Circle{ 50, 50, 0, 1 },
        Ellipse{ 50, 50, 0, 0, 1 }, Arc{ 50, 50, 0, 0, 300 }, Arc{ 50, 50, 20, 30, 30 } };
    for (size_t i = 0; i < std::size(shapes); ++i) {
        const QImage image = picture(
            { 400, 260 }, [&](const DiagramPainter &painter) { painter.draw(shapes[i]); });
        EXPECT_TRUE(isBlank(image)) << i;
    }
}

TEST(DiagramPainter, PaintsNothingOnACanvasWithoutRoom)
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    for (const QSizeF size : { QSizeF(), QSizeF(0, 0), QSizeF(0, 260), QSizeF(400, 0),
             QSizeF(-400, -260), QSizeF(400, -260), QSizeF(kNone, 260), QSizeF(400, kNone),
             QSizeF(kEndless, 260), QSizeF(400, kEndless), QSizeF(kEndless, kEndless) }) {
        SCOPED_TRACE(::testing::PrintToString(size));
        const std::vector<Mark> all = marks(size, [](const DiagramPainter &painter) {
            for (const DiagramKind kind : allDiagramKinds())
                painter.draw(kind);
            painter.caption(u"words"_s);
        });
        EXPECT_EQ(all.size(), 0u);
    }
}

// Whole drawings

TEST(DiagramPainter, DrawsTheShapesOfARowAndThenItsCallouts)
{
    const std::vector<Mark> all = marks(
        kDesign, [](const DiagramPainter &painter) { painter.draw(DiagramKind::RingLight); });
    // Two strokes for each shape, a fill for two of the three; then two callouts.
    std::vector<Kind> order;
    for (const Mark &mark : all)
        order.push_back(mark.kind);
    EXPECT_EQ(order,
        (std::vector{ Kind::Fill, Kind::Stroke, Kind::Stroke, Kind::Stroke, Kind::Stroke,
            Kind::Fill, Kind::Stroke, Kind::Stroke, Kind::Stroke, Kind::Fill, Kind::Text,
            Kind::Stroke, Kind::Fill, Kind::Text }));
}

TEST(DiagramPainter, KeepsTheOutlinesOfEveryKindInsideTheDesignSpace)
{
    for (const QSizeF canvas : { kDesign, kWide, kHalf, QSizeF(40, 26), QSizeF(1000, 5000) }) {
        const double s = std::min(canvas.width() / 400, canvas.height() / 260);
        QRectF space({}, kDesign * s);
        space.moveCenter(QRectF({}, canvas).center());
        for (const DiagramKind kind : allDiagramKinds()) {
            for (const Shape &shape : drawing(kind).shapes) {
                for (const QPainterPath &outline : outlines(canvas, shape)) {
                    const QRectF extent = outline.boundingRect();
                    EXPECT_TRUE(
                        space.contains(extent.topLeft()) && space.contains(extent.bottomRight()))
                        << rawValue(kind).latin1();
                }
            }
        }
    }
}

// Smaller drawings have relatively wider strokes; the edge of the canvas may cut those.
TEST(DiagramPainter, KeepsTheInkOfEveryKindInsideTheDesignSpaceDownToHalfItsSize)
{
    constexpr int kMargin = 40;
    for (const double scale : { 0.5, 1.0, 2.0 }) {
        const QSizeF size = kDesign * scale;
        const QRect space(QPoint(kMargin, kMargin), size.toSize());
        for (const DiagramKind kind : allDiagramKinds()) {
            QImage image(space.adjusted(-kMargin, -kMargin, kMargin, kMargin).size(),
                QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            painter.translate(kMargin, kMargin);
            const DiagramPainter diagram{
                .ctx = painter, .size = size, .ink = Qt::white, .text = Qt::white
            };
            for (const Shape &shape : drawing(kind).shapes)
                diagram.draw(shape);
            painter.resetTransform();
            EXPECT_FALSE(isBlank(image)) << rawValue(kind).latin1();
            painter.setCompositionMode(QPainter::CompositionMode_Clear);
            painter.fillRect(space, Qt::transparent);
            painter.end();
            EXPECT_TRUE(isBlank(image)) << rawValue(kind).latin1() << " at " << scale;
        }
    }
}

TEST(DiagramPainter, PointsAtNothingOutsideTheDesignSpace)
{
    const QRectF space({}, kDesign);
    for (const DiagramKind kind : allDiagramKinds()) {
        for (const Callout &callout : drawing(kind).callouts) {
            EXPECT_TRUE(space.contains(callout.at)) << qPrintable(callout.text);
            EXPECT_TRUE(space.contains(callout.target)) << qPrintable(callout.text);
        }
    }
}

TEST(DiagramPainter, PaintsEveryKindAtAnySize)
{
    for (const QSize size : { QSize(1, 1), QSize(1, 3000), QSize(3000, 1), QSize(42, 27),
             QSize(500, 325), QSize(2000, 1300) }) {
        for (const DiagramKind kind : allDiagramKinds()) {
            const QImage image
                = picture(size, [kind](const DiagramPainter &painter) { painter.draw(kind); });
            EXPECT_FALSE(isBlank(image))
                << rawValue(kind).latin1() << ' ' << size.width() << " x " << size.height();
        }
    }
}

TEST(DiagramPainter, PaintsTheSamePictureEachTime)
{
    for (const DiagramKind kind : allDiagramKinds()) {
        const Work work = [kind](const DiagramPainter &painter) { painter.draw(kind); };
        EXPECT_EQ(picture({ 500, 325 }, work), picture({ 500, 325 }, work));
    }
}
