// Working memory of one thread, kept from one picture to the next.
#pragma once

/// A render needs the same few buffers again and again, and memory fresh from the system costs more
/// than the arithmetic done in it. Each thread keeps its own; what they held is never read again.
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
