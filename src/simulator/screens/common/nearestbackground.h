#pragma once

#include <algorithm>

/// The nearest background that a lab offers for a subject at this distance, both in m: half a meter
/// behind it, but no nearer than 1 m.
[[nodiscard]] constexpr double nearestBackground(double subject)
{
    return std::max(subject + 0.5, 1.0);
}
