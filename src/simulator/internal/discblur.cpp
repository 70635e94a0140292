#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "simulator/internal/discblur.cpp"
#include <hwy/cache_control.h>
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "simulator/internal/discblur.h"
#include "simulator/internal/fourier.h"
#include "simulator/internal/layer.h"
#include "simulator/internal/parallel.h"
#include "simulator/internal/planes.h"
#include "simulator/internal/workingmemory.h"

#include <algorithm>
#include <type_traits>

HWY_BEFORE_NAMESPACE();
namespace Simulator::HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

constexpr hn::CappedTag<float, kWidestVector> kFloats;
constexpr hn::CappedTag<double, 8> kDoubles;
constexpr hn::Rebind<float, decltype(kDoubles)> kHalfFloats;
using Floats = hn::Vec<decltype(kFloats)>;

constexpr int kLanes = static_cast<int>(hn::MaxLanes(kFloats));
constexpr int kDoubleLanes = static_cast<int>(hn::MaxLanes(kDoubles));

// Columns to both sides of a row that a step may need: a whole number of vectors, and more than any
// disc reaches that is summed here.
constexpr int kGuard = 32;

// Rows of a layer's channel as seen from the columns of one area. Rows without light are zeros.
class Rows
{
public:
    Rows(const Layer &layer, int channel, int left, int width)
        : m_layer(layer)
        , m_channel(channel)
        , m_left(left)
        , m_zeros(Scratch::zeros(width + 2 * kGuard) + kGuard)
    { }

    [[nodiscard]] const float *at(int y) const
    {
        const float *row = m_layer.litRow(m_channel, y);
        return row != nullptr ? row + m_left : m_zeros;
    }

private:
    const Layer &m_layer;
    int m_channel;
    int m_left;
    const float *m_zeros;
};

// column 0 + Σ (column dx to the right + column dx to the left), so many vectors at x.
template <int Vectors>
HWY_ATTR HWY_INLINE void sumColumns(
    const float *columns, int stride, int reach, int x, Floats (&sums)[Vectors])
{
    for (int i = 0; i < Vectors; ++i)
        sums[i] = hn::Load(kFloats, columns + x + i * kLanes);
    for (int dx = 1; dx <= reach; ++dx) {
        const float *column = columns + static_cast<std::ptrdiff_t>(dx) * stride + x;
        for (int i = 0; i < Vectors; ++i) {
            sums[i] = hn::Add(sums[i],
                hn::Add(hn::LoadU(kFloats, column + dx + i * kLanes),
                    hn::LoadU(kFloats, column - dx + i * kLanes)));
        }
    }
}

// Whether any disc that reaches R pixels, whose radius is R + 0.5 at most, touches a pixel. (The
// corner next to the center lies half a pixel from the pixel's own center each way.)
template <int R>
constexpr bool reaches(int dx, int dy)
{
    return (2 * dx - 1) * (2 * dx - 1) + (2 * dy - 1) * (2 * dy - 1) < (2 * R + 1) * (2 * R + 1)
        || dx == 0 || dy == 0;
}

// Whether every disc that reaches R pixels, whose radius is more than R − 0.5, covers a pixel
// wholly. All such pixels weigh the same.
template <int R>
constexpr bool covers(int dx, int dy)
{
    return (2 * dx + 1) * (2 * dx + 1) + (2 * dy + 1) * (2 * dy + 1) <= (2 * R - 1) * (2 * R - 1);
}

