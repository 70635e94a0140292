// Working memory of one picture.
#pragma once

#include <hwy/aligned_allocator.h>

#include <array>

/// The large buffers that making a picture needs, kept from one picture to the next because memory
/// fresh from the system costs more than the arithmetic done in it. What they held is never read
/// again.
class Workspace
{
public:
    enum Use { Background, Mover, Streak, Spectrum, KernelSpectrum, kUses };

    /// At least `count` floats, aligned for vectors, of any content. Valid until the next call for
    /// the same use.
    [[nodiscard]] float *floats(Use use, std::size_t count);

private:
    struct Buffer {
        hwy::AlignedFreeUniquePtr<float[]> data;
        std::size_t size = 0;
    };
    std::array<Buffer, kUses> m_buffers;
};
