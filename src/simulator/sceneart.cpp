#include "simulator/sceneart.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <span>

namespace {

/// sRGB components from 0 to 1.
struct Ink {
    double red, green, blue, alpha = 1;
};

int byteOf(double component)
{
    return static_cast<int>(std::floor(component * 255 + 0.5));
}

QColor color(Ink ink)
{
    return { byteOf(ink.red), byteOf(ink.green), byteOf(ink.blue), byteOf(ink.alpha) };
}

// The town is the same in every run: a linear congruential generator with a fixed seed.
// Multiplier and increment: D. E. Knuth, MMIX.
class Draws
{
public:
    /// The next number from 0 to 1, both inclusive.
    double next()
    {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<double>(m_state >> 33U) / 2147483647.0;
    }

private:
    std::uint64_t m_state = 7;
};

/// A canvas with the few operations that the scene is made of. Every edge is anti-aliased.
class Canvas
{
public:
    Canvas(int width, int height)
        : m_image(width, height, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.fill(Qt::transparent);
        m_painter.begin(&m_image);
        m_painter.setRenderHint(QPainter::Antialiasing);
    }

    void fillRect(double x, double y, double width, double height, Ink ink)
    {
        QPainterPath path;
        path.addRect(x, y, width, height);
        fill(path, ink);
    }

    void fillEllipse(double x, double y, double width, double height, Ink ink)
    {
        QPainterPath path;
        path.addEllipse(QRectF(x, y, width, height));
        fill(path, ink);
    }

    void fill(const QPainterPath &path, Ink ink) { m_painter.fillPath(path, color(ink)); }

    // As the outline's area: the painter draws thin lines by a quicker and less exact way.
    void stroke(const QPainterPath &path, double width, Ink ink)
    {
        QPainterPathStroker stroker;
        stroker.setWidth(width);
        stroker.setCapStyle(Qt::FlatCap);
        stroker.setJoinStyle(Qt::MiterJoin);
        stroker.setMiterLimit(10);
        QPainterPath outline = stroker.createStroke(path);
        outline.setFillRule(Qt::WindingFill);
        fill(outline, ink);
    }

    void clip(const QPainterPath &path) { m_painter.setClipPath(path); }
    void endClip() { m_painter.setClipping(false); }

    QImage finish()
    {
        m_painter.end();
        return m_image;
    }

