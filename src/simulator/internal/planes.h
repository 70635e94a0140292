// Planes of floats, as all steps of the renderer read and write them.
#pragma once

#include <cstddef>

namespace Simulator {

/// In floats: the widest vector that is ever used. Rows of floats are padded to a whole number of
/// these, so that no step needs a case for their ends.
inline constexpr int kWidestVector = 16;

/// The number of floats in the vectors that hold `count` of them; count is at least 0.
[[nodiscard]] constexpr int wholeVectors(int count)
{
    return (count + kWidestVector - 1) / kWidestVector * kWidestVector;
}

/// The first column of the vector that column `x` lies in; x is at least 0.
[[nodiscard]] constexpr int vectorOf(int x)
{
    return x / kWidestVector * kWidestVector;
}

/// A part of the frame, a plane for each channel, in linear light; somebody else's memory. Rows
/// begin aligned for vectors and are written up to a whole number of them.
struct Planes {
    float *data;
    int stride;           ///< floats from one row to the next, a whole number of vectors
    std::ptrdiff_t plane; ///< floats from one channel to the next
    int left;             ///< the frame's column at the rows' begin
    int top;              ///< the frame's row at the begin

    /// The pixel at `left` in the frame's row `y`.
    [[nodiscard]] float *row(int channel, int y) const
    {
        return data + channel * plane + static_cast<std::ptrdiff_t>(y - top) * stride;
    }
};

} // namespace Simulator
