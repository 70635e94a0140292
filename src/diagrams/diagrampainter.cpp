#include "diagrams/diagrampainter.h"

#include "diagrams/diagramcatalogue.h"
#include "kit/continuouspath.h"
#include "kit/fonts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <algorithm>
#include <cmath>

using namespace Diagrams;

namespace {

constexpr double kLeastStrokeScale = 0.6;
constexpr double kHaloWidth = 2.4; // beyond the line's own
constexpr double kHaloOpacity = 0.35;

constexpr double kLeaderWidth = 0.8;
constexpr double kLeaderOpacity = 0.55;
constexpr double kDash = 3;
constexpr double kGap = 2;
constexpr double kDotRadius = 2;

constexpr double kLabelSize = 11;
constexpr double kCaptionSize = 10;
constexpr double kLeastTextSize = 8;
constexpr double kCaptionOpacity = 0.7;
constexpr QPointF kCaptionPlace(200, 250);

/// Where the design space lies on a canvas.
struct Fit {
    double s; ///< Points of the canvas for one unit of the design.
    QPointF offset;

    explicit Fit(QSizeF canvas)
        : s(std::min(canvas.width() / kDesignWidth, canvas.height() / kDesignHeight))
        , offset((canvas.width() - kDesignWidth * s) / 2, (canvas.height() - kDesignHeight * s) / 2)
    { }

    [[nodiscard]] bool isVisible() const
    {
        return s > 0 && std::isfinite(offset.x()) && std::isfinite(offset.y());
    }
    [[nodiscard]] QPointF map(QPointF point) const { return point * s + offset; }
    [[nodiscard]] QRectF map(const QRectF &area) const
    {
        return { map(area.topLeft()), area.size() * s };
    }
};

QColor faded(QColor color, double opacity)
{
    color.setAlphaF(color.alphaF() * static_cast<float>(std::clamp(opacity, 0.0, 1.0)));
    return color;
}

QPainterPath ellipseIn(const QRectF &area)
{
    QPainterPath path;
    path.addEllipse(area);
    return path;
}

QRectF around(QPointF center, double rx, double ry)
{
    return { center.x() - rx, center.y() - ry, 2 * rx, 2 * ry };
}

/// Which point of a text's box lies at the text's place.
enum class Anchor { Center, Leading, Trailing, Top, Bottom };

// A text stands on the far side of its place, seen from the target.
Anchor anchorOf(const Callout &callout)
{
    if (callout.at.x() < callout.target.x())
        return Anchor::Trailing;
    if (callout.target.x() < callout.at.x())
        return Anchor::Leading;
    return callout.at.y() < callout.target.y() ? Anchor::Bottom : Anchor::Top;
}

QPointF topLeft(QSizeF text, QPointF place, Anchor anchor)
{
    const QPointF centered = place - QPointF(text.width(), text.height()) / 2;
    switch (anchor) {
    case Anchor::Center:
        return centered;
    case Anchor::Leading:
        return { place.x(), centered.y() };
    case Anchor::Trailing:
        return { place.x() - text.width(), centered.y() };
    case Anchor::Top:
        return { centered.x(), place.y() };
    case Anchor::Bottom:
        return { centered.x(), place.y() - text.height() };
    }
    Q_UNREACHABLE();
}

// The box of a line of text at its place.
QRectF textBox(const QString &words, QPointF place, Anchor anchor, const QFontMetricsF &metrics)
{
    const QSizeF extent(metrics.horizontalAdvance(words), metrics.height());
    return { topLeft(extent, place, anchor), extent };
}

QFont calloutFont(const Fit &fit)
{
    return Fonts::rounded(std::max(kLabelSize * fit.s, kLeastTextSize), QFont::DemiBold);
}

void write(QPainter &painter, const QString &words, QPointF place, Anchor anchor, const QFont &font,
    const QColor &color)
{
    painter.save();
    painter.setFont(font);
    painter.setPen(color);
    // Measured for this device: its font is what is drawn.
    const QFontMetricsF metrics(font, painter.device());
    const QPointF baseline(0, metrics.ascent());
    painter.drawText(textBox(words, place, anchor, metrics).topLeft() + baseline, words);
    painter.restore();
}

template <typename... Handlers>
struct Overloaded : Handlers... {
    using Handlers::operator()...;
};

} // namespace

// --- The one ink -------------------------------------------------------------------------------