    /// Row `y`, to be painted by hand.
    std::span<QRgb> row(int y)
    {
        return { reinterpret_cast<QRgb *>(m_image.scanLine(y)),
            static_cast<std::size_t>(m_image.width()) };
    }

private:
    QImage m_image;
    QPainter m_painter;
};

QPainterPath polyline(std::initializer_list<QPointF> points)
{
    QPainterPath path(*points.begin());
    for (const QPointF *point = points.begin() + 1; point != points.end(); ++point)
        path.lineTo(*point);
    return path;
}

constexpr double kHorizon = 0.55; // share of the height; houses and trees stand on it

// By hand rather than by a gradient of the painter, which works from a table of 1024 colors.
void paintSky(Canvas &canvas, int height)
{
    constexpr Ink top{ 0.36, 0.46, 0.66 };
    constexpr Ink bottom{ 0.78, 0.6, 0.52 };
    for (int y = 0; y < height; ++y) {
        const double t = std::min((y + 0.5) / (kHorizon * height), 1.0);
        const auto mix = [t](double from, double to) { return byteOf(from + (to - from) * t); };
        std::ranges::fill(canvas.row(y),
            qRgb(mix(top.red, bottom.red), mix(top.green, bottom.green),
                mix(top.blue, bottom.blue)));
    }
}

void paintBuildings(Canvas &canvas, double w, double h, Draws &draws)
{
    constexpr Ink wall{ 0.16, 0.16, 0.22 };
    constexpr Ink litWindow{ 0.98, 0.84, 0.45 };
    for (double x = 0; x < w;) {
        const double width = (draws.next() * 0.07 + 0.06) * w;
        const double height = (draws.next() * 0.22 + 0.18) * h;
        const double top = kHorizon * h - height;
        canvas.fillRect(x, top, width, height, wall);
        for (double y = top + 8; y < 0.53 * h; y += 13) {
            for (double windowX = x + 5; windowX < x + width - 8; windowX += 10) {
                if (draws.next() > 0.45)
                    canvas.fillRect(windowX, y, 5, 7, litWindow);
            }
        }
        x = x + width + 2;
    }
}

void paintTrees(Canvas &canvas, double w, double h, Draws &draws)
{
    const double base = kHorizon * h;
    for (int i = 0; i < 9; ++i) {
        const double x = (i * 0.115 + 0.03) * w + draws.next() * 10;
        const double height = (draws.next() * 0.03 + 0.07) * h;
        canvas.fillRect(x - 3, base - 0.4 * height, 6, 0.9 * height, { 0.25, 0.2, 0.14 });
        const double red = draws.next() * 0.05 + 0.13;
        const double green = draws.next() * 0.08 + 0.32;
        canvas.fillEllipse(
            x - height, base - 2.1 * height, 2 * height, 2 * height, { red, green, 0.16 });
    }
}

void paintStringOfLights(Canvas &canvas, double w, double h)
{
    constexpr double ends = 0.34;
    constexpr double sag = 0.46;
    QPainterPath wire(QPointF(0, ends * h));
    wire.quadTo(0.5 * w, sag * h, w, ends * h);
    canvas.stroke(wire, 1, { 0.1, 0.1, 0.1 });

    constexpr std::array<Ink, 3> bulbs{ { { 1, 0.92, 0.55 }, { 1, 0.55, 0.35 },
        { 0.6, 0.85, 1 } } };
    for (int k = 0; k < 34; ++k) {
        const double t = k / 33.0;
        const double x = t * w;
        const double y
            = ends * h * (1 - t) * (1 - t) + sag * h * 2 * t * (1 - t) + ends * h * t * t;
        canvas.fillEllipse(x - 2.5, y + 1, 5, 5, bulbs[static_cast<std::size_t>(k % 3)]);
    }
}

void paintLampPosts(Canvas &canvas, double w, double h)
{
    for (const double share : { 0.18, 0.52, 0.9 }) {
        const double x = share * w;
        canvas.fillRect(x - 1.5, 0.4 * h, 3, 0.3 * h, { 0.12, 0.12, 0.13 });
        canvas.fillEllipse(x - 6, 0.39 * h - 6, 12, 12, { 1, 0.95, 0.75 });
    }
}

} // namespace

QImage SceneArt::background(int width, int height)
{
    const double w = width;
    const double h = height;
    Canvas canvas(width, height);
    Draws draws;
    paintSky(canvas, height);
    paintBuildings(canvas, w, h, draws);
    canvas.fillRect(0, kHorizon * h, w, 0.45 * h, { 0.2, 0.3, 0.18 });
    canvas.fillRect(0, 0.7 * h, w, 0.07 * h, { 0.52, 0.48, 0.42 });
    paintTrees(canvas, w, h, draws);
    paintStringOfLights(canvas, w, h);
    paintLampPosts(canvas, w, h);
    return canvas.finish();
}

