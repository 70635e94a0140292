#include "kit/continuouspath.h"

#include "kit/printing.h"

#include <QTransform>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

using namespace Painting;

namespace {

// A stretch of the outline between two points of the path; a line has its controls on its ends.
struct Stretch {
    QPointF from;
    QPointF control1;
    QPointF control2;
    QPointF to;
    bool isCurve;
};

double length(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

double cross(QPointF a, QPointF b)
{
    return a.x() * b.y() - a.y() * b.x();
}

// The directions in which a stretch leaves its start and arrives at its end. A control that lies on
// its end says nothing; the other one does then.
QPointF startDirection(const Stretch &stretch)
{
    const QPointF direct = stretch.control1 - stretch.from;
    const QPointF vector = length(direct) > 1e-9 ? direct : stretch.control2 - stretch.from;
    return vector / length(vector);
}

QPointF endDirection(const Stretch &stretch)
{
    const QPointF direct = stretch.to - stretch.control2;
    const QPointF vector = length(direct) > 1e-9 ? direct : stretch.to - stretch.control1;
    return vector / length(vector);
}

// The stretches of a closed path, in their order; those without length are left out.
std::vector<Stretch> stretches(const QPainterPath &path)
{
    std::vector<Stretch> result;
    QPointF at;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        switch (element.type) {
        case QPainterPath::MoveToElement:
            at = element;
            break;
        case QPainterPath::LineToElement:
            if (length(QPointF(element) - at) > 1e-9)
                result.push_back({ at, element, at, element, false });
            at = element;
            break;
        case QPainterPath::CurveToElement: {
            const QPointF control2 = path.elementAt(i + 1);
            const QPointF to = path.elementAt(i + 2);
            if (length(to - at) > 1e-9)
                result.push_back({ at, element, control2, to, true });
            at = to;
            i += 2;
            break;
        }
        case QPainterPath::CurveToDataElement:
            ADD_FAILURE() << "A curve's data without its curve";
            break;
        }
    }
    return result;
}

std::vector<QPointF> pointsAlong(const QPainterPath &path)
{
    std::vector<QPointF> points;
    for (int i = 0; i < 720; ++i)
        points.push_back(path.pointAtPercent(i / 720.0));
    return points;
}

void expectSamePath(const QPainterPath &one, const QPainterPath &other)
{
    ASSERT_EQ(one.elementCount(), other.elementCount());
    for (int i = 0; i < one.elementCount(); ++i) {
        EXPECT_NEAR(one.elementAt(i).x, other.elementAt(i).x, 1e-9);
        EXPECT_NEAR(one.elementAt(i).y, other.elementAt(i).y, 1e-9);
    }
}

struct Shape {
    QRectF rect;
    double radius;
};

// Roomy corners, corners with less room than they would take, a capsule, a circle, a card.
const std::vector<Shape> kShapes = {
    { { 0, 0, 200, 120 }, 20 },
    { { -30, 17.5, 200, 120 }, 46 },
    { { 10, 10, 100, 100 }, 40 },
    { { 0, 0, 200, 60 }, 30 },
    { { 5, 5, 60, 200 }, 90 },
    { { 0, 0, 64, 64 }, 32 },
    { { 0.25, 0.75, 3, 2 }, 0.5 },
    { { 0, 0, 1400, 880 }, 46 },
};

} // namespace

TEST(ContinuousPath, OfAnEmptyRectangleIsEmpty)
{
    EXPECT_TRUE(continuousPath({}, 10).isEmpty());
    EXPECT_TRUE(continuousPath({ 5, 5, 0, 40 }, 10).isEmpty());
    EXPECT_TRUE(continuousPath({ 5, 5, 40, 0 }, 10).isEmpty());
    EXPECT_TRUE(continuousPath({ 5, 5, -40, 40 }, 10).isEmpty());
}

TEST(ContinuousPath, WithoutARadiusIsTheRectangle)
{
    QPainterPath rectangle;
    rectangle.addRect(10, 20, 30, 40);
    EXPECT_EQ(continuousPath({ 10, 20, 30, 40 }, 0), rectangle);
    EXPECT_EQ(continuousPath({ 10, 20, 30, 40 }, -5), rectangle);
}

TEST(ContinuousPath, OfASquareWithHalfItsSideIsACircle)
{
    const QPainterPath path = continuousPath({ 10, 20, 100, 100 }, 50);
    for (const QPointF point : pointsAlong(path))
        EXPECT_NEAR(length(point - QPointF(60, 70)), 50, 0.02);
}

TEST(ContinuousPath, OfALongRectangleWithHalfItsHeightIsACapsule)
{
    const QPainterPath path = continuousPath({ 0, 0, 200, 60 }, 30);
    for (const QPointF point : pointsAlong(path)) {
        // Distance from the segment between the centers of the two round ends.
        const QPointF nearest(std::clamp(point.x(), 30.0, 170.0), 30);
        EXPECT_NEAR(length(point - nearest), 30, 0.012);
    }
}

TEST(ContinuousPath, WithALargerRadiusThanHalfTheSideIsTheSame)
{
    expectSamePath(continuousPath({ 0, 0, 100, 100 }, 80), continuousPath({ 0, 0, 100, 100 }, 50));
    expectSamePath(continuousPath({ 0, 0, 200, 60 }, 1000), continuousPath({ 0, 0, 200, 60 }, 30));
}

