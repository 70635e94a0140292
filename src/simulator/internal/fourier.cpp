#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "simulator/internal/fourier.cpp"
#include <hwy/cache_control.h>
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "simulator/internal/fourier.h"
#include "simulator/internal/parallel.h"
#include "simulator/internal/workingmemory.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <span>
#include <type_traits>
#include <utility>

#ifndef HV_FOURIER_BLOCKS
#define HV_FOURIER_BLOCKS
namespace Simulator {
namespace {

constexpr int kBlock = FourierConvolution::kBlock;
constexpr std::ptrdiff_t kSquare = std::ptrdiff_t{ kBlock } * kBlock;

constexpr int blocksOf(int count)
{
    return (count + kBlock - 1) / kBlock;
}

// Complex sequences side by side, as many as kBlock: term after term, and of each term one sequence
// after the other.
struct FourierBlock {
    float *re;
    float *im;
};

// One to read and one to write.
struct FourierBlocks {
    FourierBlock a, b;
};

// Rows of two planes.
struct FourierRows {
    const float *re[kBlock];
    const float *im[kBlock];
};

// The same to write to.
struct FourierTargets {
    float *re[kBlock];
    float *im[kBlock];
};

} // namespace
} // namespace Simulator
#endif

HWY_BEFORE_NAMESPACE();
namespace Simulator::HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

constexpr hn::CappedTag<float, kBlock> kFloats;
using Floats = hn::Vec<decltype(kFloats)>;
constexpr int kLanes = static_cast<int>(hn::MaxLanes(kFloats));

struct Complex {
    Floats re, im;
};

HWY_ATTR HWY_INLINE Complex operator+(Complex a, Complex b)
{
    return { hn::Add(a.re, b.re), hn::Add(a.im, b.im) };
}

HWY_ATTR HWY_INLINE Complex operator-(Complex a, Complex b)
{
    return { hn::Sub(a.re, b.re), hn::Sub(a.im, b.im) };
}

HWY_ATTR HWY_INLINE Complex operator*(float factor, Complex a)
{
    const Floats f = hn::Set(kFloats, factor);
    return { hn::Mul(f, a.re), hn::Mul(f, a.im) };
}

HWY_ATTR HWY_INLINE Complex timesMinusI(Complex a)
{
    return { a.im, hn::Neg(a.re) };
}

HWY_ATTR HWY_INLINE Complex turned(Complex a, FourierPlan::Factor factor)
{
    const Floats re = hn::Set(kFloats, factor.re);
    const Floats im = hn::Set(kFloats, factor.im);
    return { hn::Sub(hn::Mul(a.re, re), hn::Mul(a.im, im)),
        hn::Add(hn::Mul(a.re, im), hn::Mul(a.im, re)) };
}

// The discrete Fourier transform of a handful of terms, in place.
template <int Radix>
HWY_ATTR HWY_INLINE void transformTerms(Complex (&a)[Radix]);

template <>
HWY_ATTR HWY_INLINE void transformTerms(Complex (&)[1])
{ }

template <>
HWY_ATTR HWY_INLINE void transformTerms(Complex (&a)[2])
{
    const Complex sum = a[0] + a[1];
    a[1] = a[0] - a[1];
    a[0] = sum;
}

template <>
HWY_ATTR HWY_INLINE void transformTerms(Complex (&a)[3])
{
    constexpr float kSine = 0.866025403784438647F;
    const Complex sum = a[1] + a[2];
    const Complex side = kSine * timesMinusI(a[1] - a[2]);
    const Complex middle = a[0] - 0.5F * sum;
    a[0] = a[0] + sum;
    a[1] = middle + side;
    a[2] = middle - side;
}

template <>
HWY_ATTR HWY_INLINE void transformTerms(Complex (&a)[4])
{
    const Complex even = a[0] + a[2];
    const Complex evenDifference = a[0] - a[2];
    const Complex odd = a[1] + a[3];
    const Complex oddDifference = timesMinusI(a[1] - a[3]);
    a[0] = even + odd;
    a[1] = evenDifference + oddDifference;
    a[2] = even - odd;
    a[3] = evenDifference - oddDifference;
}

