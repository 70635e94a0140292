// What a gear drawing is made of, as plain records.
//
// All numbers are those of the design space: 400 wide, 260 high, the origin at the top left, y
// downwards. A `fill` is the opacity of the ink inside an outline; 0 leaves it open. DiagramPainter
// draws what these records describe.
#pragma once

#include "diagrams/diagramkind.h"

#include <QPointF>
#include <QString>

#include <variant>
#include <vector>

namespace Diagrams {

inline constexpr double kDesignWidth = 400;
inline constexpr double kDesignHeight = 260;

/// The width of every stroke that says nothing else.
inline constexpr double kStroke = 1.6;

/// A rectangle with continuous corners of radius `r`.
struct Box {
    double x, y, w, h;
    double r = 6;
    double fill = 0.1;
};

struct Circle {
    double cx, cy, r;
    double fill;
};

struct Ellipse {
    double cx, cy;
    double rx, ry; ///< Half-axes.
    double fill;
};

/// A polyline. Only a closed one is filled, whatever `fill` says.
struct Line {
    std::vector<QPointF> points;
    bool closed = false;
    double fill = 0;
    double width = kStroke;
};

/// A circular arc. Degrees count clockwise from three o'clock, and the arc runs clockwise from
/// `start` to `end`: −70 to 70 bulges to the right, 200 to 340 upwards.
struct Arc {
    double cx, cy, r;
    double start, end;
};

/// A lens from the side: it begins at `x`, its axis lies at `y`, its front looks to the right.
struct LensBarrel {
    double x, y;
    double length, radius;
    int rings; ///< At least 0; they divide the barrel evenly.
};

/// A camera from the front; (x, y) is the top left corner of the body.
struct CameraBody {
    double x, y, w, h;
    bool hump = false; ///< With a prism's housing on top.
    bool grip = false;
};

/// The three legs of a tripod or stand, from (x, y) down to `foot`.
struct Legs {
    double x, y;
    double spread; ///< From the middle to either foot.
    double foot;
};

using Shape = std::variant<Box, Circle, Ellipse, Line, Arc, LensBarrel, CameraBody, Legs>;

/// A part's name with a line that leads to the part.
struct Callout {
    QString text;
    QPointF at;     ///< Where the text stands; it runs away from the target.
    QPointF target; ///< What it points at.
};

/// A whole drawing. Shapes are painted in their order, and the callouts over them.
struct Drawing {
    DiagramKind kind;
    std::vector<Shape> shapes;
    std::vector<Callout> callouts;
};

} // namespace Diagrams