// Discs that reach R pixels. First the weighted sums down each column, for which rows are read in
// whole vectors, then sums of neighboring columns.
template <int R>
HWY_ATTR void sumDirectly(const DiscKernel &kernel, const Rows &rows, int top, int bottom,
    int width, float *out, int outStride)
{
    // As many columns more as the disc reaches, in whole vectors.
    constexpr int kSide = (R + kLanes - 1) / kLanes * kLanes;
    float weights[R + 1][R + 1];
    for (int dx = 0; dx <= R; ++dx) {
        for (int dy = 0; dy <= R; ++dy)
            weights[dx][dy] = static_cast<float>(kernel.weight(dx, dy));
    }
    const int stride = width + 2 * kGuard;
    float *columns = Scratch::floats(Scratch::Columns, stride * (R + 1)) + kGuard;
    for (int y = top; y < bottom; ++y, out += outStride) {
        const float *source[2 * R + 1];
        for (int dy = -R; dy <= R; ++dy)
            source[dy + R] = rows.at(y + dy);
        // Rows lie on pages of their own, where the processor doesn't look ahead.
        const float *next = rows.at(y + R + 1);
        for (int x = -kSide; x < width + kSide; x += kLanes) {
            hwy::Prefetch(next + x);
            Floats folded[R + 1];
            folded[0] = hn::Load(kFloats, source[R] + x);
            for (int dy = 1; dy <= R; ++dy) {
                folded[dy] = hn::Add(
                    hn::Load(kFloats, source[R + dy] + x), hn::Load(kFloats, source[R - dy] + x));
            }
            // Sums from the center's row on, for the pixels that weigh the same.
            Floats whole[R + 1];
            whole[0] = folded[0];
            for (int dy = 1; dy <= R; ++dy)
                whole[dy] = hn::Add(whole[dy - 1], folded[dy]);
            for (int dx = 0; dx <= R; ++dx) {
                Floats covered = whole[0];
                for (int dy = 1; dy <= R; ++dy)
                    covered = covers<R>(dx, dy) ? whole[dy] : covered;
                Floats sum = hn::Mul(hn::Set(kFloats, weights[dx][0]), covered);
                for (int dy = 1; dy <= R; ++dy) {
                    if (reaches<R>(dx, dy) && !covers<R>(dx, dy))
                        sum = hn::Add(sum, hn::Mul(hn::Set(kFloats, weights[dx][dy]), folded[dy]));
                }
                hn::Store(sum, kFloats, columns + dx * stride + x);
            }
        }
        for (int x = 0; x < width; x += kLanes) {
            Floats sums[1];
            sumColumns(columns, stride, R, x, sums);
            hn::Store(sums[0], kFloats, out + x);
        }
    }
}

// The first row by the rim: the weights of the rim's pixels belong to the sums over the columns up
// and down to them. In double precision.
HWY_ATTR void sumFirstRow(const DiscBlur &disc, const Rows &rows, int y, int width, double *running)
{
    double *heights = Scratch::doubles(Scratch::Heights, width + 2 * kGuard) + kGuard;
    std::fill(heights - kGuard, heights + width + kGuard, 0.0);
    std::fill(running, running + width, 0.0);
    for (int j = 0; j <= disc.reach(); ++j) {
        for (int side = 0; side < (j == 0 ? 1 : 2); ++side) {
            const float *row = rows.at(side == 0 ? y + j : y - j);
            for (int x = -kGuard; x < width + kGuard; x += kDoubleLanes) {
                hn::Store(hn::Add(hn::Load(kDoubles, heights + x),
                              hn::PromoteTo(kDoubles, hn::Load(kHalfFloats, row + x))),
                    kDoubles, heights + x);
            }
        }
        for (int dx = 0; dx <= disc.reach(); ++dx) {
            const DiscBlur::RimColumn &column = disc.rim()[static_cast<std::size_t>(dx)];
            const int index = j - column.first;
            if (index < 0 || index >= static_cast<int>(column.weights.size()))
                continue;
            const auto weight = hn::Set(kDoubles, column.weights[static_cast<std::size_t>(index)]);
            for (int x = 0; x < width; x += kDoubleLanes) {
                auto sum = hn::LoadU(kDoubles, heights + x + dx);
                if (dx != 0)
                    sum = hn::Add(sum, hn::LoadU(kDoubles, heights + x - dx));
                hn::Store(hn::Add(hn::Load(kDoubles, running + x), hn::Mul(weight, sum)), kDoubles,
                    running + x);
            }
        }
    }
}

HWY_ATTR void store(const double *running, float *out, int width)
{
    for (int x = 0; x < width; x += kDoubleLanes) {
        hn::Store(hn::DemoteTo(kHalfFloats, hn::Load(kDoubles, running + x)), kHalfFloats, out + x);
    }
}

// The rim as the loops below read it.
struct Rim {
    int reach;
    int first[kGuard + 1];
    int count[kGuard + 1];
    float weights[kGuard + 1][kGuard + 1];

    explicit Rim(const DiscBlur &disc)
        : reach(disc.reach())
    {
        for (int dx = 0; dx <= reach; ++dx) {
            const DiscBlur::RimColumn &column = disc.rim()[static_cast<std::size_t>(dx)];
            first[dx] = column.first;
            count[dx] = static_cast<int>(column.weights.size());
            for (int i = 0; i < count[dx]; ++i)
                weights[dx][i] = static_cast<float>(column.weights[static_cast<std::size_t>(i)]);
        }
    }
};