template <>
HWY_ATTR HWY_INLINE void transformTerms(Complex (&a)[5])
{
    constexpr float kCosine1 = 0.309016994374947424F;
    constexpr float kCosine2 = -0.809016994374947424F;
    constexpr float kSine1 = 0.951056516295153572F;
    constexpr float kSine2 = 0.587785252292473129F;
    const Complex outer = a[1] + a[4];
    const Complex inner = a[2] + a[3];
    const Complex outerSide = timesMinusI(a[1] - a[4]);
    const Complex innerSide = timesMinusI(a[2] - a[3]);
    const Complex middle1 = a[0] + (kCosine1 * outer + kCosine2 * inner);
    const Complex middle2 = a[0] + (kCosine2 * outer + kCosine1 * inner);
    const Complex side1 = kSine1 * outerSide + kSine2 * innerSide;
    const Complex side2 = kSine2 * outerSide - kSine1 * innerSide;
    a[0] = a[0] + (outer + inner);
    a[1] = middle1 + side1;
    a[2] = middle2 + side2;
    a[3] = middle2 - side2;
    a[4] = middle1 - side1;
}

// Two lengths without a common factor need no multiplications between them (I. J. Good, "The
// Interaction Algorithm and Practical Fourier Analysis", J. R. Stat. Soc. B 20(2), 1958). `Inverse`
// is that of 2 modulo Odd.
template <int Odd, int Inverse>
HWY_ATTR HWY_INLINE void transformTwice(Complex (&a)[2 * Odd])
{
    Complex first[Odd];
    Complex second[Odd];
    for (int i = 0; i < Odd; ++i) {
        first[i] = a[2 * i];
        second[i] = a[(Odd + 2 * i) % (2 * Odd)];
    }
    transformTerms(first);
    transformTerms(second);
    for (int i = 0; i < Odd; ++i) {
        a[2 * Inverse * i % (2 * Odd)] = first[i] + second[i];
        a[(Odd + 2 * Inverse * i) % (2 * Odd)] = first[i] - second[i];
    }
}

template <>
HWY_ATTR HWY_INLINE void transformTerms(Complex (&a)[6])
{
    transformTwice<3, 2>(a);
}

template <>
HWY_ATTR HWY_INLINE void transformTerms(Complex (&a)[10])
{
    transformTwice<5, 3>(a);
}

template <>
HWY_ATTR HWY_INLINE void transformTerms(Complex (&a)[8])
{
    constexpr float kHalfRoot = 0.707106781186547524F;
    Complex even[4] = { a[0], a[2], a[4], a[6] };
    Complex odd[4] = { a[1], a[3], a[5], a[7] };
    transformTerms(even);
    transformTerms(odd);
    odd[1] = kHalfRoot * (odd[1] + timesMinusI(odd[1]));
    odd[2] = timesMinusI(odd[2]);
    odd[3] = kHalfRoot * (timesMinusI(odd[3]) - odd[3]);
    for (int i = 0; i < 4; ++i) {
        a[i] = even[i] + odd[i];
        a[i + 4] = even[i] - odd[i];
    }
}

template <>
HWY_ATTR HWY_INLINE void transformTerms(Complex (&a)[9])
{
    constexpr FourierPlan::Factor kRoot1{ 0.766044443118978035F, -0.642787609686539327F };
    constexpr FourierPlan::Factor kRoot2{ 0.173648177666930349F, -0.984807753012208059F };
    constexpr FourierPlan::Factor kRoot4{ -0.939692620785908384F, -0.342020143325668733F };
    Complex third[3][3] = { { a[0], a[3], a[6] }, { a[1], a[4], a[7] }, { a[2], a[5], a[8] } };
    for (auto &terms : third)
        transformTerms(terms);
    third[1][1] = turned(third[1][1], kRoot1);
    third[1][2] = turned(third[1][2], kRoot2);
    third[2][1] = turned(third[2][1], kRoot2);
    third[2][2] = turned(third[2][2], kRoot4);
    for (int i = 0; i < 3; ++i) {
        Complex terms[3] = { third[0][i], third[1][i], third[2][i] };
        transformTerms(terms);
        for (int k = 0; k < 3; ++k)
            a[i + 3 * k] = terms[k];
    }
}

