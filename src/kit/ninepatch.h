// A picture that is lengthened in its middle.
#pragma once

#include <QImage>

#include <future>

namespace Painting {

/// A picture, in device pixels, of something that looks the same all along its middle.
struct NinePatch {
    std::shared_future<QImage> picture;
    /// Pixels at the left and at the right that stay as they are; the one column between them is
    /// lengthened. 0 if the picture is as wide as it is shown.
    int sideBorder = 0;
    /// The same at the top and at the bottom.
    int endBorder = 0;
};

} // namespace Painting