void DiagramPainter::put(const QPainterPath &path, double fill, double width) const
{
    // Round caps would leave a dot of what has shrunk to a point.
    const Fit fit(size);
    if (!fit.isVisible() || path.controlPointRect().isNull())
        return;

    ctx.setRenderHint(QPainter::Antialiasing);
    if (fill > 0)
        ctx.fillPath(path, faded(ink, fill));

    const double k = std::max(fit.s, kLeastStrokeScale);
    const auto stroke = [&](const QColor &color, double points) {
        ctx.strokePath(path, QPen(color, points * k, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    };
    stroke(faded(ink, kHaloOpacity), width + kHaloWidth);
    stroke(ink, width);
}

// --- Simple shapes -----------------------------------------------------------------------------

void DiagramPainter::box(const Box &box) const
{
    const Fit fit(size);
    put(Painting::continuousPath(fit.map(QRectF(box.x, box.y, box.w, box.h)), box.r * fit.s),
        box.fill);
}

void DiagramPainter::circle(const Circle &circle) const
{
    put(ellipseIn(Fit(size).map(around({ circle.cx, circle.cy }, circle.r, circle.r))),
        circle.fill);
}

void DiagramPainter::ellipse(const Ellipse &ellipse) const
{
    put(ellipseIn(Fit(size).map(around({ ellipse.cx, ellipse.cy }, ellipse.rx, ellipse.ry))),
        ellipse.fill);
}

void DiagramPainter::line(const Line &line) const
{
    if (line.points.empty())
        return;
    const Fit fit(size);
    QPainterPath path(fit.map(line.points.front()));
    path.setFillRule(Qt::WindingFill);
    for (auto point = line.points.begin() + 1; point != line.points.end(); ++point)
        path.lineTo(fit.map(*point));
    if (line.closed)
        path.closeSubpath();
    put(path, line.closed ? line.fill : 0, line.width);
}

void DiagramPainter::arc(const Arc &arc) const
{
    double sweep = arc.end - arc.start;
    if (sweep < 0)
        sweep = std::fmod(sweep, 360) + 360;
    sweep = std::min(sweep, 360.0);

    // QPainterPath counts its angles counterclockwise.
    const QRectF circle = Fit(size).map(around({ arc.cx, arc.cy }, arc.r, arc.r));
    QPainterPath path;
    path.arcMoveTo(circle, -arc.start);
    path.arcTo(circle, -arc.start, -sweep);
    put(path, 0);
}

// --- Composite shapes --------------------------------------------------------------------------

void DiagramPainter::lensBarrel(const LensBarrel &lens) const
{
    if (lens.rings < 0)
        qFatal("A lens can't have %d rings.", lens.rings);

    const auto &[x, y, length, radius, rings] = lens;
    box({ x, y - radius, length, 2 * radius, 4, 0.1 });
    for (int i = 1; i <= rings; ++i) {
        const double middle = x + i * length / (rings + 1);
        box({ middle - 8, y - radius - 3, 16, 2 * radius + 6, 3, 0.18 });
    }
    ellipse({ x + length, y, 6, radius - 2, 0.25 });
}

void DiagramPainter::cameraBody(const CameraBody &camera) const
{
    const auto &[x, y, w, h, hump, grip] = camera;
    if (hump) {
        const double roof = y - 26;
        line({ .points = { { x + 0.36 * w, y }, { x + 0.42 * w, roof }, { x + 0.62 * w, roof },
                   { x + 0.68 * w, y } },
            .closed = true,
            .fill = 0.12 });
    }
    box({ x, y, w, h, 14, 0.1 });
    if (grip)
        box({ x - 4, y + 8, 0.22 * w, h - 16, 12, 0.2 });
    circle({ x + 0.8 * w, y - 4, 8, 0.2 }); // the mode dial
}

void DiagramPainter::legs(const Legs &legs) const
{
    const QPointF top(legs.x, legs.y);
    // The third leg is the rear one, seen foreshortened.
    for (const QPointF foot : { QPointF(legs.x - legs.spread, legs.foot),
             QPointF(legs.x + legs.spread, legs.foot), QPointF(legs.x + 6, legs.foot - 8) })
        line({ .points = { top, foot }, .width = 3 });
}

// --- Words -------------------------------------------------------------------------------------

void DiagramPainter::label(const Callout &callout) const
{
    const Fit fit(size);
    if (!fit.isVisible())
        return;
    const QPointF at = fit.map(callout.at);
    const QPointF target = fit.map(callout.target);

    QPainterPath leader(at);
    leader.lineTo(target);
    QPen pen(faded(text, kLeaderOpacity), kLeaderWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    pen.setDashPattern({ kDash / kLeaderWidth, kGap / kLeaderWidth }); // it counts in widths
    ctx.setRenderHint(QPainter::Antialiasing);
    ctx.strokePath(leader, pen);
    ctx.fillPath(ellipseIn(around(target, kDotRadius, kDotRadius)), text);

    write(ctx, callout.text, at, anchorOf(callout), calloutFont(fit), text);
}

void DiagramPainter::caption(const QString &words) const
{
    const Fit fit(size);
    if (!fit.isVisible())
        return;
    write(ctx, words, fit.map(kCaptionPlace), Anchor::Center,
        Fonts::rounded(std::max(kCaptionSize * fit.s, kLeastTextSize), QFont::Bold),
        faded(text, kCaptionOpacity));
}

// --- Whole drawings ----------------------------------------------------------------------------

void DiagramPainter::draw(const Shape &shape) const
{
    std::visit(
        Overloaded{ [this](const Box &it) { box(it); }, [this](const Circle &it) { circle(it); },
            [this](const Ellipse &it) { ellipse(it); }, [this](const Line &it) { line(it); },
            [this](const Arc &it) { arc(it); }, [this](const LensBarrel &it) { lensBarrel(it); },
            [this](const CameraBody &it) { cameraBody(it); },
            [this](const Legs &it) { legs(it); } },
        shape);
}

void DiagramPainter::drawShapes(DiagramKind kind) const
{
    for (const Shape &shape : Diagrams::drawing(kind).shapes)
        draw(shape);
}

void DiagramPainter::draw(DiagramKind kind) const
{
    drawShapes(kind);
    for (const Callout &callout : Diagrams::drawing(kind).callouts)
        label(callout);
}

QMarginsF calloutOverflow(DiagramKind kind, QSizeF canvas)
{
    const Fit fit(canvas);
    QMarginsF overflow;
    if (!fit.isVisible())
        return overflow;
    const QFontMetricsF metrics(calloutFont(fit));
    for (const Callout &callout : Diagrams::drawing(kind).callouts) {
        const QRectF box = textBox(callout.text, fit.map(callout.at), anchorOf(callout), metrics);
        overflow = { std::max(overflow.left(), -box.left()), std::max(overflow.top(), -box.top()),
            std::max(overflow.right(), box.right() - canvas.width()),
            std::max(overflow.bottom(), box.bottom() - canvas.height()) };
    }
    return overflow;
}
