#include "kit/symbols.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <string_view>
#include <utility>
#include <vector>

namespace {

// A new symbol is one function under "The drawings" and one row of kTable. The grid is kGrid units
// wide and high, y grows downwards; what a Regular stroke covers keeps about two units of air all
// around, and a Black one about one.
constexpr double kGrid = 24;
constexpr QPointF kMiddle(kGrid / 2, kGrid / 2);

// The measures the family shares. At 14 pixels, the size of the rail, a pixel is 1.71 units wide:
// lines at 12 ± 9.43, ± 6, ± 2.57 then fall on whole pixels, hence the uneven numbers below.
constexpr double kRing = 9.43;  // radius of the round symbols
constexpr double kCorner = 2.8; // of frames and bodies
constexpr double kHead = 5;     // length of an arrowhead's barbs

constexpr double strokeWidth(Symbols::Weight weight)
{
    return 1.7 + 0.26 * static_cast<int>(weight);
}

// --- The path vocabulary -----------------------------------------------------------------------

QPointF polar(QPointF center, double radius, double degrees)
{
    const double angle = degrees * std::numbers::pi / 180;
    return center + QPointF(radius * std::cos(angle), -radius * std::sin(angle));
}

QPainterPath circle(QPointF center, double radius)
{
    QPainterPath path;
    path.addEllipse(center, radius, radius);
    return path;
}

/// Degrees count counterclockwise from three o'clock.
QPainterPath arc(QPointF center, double radius, double from, double sweep)
{
    const QRectF box(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius);
    QPainterPath path;
    path.arcMoveTo(box, from);
    path.arcTo(box, from, sweep);
    return path;
}

/// Goes on to `corner` and turns there towards `next` in a curve that begins `radius` before it.
void turn(QPainterPath &path, QPointF corner, QPointF next, double radius)
{
    // A cubic with its handles at this part of the way is a circle's arc at a right angle.
    constexpr double handle = 0.5523;
    const QPointF before = path.currentPosition() - corner;
    const QPointF after = next - corner;
    const QPointF in = before * (radius / std::hypot(before.x(), before.y()));
    const QPointF out = after * (radius / std::hypot(after.x(), after.y()));
    path.lineTo(corner + in);
    path.cubicTo(corner + in * (1 - handle), corner + out * (1 - handle), corner + out);
}

QPainterPath polyline(std::initializer_list<QPointF> points, double radius = 0)
{
    QPainterPath path(*points.begin());
    for (const QPointF *point = points.begin() + 1; point != points.end(); ++point) {
        if (radius > 0 && point + 1 != points.end())
            turn(path, *point, *(point + 1), radius);
        else
            path.lineTo(*point);
    }
    return path;
}

QPainterPath polygon(std::initializer_list<QPointF> points, double radius = 0)
{
    // Begun in the middle of the last side, every corner is one between two others.
    const std::vector<QPointF> corners(points);
    QPainterPath path((corners.back() + corners.front()) / 2);
    for (size_t i = 0; i < corners.size(); ++i) {
        if (radius > 0)
            turn(path, corners[i], corners[(i + 1) % corners.size()], radius);
        else
            path.lineTo(corners[i]);
    }
    path.closeSubpath();
    return path;
}

QPainterPath roundedRect(double left, double top, double right, double bottom, double radius)
{
    return polygon({ { left, top }, { right, top }, { right, bottom }, { left, bottom } }, radius);
}

QPainterPath line(QPointF from, QPointF to)
{
    return polyline({ from, to });
}

/// The two barbs of an arrow that arrives at `tip` in a direction of `degrees`.
QPainterPath arrowhead(QPointF tip, double degrees, double length = kHead)
{
    return polyline({ polar(tip, length, degrees + 135), tip, polar(tip, length, degrees - 135) });
}

QPainterPath turned(const QPainterPath &path, double degrees)
{
    QTransform transform;
    transform.translate(kMiddle.x(), kMiddle.y());
    transform.rotate(-degrees);
    transform.translate(-kMiddle.x(), -kMiddle.y());
    return transform.map(path);
}

/// What a drawing is made of, in the order in which it is drawn.
class Ink
{
public:
    struct Part {
        enum class Kind { Stroke, Fill, Dot, Cut };
        Kind kind;
        QPainterPath path;
        double clearance = 0;
    };

