// The camera's two large surfaces.
#pragma once

#include "camera/hvcolors.h"

#include <QSizeF>

class QPainter;

namespace CameraBody {

// Both paint in points, over an area of `size` at the origin. Safe on any thread.

/// Paints metal, leather and a lit edge.
void paintBody(QPainter &painter, QSizeF size, const HVColors &colors);

/// Paints the display's bezel, its inner glow and the sheen of its glass.
void paintGlass(QPainter &painter, QSizeF size, const HVColors &colors);

} // namespace CameraBody
