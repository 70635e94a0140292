// The camera's two large surfaces, each a picture of several megabytes.
#pragma once

#include "camera/hvcolors.h"

#include <QImage>
#include <QRectF>
#include <QSize>

#include <future>

namespace Housing {

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

/// Starts metal, leather and a lit edge.
[[nodiscard]] std::shared_future<QImage> startedPicture(const Body &body);

/// Starts bezel, inner glow and the sheen of the glass.
[[nodiscard]] std::shared_future<QImage> startedPicture(const Glass &glass);

} // namespace Housing
