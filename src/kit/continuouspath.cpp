#include "kit/continuouspath.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Painting {

namespace {

// How much of a corner's length beyond its radius eases into the edge.
constexpr double kSmoothing = 0.6;

// The top right corner of a shape whose corner point is the origin, walked clockwise from the
// point (−reach, 0) on the top edge to (0, reach) on the right edge.
void appendCorner(QPainterPath &path, const QTransform &place, double radius, double reach)
{
    // The arc keeps 90° · (1 − smoothing); each easing curve turns the rest by `theta`.
    const double smoothing = reach / radius - 1;
    const double theta = std::numbers::pi / 4 * smoothing;
    const double arcChord = std::numbers::sqrt2 * radius * std::sin(std::numbers::pi / 4 - theta);
    const double tangent = radius * std::tan(theta / 2);
    const double c = tangent * std::cos(theta);
    const double d = tangent * std::sin(theta);
    const double b = (reach - arcChord - c - d) / 3;
    const double a = 2 * b;

    const auto curve = [&](QPointF control1, QPointF control2, QPointF end) {
        path.cubicTo(place.map(control1), place.map(control2), place.map(end));
    };

    const QPointF arcStart(-reach + a + b + c, d);
    const QPointF arcEnd(-d, reach - a - b - c);
    curve({ -reach + a, 0 }, { -reach + a + b, 0 }, arcStart);

    // One cubic for the arc: its handles are 4/3 · tan(angle / 4) · radius long.
    const double arcAngle = std::numbers::pi / 2 - 2 * theta;
    const double handle = 4.0 / 3 * std::tan(arcAngle / 4) * radius;
    curve(arcStart + handle * QPointF(std::cos(theta), std::sin(theta)),
        arcEnd - handle * QPointF(std::sin(theta), std::cos(theta)), arcEnd);

    curve({ 0, reach - a - b }, { 0, reach - a }, { 0, reach });
}

} // namespace

double cornerReach(double radius)
{
    return (1 + kSmoothing) * radius;
}

QPainterPath continuousPath(const QRectF &rect, double radius)
{
    QPainterPath path;
    if (rect.isEmpty())
        return path;

    const double room = std::min(rect.width(), rect.height()) / 2;
    const double r = std::min(radius, room);
    if (r <= 0) {
        path.addRect(rect);
        return path;
    }
    const double reach = std::min(cornerReach(r), room);

    const struct {
        QPointF point;
        double turn;
    } corners[] = { { rect.topRight(), 0 }, { rect.bottomRight(), 90 }, { rect.bottomLeft(), 180 },
        { rect.topLeft(), 270 } };

    for (const auto &[point, turn] : corners) {
        const QTransform place = QTransform().translate(point.x(), point.y()).rotate(turn);
        const QPointF start = place.map(QPointF(-reach, 0));
        if (path.isEmpty())
            path.moveTo(start);
        else
            path.lineTo(start);
        appendCorner(path, place, r, reach);
    }
    path.closeSubpath();
    return path;
}

} // namespace Painting