TEST(ContinuousPath, FillsItsRectangleAndStaysInside)
{
    for (const Shape &shape : kShapes) {
        SCOPED_TRACE(::testing::PrintToString(shape.rect));
        const QRectF bounds = continuousPath(shape.rect, shape.radius).boundingRect();
        EXPECT_NEAR(bounds.left(), shape.rect.left(), 1e-9);
        EXPECT_NEAR(bounds.right(), shape.rect.right(), 1e-9);
        EXPECT_NEAR(bounds.top(), shape.rect.top(), 1e-9);
        EXPECT_NEAR(bounds.bottom(), shape.rect.bottom(), 1e-9);
    }
}

TEST(ContinuousPath, IsOneClosedOutline)
{
    for (const Shape &shape : kShapes) {
        const QPainterPath path = continuousPath(shape.rect, shape.radius);
        EXPECT_EQ(path.toSubpathPolygons().size(), 1);
        EXPECT_TRUE(path.toSubpathPolygons().first().isClosed());
        EXPECT_TRUE(path.contains(shape.rect.center()));
    }
}

TEST(ContinuousPath, HasNoKinkAtItsJoins)
{
    for (const Shape &shape : kShapes) {
        SCOPED_TRACE(::testing::PrintToString(shape.rect));
        const std::vector<Stretch> outline = stretches(continuousPath(shape.rect, shape.radius));
        ASSERT_GE(outline.size(), 4u);
        for (size_t i = 0; i < outline.size(); ++i) {
            const Stretch &stretch = outline[i];
            const Stretch &next = outline[(i + 1) % outline.size()];
            EXPECT_NEAR(length(stretch.to - next.from), 0, 1e-9);
            const QPointF arrival = endDirection(stretch);
            const QPointF departure = startDirection(next);
            EXPECT_NEAR(cross(arrival, departure), 0, 1e-9) << "at the join " << i;
            EXPECT_GT(QPointF::dotProduct(arrival, departure), 0) << "at the join " << i;
        }
    }
}

TEST(ContinuousPath, LeavesItsEdgesWithoutAnyCurvature)
{
    // A cubic has no curvature at an end where both controls lie on the tangent.
    const std::vector<Stretch> outline = stretches(continuousPath({ 0, 0, 200, 120 }, 20));
    int leaving = 0;
    int returning = 0;
    for (size_t i = 0; i < outline.size(); ++i) {
        const Stretch &stretch = outline[i];
        const Stretch &next = outline[(i + 1) % outline.size()];
        if (!stretch.isCurve && next.isCurve) {
            ++leaving;
            const QPointF along = startDirection(next);
            EXPECT_NEAR(cross(along, next.control1 - next.from), 0, 1e-9);
            EXPECT_NEAR(cross(along, next.control2 - next.from), 0, 1e-9);
        }
        if (stretch.isCurve && !next.isCurve) {
            ++returning;
            const QPointF along = endDirection(stretch);
            EXPECT_NEAR(cross(along, stretch.to - stretch.control1), 0, 1e-9);
            EXPECT_NEAR(cross(along, stretch.to - stretch.control2), 0, 1e-9);
        }
    }
    EXPECT_EQ(leaving, 4);
    EXPECT_EQ(returning, 4);
}

TEST(ContinuousPath, TakesSixteenTenthsOfTheRadiusOfEachSide)
{
    const std::vector<Stretch> outline = stretches(continuousPath({ 0, 0, 200, 120 }, 20));
    double straight = 0;
    for (const Stretch &stretch : outline) {
        if (!stretch.isCurve)
            straight += length(stretch.to - stretch.from);
    }
    EXPECT_NEAR(straight, 2 * (200 - 2 * 32) + 2 * (120 - 2 * 32), 1e-9);
}

TEST(ContinuousPath, TakesAtMostHalfOfAShortSide)
{
    // Of 100 points the corners would like 1.6 · 40 each and get 50.
    const std::vector<Stretch> outline = stretches(continuousPath({ 0, 0, 100, 300 }, 40));
    double straight = 0;
    for (const Stretch &stretch : outline) {
        if (!stretch.isCurve)
            straight += length(stretch.to - stretch.from);
    }
    EXPECT_NEAR(straight, 2 * (300 - 2 * 50), 1e-9);
}

TEST(ContinuousPath, HasTheRadiusInTheMiddleOfItsCorners)
{
    for (const double radius : { 10.0, 20.0, 34.0 }) {
        // Along the diagonal of a corner an arc of radius r lies r · (√2 − 1) from its point.
        const QPainterPath path = continuousPath({ 0, 0, 200, 120 }, radius);
        double nearest = 1e9;
        for (int i = 0; i < 20000; ++i)
            nearest = std::min(nearest, length(path.pointAtPercent(i / 20000.0)));
        EXPECT_NEAR(nearest, radius * (std::numbers::sqrt2 - 1), radius * 0.001);
    }
}

TEST(ContinuousPath, IsTheSameFromAllSides)
{
    const QRectF rect(-100, -60, 200, 120);
    const QPainterPath path = continuousPath(rect, 30);
    for (const QPointF point : pointsAlong(path)) {
        // A hair inside and a hair outside, mirrored.
        for (const double mirrorX : { -1.0, 1.0 }) {
            for (const double mirrorY : { -1.0, 1.0 }) {
                const QPointF mirrored(point.x() * mirrorX, point.y() * mirrorY);
                EXPECT_TRUE(path.contains(mirrored * 0.999));
                EXPECT_FALSE(path.contains(mirrored * 1.001));
            }
        }
    }
}

TEST(ContinuousPath, MovesWithItsRectangle)
{
    expectSamePath(continuousPath({ 30, -12, 200, 120 }, 30),
        QTransform::fromTranslate(30, -12).map(continuousPath({ 0, 0, 200, 120 }, 30)));
}
