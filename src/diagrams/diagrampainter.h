// Draws gear drawings: the primitives of which all of them are made.
//
// Numbers are those of the design space, 400 × 260 with its origin at the top left and y downwards
// (see drawing.h). It is fitted to the canvas as large as it goes and centered there; on a canvas
// of exactly 400 × 260 a design number is a point of the canvas. Two things stop shrinking, so that
// small drawings stay legible: strokes at 0.6 of their design width, texts at 8 points. The line of
// a callout and its dot are alike at every size.
//
// Everything is tinted from two colors. Each outline is drawn twice, as a wide faint halo and as a
// line of full ink over it, which makes it glow on a dark ground.
#pragma once

#include "diagrams/drawing.h"

#include <QColor>
#include <QMarginsF>
#include <QSizeF>

class QPainter;
class QPainterPath;
class QRectF;

/// Made afresh for each picture; every operation paints at once and keeps nothing. The painter gets
/// antialiasing and is otherwise left as it was. What has no extent paints nothing: an empty
/// canvas, a polyline of less than two points, a box without width.
struct DiagramPainter {
    QPainter &ctx;
    QSizeF size; ///< Of the canvas, in points; its top left corner is the painter's origin.
    QColor ink;  ///< Of all shapes.
    QColor text; ///< Of all callouts.

    /// Paints the whole drawing. Texts may run over the edge of the canvas: clip where they
    /// mustn't.
    void draw(DiagramKind kind) const;
    /// The drawing without its callouts, for sizes at which words are scraps.
    void drawShapes(DiagramKind kind) const;
    void draw(const Diagrams::Shape &shape) const;

    void box(const Diagrams::Box &box) const;
    void circle(const Diagrams::Circle &circle) const;
    void ellipse(const Diagrams::Ellipse &ellipse) const;
    void line(const Diagrams::Line &line) const;
    void arc(const Diagrams::Arc &arc) const;
    void lensBarrel(const Diagrams::LensBarrel &lens) const;
    void cameraBody(const Diagrams::CameraBody &camera) const;
    void legs(const Diagrams::Legs &legs) const;

    /// A leader, a dot on the target and the text, which stands clear of its own leader: left or
    /// right of `at` if the target lies to the other side, else above or below it.
    void label(const Diagrams::Callout &callout) const;

    /// A line of text, centered low in the drawing.
    void caption(const QString &words) const;

private:
    void put(const QPainterPath &path, double fill, double width = Diagrams::kStroke) const;
};

/// How far the callouts of a drawing run over each edge of a canvas of this size, in points, as
/// they are drawn there; 0 at an edge that none crosses.
[[nodiscard]] QMarginsF calloutOverflow(DiagramKind kind, QSizeF canvas);