// What the rim's columns gain less what they lose, so many vectors at x.
template <int Vectors>
HWY_ATTR HWY_INLINE void sumRimColumns(const Rim &rim, const float *const *gained,
    const float *const *lost, int x, float *columns, int stride)
{
    constexpr int kStep = Vectors * kLanes;
    HWY_ALIGN float differences[(kGuard + 1) * kStep];
    for (int j = 0; j <= rim.reach; ++j) {
        for (int i = 0; i < Vectors; ++i) {
            const int at = x + i * kLanes;
            hn::Store(hn::Sub(hn::Load(kFloats, gained[j] + at), hn::Load(kFloats, lost[j] + at)),
                kFloats, differences + j * kStep + i * kLanes);
        }
    }
    for (int dx = 0; dx <= rim.reach; ++dx) {
        const float *difference = differences + rim.first[dx] * kStep;
        const float *weights = rim.weights[dx];
        Floats sums[Vectors];
        for (int i = 0; i < Vectors; ++i) {
            sums[i]
                = hn::Mul(hn::Set(kFloats, weights[0]), hn::Load(kFloats, difference + i * kLanes));
        }
        for (int j = 1; j < rim.count[dx]; ++j) {
            const Floats weight = hn::Set(kFloats, weights[j]);
            for (int i = 0; i < Vectors; ++i) {
                sums[i] = hn::Add(sums[i],
                    hn::Mul(weight, hn::Load(kFloats, difference + j * kStep + i * kLanes)));
            }
        }
        for (int i = 0; i < Vectors; ++i)
            hn::Store(sums[i], kFloats, columns + dx * stride + x + i * kLanes);
    }
}

// The next row: the one above it and the change.
template <int Vectors>
HWY_ATTR HWY_INLINE void addChange(
    const float *columns, int stride, int reach, int x, double *running, float *out)
{
    Floats change[Vectors];
    sumColumns(columns, stride, reach, x, change);
    HWY_ALIGN float floats[Vectors * kLanes];
    for (int i = 0; i < Vectors; ++i)
        hn::Store(change[i], kFloats, floats + i * kLanes);
    for (int i = 0; i < Vectors * kLanes; i += kDoubleLanes) {
        const auto sum = hn::Add(hn::Load(kDoubles, running + x + i),
            hn::PromoteTo(kDoubles, hn::Load(kHalfFloats, floats + i)));
        hn::Store(sum, kDoubles, running + x + i);
        hn::Store(hn::DemoteTo(kHalfFloats, sum), kHalfFloats, out + x + i);
    }
}

// Each row from the one above it: what the rim gains less what it loses, down the columns first.
HWY_ATTR void sumAlongRim(const DiscBlur &disc, const Rows &rows, int top, int bottom, int width,
    float *out, int outStride)
{
    constexpr int kVectors = 4;
    constexpr int kStep = kVectors * kLanes;
    const Rim rim(disc);
    const int guard = wholeVectors(rim.reach);
    const int stride = width + 2 * kGuard;
    float *columns = Scratch::floats(Scratch::Columns, stride * (rim.reach + 1)) + kGuard;
    double *running = Scratch::doubles(Scratch::Running, width);

    sumFirstRow(disc, rows, top, width, running);
    store(running, out, width);
    for (int y = top + 1; y < bottom; ++y) {
        const float *gained[kGuard + 1];
        const float *lost[kGuard + 1];
        for (int j = 0; j <= rim.reach; ++j) {
            gained[j] = rows.at(y + j);
            lost[j] = rows.at(y - 1 - j);
        }
        int x = -guard;
        for (; x + kStep <= width + guard; x += kStep)
            sumRimColumns<kVectors>(rim, gained, lost, x, columns, stride);
        for (; x < width + guard; x += kLanes)
            sumRimColumns<1>(rim, gained, lost, x, columns, stride);
        out += outStride;
        x = 0;
        for (; x + kStep <= width; x += kStep)
            addChange<kVectors>(columns, stride, rim.reach, x, running, out);
        for (; x < width; x += kLanes)
            addChange<1>(columns, stride, rim.reach, x, running, out);
    }
}

} // namespace

