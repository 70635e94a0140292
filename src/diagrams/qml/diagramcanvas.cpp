#include "diagramcanvas.h"

#include "diagrams/diagramcatalogue.h"
#include "diagrams/diagrampainter.h"
#include "kit/picturecache.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr QSizeF kDesign(Diagrams::kDesignWidth, Diagrams::kDesignHeight);
constexpr int kLongestSide = 4096;                     // pixels
constexpr qsizetype kKeptThumbnails = 4 * 1024 * 1024; // bytes

/// All that a thumbnail's picture depends on.
struct Look {
    DiagramKind kind;
    QRgb ink;
    QSize pixels;
    QSizeF points;

    friend bool operator==(const Look &, const Look &) = default;
};

size_t qHash(const Look &it, size_t seed = 0)
{
    return qHashMulti(seed, int(it.kind), it.ink, it.pixels.width(), it.pixels.height(),
        it.points.width(), it.points.height());
}

// The largest area of the drawing's shape in the middle of `frame`.
QRectF fitted(const QRectF &frame)
{
    QRectF canvas({}, kDesign.scaled(frame.size(), Qt::KeepAspectRatio));
    canvas.moveCenter(frame.center());
    return canvas;
}

} // namespace

DiagramCanvas::DiagramCanvas(QQuickItem *parent)
    : PaintedItem(parent)
{
    limitTexture(kLongestSide);
    setImplicitSize(kDesign.width(), kDesign.height());
}

DiagramKind DiagramCanvas::shownKind() const
{
    return diagramKindNamed(m_kind).value_or(DiagramKind::Sensor);
}

qreal DiagramCanvas::calloutReach() const
{
    const QMarginsF overflow = calloutOverflow(shownKind(), m_drawing);
    return overflow.left() + overflow.right();
}

QStringList DiagramCanvas::calloutTexts() const
{
    QStringList texts;
    for (const Diagrams::Callout &callout : Diagrams::drawing(shownKind()).callouts)
        texts.append(callout.text);
    return texts;
}

QRectF DiagramCanvas::canvasIn(QSizeF item) const
{
    const QRectF frame({}, item);
    if (m_layout == Whole) {
        // Callouts grow with the drawing, but letters in steps: what still runs over the edge after
        // the first guess is made smaller until it doesn't.
        constexpr double kStep = 0.99;
        const auto fit = [&](const QRectF &needed) {
            return std::min(item.width() / needed.width(), item.height() / needed.height());
        };
        const auto needed = [&](QSizeF canvas) {
            return QRectF({}, canvas).marginsAdded(calloutOverflow(shownKind(), canvas));
        };
        QSizeF canvas = kDesign * fit(needed(kDesign));
        while (canvas.width() > 1 && fit(needed(canvas)) < 1)
            canvas *= kStep;
        return { frame.center() - needed(canvas).center(), canvas };
    }
    if (m_layout == FixedSize) {
        const QMarginsF overflow = calloutOverflow(shownKind(), m_drawing);
        QRectF canvas({}, m_drawing);
        canvas.moveCenter(frame.center());
        canvas.moveRight(std::min(canvas.right(), frame.right() - overflow.right()));
        canvas.moveLeft(std::max(canvas.left(), overflow.left()));
        return canvas;
    }
    return fitted(frame);
}

void DiagramCanvas::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    PaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.width() != oldGeometry.width())
        setImplicitHeight(newGeometry.width() * kDesign.height() / kDesign.width());
}

void DiagramCanvas::paint(QPainter *painter)
{
    const QRectF canvas = canvasIn(size());
    // Long callouts end somewhere.
    painter->setClipRect(m_layout == Fitted ? canvas : boundingRect());
    painter->translate(canvas.topLeft());
    const DiagramPainter diagram{
        .ctx = *painter, .size = canvas.size(), .ink = m_glow, .text = m_label
    };
    if (m_layout == Thumbnail)
        diagram.drawShapes(shownKind());
    else
        diagram.draw(shownKind());
}

std::shared_future<QImage> DiagramCanvas::paintAsync()
{
    if (m_layout != Thumbnail)
        return PaintedItem::paintAsync();
    static Painting::PictureCache<Look, std::shared_future<QImage>> pictures(kKeptThumbnails);
    const Look look{
        .kind = shownKind(), .ink = m_glow.rgba(), .pixels = textureSize(), .points = size()
    };
    return pictures.picture(look, qsizetype(4) * look.pixels.width() * look.pixels.height(),
        [this] { return PaintedItem::paintAsync(); });
}
