// The few ways in which surfaces of the interface are shaded.
#pragma once

#include <QBrush>
#include <QColor>
#include <QRectF>

class QPainter;

namespace Painting {

/// A brush that runs down `area` from `top` over an optional `middle` to `bottom`; an invalid
/// `bottom` gives the flat color `top`.
[[nodiscard]] QBrush verticalBrush(
    const QRectF &area, const QColor &top, const QColor &middle, const QColor &bottom);

struct PanelStyle {
    double radius = 0;
    QBrush fill;
    QBrush stroke;
    double strokeWidth = 0; ///< The stroke lies inside the edge.
};

/// Paints a rectangle with continuous corners.
void paintPanel(QPainter &painter, const QRectF &area, const PanelStyle &style);

/// A neutral gray, 0 (black) to 1 (white).
[[nodiscard]] QColor gray(double white, double opacity = 1);

} // namespace Painting
