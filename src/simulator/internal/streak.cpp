#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "simulator/internal/streak.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "simulator/internal/streak.h"

#include "simulator/internal/parallel.h"
#include "simulator/internal/scratch.h"

#include <algorithm>
#include <array>
#include <cmath>

#ifndef HV_STREAK_LINE
#define HV_STREAK_LINE
namespace {

/// In doubles: the widest vector that is ever used.
constexpr int kWidestVector = 8;

// The line over whole pixels, and what remains at each end.
struct Line {
    int whole;  // pixels to each side of the center that it covers wholly
    double end; // share of the next pixel that it covers
    double length;

    explicit Line(double halfLength)
        : whole(static_cast<int>(std::floor(std::max(halfLength, 0.5) - 0.5)))
        , end(std::max(halfLength, 0.5) - 0.5 - whole)
        , length(2 * std::max(halfLength, 0.5))
    { }

    [[nodiscard]] int reach() const { return whole + 1; }
};

} // namespace
#endif

HWY_BEFORE_NAMESPACE();
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Means over the line at each of `count` pixels. `values` begins where the line at the first pixel
// does, and `sums[i]` is the sum of the first i of them.
HWY_ATTR void meansOverLine(
    const Line &line, const double *values, const double *sums, float *out, int count)
{
    constexpr hn::CappedTag<double, kWidestVector> doubles;
    constexpr hn::Rebind<float, decltype(doubles)> floats;
    const auto share = hn::Set(doubles, 1 / line.length);
    const auto endShare = hn::Set(doubles, line.end / line.length);
    const int far = 2 * line.whole + 2;
    for (int x = 0; x < count; x += static_cast<int>(hn::MaxLanes(doubles))) {
        const auto inner
            = hn::Sub(hn::LoadU(doubles, sums + x + far), hn::LoadU(doubles, sums + x + 1));
        const auto ends
            = hn::Add(hn::LoadU(doubles, values + x), hn::LoadU(doubles, values + x + far));
        const auto mean = hn::Add(hn::Mul(share, inner), hn::Mul(endShare, ends));
        hn::Store(hn::DemoteTo(floats, mean), floats, out + x);
    }
}

} // namespace HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

HWY_EXPORT(meansOverLine);

void streak(const StreakSource &source, double halfLength, const Canvas &out, int right,
    const Parallel &parallel)
{
    constexpr int kChannels = StreakSource::kChannels;
    const Line line(halfLength);
    const int width = (right - out.left + kWidestVector - 1) / kWidestVector * kWidestVector;
    const int first = out.left - line.reach();
    const int count = width + 2 * line.reach();
    const int sourceEnd = std::min(source.area.right() + 1, source.frameWidth);
    const int begin = std::clamp(source.area.left() - first, 0, count);
    const int end = std::clamp(sourceEnd - first, begin, count);
    parallel.run(source.area.height(), [&](int i) {
        const int y = source.area.top() + i;
        double *memory = Scratch::doubles(Scratch::Lines, kChannels * (2 * count + 1));
        std::array<double *, kChannels> values;
        std::array<double *, kChannels> sums;
        for (int channel = 0; channel < kChannels; ++channel) {
            double *row = memory + channel * (2 * count + 1);
            const float *pixels = source.canvas.row(channel, y) - source.canvas.left;
            std::fill_n(row, begin, source.area.left() == 0 ? double{ pixels[0] } : 0);
            std::copy(pixels + first + begin, pixels + first + end, row + begin);
            std::fill(row + end, row + count,
                sourceEnd == source.frameWidth ? double{ pixels[sourceEnd - 1] } : 0);
            values[static_cast<std::size_t>(channel)] = row;
            sums[static_cast<std::size_t>(channel)] = row + count;
        }
        // All channels at once: each sum waits for the one before it.
        std::array<double, kChannels> sum{};
        for (int x = 0; x < count; ++x) {
            for (std::size_t channel = 0; channel < kChannels; ++channel) {
                sums[channel][x] = sum[channel];
                sum[channel] += values[channel][x];
            }
        }
        for (std::size_t channel = 0; channel < kChannels; ++channel) {
            sums[channel][count] = sum[channel];
            HWY_DYNAMIC_DISPATCH(meansOverLine)
            (line, values[channel], sums[channel], out.row(static_cast<int>(channel), y), width);
        }
    });
}

#endif
