// The camera's two large surfaces, each a picture of several megabytes.
#pragma once

#include "camera/hvcolors.h"

#include <QImage>
#include <QRectF>
#include <QSize>

#include <future>

namespace CameraBody {

struct Body {
    QSizeF size;    ///< Points.
    QRectF display; ///< What something opaque covers; it isn't painted.
    HVColors colors;
    QSize pixels;
};

struct Glass {
    QSizeF size; ///< Points.
    HVColors colors;
    QSize pixels;
};

/// Paints metal, leather and a lit edge.
[[nodiscard]] std::shared_future<QImage> paintAsync(const Body &body);

/// Paints bezel, inner glow and the sheen of the glass.
[[nodiscard]] std::shared_future<QImage> paintAsync(const Glass &glass);

} // namespace CameraBody