template <int Radix, bool Last>
HWY_ATTR void transformPass(
    const FourierPlan::Pass &pass, int done, const FourierBlock &in, const FourierBlock &out)
{
    for (int sum = 0; sum < pass.count; ++sum) {
        const FourierPlan::Factor *factors
            = pass.factors.data() + static_cast<std::ptrdiff_t>(sum) * (Radix - 1);
        for (int i = 0; i < done; ++i) {
            const int from = (done * sum + i) * kBlock;
            const int to = (done * Radix * sum + i) * kBlock;
            for (int lane = 0; lane < kBlock; lane += kLanes) {
                Complex terms[Radix];
                for (int k = 0; k < Radix; ++k) {
                    const int at = from + done * pass.count * k * kBlock + lane;
                    terms[k] = { hn::Load(kFloats, in.re + at), hn::Load(kFloats, in.im + at) };
                }
                transformTerms(terms);
                for (int k = 0; k < Radix; ++k) {
                    // The last pass has a single sum, whose factors are all 1.
                    const Complex term
                        = k == 0 || Last ? terms[k] : turned(terms[k], factors[k - 1]);
                    const int at = to + done * k * kBlock + lane;
                    hn::Store(term.re, kFloats, out.re + at);
                    hn::Store(term.im, kFloats, out.im + at);
                }
            }
        }
    }
}

template <int Radix>
HWY_ATTR void transformPass(
    const FourierPlan::Pass &pass, int done, const FourierBlock &in, const FourierBlock &out)
{
    if (pass.count == 1)
        transformPass<Radix, true>(pass, done, in, out);
    else
        transformPass<Radix, false>(pass, done, in, out);
}

FourierBlock swapped(const FourierBlock &block)
{
    return { block.im, block.re };
}

// The last pass of a transform, the multiplication with a kernel and the first pass back, which
// takes the very terms that the last one gives. Real and imaginary parts have then changed places.
// Of the kernel, which is symmetric, there is the first half.
template <int Radix>
HWY_ATTR void convolvePass(const FourierPlan::Pass &firstBack, const float *kernel,
    const FourierBlock &in, const FourierBlock &out)
{
    const int count = firstBack.count;
    for (int sum = 0; sum < count; ++sum) {
        const FourierPlan::Factor *factors
            = firstBack.factors.data() + static_cast<std::ptrdiff_t>(sum) * (Radix - 1);
        const float *weights[Radix];
        for (int k = 0; k < Radix; ++k) {
            const int term = sum + count * k;
            weights[k] = kernel + std::min(term, count * Radix - term) * kBlock;
        }
        for (int lane = 0; lane < kBlock; lane += kLanes) {
            Complex terms[Radix];
            for (int k = 0; k < Radix; ++k) {
                const int at = (sum + count * k) * kBlock + lane;
                terms[k] = { hn::Load(kFloats, in.re + at), hn::Load(kFloats, in.im + at) };
            }
            transformTerms(terms);
            for (int k = 0; k < Radix; ++k) {
                const Floats weight = hn::Load(kFloats, weights[k] + lane);
                terms[k] = { hn::Mul(terms[k].im, weight), hn::Mul(terms[k].re, weight) };
            }
            transformTerms(terms);
            for (int k = 0; k < Radix; ++k) {
                const Complex term = k == 0 ? terms[k] : turned(terms[k], factors[k - 1]);
                const int at = (Radix * sum + k) * kBlock + lane;
                hn::Store(term.re, kFloats, out.re + at);
                hn::Store(term.im, kFloats, out.im + at);
            }
        }
    }
}

// Calls `work` with the radix as a constant.
template <typename Work>
void withRadix(int radix, const Work &work)
{
    switch (radix) {
    case 1:
        return work(std::integral_constant<int, 1>());
    case 2:
        return work(std::integral_constant<int, 2>());
    case 3:
        return work(std::integral_constant<int, 3>());
    case 4:
        return work(std::integral_constant<int, 4>());
    case 5:
        return work(std::integral_constant<int, 5>());
    case 6:
        return work(std::integral_constant<int, 6>());
    case 8:
        return work(std::integral_constant<int, 8>());
    case 9:
        return work(std::integral_constant<int, 9>());
    default:
        return work(std::integral_constant<int, 10>());
    }
}

// A pass of whatever radix, before which `done` terms are transformed together.
void transformPass(
    const FourierPlan::Pass &pass, int done, const FourierBlock &in, const FourierBlock &out)
{
    withRadix(pass.radix,
        [&]<int R>(std::integral_constant<int, R>) { transformPass<R>(pass, done, in, out); });
}

