#include "camera/appicon.h"

#include "camera/hvcolors.h"
#include "kit/continuouspath.h"
#include "kit/gradients.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <numbers>
#include <vector>

using namespace Qt::StringLiterals;

using namespace Painting;

namespace {

/// The icon is laid out on a square of so many units.
constexpr double kSide = 512;

enum class Detail {
    Aperture, ///< Nothing but the body and the aperture, which fills it.
    Camera,   ///< Top plate and screen besides.
    Whole,
};

// A filled and outlined piece. The outline lies half on either side of the path.
struct Shape {
    QPainterPath path;
    QBrush fill;
    QBrush stroke = {};
    double strokeWidth = 0;
};
using Shapes = std::vector<Shape>;

QColor tone(quint32 hex, double opacity = 1)
{
    return CRVNTheme::RGB(hex).color(opacity);
}

QPainterPath circle(QPointF center, double radius)
{
    QPainterPath path;
    path.addEllipse(center, radius, radius);
    return path;
}

QBrush lit(QPointF center, double radius, const QGradientStops &stops)
{
    QRadialGradient gradient(center, radius);
    gradient.setStops(stops);
    return gradient;
}

QPointF onCircle(QPointF center, double radius, double degrees)
{
    const double angle = degrees * std::numbers::pi / 180;
    return center + radius * QPointF(std::cos(angle), std::sin(angle));
}

// Where the ray from `from` through `through` leaves the circle.
QPointF leaving(QPointF center, double radius, QPointF from, QPointF through)
{
    const QPointF direction
        = (through - from) / std::hypot(through.x() - from.x(), through.y() - from.y());
    const QPointF start = from - center;
    const double along = QPointF::dotProduct(start, direction);
    const double across = QPointF::dotProduct(start, start);
    const double distance = -along + std::sqrt(along * along - across + radius * radius);
    return from + distance * direction;
}

// Six blades around a hexagonal opening through which light falls. `opening` is its radius as a
// fraction of the whole.
void addAperture(Shapes &shapes, QPointF center, double radius, double opening, double seam)
{
    constexpr int kBlades = 6;
    constexpr double kTurn = -75; // No edge is level: an aperture stands still only when it's shut.

    shapes.push_back({ circle(center, radius), tone(0x070605) });

    std::vector<QPointF> corners;
    for (int i = 0; i < kBlades; ++i)
        corners.push_back(onCircle(center, radius * opening, kTurn + i * 360.0 / kBlades));
    const auto corner = [&corners](int i) { return corners[size_t(i % kBlades)]; };

    for (int i = 0; i < kBlades; ++i) {
        const QPointF tip = leaving(center, radius, corner(i), corner(i + 1));
        const QPointF nextTip = leaving(center, radius, corner(i + 1), corner(i + 2));
        QPainterPath blade(corner(i + 1));
        blade.lineTo(tip);
        // The rim from tip to tip, which the ring around the blades covers.
        const double from = std::atan2(tip.y() - center.y(), tip.x() - center.x());
        blade.arcTo(QRectF(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius),
            -from * 180 / std::numbers::pi, -360.0 / kBlades);
        blade.lineTo(nextTip);
        blade.lineTo(corner(i + 2));
        blade.closeSubpath();

        // Blades that face the upper left catch the light of the room.
        const double facing
            = std::cos((kTurn + (i + 2) * 360.0 / kBlades + 135) * std::numbers::pi / 180);
        QLinearGradient sheen(
            corner(i + 1), onCircle(center, radius, kTurn + (i + 2) * 360.0 / kBlades));
        sheen.setColorAt(0, tone(0x8F6B2C));
        sheen.setColorAt(0.35, gray(0.17 + 0.05 * facing));
        sheen.setColorAt(1, gray(0.1 + 0.05 * facing));
        shapes.push_back({ blade, sheen, tone(0xD9B46A), seam });
    }

    QPainterPath hole(corner(0));
    for (int i = 1; i < kBlades; ++i)
        hole.lineTo(corner(i));
    hole.closeSubpath();
    shapes.push_back({ hole,
        lit(center, radius * opening,
            { { 0, tone(0xFFFDF2) }, { 0.45, tone(0xFFEAB8) }, { 1, tone(0xF0B650) } }) });
    // The light spills onto the blades.
    shapes.push_back({ circle(center, radius),
        lit(center, radius,
            { { 0, tone(0xFFE2A0, 0.55) }, { opening, tone(0xFFCE78, 0.38) },
                { 1, tone(0xFFC060, 0) } }) });
}

Shapes shapesOf(Detail detail)
{
    Shapes shapes;
    // Where pixels are few, edges and rim lie on whole ones: a sixteenth and a thirty-second.
    const bool small = detail == Detail::Aperture;
    const bool whole = detail == Detail::Whole;
    const QRectF body = inset({ 0, 0, kSide, kSide }, small ? 0 : whole ? 20 : 16);
    const double radius = small ? 128 : 112;
    const double rim = small ? 32 : whole ? 9 : 16;
    shapes.push_back({ continuousPath(body, radius),
        verticalBrush(body, tone(0x575047), tone(0x25221E), tone(0x0D0C0A)) });
    shapes.push_back({ continuousPath(inset(body, rim / 2), radius - rim / 2), Qt::NoBrush,
        verticalBrush(body, tone(0xF3D79A), tone(0xA87C33), tone(0x5C4318)), rim });

    if (small) {
        addAperture(shapes, body.center(), 200, 0.54, 12);
        return shapes;
    }

    // The top plate, with badge, eyepiece, mode dial and shutter button.
    const QRectF plate(54, 54, 404, 92);
    shapes.push_back({ continuousPath(plate, 44), verticalBrush(plate, gray(0.42), {}, gray(0.2)),
        verticalBrush(plate, gray(1, 0.35), {}, gray(0, 0.6)), whole ? 3.0 : 0.0 });
    const QPointF dial(316, 100);
    const QPointF shutter(404, 100);
    if (whole) {
        const QRectF badge(78, 76, 48, 48);
        shapes.push_back({ circle(badge.center(), 24),
            verticalBrush(badge, gray(0.9), {}, gray(0.5)), gray(0, 0.55), 2 });
        const QRectF eyepiece(158, 70, 98, 60);
        shapes.push_back({ continuousPath(eyepiece, 24),
            verticalBrush(eyepiece, gray(0.03), {}, gray(0.14)), gray(1, 0.16), 2 });
        const QRectF finder = inset(eyepiece, 11);
        shapes.push_back({ continuousPath(finder, 13),
            verticalBrush(finder, tone(0x51606B), tone(0x1B2329), tone(0x0B0F12)) });
        const QRectF knob(dial.x() - 34, dial.y() - 34, 68, 68);
        shapes.push_back({ circle(dial, 34), verticalBrush(knob, gray(0.34), {}, gray(0.08)) });
        QPainterPath knurls;
        for (int i = 0; i < 24; ++i) {
            knurls.moveTo(onCircle(dial, 28, i * 15.0));
            knurls.lineTo(onCircle(dial, 34, i * 15.0));
        }
        shapes.push_back({ knurls, Qt::NoBrush, gray(0, 0.6), 3 });
        shapes.push_back({ circle(dial, 25), verticalBrush(knob, gray(0.24), {}, gray(0.12)) });
        QPainterPath mark(dial + QPointF(0, -20));
        mark.lineTo(dial + QPointF(0, -8));
        shapes.push_back({ mark, Qt::NoBrush, tone(0xF3D79A), 5 });
    }
    const QRectF button(shutter.x() - 34, shutter.y() - 34, 68, 68);
    shapes.push_back({ circle(shutter, 34), verticalBrush(button, gray(0.82), {}, gray(0.36)) });
    shapes.push_back({ circle(shutter, 24),
        lit(shutter + QPointF(-6, -8), 32,
            { { 0, tone(0xFFE3A6) }, { 0.5, tone(0xD19B45) }, { 1, tone(0x8A6420) } }) });

    // The screen, and on it the aperture.
    const QRectF bezel(54, 164, 404, 294);
    const QRectF glass = inset(bezel, 12);
    const QPointF center = glass.center();
    shapes.push_back({ continuousPath(bezel, 66), verticalBrush(bezel, gray(0.02), {}, gray(0.16)),
        verticalBrush(bezel, gray(0, 0.9), {}, gray(1, 0.28)), whole ? 3.0 : 0.0 });
    shapes.push_back({ continuousPath(glass, 56), HVColors::oledRGB.color() });
    shapes.push_back({ continuousPath(glass, 56),
        lit(center, 205,
            { { 0, tone(0xFFC860, 0.7) }, { 0.6, tone(0xE0A040, 0.3) }, { 1, tone(0xB07820, 0) } }),
        whole ? QBrush(tone(0xFFD080, 0.35)) : QBrush(), whole ? 2.0 : 0.0 });
    const double aperture = 122;
    addAperture(shapes, center, aperture, 0.5, whole ? 3 : 6);
    shapes.push_back({ circle(center, aperture), Qt::NoBrush,
        verticalBrush(
            QRectF(center.x() - aperture, center.y() - aperture, 2 * aperture, 2 * aperture),
            tone(0xF3D79A), tone(0xA87C33), tone(0x6B4E1C)),
        whole ? 7.0 : 12.0 });
    if (whole) {
        // Room light on the glass.
        QLinearGradient sheen(glass.topLeft(), glass.center());
        sheen.setColorAt(0, gray(1, 0.16));
        sheen.setColorAt(1, gray(1, 0));
        shapes.push_back({ continuousPath(glass, 56), sheen });
    }
    return shapes;
}

Detail detailFor(double pixels)
{
    if (pixels <= 24)
        return Detail::Aperture;
    return pixels <= 64 ? Detail::Camera : Detail::Whole;
}

// Two decimals are a two-hundredth of a pixel in the largest picture, and the same on every
// machine.
QByteArray number(double value)
{
    QByteArray text = QByteArray::number(value, 'f', 2);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text == "-0" ? "0" : text;
}

QByteArray attribute(const QByteArray &name, const QByteArray &value)
{
    return ' ' + name + "=\"" + value + '"';
}

QByteArray attribute(const QByteArray &name, double value)
{
    return attribute(name, number(value));
}

// Shapes in the words of SVG 1.1: paths, flat colors, and linear and radial gradients.
class SvgWriter
{
public:
    void add(const Shape &shape)
    {
        m_shapes += "  <path" + attribute("d", data(shape.path)) + paint("fill", shape.fill);
        if (shape.strokeWidth > 0)
            m_shapes += paint("stroke", shape.stroke) + attribute("stroke-width", shape.strokeWidth)
                + attribute("stroke-linejoin", "round");
        m_shapes += "/>\n";
    }

