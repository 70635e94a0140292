#include "simulator/internal/workingmemory.h"

#include <QtGlobal>

#include <algorithm>

namespace Simulator {

template <typename T>
T *GrowingBuffer<T>::atLeast(std::size_t count)
{
    if (count > m_size) {
        // First, so that both are never held at once, and nothing is left if the new one fails.
        m_size = 0;
        m_data.reset();
        m_data = hwy::AllocateAligned<T>(count);
        if (!m_data)
            qBadAlloc();
        // Zeroed once, so that no value of the memory's past is ever computed with.
        std::fill_n(m_data.get(), count, T{});
        m_size = count;
    }
    return m_data.get();
}

float *Scratch::floats(FloatUse use, int count)
{
    thread_local std::array<GrowingBuffer<float>, kFloatUses> buffers;
    return buffers[use].atLeast(static_cast<std::size_t>(count));
}

double *Scratch::doubles(DoubleUse use, int count)
{
    thread_local std::array<GrowingBuffer<double>, kDoubleUses> buffers;
    return buffers[use].atLeast(static_cast<std::size_t>(count));
}

const float *Scratch::zeros(int count)
{
    thread_local GrowingBuffer<float> buffer;
    return buffer.atLeast(static_cast<std::size_t>(count));
}

float *Workspace::floats(Use use, std::size_t count)
{
    return m_buffers[use].atLeast(count);
}

} // namespace Simulator