// Passes in turn, from blocks.a to blocks.b, which then change places.
void transform(std::span<const FourierPlan::Pass> passes, int done, FourierBlocks &blocks)
{
    for (const FourierPlan::Pass &pass : passes) {
        transformPass(pass, done, blocks.a, blocks.b);
        std::swap(blocks.a, blocks.b);
        done *= pass.radix;
    }
}

// The inverse, but for the division by the length: real and imaginary parts change places.
void transformBack(std::span<const FourierPlan::Pass> passes, int done, FourierBlocks &blocks)
{
    FourierBlocks exchanged{ swapped(blocks.a), swapped(blocks.b) };
    transform(passes, done, exchanged);
    blocks = { swapped(exchanged.a), swapped(exchanged.b) };
}

#if HWY_TARGET == HWY_SCALAR

// Transposes kBlock columns of so many rows, from `column` on.
void transposeBlock(const float *const *rows, std::ptrdiff_t column, float *out)
{
    for (int x = 0; x < kBlock; ++x) {
        for (int y = 0; y < kBlock; ++y)
            out[x * kBlock + y] = rows[y][column + x];
    }
}

#else

// Transposes kBlock columns of so many rows, from `column` on: within squares of 4 × 4, which then
// go to their places.
HWY_ATTR void transposeBlock(const float *const *rows, std::ptrdiff_t column, float *out)
{
    const hn::Repartition<double, decltype(kFloats)> pairs;
    HWY_ALIGN float squares[4 * kBlock];
    for (int y = 0; y < kBlock; y += 4) {
        for (int lane = 0; lane < kBlock; lane += kLanes) {
            const std::ptrdiff_t at = column + lane;
            const Floats row0 = hn::LoadU(kFloats, rows[y] + at);
            const Floats row1 = hn::LoadU(kFloats, rows[y + 1] + at);
            const Floats row2 = hn::LoadU(kFloats, rows[y + 2] + at);
            const Floats row3 = hn::LoadU(kFloats, rows[y + 3] + at);
            const auto low01 = hn::BitCast(pairs, hn::InterleaveLower(kFloats, row0, row1));
            const auto low23 = hn::BitCast(pairs, hn::InterleaveLower(kFloats, row2, row3));
            const auto high01 = hn::BitCast(pairs, hn::InterleaveUpper(kFloats, row0, row1));
            const auto high23 = hn::BitCast(pairs, hn::InterleaveUpper(kFloats, row2, row3));
            float *square = squares + lane;
            hn::Store(
                hn::BitCast(kFloats, hn::InterleaveLower(pairs, low01, low23)), kFloats, square);
            hn::Store(hn::BitCast(kFloats, hn::InterleaveUpper(pairs, low01, low23)), kFloats,
                square + kBlock);
            hn::Store(hn::BitCast(kFloats, hn::InterleaveLower(pairs, high01, high23)), kFloats,
                square + 2 * kBlock);
            hn::Store(hn::BitCast(kFloats, hn::InterleaveUpper(pairs, high01, high23)), kFloats,
                square + 3 * kBlock);
        }
        for (int x = 0; x < kBlock; ++x) {
            std::memcpy(
                out + x * kBlock + y, squares + x % 4 * kBlock + x / 4 * 4, 4 * sizeof(float));
        }
    }
}

#endif

// The same for a block whose rows lie one after the other.
void transposeBlock(const float *in, float *out)
{
    const float *rows[kBlock];
    for (int y = 0; y < kBlock; ++y)
        rows[y] = in + y * kBlock;
    transposeBlock(rows, 0, out);
}

// The picture's part of the torus's rows, to rows of which those beyond the picture are null.
void takeRows(const float *block, int columns, float *const *rows)
{
    HWY_ALIGN float square[kSquare];
    for (int x = 0; x < columns; x += kBlock) {
        transposeBlock(block + x * kBlock, square);
        const int count = std::min(kBlock, columns - x);
        for (int y = 0; y < kBlock && rows[y] != nullptr; ++y) {
            if (count == kBlock)
                std::memcpy(rows[y] + x, square + y * kBlock, kBlock * sizeof(float));
            else
                std::copy_n(square + y * kBlock, count, rows[y] + x);
        }
    }
}