    [[nodiscard]] QByteArray file() const
    {
        const QByteArray side = number(kSide);
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 "
            + side + ' ' + side + "\">\n  <defs>\n" + m_gradients + "  </defs>\n" + m_shapes
            + "</svg>\n";
    }

private:
    static QByteArray data(const QPainterPath &path)
    {
        static constexpr char kLetters[] = { 'M', 'L', 'C', ' ' };
        QByteArray result;
        QPointF start;
        for (int i = 0; i < path.elementCount(); ++i) {
            const QPainterPath::Element element = path.elementAt(i);
            const QPointF point = element;
            if (element.isMoveTo())
                start = point;
            result += kLetters[element.type] + number(point.x()) + ' ' + number(point.y());
            // What ends where it began is closed, so that an outline has no gap there.
            const bool isLast = i + 1 == path.elementCount() || path.elementAt(i + 1).isMoveTo();
            if (isLast && !element.isMoveTo() && point == start)
                result += 'Z';
        }
        return result;
    }

    // An opacity of its own, since older readers don't know colors with one.
    static QByteArray color(const QByteArray &role, const QColor &color)
    {
        QByteArray result
            = attribute(role + (role.startsWith("stop") ? "-color" : ""), color.name().toLatin1());
        if (color.alpha() < 255)
            result += attribute(role + "-opacity", color.alphaF());
        return result;
    }

