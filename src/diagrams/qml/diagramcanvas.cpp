#include "diagramcanvas.h"

#include "diagrams/diagrampainter.h"

#include <QPainter>

namespace {

constexpr QSizeF kDesign(Diagrams::kDesignWidth, Diagrams::kDesignHeight);
constexpr int kLongestSide = 4096; // pixels

// The largest area of the drawing's shape in the middle of `frame`.
QRectF canvasIn(const QRectF &frame)
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

void DiagramCanvas::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    PaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.width() != oldGeometry.width())
        setImplicitHeight(newGeometry.width() * kDesign.height() / kDesign.width());
}

void DiagramCanvas::paint(QPainter *painter)
{
    const QRectF canvas = canvasIn(boundingRect());
    painter->setClipRect(canvas); // long callouts end at its edge
    painter->translate(canvas.topLeft());
    const DiagramPainter diagram{
        .ctx = *painter, .size = canvas.size(), .ink = m_glow, .text = m_label
    };
    diagram.draw(diagramKindNamed(m_kind).value_or(DiagramKind::Sensor));
}