// A plane's part of blocks of the spectrum's rows that are `step` floats from each other, as
// columns. Above and below the picture the torus repeats its edges.
void fillColumns(
    const float *in, std::ptrdiff_t step, int rows, int reach, float *columns, int length)
{
    const int bands = blocksOf(rows);
    for (int i = 0; i < bands; ++i) {
        // The processor doesn't see from one block that the next one follows.
        const float *next = in + std::min(i + 1, bands - 1) * step;
        for (int y = 0; y < kBlock; ++y)
            hwy::Prefetch(next + y * kBlock);
        transposeBlock(in + i * step, columns + i * kSquare);
    }
    const float *last = columns + (rows - 1) * kBlock;
    for (int y = rows; y < length; ++y)
        std::copy_n(y < length - reach ? last : columns, kBlock, columns + y * kBlock);
}

// The picture's rows back into the spectrum.
void takeColumns(const float *columns, int rows, float *out, std::ptrdiff_t step)
{
    for (int i = 0; i < blocksOf(rows); ++i)
        transposeBlock(columns + i * kSquare, out + i * step);
}

} // namespace

// Across a block of two planes' rows, of which the first blocks of columns are given and the rest
// is zero.
HWY_ATTR void transformRows(const FourierPlan &across, FourierBlocks blocks,
    const FourierRows &rows, int given, const FourierBlock &out)
{
    const int columns = across.length();
    for (int i = 0; i < given; ++i) {
        // Rows lie on pages of their own, more of them than the processor looks ahead on.
        for (int y = 0; y < kBlock; ++y) {
            hwy::Prefetch(rows.re[y] + (i + 2) * kBlock);
            hwy::Prefetch(rows.im[y] + (i + 2) * kBlock);
        }
        transposeBlock(rows.re, i * kBlock, blocks.a.re + i * kSquare);
        transposeBlock(rows.im, i * kBlock, blocks.a.im + i * kSquare);
    }
    if (given * kBlock < columns) {
        for (float *const part : { blocks.a.re, blocks.a.im })
            std::fill(part + given * kSquare, part + columns * kBlock, 0.0F);
    }
    const std::span passes(across.passes());
    transform(passes.first(passes.size() - 1), 1, blocks);
    transformPass(passes.back(), columns / passes.back().radix, blocks.a, out);
    // The last block's lanes beyond the torus are computed with, and must not grow.
    for (float *const part : { out.re, out.im })
        std::fill(part + columns * kBlock, part + blocksOf(columns) * kSquare, 0.0F);
}

// The way back, to the columns from `first` on.
HWY_ATTR void transformRowsBack(const FourierPlan &across, FourierBlocks blocks,
    const FourierBlock &in, int first, int columns, const FourierTargets &rows)
{
    const std::span passes(across.passes());
    transformPass(passes.front(), 1, swapped(in), swapped(blocks.a));
    transformBack(passes.subspan(1), passes.front().radix, blocks);
    takeRows(blocks.a.re + first * kBlock, columns, rows.re);
    takeRows(blocks.a.im + first * kBlock, columns, rows.im);
}

// Down a block of columns and, multiplied with the kernel, back again.
HWY_ATTR void convolveColumns(const FourierPlan &down, const FourierPlan &back,
    FourierBlocks blocks, const FourierBlock &spectrum, std::ptrdiff_t step, int rows, int reach,
    const float *kernel)
{
    fillColumns(spectrum.re, step, rows, reach, blocks.a.re, down.length());
    fillColumns(spectrum.im, step, rows, reach, blocks.a.im, down.length());
    const std::span passes(down.passes());
    const std::span passesBack(back.passes());
    transform(passes.first(passes.size() - 1), 1, blocks);
    const FourierPlan::Pass &middle = passesBack.front();
    withRadix(middle.radix, [&]<int R>(std::integral_constant<int, R>) {
        convolvePass<R>(middle, kernel, blocks.a, swapped(blocks.b));
    });
    std::swap(blocks.a, blocks.b);
    transformBack(passesBack.subspan(1), middle.radix, blocks);
    takeColumns(blocks.a.re, rows, spectrum.re, step);
    takeColumns(blocks.a.im, rows, spectrum.im, step);
}

// Across two blocks of a kernel's rows at once, blocks.a: they are real and symmetric, and so are
// their transforms. Where there is a single block, the other goes nowhere.
HWY_ATTR void transformKernelRows(const FourierPlan &across, FourierBlocks blocks, float *out,
    float *otherOut, std::ptrdiff_t step)
{
    transform(across.passes(), 1, blocks);
    for (const auto &[from, to] :
        { std::pair{ blocks.a.re, out }, std::pair{ blocks.a.im, otherOut } }) {
        const int count = blocksOf(across.length());
        std::fill(from + across.length() * kBlock, from + count * kSquare, 0.0F);
        for (int i = 0; i < count && to != nullptr; ++i)
            transposeBlock(from + i * kSquare, to + i * step);
    }
}

