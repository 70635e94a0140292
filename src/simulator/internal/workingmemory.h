// Working memory, kept from one picture to the next: memory fresh from the system costs more than
// the arithmetic done in it.
#pragma once

#include <hwy/aligned_allocator.h>

#include <QSize>

#include <array>
#include <cstddef>

namespace Simulator {

/// Memory for so many numbers, aligned for vectors.
template <typename T>
class GrowingBuffer
{
public:
    /// At least `count` elements: those of before, or zeros.
    [[nodiscard]] T *atLeast(std::size_t count);

private:
    hwy::AlignedFreeUniquePtr<T[]> m_data;
    std::size_t m_size = 0;
};

/// The buffers of one thread. What they held is never read again.
namespace Scratch {

enum FloatUse { Columns, Transform, Lines, Band, kFloatUses };
enum DoubleUse { Heights, Running, LinePairs, LineSums, kDoubleUses };

/// At least `count` elements, aligned for vectors, of any content. Valid until the thread's next
/// call for the same use.
[[nodiscard]] float *floats(FloatUse use, int count);
[[nodiscard]] double *doubles(DoubleUse use, int count);

/// At least `count` zeros, aligned for vectors; not to be written.
[[nodiscard]] const float *zeros(int count);

} // namespace Scratch

/// The large buffers that making a picture needs. What they held is never read again.
///
/// From its first use on each is as large as any picture of the frame needs it: one that grew with
/// the settings would leave a gap in the heap each time.
class Workspace
{
public:
    enum Use { Background, Mover, Streak, Spectrum, KernelSpectrum, kUses };

    /// For pictures of `frame`, which isn't empty.
    explicit Workspace(QSize frame);

    /// At least `count` floats, aligned for vectors, of any content. Valid until the next call for
    /// the same use.
    [[nodiscard]] float *floats(Use use, std::size_t count);

private:
    std::array<GrowingBuffer<float>, kUses> m_buffers;
    std::array<std::size_t, kUses> m_largest; ///< Floats that a picture of the frame may need.
};

} // namespace Simulator
