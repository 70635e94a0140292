// The materials of the body: pebbled leather and knurled metal, made from fixed seeds and numbers
// so that they are the same at every run.
#pragma once

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QPointF>
#include <QSizeF>

class QPainter;

namespace Textures {

/// Side of the square leather tile, in points.
inline constexpr int leatherTileSide = 160;

/// The leather tile: pebbles of `tint` on a transparent ground, leatherTileSide points square,
/// meant to be laid side by side. `scale` is device pixels per point and becomes the image's
/// device pixel ratio. An invalid tint counts as gray. Tiles are kept, those of all themes at once.
[[nodiscard]] QImage leatherTile(const QColor &tint, double scale = 1);

/// Diagonal lines crossing at 45°, 7 points apart, over an area of `size`.
[[nodiscard]] QPainterPath knurlPath(QSizeF size);

/// Paints knurled metal over an area of `size` at the origin: a dark groove with a faint lit edge.
void paintKnurl(QPainter &painter, QSizeF size);

/// The light on turned metal: two bright fans around `center`, opposite each other. `strength` is
/// their opacity, 0 to 1.
[[nodiscard]] QBrush turnedSheen(const QPointF &center, double strength);

} // namespace Textures
