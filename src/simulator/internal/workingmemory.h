// Working memory, kept from one picture to the next: memory fresh from the system costs more than
// the arithmetic done in it.
#pragma once

#include <hwy/aligned_allocator.h>

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
class Workspace
{
public:
    enum Use { Background, Mover, Streak, Spectrum, KernelSpectrum, kUses };

    /// At least `count` floats, aligned for vectors, of any content. Valid until the next call for
    /// the same use.
    [[nodiscard]] float *floats(Use use, std::size_t count);

private:
    std::array<GrowingBuffer<float>, kUses> m_buffers;
};

} // namespace Simulator