HWY_ATTR void blurRows(const DiscBlur &disc, const Layer &layer, int channel, const QRect &area,
    int top, int bottom, const Planes &planes)
{
    const int width = wholeVectors(area.width());
    const Rows rows(layer, channel, area.left(), width);
    float *out = planes.row(channel, top);
    const auto sum = [&]<int R>(std::integral_constant<int, R>) {
        sumDirectly<R>(disc.kernel(), rows, top, bottom, width, out, planes.stride);
    };
    switch (disc.reach()) {
    case 0:
    case 1:
        return sum(std::integral_constant<int, 1>());
    case 2:
        return sum(std::integral_constant<int, 2>());
    case 3:
        return sum(std::integral_constant<int, 3>());
    case 4:
        return sum(std::integral_constant<int, 4>());
    case 5:
        return sum(std::integral_constant<int, 5>());
    case 6:
        return sum(std::integral_constant<int, 6>());
    case 7:
        return sum(std::integral_constant<int, 7>());
    default:
        break;
    }
    // In strips so narrow that all rows under the disc stay in the processor's first cache.
    constexpr int kStrip = 384;
    for (int x = 0; x < width; x += kStrip) {
        const int stripWidth = std::min(kStrip, width - x);
        const Rows strip(layer, channel, area.left() + x, stripWidth);
        sumAlongRim(disc, strip, top, bottom, stripWidth, out + x, planes.stride);
    }
}

} // namespace Simulator::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace Simulator {

HWY_EXPORT(blurRows);

namespace {

// The longest for which blurRows() sums each row for itself.
constexpr int kLongestDirectReach = 7;

// From here on a transform costs less than going along the rim.
constexpr int kLongestRimReach = 16;

// Each band begins with a full sum, so that rounding errors don't add up all the way down. Bands
// depend on the height alone: the number of threads must not change a byte.
constexpr int kBands = 8;

} // namespace

DiscBlur::DiscBlur(double radius)
    : m_kernel(radius)
{
    if (reach() > kLongestRimReach)
        return;
    m_rim.resize(static_cast<std::size_t>(reach()) + 1);
    for (int dx = 0; dx <= reach(); ++dx) {
        RimColumn &column = m_rim[static_cast<std::size_t>(dx)];
        const auto change
            = [&](int j) { return m_kernel.weight(dx, j) - m_kernel.weight(dx, j + 1); };
        while (column.first < reach() && change(column.first) == 0)
            ++column.first;
        for (int j = column.first; j <= reach() && m_kernel.weight(dx, j) != 0; ++j)
            column.weights.push_back(change(j));
        if (column.weights.empty())
            column.weights.push_back(0);
    }
}

void DiscBlur::apply(const Layer &layer, const QRect &area, const Planes &out, Workspace &workspace,
    const Parallel &parallel) const
{
    if (reach() <= kLongestRimReach)
        applyInBands(layer, area, out, parallel);
    else
        applyByTransform(layer, area, out, workspace, parallel);
}

bool DiscBlur::sumsRowByRow() const
{
    return reach() <= kLongestDirectReach;
}

void DiscBlur::applyToRows(const Layer &layer, const QRect &rows, const Planes &out) const
{
    for (int channel = 0; channel < layer.channels(); ++channel) {
        HWY_DYNAMIC_DISPATCH(blurRows)
        (*this, layer, channel, rows, rows.top(), rows.bottom() + 1, out);
    }
}

void DiscBlur::applyInBands(
    const Layer &layer, const QRect &area, const Planes &out, const Parallel &parallel) const
{
    const auto begin = [&area](int band) { return area.top() + band * area.height() / kBands; };
    parallel.run(kBands * layer.channels(), [&](int i) {
        const int band = i / layer.channels();
        if (begin(band) == begin(band + 1))
            return;
        HWY_DYNAMIC_DISPATCH(blurRows)
        (*this, layer, i % layer.channels(), area, begin(band), begin(band + 1), out);
    });
}

// Two planes go through a transform at once. An odd number of channels would leave one alone, so
// that each is cut into a left and a right half.
void DiscBlur::applyByTransform(const Layer &layer, const QRect &area, const Planes &out,
    Workspace &workspace, const Parallel &parallel) const
{
    const int cuts = layer.channels() % 2 + 1;
    const int width = wholeVectors(area.width()) / cuts;
    const FourierConvolution torus(width, area.height(), reach());
    float *spectrum = workspace.floats(Workspace::Spectrum, torus.spectrumSize());
    float *kernel = workspace.floats(Workspace::KernelSpectrum, torus.kernelSize());

    const auto weight
        = [this](int dx, int dy) { return static_cast<float>(m_kernel.weight(dx, dy)); };
    torus.transformKernel(weight, kernel, parallel);

    // The layer's margin holds what the torus's rows need beyond the area.
    const auto source = [&](int plane, int y) {
        const float *row = layer.litRow(plane / cuts, area.top() + y);
        return row != nullptr ? row + area.left() + plane % cuts * width - reach() : nullptr;
    };
    const auto target = [&](int plane, int y) {
        return out.row(plane / cuts, area.top() + y) + plane % cuts * width;
    };
    torus.convolve(layer.channels() * cuts / 2, source, target, spectrum, kernel, parallel);
}

} // namespace Simulator

#endif
