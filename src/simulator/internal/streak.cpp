#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "simulator/internal/streak.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "simulator/internal/streak.h"

#include "simulator/internal/parallel.h"
#include "simulator/internal/planes.h"
#include "simulator/internal/workingmemory.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#ifndef HV_STREAK_LINE
#define HV_STREAK_LINE
namespace Simulator {
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

// A row of one channel as the line goes along it: the source's pixels, and before and behind them
// one that repeats.
struct LineRow {
    const float *pixels;
    int count;
    int before, behind; // pixels
    float first, last;  // which repeat
};

} // namespace
} // namespace Simulator
#endif

HWY_BEFORE_NAMESPACE();
namespace Simulator::HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

// Sums that are added up side by side, and how many pixels they take at a time. Longer vectors
// would gain nothing, since most of them would lie across two lines of the cache.
constexpr int kChains = 8;
constexpr int kQuad = 4;

constexpr hn::CappedTag<double, kQuad> kDoubles;
constexpr hn::Rebind<float, decltype(kDoubles)> kFloats;
using Doubles = hn::Vec<decltype(kDoubles)>;
constexpr int kLanes = static_cast<int>(hn::MaxLanes(kDoubles));

HWY_ATTR HWY_INLINE Doubles load(const float *values)
{
    return hn::PromoteTo(kDoubles, hn::LoadU(kFloats, values));
}

HWY_ATTR HWY_INLINE Doubles load(const double *values)
{
    return hn::LoadU(kDoubles, values);
}

// sums[i] = start + the first i pixels. A sum doesn't wait for the one before it but for the one
// eight pixels back, to which the eight pixels between are added, by pairs. Room for
// wholeVectors(count + 1) sums, aligned for vectors.
HWY_ATTR void addUp(const float *pixels, int count, double start, double *sums)
{
    const int size = wholeVectors(count + 1);
    float *values = Scratch::floats(Scratch::Lines, size + 2 * kWidestVector) + kWidestVector;
    std::fill_n(values - kChains, kChains, 0.0F);
    std::copy_n(pixels, count, values);
    std::fill(values + count, values + size + kWidestVector, 0.0F);

    double *pairs = Scratch::doubles(Scratch::LinePairs, size + kChains) + kChains;
    for (int i = -kChains; i < size; i += kLanes)
        hn::Store(hn::Add(load(values + i), load(values + i + 1)), kDoubles, pairs + i);

    Doubles running[kChains / kLanes];
    std::fill(std::begin(running), std::end(running), hn::Set(kDoubles, start));
    Doubles quads[kQuad / kLanes];
    std::fill(std::begin(quads), std::end(quads), hn::Zero(kDoubles));
    for (int i = 0; i < size; i += kChains) {
        for (int part = 0; part < kChains / kLanes; ++part) {
            const int to = i + part * kLanes;
            Doubles &quad = quads[part % (kQuad / kLanes)];
            const Doubles next = hn::Add(load(pairs + to - kQuad), load(pairs + to - kQuad + 2));
            running[part] = hn::Add(running[part], hn::Add(quad, next));
            quad = next;
            hn::Store(running[part], kDoubles, sums + to);
        }
    }
}

// sums[i] = start + i times the same pixel.
HWY_ATTR void addRepeated(double pixel, double start, int count, double *sums)
{
    for (int i = 0; i < count; ++i)
        sums[i] = start + pixel * i;
}

// Means over the line at each of `count` pixels. sums[i] is the sum of the first i pixels from the
// one on where the line at the first pixel begins.
HWY_ATTR void meansOverLine(const Line &line, const double *sums, float *out, int count)
{
    // What the line covers in part counts for both: the line without its ends and the one with all
    // of them.
    const auto endShare = hn::Set(kDoubles, line.end / line.length);
    const auto innerShare = hn::Set(kDoubles, (1 - line.end) / line.length);
    const int far = 2 * line.reach();
    for (int x = 0; x < count; x += kLanes) {
        const Doubles inner = hn::Sub(load(sums + x + far), load(sums + x + 1));
        const Doubles all = hn::Sub(load(sums + x + far + 1), load(sums + x));
        const Doubles mean = hn::Add(hn::Mul(innerShare, inner), hn::Mul(endShare, all));
        hn::Store(hn::DemoteTo(kFloats, mean), kFloats, out + x);
    }
}

} // namespace

HWY_ATTR void streakRow(const Line &line, const LineRow &row, float *out, int count)
{
    // Where the source's pixels begin, sums are aligned for vectors.
    const int inside = wholeVectors(row.before);
    const int size = inside + wholeVectors(row.count + 1) + row.behind;
    double *sums = Scratch::doubles(Scratch::LineSums, size) + inside;
    const double first = row.first;
    const double last = row.last;
    addRepeated(first, 0, row.before, sums - row.before);
    addUp(row.pixels, row.count, first * row.before, sums);
    addRepeated(last, sums[row.count], row.behind + 1, sums + row.count);
    meansOverLine(line, sums - row.before, out, count);
}

} // namespace Simulator::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace Simulator {

HWY_EXPORT(streakRow);

void streak(const StreakSource &source, double halfLength, const Planes &out, int right,
    const Parallel &parallel)
{
    constexpr int kRowsAtOnce = 8;
    const Line line(halfLength);
    const int width = wholeVectors(right - out.left);
    const int first = out.left - line.reach();
    const int count = width + 2 * line.reach();
    const int sourceEnd = std::min(source.area.right() + 1, source.frameWidth);
    const int begin = std::clamp(source.area.left() - first, 0, count);
    const int end = std::clamp(sourceEnd - first, begin, count);
    const int bands = (source.area.height() + kRowsAtOnce - 1) / kRowsAtOnce;
    parallel.run(bands, [&](int band) {
        const int top = source.area.top() + band * kRowsAtOnce;
        const int bottom = std::min(top + kRowsAtOnce, source.area.bottom() + 1);
        for (int y = top; y < bottom; ++y) {
            for (int channel = 0; channel < StreakSource::kChannels; ++channel) {
                const float *pixels = source.planes.row(channel, y) - source.planes.left;
                const LineRow row{ .pixels = pixels + first + begin,
                    .count = end - begin,
                    .before = begin,
                    .behind = count - end,
                    .first = source.area.left() == 0 ? pixels[0] : 0,
                    .last = sourceEnd == source.frameWidth ? pixels[sourceEnd - 1] : 0 };
                HWY_DYNAMIC_DISPATCH(streakRow)(line, row, out.row(channel, y), width);
            }
        }
    });
}

} // namespace Simulator

#endif
