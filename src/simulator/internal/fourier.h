// Circular convolution by way of the discrete Fourier transform.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace Simulator {

class Parallel;

/// A plan to transform sequences of one length, one in each lane of a vector.
///
/// Radices 10, 9, 8, 6, 5, 4, 3 and 2, self-sorting. Source: the Stockham form in C. Van Loan,
/// Computational Frameworks for the Fast Fourier Transform, SIAM 1992, section 1.7.
class FourierPlan
{
public:
    /// By the passes' radices. The first pass of one order has the radix of the other's last.
    enum Order { LargestFirst, SmallestFirst };

    /// @pre length is at least 1 and a product of twos, threes and fives.
    explicit FourierPlan(int length, Order order = LargestFirst);

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

/// Convolves pictures with a kernel that is symmetric in both directions, on a torus so large that
/// the kernel doesn't reach around. Two real planes are convolved at once, as the real and
/// imaginary parts of one, since the transform of such a kernel is real.
///
/// First across the picture's rows, then down the columns: above and below the picture its edge
/// rows repeat, and so do their transforms.
///
/// Single precision: for two planes a and b that are convolved at once, the error of each pixel is
/// at most 10⁻⁶ times the sum of the kernel's magnitudes, times the root of the mean of a² + b²
/// over all that is read of the rows.
class FourierConvolution
{
public:
    /// Rows, and then columns, that are transformed at once.
    static constexpr int kBlock = 16;

    /// For pictures of so many columns and rows, both at least 1, and kernels that are zero beyond
    /// `reach` columns and rows.
    FourierConvolution(int columns, int rows, int reach);

    /// Floats in a spectrum, and in the spectrum of a kernel.
    [[nodiscard]] std::size_t spectrumSize() const;
    [[nodiscard]] std::size_t kernelSize() const;

    /// The kernel's value `dx` columns and `dy` rows from its center, both at least 0.
    using Kernel = std::function<float(int dx, int dy)>;

    /// The transform of a kernel, divided by the number of the torus's pixels. Aligned for vectors.
    void transformKernel(const Kernel &value, float *kernel, const Parallel &parallel) const;

    /// Where a row of a plane begins, `reach` columns before the picture, up to as many behind it;
    /// kBlock − 1 more floats may be read there. Null for a row of zeros.
    using Source = std::function<const float *(int plane, int y)>;

    /// Where the picture's columns of a plane's row go.
    using Target = std::function<float *(int plane, int y)>;

    /// Convolves so many pairs of planes. `spectrum` is for work, and aligned for vectors.
    void convolve(int pairs, const Source &source, const Target &target, float *spectrum,
        const float *kernel, const Parallel &parallel) const;

private:
    [[nodiscard]] std::ptrdiff_t kernelStep() const;

    int m_columns;
    int m_rows;
    int m_reach;
    FourierPlan m_across;
    FourierPlan m_down;
    FourierPlan m_back; // its first pass has the radix of m_down's last
};

} // namespace Simulator
