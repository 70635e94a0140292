// Where a step of the renderer puts what it computes.
#pragma once

#include <cstddef>

/// A part of the frame on planes of floats, in linear light. Rows begin aligned for vectors and are
/// written up to a whole number of them.
struct Canvas {
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
