// The program's symbols: small pictures on buttons, rails and rows, drawn as vector paths.
//
// A symbol is known by its name, such as "camera.aperture". All are drawn on one grid of 24 × 24
// units with one stroke, round at its ends and corners, and wear a single color: what looks like a
// mark on a filled disc is a hole in it, so any background shows through. Each point of a symbol is
// painted once, so a translucent ink stays even where strokes cross.
//
// Stateless and safe on any thread that may use the painter.
#pragma once

#include <QStringList>
#include <QStringView>

class QColor;
class QPainter;
class QRectF;

namespace Symbols {

/// The thickness of the stroke, named as weights of type are: a symbol beside a word takes the
/// word's weight. From 1.7 units of the grid (Regular) to 3 (Black) in equal steps.
enum class Weight { Regular, Medium, Semibold, Bold, Heavy, Black };

/// Names of all symbols, sorted.
[[nodiscard]] QStringList names();
[[nodiscard]] bool contains(QStringView name);

/// Paints the symbol `name` in `ink` into `box`: as large as fits, centered, its aspect kept. Leaves
/// the painter's state as it was. An unknown name or an empty box paints nothing.
///
/// Straight strokes are moved by at most one pixel of the device to where they are sharp, unless
/// the symbol is large or the painter is rotated or sheared.
void paint(QPainter &painter, QStringView name, const QRectF &box, const QColor &ink,
    Weight weight = Weight::Regular);

} // namespace Symbols
