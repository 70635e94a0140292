#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "simulator/internal/fourier.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "simulator/internal/fourier.h"
#include "simulator/internal/parallel.h"
#include "simulator/internal/scratch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <numbers>
#include <utility>

HWY_BEFORE_NAMESPACE();
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

constexpr int kBlock = FourierConvolution::kBlock;
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

// Transforms `in` into `out`, which may be the same. In between the passes go to the two spares in
// turn, of which the first must be another block than `in`, the second another than `out`.
HWY_ATTR void transform(const FourierPlan &plan, const FourierBlock &in, const FourierBlock &spare,
    const FourierBlock &otherSpare, const FourierBlock &out)
{
    const FourierBlock *source = &in;
    int done = 1;
    for (std::size_t i = 0; i < plan.passes().size(); ++i) {
        const FourierPlan::Pass &pass = plan.passes()[i];
        const FourierBlock *target = i + 1 == plan.passes().size() ? &out
            : i % 2 == 0                                           ? &spare
                                                                   : &otherSpare;
        switch (pass.radix) {
        case 1:
            transformPass<1>(pass, done, *source, *target);
            break;
        case 2:
            transformPass<2>(pass, done, *source, *target);
            break;
        case 3:
            transformPass<3>(pass, done, *source, *target);
            break;
        case 4:
            transformPass<4>(pass, done, *source, *target);
            break;
        case 5:
            transformPass<5>(pass, done, *source, *target);
            break;
        case 6:
            transformPass<6>(pass, done, *source, *target);
            break;
        case 8:
            transformPass<8>(pass, done, *source, *target);
            break;
        case 9:
            transformPass<9>(pass, done, *source, *target);
            break;
        default:
            transformPass<10>(pass, done, *source, *target);
        }
        done *= pass.radix;
        source = target;
    }
}

// The inverse, but for the division by the length: real and imaginary parts change places.
HWY_ATTR void transformBack(const FourierPlan &plan, const FourierBlock &in,
    const FourierBlock &spare, const FourierBlock &otherSpare, const FourierBlock &out)
{
    const auto swapped = [](const FourierBlock &block) {
        return FourierBlock{ block.im, block.re };
    };
    transform(plan, swapped(in), swapped(spare), swapped(otherSpare), swapped(out));
}

#if HWY_TARGET == HWY_SCALAR

// Transposes kBlock × kBlock floats.
void transposeBlock(const float *in, float *out)
{
    for (int x = 0; x < kBlock; ++x) {
        for (int y = 0; y < kBlock; ++y)
            out[x * kBlock + y] = in[y * kBlock + x];
    }
}

#else

// Transposes kBlock × kBlock floats: within squares of 4 × 4, which then go to their places.
HWY_ATTR void transposeBlock(const float *in, float *out)
{
    const hn::Repartition<double, decltype(kFloats)> pairs;
    HWY_ALIGN float squares[4 * kBlock];
    for (int y = 0; y < kBlock; y += 4) {
        for (int lane = 0; lane < kBlock; lane += kLanes) {
            const float *row = in + y * kBlock + lane;
            const Floats row0 = hn::Load(kFloats, row);
            const Floats row1 = hn::Load(kFloats, row + kBlock);
            const Floats row2 = hn::Load(kFloats, row + 2 * kBlock);
            const Floats row3 = hn::Load(kFloats, row + 3 * kBlock);
            const auto low01 = hn::BitCast(pairs, hn::InterleaveLower(kFloats, row0, row1));
            const auto low23 = hn::BitCast(pairs, hn::InterleaveLower(kFloats, row2, row3));
            const auto high01 = hn::BitCast(pairs, hn::InterleaveUpper(kFloats, row0, row1));
            const auto high23 = hn::BitCast(pairs, hn::InterleaveUpper(kFloats, row2, row3));
            float *column = squares + lane;
            hn::Store(
                hn::BitCast(kFloats, hn::InterleaveLower(pairs, low01, low23)), kFloats, column);
            hn::Store(hn::BitCast(kFloats, hn::InterleaveUpper(pairs, low01, low23)), kFloats,
                column + kBlock);
            hn::Store(hn::BitCast(kFloats, hn::InterleaveLower(pairs, high01, high23)), kFloats,
                column + 2 * kBlock);
            hn::Store(hn::BitCast(kFloats, hn::InterleaveUpper(pairs, high01, high23)), kFloats,
                column + 3 * kBlock);
        }
        for (int x = 0; x < kBlock; ++x) {
            std::memcpy(
                out + x * kBlock + y, squares + x % 4 * kBlock + x / 4 * 4, 4 * sizeof(float));
        }
    }
}

#endif