    void stroke(const QPainterPath &path) { add({ Part::Kind::Stroke, path }); }

    /// The area and its contour, whose corners so become as round as the ends of strokes.
    void fill(const QPainterPath &shape) { add({ Part::Kind::Fill, shape }); }

    /// A round full stop, a little wider than the stroke.
    void dot(QPointF center)
    {
        m_uprights.push_back(center.x());
        m_levels.push_back(center.y());
        m_parts.push_back({ Part::Kind::Dot, QPainterPath(center) });
    }

    /// A circle about the middle, as a line and as an area.
    void ring(double radius) { addRound(Part::Kind::Stroke, radius); }
    void disc(double radius) { addRound(Part::Kind::Fill, radius); }

    /// Takes the stroke along `path`, widened by `clearance` on either side, out of all that was
    /// drawn since the last cut.
    void cut(const QPainterPath &path, double clearance = 0)
    {
        m_parts.push_back({ Part::Kind::Cut, path, clearance });
    }

    [[nodiscard]] const std::vector<Part> &parts() const { return m_parts; }

    /// Where upright and level strokes run: their x, and their y.
    [[nodiscard]] const std::vector<double> &uprights() const { return m_uprights; }
    [[nodiscard]] const std::vector<double> &levels() const { return m_levels; }

private:
    void add(Part part)
    {
        // Shorter straight pieces look no sharper on whole pixels, and would pull others along.
        constexpr double shortest = 2;
        constexpr double exact = 1e-6;
        for (int i = 1; i < part.path.elementCount(); ++i) {
            const QPainterPath::Element to = part.path.elementAt(i);
            if (!to.isLineTo())
                continue;
            const QPointF from = part.path.elementAt(i - 1);
            const QPointF step = QPointF(to) - from;
            if (std::abs(step.x()) < exact && std::abs(step.y()) > shortest)
                m_uprights.push_back(to.x);
            if (std::abs(step.y()) < exact && std::abs(step.x()) > shortest)
                m_levels.push_back(to.y);
        }
        m_parts.push_back(std::move(part));
    }

    void addRound(Part::Kind kind, double radius)
    {
        for (const double side : { -radius, radius }) {
            m_uprights.push_back(kMiddle.x() + side);
            m_levels.push_back(kMiddle.y() + side);
        }
        m_parts.push_back({ kind, circle(kMiddle, radius) });
    }