QImage SceneArt::cyclist(int width, int height)
{
    Canvas canvas(width, height);
    const double cx = 0.41 * width;
    const double ground = 0.715 * height;
    const double r = 0.045 * height; // of a wheel
    const double hub = ground - r;
    const QPointF rear(cx - 1.4 * r, hub);
    const QPointF front(cx + 1.4 * r, hub);
    const QPointF seat(cx - 0.5 * r, ground - 2.4 * r);
    const QPointF bar(cx + 1.1 * r, ground - 2.6 * r);

    for (const QPointF &wheel : { rear, front }) {
        QPainterPath tire;
        tire.addEllipse(wheel, r, r);
        canvas.stroke(tire, 3, { 0.08, 0.08, 0.09 });
    }
    QPainterPath frame = polyline({ rear, seat, bar, front });
    frame.addPath(polyline({ seat, { cx, hub }, bar }));
    canvas.stroke(frame, 4, { 0.85, 0.12, 0.1 });

    constexpr Ink jersey{ 0.95, 0.75, 0.1 };
    canvas.fillRect(seat.x() - 4, seat.y() - 2.2 * r, 1.1 * r, 2.2 * r, jersey);
    canvas.fillEllipse(seat.x() - 2, seat.y() - 3.2 * r, 0.95 * r, 0.95 * r, { 0.85, 0.65, 0.5 });
    canvas.stroke(polyline({ { seat.x() + 6, seat.y() - 1.8 * r }, bar }), 5, jersey);
    canvas.stroke(polyline({ seat, { cx + 6, hub - 4 } }), 5, { 0.15, 0.2, 0.45 });
    return canvas.finish();
}

QImage SceneArt::subject(int width, int height)
{
    const double w = width;
    const double h = height;
    Canvas canvas(width, height);
    const double cx = 0.74 * w;
    const double top = 0.3 * h;

    // The shirt runs off the bottom of the frame.
    const QRectF shirt(cx - 0.11 * w, top + 0.26 * h, 0.22 * w, h / 2);
    QPainterPath outline;
    outline.addRoundedRect(shirt, 0.06 * w, 0.06 * w);
    canvas.fill(outline, { 0.22, 0.32, 0.55 });

    QPainterPath weave;
    for (double x = shirt.left(); x < shirt.right(); x += 6) {
        weave.moveTo(x, shirt.top());
        weave.lineTo(x, shirt.bottom());
    }
    for (double y = shirt.top(); y < shirt.bottom(); y += 6) {
        weave.moveTo(shirt.left(), y);
        weave.lineTo(shirt.right(), y);
    }
    canvas.clip(outline);
    canvas.stroke(weave, 1, { 0.8, 0.84, 0.92, 0.55 });
    canvas.endClip();

    constexpr Ink skin{ 0.82, 0.62, 0.48 };
    canvas.fillRect(cx - 0.018 * w, top + 0.2 * h, 0.036 * w, 0.08 * h, skin);
    canvas.fillEllipse(cx - 0.045 * w, top + 0.02 * h, 0.09 * w, 0.21 * h, skin);
    canvas.fillEllipse(cx - 0.05 * w, top, 0.1 * w, 0.09 * h, { 0.2, 0.13, 0.08 });
    constexpr Ink pupil{ 0.1, 0.1, 0.1 };
    canvas.fillEllipse(cx - 0.022 * w, top + 0.1 * h, 5, 5, pupil);
    canvas.fillEllipse(cx + 0.012 * w, top + 0.1 * h, 5, 5, pupil);

    // A smile: the arc passes under its center. The painter counts degrees the other way round.
    constexpr double from = 0.3;
    constexpr double to = std::numbers::pi - 0.3;
    constexpr double degrees = 180 / std::numbers::pi;
    const double radius = 0.016 * w;
    const QRectF circle(cx - radius, top + 0.15 * h - radius, 2 * radius, 2 * radius);
    QPainterPath mouth;
    mouth.arcMoveTo(circle, -from * degrees);
    mouth.arcTo(circle, -from * degrees, -(to - from) * degrees);
    canvas.stroke(mouth, 2, { 0.45, 0.15, 0.15 });

    canvas.fillRect(cx - 0.04 * w, top + 0.36 * h, 0.08 * w, 0.055 * h, { 0.07, 0.07, 0.08 });
    canvas.fillEllipse(cx - 0.014 * w, top + 0.365 * h, 0.028 * w, 0.028 * w, { 0.55, 0.58, 0.62 });
    return canvas.finish();
}