HWY_ATTR void multiply(const FourierBlock &block, const float *kernel, int length)
{
    for (int i = 0; i < length * kBlock; i += kLanes) {
        const Floats factor = hn::Load(kFloats, kernel + i);
        hn::Store(hn::Mul(hn::Load(kFloats, block.re + i), factor), kFloats, block.re + i);
        hn::Store(hn::Mul(hn::Load(kFloats, block.im + i), factor), kFloats, block.im + i);
    }
}

HWY_ATTR void scale(float *values, float factor, int length)
{
    for (int i = 0; i < length * kBlock; i += kLanes) {
        hn::Store(
            hn::Mul(hn::Load(kFloats, values + i), hn::Set(kFloats, factor)), kFloats, values + i);
    }
}

} // namespace

// Down the columns of blocks.a. What comes out goes into the spectrum, a block of the transform's
// rows after the other: `step` floats lie between them, and within each a column is a row.
HWY_ATTR void transformColumns(
    const FourierPlan &down, const FourierBlocks &blocks, float *re, float *im, std::ptrdiff_t step)
{
    transform(down, blocks.a, blocks.b, blocks.c, blocks.a);
    const int count = (down.length() + kBlock - 1) / kBlock;
    for (int i = 0; i < count; ++i) {
        transposeBlock(blocks.a.re + i * kBlock * kBlock, re + i * step);
        transposeBlock(blocks.a.im + i * kBlock * kBlock, im + i * step);
    }
}

// The way back; the columns come out in blocks.a.
HWY_ATTR void transformColumnsBack(const FourierPlan &down, const FourierBlocks &blocks,
    const float *re, const float *im, std::ptrdiff_t step)
{
    const int count = (down.length() + kBlock - 1) / kBlock;
    for (int i = 0; i < count; ++i) {
        transposeBlock(re + i * step, blocks.a.re + i * kBlock * kBlock);
        transposeBlock(im + i * step, blocks.a.im + i * kBlock * kBlock);
    }
    transformBack(down, blocks.a, blocks.b, blocks.c, blocks.a);
}

// Across two blocks of a kernel's rows at once: they are real and symmetric, and so are their
// transforms.
HWY_ATTR void transformKernelRows(const FourierPlan &across, const FourierBlocks &blocks,
    float *rows, float *otherRows, float factor)
{
    transform(across, { rows, otherRows }, blocks.a, blocks.b, { rows, otherRows });
    scale(rows, factor, across.length());
    scale(otherRows, factor, across.length());
}

// Across the rows and, multiplied with the kernel, back again.
HWY_ATTR void convolveRows(const FourierPlan &across, const FourierBlocks &blocks,
    const FourierBlock &rows, const float *kernel)
{
    transform(across, rows, blocks.a, blocks.b, blocks.c);
    multiply(blocks.c, kernel, across.length());
    transformBack(across, blocks.c, blocks.a, blocks.b, rows);
}

} // namespace HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

HWY_EXPORT(transformColumns);
HWY_EXPORT(transformColumnsBack);
HWY_EXPORT(transformKernelRows);
HWY_EXPORT(convolveRows);

namespace {

constexpr int kBlock = FourierConvolution::kBlock;
// Blocks that are filled and taken at once: so much of a picture's row lies together.
constexpr int kStrip = 4;

constexpr std::ptrdiff_t kSquare = std::ptrdiff_t{ kBlock } * kBlock;

FourierBlocks blocksOf(int terms)
{
    const int size = terms * kBlock;
    float *memory = Scratch::floats(Scratch::Transform, 6 * size);
    return { { memory, memory + size }, { memory + 2 * size, memory + 3 * size },
        { memory + 4 * size, memory + 5 * size } };
}

} // namespace