    std::vector<Part> m_parts;
    std::vector<double> m_uprights;
    std::vector<double> m_levels;
};

// --- The drawings ------------------------------------------------------------------------------

void arrowCounterclockwise(Ink &ink)
{
    // Set off from the middle, to make room for the barb that stands up.
    const QPointF center(11.7, 12.9);
    ink.stroke(arc(center, 8.3, 142, -290));
    ink.stroke(arrowhead(polar(center, 8.3, 142), 225));
}

void arrowRight(Ink &ink)
{
    ink.stroke(line({ 3.4, 12 }, { 20.4, 12 }));
    ink.stroke(arrowhead({ 20.4, 12 }, 0, 8.6));
}

void arrowTriangleBranch(Ink &ink)
{
    for (const double side : { -1, 1 }) {
        const double y = 12 + side * 5.8;
        QPainterPath arm(QPointF(2.8, 12));
        arm.lineTo(5, 12);
        arm.cubicTo(10.6, 12, 7.6, y, 13.4, y);
        arm.lineTo(16.6, y);
        ink.stroke(arm);
        ink.fill(polygon({ { 16.8, y - 2.8 }, { 21, y }, { 16.8, y + 2.8 } }));
    }
}

void arrowUpRightSquare(Ink &ink)
{
    ink.stroke(roundedRect(3.4, 3.4, 20.6, 20.6, kCorner));
    ink.stroke(line({ 8.1, 15.9 }, { 15.6, 8.4 }));
    ink.stroke(arrowhead({ 15.6, 8.4 }, 45, 6.2));
}

QPainterPath ribbon()
{
    return polyline(
        { { 12, 16 }, { 6, 21.4 }, { 6, 2.6 }, { 18, 2.6 }, { 18, 21.4 }, { 12, 16 } }, 1.2);
}

void bookmark(Ink &ink)
{
    ink.stroke(ribbon());
}

void bookmarkFill(Ink &ink)
{
    ink.fill(ribbon());
}

void booksVertical(Ink &ink)
{
    ink.stroke(roundedRect(2.57, 3.4, 7.71, 20.6, 1));
    ink.stroke(roundedRect(7.71, 6, 12.86, 20.6, 1));
    ink.stroke(line({ 2.57, 7.7 }, { 7.71, 7.7 }));
    ink.stroke(polygon({ { 14.1, 5.7 }, { 18.8, 4.7 }, { 21.9, 19.5 }, { 17.2, 20.5 } }, 1));
}

void buildingColumns(Ink &ink)
{
    ink.stroke(polygon({ { 12, 2.9 }, { 21.2, 8.4 }, { 2.8, 8.4 } }, 0.8));
    for (const double x : { 4.29, 9.43, 14.57, 19.71 })
        ink.stroke(line({ x, 12 }, { x, 17 }));
    ink.stroke(line({ 2.8, 20.6 }, { 21.2, 20.6 }));
}

void cameraBody(Ink &ink)
{
    ink.stroke(polygon({ { 2.57, 7.2 }, { 7.2, 7.2 }, { 9, 4.2 }, { 15, 4.2 }, { 16.8, 7.2 },
                           { 21.43, 7.2 }, { 21.43, 19.8 }, { 2.57, 19.8 } },
        1.5));
    ink.stroke(circle({ 12, 13.2 }, 3.6));
}

void cameraAperture(Ink &ink)
{
    ink.ring(kRing);
    // Each blade's edge is a side of the hexagon that the light comes through, run on to the ring.
    const double hole = 4.4;
    const double apothem = hole * std::numbers::sqrt3 / 2;
    const double ends = kRing - 0.4; // the round end stays within the ring's stroke
    const double reach = std::sqrt(ends * ends - apothem * apothem);
    for (int blade = 0; blade < 6; ++blade) {
        const double normal = 60 * blade;
        const QPointF tangent = polar(kMiddle, apothem, normal);
        ink.stroke(line(polar(tangent, hole / 2, normal - 90), polar(tangent, reach, normal + 90)));
    }
}

void checklist(Ink &ink)
{
    for (const double y : { 7., 17. }) {
        ink.stroke(polyline({ { 2.8, y }, { 5, y + 2.2 }, { 8.8, y - 2.6 } }));
        ink.stroke(line({ 12.8, y }, { 21.2, y }));
    }
}

void checkmark(Ink &ink)
{
    ink.stroke(polyline({ { 4.2, 12.8 }, { 9.4, 18.2 }, { 19.6, 6 } }));
}

void checkmarkCircleFill(Ink &ink)
{
    ink.disc(kRing);
    ink.cut(polyline({ { 7.6, 12.4 }, { 10.7, 15.6 }, { 16.3, 8.8 } }));
}

void chevronDown(Ink &ink)
{
    ink.stroke(polyline({ { 5, 8.6 }, { 12, 15.6 }, { 19, 8.6 } }));
}

void chevronLeft(Ink &ink)
{
    ink.stroke(polyline({ { 15.4, 5 }, { 8.4, 12 }, { 15.4, 19 } }));
}

void chevronRight(Ink &ink)
{
    ink.stroke(polyline({ { 8.6, 5 }, { 15.6, 12 }, { 8.6, 19 } }));
}

void chevronUp(Ink &ink)
{
    ink.stroke(polyline({ { 5, 15.4 }, { 12, 8.4 }, { 19, 15.4 } }));
}

void ringAlone(Ink &ink)
{
    ink.ring(kRing);
}

void circleCircle(Ink &ink)
{
    ink.ring(kRing);
    ink.ring(4.3);
}

void clockArrowCirclepath(Ink &ink)
{
    const QPointF center(12, 12.4);
    ink.stroke(arc(center, 8.8, 145, -290));
    ink.stroke(arrowhead(polar(center, 8.8, 145), 225, 4));
    ink.stroke(polyline({ { 12, 7.8 }, { 12, 12.8 }, { 15.2, 14.8 } }));
}

void exclamationmarkTriangle(Ink &ink)
{
    ink.stroke(polygon({ { 12, 2.2 }, { 22.6, 20.4 }, { 1.4, 20.4 } }, 2.6));
    ink.stroke(line({ 12, 8.6 }, { 12, 12 }));
    ink.dot({ 12, 16.2 });
}

void film(Ink &ink)
{
    ink.stroke(roundedRect(2.57, 4.29, 21.43, 19.71, kCorner));
    for (const double x : { 7.71, 16.29 })
        ink.stroke(line({ x, 4.29 }, { x, 19.71 }));
    for (const double y : { 9.43, 14.57 }) {
        ink.stroke(line({ 2.57, y }, { 7.71, y }));
        ink.stroke(line({ 16.29, y }, { 21.43, y }));
    }
}

void graduationcap(Ink &ink)
{
    ink.stroke(polygon({ { 12, 3.6 }, { 21.6, 8.8 }, { 12, 14 }, { 2.4, 8.8 } }));
    ink.stroke(polyline({ { 6, 11.6 }, { 6, 20 }, { 18, 20 }, { 18, 11.6 } }, 3));
    ink.stroke(line({ 21.6, 8.8 }, { 21.6, 16.2 }));
}

void infoCircle(Ink &ink)
{
    ink.ring(kRing);
    ink.dot({ 12, 7.4 });
    ink.stroke(line({ 12, 11.8 }, { 12, 16.6 }));
}

void largecircleFillCircle(Ink &ink)
{
    ink.ring(kRing);
    ink.disc(4.3);
}

void chainLink(Ink &ink)
{
    const double r = 3.9;
    QPainterPath half(QPointF(10, 12 - r));
    half.lineTo(6.4, 12 - r);
    half.arcTo(QRectF(6.4 - r, 12 - r, 2 * r, 2 * r), 90, 180);
    half.lineTo(10, 12 + r);
    ink.stroke(turned(half, 45));
    ink.stroke(turned(half, 225));
    ink.stroke(turned(line({ 8.4, 12 }, { 15.6, 12 }), 45));
}

void listBullet(Ink &ink)
{
    for (const double y : { 5.6, 12., 18.4 }) {
        ink.dot({ 4, y });
        ink.stroke(line({ 9.4, y }, { 21, y }));
    }
}

void magnifyingglass(Ink &ink)
{
    ink.stroke(circle({ 10.2, 10.2 }, 7.2));
    ink.stroke(line({ 15.4, 15.4 }, { 21, 21 }));
}

void minus(Ink &ink)
{
    ink.stroke(line({ 4, 12 }, { 20, 12 }));
}

void moon(Ink &ink)
{
    // The shadow's circle, of radius `shadow`, lies `away` from the moon's up and to the right.
    const QPointF center(11.6, 12.4);
    const double disc = 9.2;
    const double shadow = 7.4;
    const double away = 6.4;
    const double cosine = (disc * disc + away * away - shadow * shadow) / (2 * disc * away);
    const double horn = std::acos(cosine) * 180 / std::numbers::pi;
    const double shadowHorn = std::acos((disc * cosine - away) / shadow) * 180 / std::numbers::pi;
    QPainterPath path = arc(center, disc, 45 + horn, 360 - 2 * horn);
    path.connectPath(arc(polar(center, away, 45), shadow, 45 - shadowHorn, 2 * shadowHorn - 360));
    path.closeSubpath();
    ink.stroke(path);
}

void noteText(Ink &ink)
{
    ink.stroke(roundedRect(4.29, 2.57, 19.71, 21.43, kCorner));
    ink.stroke(line({ 8.4, 7.71 }, { 15.6, 7.71 }));
    ink.stroke(line({ 8.4, 12 }, { 15.6, 12 }));
    ink.stroke(line({ 8.4, 16.3 }, { 12.6, 16.3 }));
}

void pauseFill(Ink &ink)
{
    ink.fill(roundedRect(5, 5, 8.2, 19, 0));
    ink.fill(roundedRect(15.8, 5, 19, 19, 0));
}

void playCircle(Ink &ink)
{
    ink.ring(kRing);
    ink.fill(polygon({ { 10.2, 8.6 }, { 15.8, 12 }, { 10.2, 15.4 } }));
}

void playFill(Ink &ink)
{
    ink.fill(polygon({ { 6.6, 4.6 }, { 19.4, 12 }, { 6.6, 19.4 } }));
}

void playRectangle(Ink &ink)
{
    ink.stroke(roundedRect(2.57, 4.29, 21.43, 19.71, kCorner));
    ink.fill(polygon({ { 10.2, 9 }, { 15.2, 12 }, { 10.2, 15 } }));
}

void plus(Ink &ink)
{
    ink.stroke(line({ 4, 12 }, { 20, 12 }));
    ink.stroke(line({ 12, 4 }, { 12, 20 }));
}

void questionmarkCircle(Ink &ink)
{
    ink.ring(kRing);
    QPainterPath hook = arc({ 12, 9.2 }, 2.7, 180, -225);
    hook.cubicTo(12.9, 12.1, 12, 12.4, 12, 13.3);
    ink.stroke(hook);
    ink.dot({ 12, 17.2 });
}

void sdcard(Ink &ink)
{
    ink.stroke(polygon(
        { { 10, 2.57 }, { 19.71, 2.57 }, { 19.71, 21.43 }, { 4.29, 21.43 }, { 4.29, 8.3 } }, 1.6));
    for (const double x : { 8.6, 12., 15.4 })
        ink.stroke(line({ x, 8.2 }, { x, 11 }));
}

void squareAndArrowUp(Ink &ink)
{
    ink.stroke(polyline({ { 7.8, 10.2 }, { 4.6, 10.2 }, { 4.6, 21.2 }, { 19.4, 21.2 },
                            { 19.4, 10.2 }, { 16.2, 10.2 } },
        2));
    ink.stroke(line({ 12, 15.4 }, { 12, 2.8 }));
    ink.stroke(arrowhead({ 12, 2.8 }, 90));
}

void squareAndPencil(Ink &ink)
{
    ink.stroke(polyline(
        { { 12, 4.29 }, { 3.4, 4.29 }, { 3.4, 20.8 }, { 19.7, 20.8 }, { 19.7, 12.4 } }, kCorner));
    ink.stroke(polygon({ { 9, 15 }, { 9.8, 11.6 }, { 18.4, 3 }, { 21, 5.6 }, { 12.4, 14.2 } }));
}

void sunMax(Ink &ink)
{
    ink.ring(4.3);
    for (int ray = 0; ray < 8; ++ray)
        ink.stroke(line(polar(kMiddle, 7.8, 45 * ray), polar(kMiddle, 9.9, 45 * ray)));
}

void trash(Ink &ink)
{
    ink.stroke(line({ 3.2, 6 }, { 20.8, 6 }));
    ink.stroke(polyline({ { 8.6, 6 }, { 8.6, 2.6 }, { 15.4, 2.6 }, { 15.4, 6 } }, 1.4));
    ink.stroke(polyline({ { 5, 6 }, { 6, 21.2 }, { 18, 21.2 }, { 19, 6 } }, 2));
    for (const double x : { 9.6, 14.4 })
        ink.stroke(line({ x, 10.4 }, { x, 16.8 }));
}

void wifiSlash(Ink &ink)
{
    const QPointF foot(12, 19.2);
    for (const double radius : { 4.8, 9.2, 13.6 })
        ink.stroke(arc(foot, radius, 45, 90));
    const QPainterPath slash = line({ 3.6, 3.4 }, { 20.4, 20.6 });
    ink.cut(slash, 0.9);
    ink.stroke(slash);
    ink.dot(foot);
}

QPainterPath cross(double reach)
{
    QPainterPath path = line({ 12 - reach, 12 - reach }, { 12 + reach, 12 + reach });
    path.addPath(line({ 12 - reach, 12 + reach }, { 12 + reach, 12 - reach }));
    return path;
}

void xmark(Ink &ink)
{
    ink.stroke(cross(6.3));
}

void xmarkCircleFill(Ink &ink)
{
    ink.disc(kRing);
    ink.cut(cross(3.8));
}

// --- The table ---------------------------------------------------------------------------------

struct Row {
    std::u16string_view name;
    void (*draw)(Ink &);
};

constexpr auto kTable = std::to_array<Row>({
    { u"arrow.counterclockwise", arrowCounterclockwise },
    { u"arrow.right", arrowRight },
    { u"arrow.triangle.branch", arrowTriangleBranch },
    { u"arrow.up.right.square", arrowUpRightSquare },
    { u"bookmark", bookmark },
    { u"bookmark.fill", bookmarkFill },
    { u"books.vertical", booksVertical },
    { u"building.columns", buildingColumns },
    { u"camera", cameraBody },
    { u"camera.aperture", cameraAperture },
    { u"checklist", checklist },
    { u"checkmark", checkmark },
    { u"checkmark.circle.fill", checkmarkCircleFill },
    { u"chevron.down", chevronDown },
    { u"chevron.left", chevronLeft },
    { u"chevron.right", chevronRight },
    { u"chevron.up", chevronUp },
    { u"circle", ringAlone },
    { u"circle.circle", circleCircle },
    { u"clock.arrow.circlepath", clockArrowCirclepath },
    { u"exclamationmark.triangle", exclamationmarkTriangle },
    { u"film", film },
    { u"graduationcap", graduationcap },
    { u"info.circle", infoCircle },
    { u"largecircle.fill.circle", largecircleFillCircle },
    { u"link", chainLink },
    { u"list.bullet", listBullet },
    { u"magnifyingglass", magnifyingglass },
    { u"minus", minus },
    { u"moon", moon },
    { u"note.text", noteText },
    { u"pause.fill", pauseFill },
    { u"play.circle", playCircle },
    { u"play.fill", playFill },
    { u"play.rectangle", playRectangle },
    { u"plus", plus },
    { u"questionmark.circle", questionmarkCircle },
    { u"sdcard", sdcard },
    { u"square.and.arrow.up", squareAndArrowUp },
    { u"square.and.pencil", squareAndPencil },
    { u"sun.max", sunMax },
    { u"trash", trash },
    { u"wifi.slash", wifiSlash },
    { u"xmark", xmark },
    { u"xmark.circle.fill", xmarkCircleFill },
});
static_assert(std::ranges::is_sorted(kTable, {}, &Row::name), "row() looks a name up by halving");

const Row *row(QStringView name)
{
    const std::u16string_view key(name.utf16(), static_cast<size_t>(name.size()));
    const auto found = std::ranges::lower_bound(kTable, key, {}, &Row::name);
    return found != kTable.end() && found->name == key ? &*found : nullptr;
}

// --- Fitting to pixels -------------------------------------------------------------------------

/// The number nearest to `value` that lies a whole number of `step`s from `phase`; of two, the
/// smaller.
double nearest(double value, double phase, double step)
{
    // Wide enough for ties to be ties in both directions, wherever on the device the symbol lies.
    constexpr double tie = 1e-6;
    return phase + step * std::ceil((value - phase) / step - 0.5 - tie);
}

/// Moves coordinates of one direction so that the edges of straight strokes meet those of device
/// pixels, which at the size of text makes the difference between a line and a gray smear. The
/// strokes are placed by their distance from the middle, so a symmetrical symbol stays so; what
/// lies between two strokes moves in proportion, so that the parts of a symbol keep together.
class Fitting
{
public:
    /// origin, scale   the device coordinate of the grid's 0, and pixels to a unit
    /// strokes         where straight strokes run, in units
    /// onMiddle        the middle itself has to suit a stroke
    Fitting(double origin, double scale, double width, std::vector<double> strokes, bool onMiddle)
    {
        // A line of 1, 3 … pixels is sharp about a pixel's center, one of 2, 4 … between pixels.
        const double pixels = std::max(1.0, std::round(width * std::abs(scale)));
        const double phase = std::fmod(pixels, 2) == 1 ? 0.5 : 0;
        const double middle = origin + scale * kGrid / 2;
        // At a whole or half pixel, both strokes of a symmetrical pair can be sharp.
        const double newMiddle = onMiddle ? nearest(middle, phase, 1) : nearest(middle, 0, 0.5);

        strokes.push_back(kGrid / 2);
        std::ranges::sort(strokes);
        for (const double stroke : strokes) {
            const double distance = (stroke - kGrid / 2) * scale;
            const double newDistance = nearest(std::abs(distance), phase - newMiddle, 1);
            const double to
                = distance == 0 ? newMiddle : newMiddle + std::copysign(newDistance, distance);
            const Knot knot{ .from = stroke, .to = (to - origin) / scale };
            // Where the pixels don't suffice, strokes share one instead of changing places.
            if (m_knots.empty() || knot.to > m_knots.back().to)
                m_knots.push_back(knot);
        }
    }

