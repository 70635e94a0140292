// The weights of a mean over a disc.
#pragma once

#include <vector>

namespace Simulator {

/// How much of each pixel a disc covers, divided by the disc's area: the weights of a mean over it.
///
/// The disc's center lies on a pixel's center. A weight is the exact area that disc and unit pixel
/// share over π·r², so that the weights change smoothly with the radius and a disc within one pixel
/// changes nothing.
class DiscKernel
{
public:
    /// @pre 0 < radius ≤ 90 pixels.
    explicit DiscKernel(double radius);

    /// The farthest column and row that the disc touches, in pixels from the center.
    [[nodiscard]] int reach() const { return m_reach; }

    /// The weight of the pixel `dx` columns and `dy` rows from the center; both at least 0, as the
    /// kernel is symmetric. Beyond the reach 0.
    [[nodiscard]] double weight(int dx, int dy) const;

private:
    int m_reach;
    std::vector<double> m_weights; // a quadrant, row by row
};

} // namespace Simulator
