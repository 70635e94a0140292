#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "simulator/internal/discblur.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "simulator/internal/discblur.h"
#include "simulator/internal/fourier.h"
#include "simulator/internal/layer.h"
#include "simulator/internal/parallel.h"
#include "simulator/internal/scratch.h"
#include "simulator/internal/workspace.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

HWY_BEFORE_NAMESPACE();
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

constexpr hn::CappedTag<float, 16> kFloats;
using Floats = hn::Vec<decltype(kFloats)>;

constexpr int kLanes = static_cast<int>(hn::MaxLanes(kFloats));

// Columns to both sides of a row that are needed at most: a whole number of vectors, and more than
// any disc reaches that is summed here.
constexpr int kGuard = 16;

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

// Whether any disc that reaches R pixels, whose radius is R + 0.5 at most, touches a pixel. (The
// corner next to the center lies half a pixel from the pixel's own center each way.)
template <int R>
constexpr bool reaches(int dx, int dy)
{
    return (2 * dx - 1) * (2 * dx - 1) + (2 * dy - 1) * (2 * dy - 1) < (2 * R + 1) * (2 * R + 1)
        || dx == 0 || dy == 0;
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
        for (int x = -kSide; x < width + kSide; x += kLanes) {
            Floats folded[R + 1];
            folded[0] = hn::Load(kFloats, source[R] + x);
            for (int dy = 1; dy <= R; ++dy) {
                folded[dy] = hn::Add(
                    hn::Load(kFloats, source[R + dy] + x), hn::Load(kFloats, source[R - dy] + x));
            }
            for (int dx = 0; dx <= R; ++dx) {
                Floats sum = hn::Mul(hn::Set(kFloats, weights[dx][0]), folded[0]);
                for (int dy = 1; dy <= R; ++dy) {
                    if (reaches<R>(dx, dy))
                        sum = hn::Add(sum, hn::Mul(hn::Set(kFloats, weights[dx][dy]), folded[dy]));
                }
                hn::Store(sum, kFloats, columns + dx * stride + x);
            }
        }
        for (int x = 0; x < width; x += kLanes) {
            Floats sum = hn::Load(kFloats, columns + x);
            for (int dx = 1; dx <= R; ++dx) {
                const float *column = columns + dx * stride + x;
                sum = hn::Add(
                    sum, hn::Add(hn::LoadU(kFloats, column + dx), hn::LoadU(kFloats, column - dx)));
            }
            hn::Store(sum, kFloats, out + x);
        }
    }
}

// The sums for discs that reach 1, 2, … pixels. One within its own pixel takes the first.
template <int... Less>
constexpr auto sumsForReaches(std::integer_sequence<int, Less...>)
{
    return std::array{ &sumDirectly<Less + 1>... };
}

} // namespace

HWY_ATTR void blurRows(const DiscBlur &disc, const Layer &layer, int channel, const QRect &area,
    int top, int bottom, const Canvas &canvas)
{
    const int width = (area.width() + 15) / 16 * 16;
    const Rows rows(layer, channel, area.left(), width);
    float *out = canvas.row(channel, top);
    static constexpr auto kSums
        = sumsForReaches(std::make_integer_sequence<int, DiscBlur::kLongestDirectReach>());
    kSums[static_cast<std::size_t>(std::max(disc.reach(), 1)) - 1](
        disc.kernel(), rows, top, bottom, width, out, canvas.stride);
}

} // namespace HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

HWY_EXPORT(blurRows);

namespace {

// Pieces of a layer that are blurred at a time. They depend on its height alone: the number of
// threads must not change a byte.
constexpr int kBands = 8;

} // namespace

DiscBlur::DiscBlur(double radius)
    : m_kernel(radius)
{ }

void DiscBlur::apply(const Layer &layer, const QRect &area, const Canvas &out, Workspace &workspace,
    const Parallel &parallel) const
{
    if (reach() <= kLongestDirectReach)
        applyInBands(layer, area, out, parallel);
    else
        applyByTransform(layer, area, out, workspace, parallel);
}

void DiscBlur::applyInBands(
    const Layer &layer, const QRect &area, const Canvas &out, const Parallel &parallel) const
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

void DiscBlur::applyByTransform(const Layer &layer, const QRect &area, const Canvas &out,
    Workspace &workspace, const Parallel &parallel) const
{
    constexpr int kBlock = FourierConvolution::kBlock;
    const int width = (area.width() + 15) / 16 * 16;
    const FourierConvolution torus(FourierPlan::lengthFor(width + 2 * reach()),
        FourierPlan::lengthFor(area.height() + 2 * reach()));
    float *spectrum = workspace.floats(Workspace::Spectrum, torus.spectrumSize());
    float *kernel = workspace.floats(Workspace::KernelSpectrum, torus.kernelSize());

    const auto weight
        = [this](int dx, int dy) { return static_cast<float>(m_kernel.weight(dx, dy)); };
    torus.transformKernel(weight, reach(), spectrum, kernel, parallel);

    // The torus's pixel (0, 0) is the corner of all that the area's blur depends on.
    const int left = area.left() - reach();
    const int top = area.top() - reach();
    for (int channel = 0; channel < layer.channels(); channel += 2) {
        const bool paired = channel + 1 < layer.channels();
        const auto fillPart = [&](int x, int part, float *block) {
            // The layer's margin holds what the last block needs beyond the area.
            if (x >= width + 2 * reach())
                return;
            for (int y = 0; y < area.height() + 2 * reach(); ++y) {
                if (const float *row = layer.litRow(channel + part, top + y))
                    std::memcpy(block + y * kBlock, row + left + x, kBlock * sizeof(float));
            }
        };
        const auto fill = [&](int x, float *re, float *im) {
            fillPart(x, 0, re);
            if (paired)
                fillPart(x, 1, im);
        };
        const auto takePart = [&](int x, int part, const float *block) {
            const int from = std::max(reach() - x, 0);
            const int to = std::min(kBlock, width + reach() - x);
            for (int y = 0; y < area.height(); ++y) {
                const float *row = block + (y + reach()) * kBlock;
                float *target = out.row(channel + part, area.top() + y) + (x - reach());
                if (from == 0 && to == kBlock)
                    std::memcpy(target, row, kBlock * sizeof(float));
                else
                    std::copy(row + from, row + std::max(to, from), target + from);
            }
        };
        const auto take = [&](int x, const float *re, const float *im) {
            takePart(x, 0, re);
            if (paired)
                takePart(x, 1, im);
        };
        torus.convolve(fill, take, spectrum, kernel, parallel);
    }
}

#endif