// Down two blocks of its columns at once, of which the first half comes out.
HWY_ATTR void transformKernelColumns(
    const FourierPlan &down, FourierBlocks blocks, float *out, float *otherOut, float factor)
{
    transform(down.passes(), 1, blocks);
    const int count = (down.length() / 2 + 1) * kBlock;
    const Floats share = hn::Set(kFloats, factor);
    for (int i = 0; i < count; i += kLanes) {
        hn::Store(hn::Mul(hn::Load(kFloats, blocks.a.re + i), share), kFloats, out + i);
        if (otherOut != nullptr)
            hn::Store(hn::Mul(hn::Load(kFloats, blocks.a.im + i), share), kFloats, otherOut + i);
    }
}

} // namespace Simulator::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace Simulator {

HWY_EXPORT(transformRows);
HWY_EXPORT(transformRowsBack);
HWY_EXPORT(convolveColumns);
HWY_EXPORT(transformKernelRows);
HWY_EXPORT(transformKernelColumns);

namespace {

// Room for so many terms and a block behind them.
FourierBlocks scratchBlocks(int terms)
{
    const std::ptrdiff_t size = (blocksOf(terms) + 1) * kSquare;
    float *memory = Scratch::floats(Scratch::Transform, static_cast<int>(4 * size));
    return { { memory, memory + size }, { memory + 2 * size, memory + 3 * size } };
}

} // namespace

FourierPlan::FourierPlan(int length, Order order)
    : m_length(length)
{
    const auto root = [](int numerator, int denominator) -> Factor {
        const double angle = -2 * std::numbers::pi * numerator / denominator;
        return { static_cast<float>(std::cos(angle)), static_cast<float>(std::sin(angle)) };
    };
    // Few long passes rather than many short ones: most of the time goes into memory.
    std::vector<int> radices;
    int left = length;
    for (const int radix : { 10, 9, 8, 6, 5, 4, 3, 2 }) {
        for (; left % radix == 0; left /= radix)
            radices.push_back(radix);
    }
    HWY_DASSERT(left == 1);
    // A single term is its own transform; the pass copies it.
    if (radices.empty())
        radices.push_back(1);
    if (order == SmallestFirst)
        std::ranges::reverse(radices);
    left = length;
    for (const int radix : radices) {
        Pass pass{ .radix = radix, .count = left / radix, .factors = {} };
        for (int sum = 0; sum < pass.count; ++sum) {
            for (int term = 1; term < radix; ++term)
                pass.factors.push_back(root(sum * term, left));
        }
        left = pass.count;
        m_passes.push_back(std::move(pass));
    }
}

int FourierPlan::lengthFor(int count)
{
    for (int length = std::max(count, 1);; ++length) {
        int left = length;
        for (const int factor : { 2, 3, 5 }) {
            while (left % factor == 0)
                left /= factor;
        }
        if (left == 1)
            return length;
    }
}

FourierConvolution::FourierConvolution(int columns, int rows, int reach)
    : m_columns(columns)
    , m_rows(rows)
    , m_reach(reach)
    , m_across(FourierPlan::lengthFor(columns + 2 * reach))
    , m_down(FourierPlan::lengthFor(rows + 2 * reach))
    , m_back(m_down.length(), FourierPlan::SmallestFirst)
{ }

std::size_t FourierConvolution::spectrumSize() const
{
    return static_cast<std::size_t>(2 * blocksOf(m_across.length()) * blocksOf(m_rows) * kSquare);
}

std::size_t FourierConvolution::kernelSize() const
{
    return static_cast<std::size_t>(blocksOf(m_across.length()) * kernelStep());
}

// The first half of the transform's rows, or before that the kernel's own.
std::ptrdiff_t FourierConvolution::kernelStep() const
{
    return std::max(m_down.length() / 2 + 1, blocksOf(m_reach + 1) * kBlock) * kBlock;
}