    [[nodiscard]] double operator()(double value) const
    {
        const auto above = std::ranges::upper_bound(m_knots, value, {}, &Knot::from);
        if (above == m_knots.begin())
            return value + above->to - above->from;
        const Knot &below = *(above - 1);
        if (above == m_knots.end())
            return value + below.to - below.from;
        return std::lerp(below.to, above->to, (value - below.from) / (above->from - below.from));
    }

private:
    struct Knot {
        double from;
        double to;
    };
    std::vector<Knot> m_knots;
};

bool hasMiddle(const std::vector<double> &strokes)
{
    return std::ranges::any_of(strokes, [](double at) { return std::abs(at - kGrid / 2) < 0.01; });
}

std::vector<Ink::Part> fitted(const Ink &ink, double width, const QTransform &device)
{
    // A broader stroke has a sharp core wherever it lies, and its edges are better off in place.
    constexpr double broadest = 2.5; // pixels

    std::vector<Ink::Part> parts = ink.parts();
    if (device.type() > QTransform::TxScale || !device.isInvertible())
        return parts;
    if (width * std::max(std::abs(device.m11()), std::abs(device.m22())) > broadest)
        return parts;
    // Decided for both directions at once, or rings would turn into eggs.
    const bool onMiddle = hasMiddle(ink.uprights()) || hasMiddle(ink.levels());
    const Fitting x(device.dx(), device.m11(), width, ink.uprights(), onMiddle);
    const Fitting y(device.dy(), device.m22(), width, ink.levels(), onMiddle);
    for (Ink::Part &part : parts) {
        for (int i = 0; i < part.path.elementCount(); ++i) {
            const QPainterPath::Element point = part.path.elementAt(i);
            part.path.setElementPositionAt(i, x(point.x), y(point.y));
        }
    }
    return parts;
}

// --- Painting ----------------------------------------------------------------------------------

QPainterPath stroked(const QPainterPath &path, double width)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCurveThreshold(0.02); // units; still smooth at 1000 pixels
    return stroker.createStroke(path);
}