FourierPlan::FourierPlan(int length)
    : m_length(length)
{
    const auto root = [](int numerator, int denominator) -> Factor {
        const double angle = -2 * std::numbers::pi * numerator / denominator;
        return { static_cast<float>(std::cos(angle)), static_cast<float>(std::sin(angle)) };
    };
    // Few long passes rather than many short ones: most of the time goes into memory.
    constexpr std::array radices{ 10, 9, 8, 6, 5, 4, 3, 2 };
    for (int left = length; left > 1;) {
        const auto *const radix = std::ranges::find_if(
            radices, [left](int candidate) { return left % candidate == 0; });
        HWY_DASSERT(radix != radices.end());
        Pass pass{ .radix = *radix, .count = left / *radix, .factors = {} };
        for (int sum = 0; sum < pass.count; ++sum) {
            for (int term = 1; term < pass.radix; ++term)
                pass.factors.push_back(root(sum * term, left));
        }
        left = pass.count;
        m_passes.push_back(std::move(pass));
    }
    // A single term is its own transform; the pass copies it.
    if (m_passes.empty())
        m_passes.push_back({ .radix = 1, .count = 1, .factors = {} });
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

FourierConvolution::FourierConvolution(int width, int height)
    : m_across(width)
    , m_down(height)
{ }

// Blocks of rows one after the other. In each, a column of the torus takes a row of kBlock floats,
// so that a transform across reads memory from end to end. The columns' blocks may pass the width.
std::size_t FourierConvolution::kernelSize() const
{
    return static_cast<std::size_t>(blocksAcross() * blocksDown()) * std::size_t{ kSquare };
}

void FourierConvolution::transformKernel(
    const Kernel &value, int reach, float *spectrum, float *kernel, const Parallel &parallel) const
{
    const std::ptrdiff_t step = blocksAcross() * kSquare;
    std::fill_n(kernel, kernelSize(), 0.0F);
    // Symmetric columns have real transforms, so that two blocks of them go through at once. The
    // upper half lies at the torus's far end, and so do the columns to the left of the center,
    // which are copies of those to the right.
    const int pairs = (reach / kBlock + 2) / 2;
    parallel.run(pairs, [&](int pair) {
        const FourierBlocks blocks = blocksOf(blocksDown() * kBlock);
        std::fill_n(blocks.a.re, 2 * blocksDown() * kSquare, 0.0F);
        for (int part = 0; part < 2; ++part) {
            const int x = (2 * pair + part) * kBlock;
            float *block = part == 0 ? blocks.a.re : blocks.a.im;
            for (int lane = 0; lane < kBlock && x + lane <= reach; ++lane) {
                for (int dy = 0; dy <= reach; ++dy) {
                    const float weight = value(x + lane, dy);
                    block[dy * kBlock + lane] = weight;
                    block[(height() - dy) % height() * kBlock + lane] = weight;
                }
            }
        }
        float *out = spectrum + 2 * pair * kSquare;
        HWY_DYNAMIC_DISPATCH(transformColumns)(m_down, blocks, out, out + kSquare, step);
    });
    const auto share = static_cast<float>(1 / (double{ 1 } * width() * height()));
    parallel.run((blocksDown() + 1) / 2, [&](int pair) {
        for (int part = 0; part < 2 && 2 * pair + part < blocksDown(); ++part) {
            const float *columns = spectrum + (2 * pair + part) * step;
            float *rows = kernel + (2 * pair + part) * step;
            for (int dx = 0; dx <= reach; ++dx) {
                std::copy_n(columns + dx * kBlock, kBlock, rows + dx * kBlock);
                std::copy_n(columns + dx * kBlock, kBlock,
                    rows + static_cast<std::ptrdiff_t>((width() - dx) % width()) * kBlock);
            }
        }
        float *rows = kernel + 2 * pair * step;
        float *otherRows = rows + step;
        if (2 * pair + 1 == blocksDown()) {
            // An odd block at the end goes alone.
            otherRows = spectrum + spectrumSize() / 2;
            std::fill_n(otherRows, step, 0.0F);
        }
        HWY_DYNAMIC_DISPATCH(transformKernelRows)
        (m_across, blocksOf(width()), rows, otherRows, share);
    });
}

void FourierConvolution::convolve(int pairs, const Fill &fill, const Take &take, float *spectrum,
    const float *kernel, const Parallel &parallel) const
{
    const std::ptrdiff_t step = blocksAcross() * kSquare;
    const std::ptrdiff_t stripSize = kStrip * blockSize();
    float *re = spectrum;
    float *im = spectrum + kernelSize();
    for (int pair = 0; pair <= pairs; ++pair) {
        // Where a pair's columns have left the spectrum, those of the next one take their place.
        parallel.run((blocksAcross() + kStrip - 1) / kStrip, [&](int strip) {
            const int begin = strip * kStrip;
            const int end = std::min(begin + kStrip, blocksAcross());
            float *columns = Scratch::floats(Scratch::Strip, static_cast<int>(2 * stripSize));
            FourierBlocks blocks = blocksOf(blocksDown() * kBlock);
            const auto forEachBlock = [&](auto transformBlock) {
                for (int i = begin; i < end; ++i) {
                    blocks.a.re = columns + (i - begin) * blockSize();
                    blocks.a.im = blocks.a.re + stripSize;
                    transformBlock(m_down, blocks, re + i * kSquare, im + i * kSquare, step);
                }
            };
            if (pair > 0) {
                forEachBlock(HWY_DYNAMIC_DISPATCH(transformColumnsBack));
                take(pair - 1, begin * kBlock, end * kBlock, columns, columns + stripSize);
            }
            if (pair < pairs) {
                std::fill_n(columns, 2 * stripSize, 0.0F);
                fill(pair, begin * kBlock, end * kBlock, columns, columns + stripSize);
                forEachBlock(HWY_DYNAMIC_DISPATCH(transformColumns));
            }
        });
        if (pair == pairs)
            break;
        parallel.run(blocksDown(), [&](int i) {
            HWY_DYNAMIC_DISPATCH(convolveRows)
            (m_across, blocksOf(width()), { re + i * step, im + i * step }, kernel + i * step);
        });
    }
}

#endif