void FourierConvolution::transformKernel(
    const Kernel &value, float *kernel, const Parallel &parallel) const
{
    const int width = m_across.length();
    const int height = m_down.length();
    const int rowBlocks = blocksOf(m_reach + 1);
    parallel.run((rowBlocks + 1) / 2, [&](int pair) {
        const FourierBlocks blocks = scratchBlocks(width);
        for (int part = 0; part < 2; ++part) {
            const int top = (2 * pair + part) * kBlock;
            float *block = part == 0 ? blocks.a.re : blocks.a.im;
            std::fill_n(block, width * kBlock, 0.0F);
            for (int dx = 0; dx <= m_reach; ++dx) {
                float *column = block + dx * kBlock;
                for (int lane = 0; lane < kBlock && top + lane <= m_reach; ++lane)
                    column[lane] = value(dx, top + lane);
                // What lies to the left of the center is at the torus's far end.
                std::copy_n(column, kBlock, block + (width - dx) % width * kBlock);
            }
        }
        float *out = kernel + 2 * pair * kSquare;
        HWY_DYNAMIC_DISPATCH(transformKernelRows)
        (m_across, blocks, out, 2 * pair + 1 < rowBlocks ? out + kSquare : nullptr, kernelStep());
    });
    const auto share = static_cast<float>(1 / (double{ 1 } * width * height));
    const int columnBlocks = blocksOf(width);
    parallel.run((columnBlocks + 1) / 2, [&](int pair) {
        const FourierBlocks blocks = scratchBlocks(height);
        float *out = kernel + 2 * pair * kernelStep();
        float *otherOut = 2 * pair + 1 < columnBlocks ? out + kernelStep() : nullptr;
        for (const auto &[rows, block] :
            { std::pair{ out, blocks.a.re }, std::pair{ otherOut, blocks.a.im } }) {
            std::fill_n(block, height * kBlock, 0.0F);
            for (int dy = 0; dy <= m_reach && rows != nullptr; ++dy) {
                std::copy_n(rows + dy * kBlock, kBlock, block + dy * kBlock);
                std::copy_n(rows + dy * kBlock, kBlock, block + (height - dy) % height * kBlock);
            }
        }
        HWY_DYNAMIC_DISPATCH(transformKernelColumns)(m_down, blocks, out, otherOut, share);
    });
}

void FourierConvolution::convolve(int pairs, const Source &source, const Target &target,
    float *spectrum, const float *kernel, const Parallel &parallel) const
{
    const int bands = blocksOf(m_rows);
    const int given = blocksOf(m_columns + 2 * m_reach);
    // A block of rows after the other, its real parts before its imaginary ones.
    const std::ptrdiff_t plane = blocksOf(m_across.length()) * kSquare;
    const std::ptrdiff_t step = 2 * plane;
    for (int pair = 0; pair <= pairs; ++pair) {
        // Where a pair's rows have left the spectrum, those of the next one take their place.
        parallel.run(bands, [&](int band) {
            const int top = band * kBlock;
            const int count = std::min(kBlock, m_rows - top);
            float *memory = spectrum + band * step;
            const FourierBlock part{ memory, memory + plane };
            const FourierBlocks blocks = scratchBlocks(m_across.length());
            if (pair > 0) {
                FourierTargets rows{};
                for (int y = 0; y < count; ++y) {
                    rows.re[y] = target(2 * pair - 2, top + y);
                    rows.im[y] = target(2 * pair - 1, top + y);
                }
                HWY_DYNAMIC_DISPATCH(transformRowsBack)
                (m_across, blocks, part, m_reach, m_columns, rows);
            }
            if (pair < pairs) {
                FourierRows rows{};
                const float *zeros = Scratch::zeros(given * kBlock);
                for (int y = 0; y < kBlock; ++y) {
                    const float *re = y < count ? source(2 * pair, top + y) : nullptr;
                    const float *im = y < count ? source(2 * pair + 1, top + y) : nullptr;
                    rows.re[y] = re != nullptr ? re : zeros;
                    rows.im[y] = im != nullptr ? im : zeros;
                }
                HWY_DYNAMIC_DISPATCH(transformRows)(m_across, blocks, rows, given, part);
            }
        });
        if (pair == pairs)
            break;
        parallel.run(blocksOf(m_across.length()), [&](int i) {
            float *columns = spectrum + i * kSquare;
            HWY_DYNAMIC_DISPATCH(convolveColumns)
            (m_down, m_back, scratchBlocks(m_down.length()), { columns, columns + plane }, step,
                m_rows, m_reach, kernel + i * kernelStep());
        });
    }
}

} // namespace Simulator

#endif