QPainterPath without(const QPainterPath &shape, const QPainterPath &hole)
{
    // Qt takes curves of a few units for straight lines here, so they are made large first.
    constexpr double large = 256;
    const QTransform enlarge = QTransform::fromScale(large, large);
    return enlarge.inverted().map(enlarge.map(shape).subtracted(enlarge.map(hole)));
}

double signedArea(const QPolygonF &polygon)
{
    double area = 0;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon[i];
        const QPointF b = polygon[(i + 1) % polygon.size()];
        area += (a.x() * b.y() - a.y() * b.x()) / 2;
    }
    return area;
}

/// The shape run around in the direction in which outlines of strokes run, so that the two add up
/// where they overlap.
QPainterPath alongStrokes(const QPainterPath &shape)
{
    return signedArea(shape.toFillPolygon()) < 0 ? shape.toReversed() : shape;
}

} // namespace

QStringList Symbols::names()
{
    QStringList names;
    for (const Row &row : kTable)
        names.append(
            QStringView(row.name.data(), static_cast<qsizetype>(row.name.size())).toString());
    return names;
}

bool Symbols::contains(QStringView name)
{
    return row(name) != nullptr;
}

void Symbols::paint(
    QPainter &painter, QStringView name, const QRectF &box, const QColor &ink, Weight weight)
{
    const Row *symbol = row(name);
    if (!symbol || box.isEmpty())
        return;
    Ink drawing;
    symbol->draw(drawing);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = std::min(box.width(), box.height()) / kGrid;
    painter.translate(box.center());
    painter.scale(scale, scale);
    painter.translate(-kMiddle);

    const double width = strokeWidth(weight);
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    for (const Ink::Part &part : fitted(drawing, width, painter.deviceTransform())) {
        switch (part.kind) {
        case Ink::Part::Kind::Stroke:
            outline.addPath(stroked(part.path, width));
            break;
        case Ink::Part::Kind::Fill:
            outline.addPath(alongStrokes(part.path));
            outline.addPath(stroked(part.path, width));
            break;
        case Ink::Part::Kind::Dot:
            outline.addPath(alongStrokes(circle(part.path.elementAt(0), 0.68 * width)));
            break;
        case Ink::Part::Kind::Cut:
            // What a cut leaves may run in any direction; nothing more may be added to it.
            painter.fillPath(without(outline, stroked(part.path, width + 2 * part.clearance)), ink);
            outline.clear();
            outline.setFillRule(Qt::WindingFill);
            break;
        }
    }
    painter.fillPath(outline, ink);
    painter.restore();
}
