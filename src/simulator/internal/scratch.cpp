#include "simulator/internal/scratch.h"

#include <hwy/aligned_allocator.h>

#include <QtGlobal>

#include <algorithm>
#include <array>

namespace {

template <typename T>
class Buffer
{
public:
    T *atLeast(int count)
    {
        if (count > m_size) {
            // Zeroed once, so that no value of the memory's past is ever computed with.
            m_data = hwy::AllocateAligned<T>(static_cast<std::size_t>(count));
            if (!m_data)
                qBadAlloc();
            std::fill_n(m_data.get(), count, T{});
            m_size = count;
        }
        return m_data.get();
    }

private:
    hwy::AlignedFreeUniquePtr<T[]> m_data;
    int m_size = 0;
};

} // namespace

float *Scratch::floats(FloatUse use, int count)
{
    thread_local std::array<Buffer<float>, kFloatUses> buffers;
    return buffers[use].atLeast(count);
}

double *Scratch::doubles(DoubleUse use, int count)
{
    thread_local std::array<Buffer<double>, kDoubleUses> buffers;
    return buffers[use].atLeast(count);
}

const float *Scratch::zeros(int count)
{
    thread_local Buffer<float> buffer;
    return buffer.atLeast(count);
}
