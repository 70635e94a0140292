// Mean along a horizontal line: how an open shutter draws what moves across the frame.
#pragma once

#include "simulator/internal/planes.h"

#include <QRect>

namespace Simulator {

class Parallel;

/// Part of a picture on four planes; transparent outside, but for the frame's own edge pixels,
/// which repeat.
struct StreakSource {
    static constexpr int kChannels = 4;

    Planes planes;
    QRect area; ///< where the planes hold pixels; may pass the frame's right edge
    int frameWidth;
};

/// Writes to `out` for each pixel of the rows of `source.area`, from out.left to `right`, the mean
/// over the line that reaches `halfLength` pixels to each side of it; the pixels at its ends count
/// as far as the line covers them. Up to half a pixel nothing changes. Sums are of double
/// precision, and the work doesn't grow with the length.
///
/// @pre halfLength > 0.
void streak(const StreakSource &source, double halfLength, const Planes &out, int right,
    const Parallel &parallel);

} // namespace Simulator