    QByteArray paint(const QByteArray &role, const QBrush &brush)
    {
        if (brush.style() == Qt::NoBrush)
            return attribute(role, "none");
        if (brush.style() == Qt::SolidPattern)
            return color(role, brush.color());

        const QByteArray id = "g" + QByteArray::number(++m_count);
        const QGradient &gradient = *brush.gradient();
        const bool radial = gradient.type() == QGradient::RadialGradient;
        const QByteArray element = radial ? "radialGradient" : "linearGradient";
        m_gradients += "    <" + element + attribute("id", id)
            + attribute("gradientUnits", "userSpaceOnUse");
        if (radial) {
            const auto &round = static_cast<const QRadialGradient &>(gradient);
            m_gradients += attribute("cx", round.center().x()) + attribute("cy", round.center().y())
                + attribute("r", round.radius());
        } else {
            const auto &straight = static_cast<const QLinearGradient &>(gradient);
            m_gradients += attribute("x1", straight.start().x())
                + attribute("y1", straight.start().y()) + attribute("x2", straight.finalStop().x())
                + attribute("y2", straight.finalStop().y());
        }
        m_gradients += ">";
        for (const QGradientStop &stop : gradient.stops())
            m_gradients
                += "<stop" + attribute("offset", stop.first) + color("stop", stop.second) + "/>";
        m_gradients += "</" + element + ">\n";
        return attribute(role, "url(#" + id + ')');
    }

    QByteArray m_gradients;
    QByteArray m_shapes;
    int m_count = 0;
};

} // namespace

namespace AppIcon {

void paint(QPainter &painter, double side)
{
    if (!(side > 0))
        return;
    const double pixels = painter.deviceTransform().mapRect(QRectF(0, 0, side, side)).width();

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / kSide, side / kSide);
    for (const Shape &shape : shapesOf(detailFor(pixels))) {
        painter.setBrush(shape.fill);
        painter.setPen(shape.strokeWidth > 0
                ? QPen(shape.stroke, shape.strokeWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin)
                : QPen(Qt::NoPen));
        painter.drawPath(shape.path);
    }
    painter.restore();
}

QByteArray svg()
{
    SvgWriter writer;
    for (const Shape &shape : shapesOf(Detail::Whole))
        writer.add(shape);
    return writer.file();
}

} // namespace AppIcon
