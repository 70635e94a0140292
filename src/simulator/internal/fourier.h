// Circular convolution by way of the discrete Fourier transform.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

class Parallel;

/// A plan to transform sequences of one length, one in each lane of a vector.
///
/// Radices 4, 2, 3 and 5, self-sorting. Source: the Stockham form in C. Van Loan, Computational
/// Frameworks for the Fast Fourier Transform, SIAM 1992, section 1.7.
class FourierPlan
{
public:
    /// @pre length is at least 1 and a product of twos, threes and fives.
    explicit FourierPlan(int length);

    /// The smallest length of at least `count` that has a plan.
    [[nodiscard]] static int lengthFor(int count);

    struct Factor {
        float re, im;
    };

    /// One pass over the data: `count` sums of `radix` terms each.
    struct Pass {
        int radix;
        int count;
        std::vector<Factor>
            factors; ///< radix − 1 for each sum, which the terms are multiplied with
    };

    [[nodiscard]] int length() const { return m_length; }
    [[nodiscard]] const std::vector<Pass> &passes() const { return m_passes; }

private:
    int m_length;
    std::vector<Pass> m_passes;
};

/// Complex sequences side by side, as many as FourierConvolution::kBlock: term after term, and of
/// each term one sequence after the other.
struct FourierBlock {
    float *re;
    float *im;
};

/// Three sets of sequences that a transform moves between.
struct FourierBlocks {
    FourierBlock a, b, c;
};

/// Convolves pictures on a torus with a kernel that is symmetric in both directions. Two real
/// planes are convolved at once, as the real and imaginary parts of one, since the transform of
/// such a kernel is real. The caller makes the torus so large that the kernel doesn't reach around.
///
/// Single precision: the error is about 10⁻⁷ of the picture's root mean square.
class FourierConvolution
{
public:
    /// Columns that are handed over at a time; a block holds them row after row.
    static constexpr int kBlock = 16;

    /// @pre both lengths have plans.
    FourierConvolution(int width, int height);

    [[nodiscard]] int width() const { return m_across.length(); }
    [[nodiscard]] int height() const { return m_down.length(); }

    /// Floats in a spectrum, and in the spectrum of a kernel.
    [[nodiscard]] std::size_t spectrumSize() const { return 2 * kernelSize(); }
    [[nodiscard]] std::size_t kernelSize() const;

    /// Floats from one block of columns to the next.
    [[nodiscard]] std::ptrdiff_t blockSize() const
    {
        return std::ptrdiff_t{ blocksDown() } * kBlock * kBlock;
    }

    /// The kernel's value `dx` columns and `dy` rows from its center, both at least 0.
    using Kernel = std::function<float(int dx, int dy)>;

    /// The transform of a kernel that is zero beyond `reach` columns and rows, divided by the
    /// number of the torus's pixels. `spectrum` is for work.
    void transformKernel(const Kernel &value, int reach, float *spectrum, float *kernel,
        const Parallel &parallel) const;

    /// Fills the blocks of the columns from `begin` to `end`, whole blocks that are blockSize()
    /// floats from each other: height × kBlock floats a plane, aligned for vectors and zero before.
    using Fill = std::function<void(int pair, int begin, int end, float *re, float *im)>;

    /// Takes such blocks.
    using Take
        = std::function<void(int pair, int begin, int end, const float *re, const float *im)>;

    /// Convolves so many pairs of planes, each as `fill` gives it, and hands them to `take`.
    /// `spectrum` is for work.
    void convolve(int pairs, const Fill &fill, const Take &take, float *spectrum,
        const float *kernel, const Parallel &parallel) const;

private:
    [[nodiscard]] int blocksAcross() const { return (width() + kBlock - 1) / kBlock; }
    [[nodiscard]] int blocksDown() const { return (height() + kBlock - 1) / kBlock; }

    FourierPlan m_across;
    FourierPlan m_down;
};
