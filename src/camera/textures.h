// The materials of the body: pebbled leather and knurled metal, made from fixed seeds and numbers
// so that they are the same at every run.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
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

} // namespace Textures
