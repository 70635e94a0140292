#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "simulator/internal/streak.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "simulator/internal/streak.h"

#include "simulator/internal/parallel.h"
#include "simulator/internal/scratch.h"
#include "simulator/internal/vectors.h"

#include <algorithm>
#include <array>
#include <cmath>

#ifndef HV_STREAK_LINE
#define HV_STREAK_LINE
namespace {

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
    const Line &line, const float *values, const double *sums, float *out, int count)
{
    constexpr hn::CappedTag<double, kWidestVector / 2> doubles;
    constexpr hn::Rebind<float, decltype(doubles)> floats;
    const auto share = hn::Set(doubles, 1 / line.length);
    const auto endShare = hn::Set(doubles, line.end / line.length);
    const int far = 2 * line.whole + 2;
    for (int x = 0; x < count; x += static_cast<int>(hn::MaxLanes(doubles))) {
        const auto inner
            = hn::Sub(hn::LoadU(doubles, sums + x + far), hn::LoadU(doubles, sums + x + 1));
        const auto ends = hn::Add(hn::PromoteTo(doubles, hn::LoadU(floats, values + x)),
            hn::PromoteTo(doubles, hn::LoadU(floats, values + x + far)));
        const auto mean = hn::Add(hn::Mul(share, inner), hn::Mul(endShare, ends));
        hn::Store(hn::DemoteTo(floats, mean), floats, out + x);
    }
}

} // namespace HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

HWY_EXPORT(meansOverLine);

namespace {

template <typename Number>
using Rows = std::array<Number *, StreakSource::kChannels>;

// sums[c][i] is the sum of the first i values of row c. All rows at once, since in each a sum waits
// for the one before it.
void addUp(const Rows<float> &values, const Rows<double> &sums, int count)
{
    const auto [red, green, blue, alpha] = values;
    const auto [redSums, greenSums, blueSums, alphaSums] = sums;
    double redSum = 0;
    double greenSum = 0;
    double blueSum = 0;
    double alphaSum = 0;
    for (int i = 0; i < count; ++i) {
        redSums[i] = redSum;
        greenSums[i] = greenSum;
        blueSums[i] = blueSum;
        alphaSums[i] = alphaSum;
        redSum += double{ red[i] };
        greenSum += double{ green[i] };
        blueSum += double{ blue[i] };
        alphaSum += double{ alpha[i] };
    }
    redSums[count] = redSum;
    greenSums[count] = greenSum;
    blueSums[count] = blueSum;
    alphaSums[count] = alphaSum;
}

} // namespace

void streak(const StreakSource &source, double halfLength, const Canvas &out, int right,
    const Parallel &parallel)
{
    constexpr int kChannels = StreakSource::kChannels;
    const Line line(halfLength);
    const int width = wholeVectors(right - out.left);
    const int first = out.left - line.reach();
    const int count = width + 2 * line.reach();
    const int sourceEnd = std::min(source.area.right() + 1, source.frameWidth);
    const int begin = std::clamp(source.area.left() - first, 0, count);
    const int end = std::clamp(sourceEnd - first, begin, count);
    parallel.run(source.area.height(), [&](int i) {
        const int y = source.area.top() + i;
        float *allValues = Scratch::floats(Scratch::Lines, kChannels * count);
        double *allSums = Scratch::doubles(Scratch::LineSums, kChannels * (count + 1));
        Rows<float> values;
        Rows<double> sums;
        for (int channel = 0; channel < kChannels; ++channel) {
            float *row = allValues + channel * count;
            const float *pixels = source.canvas.row(channel, y) - source.canvas.left;
            std::fill_n(row, begin, source.area.left() == 0 ? pixels[0] : 0);
            std::copy(pixels + first + begin, pixels + first + end, row + begin);
            std::fill(
                row + end, row + count, sourceEnd == source.frameWidth ? pixels[sourceEnd - 1] : 0);
            values[static_cast<std::size_t>(channel)] = row;
            sums[static_cast<std::size_t>(channel)] = allSums + channel * (count + 1);
        }
        addUp(values, sums, count);
        for (std::size_t channel = 0; channel < kChannels; ++channel) {
            HWY_DYNAMIC_DISPATCH(meansOverLine)
            (line, values[channel], sums[channel], out.row(static_cast<int>(channel), y), width);
        }
    });
}

#endif
