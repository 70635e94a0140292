// Rounded rectangles whose corners are continuous: curvature rises from zero along the edge
// instead of jumping, as on a body that was milled and not stamped.
#pragma once

#include <QPainterPath>
#include <QRectF>

namespace Painting {

/// How far along a side a corner of `radius` eases, where there is room: 1.6 radii.
[[nodiscard]] double cornerReach(double radius);

/// The outline of `rect` with continuous corners of `radius`, in the units of `rect`.
///
/// Each corner is an arc flanked by two cubic curves and takes cornerReach() of each side.
/// Where a side is too short for that the corner tends to a plain arc, so a radius of half the
/// shorter side gives a capsule or a circle; a larger radius gives the same. An empty rectangle
/// gives an empty path.
[[nodiscard]] QPainterPath continuousPath(const QRectF &rect, double radius);

/// `rect` without a margin of `by` on every side.
[[nodiscard]] inline QRectF inset(const QRectF &rect, double by)
{
    return rect.adjusted(by, by, -by, -by);
}

} // namespace Painting
