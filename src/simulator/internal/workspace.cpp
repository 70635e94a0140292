#include "simulator/internal/workspace.h"

#include <QtGlobal>

#include <algorithm>

float *Workspace::floats(Use use, std::size_t count)
{
    Buffer &buffer = m_buffers[use];
    if (count > buffer.size) {
        buffer.data.reset(); // first, so that both are never held at once
        buffer.data = hwy::AllocateAligned<float>(count);
        if (!buffer.data)
            qBadAlloc();
        std::fill_n(buffer.data.get(), count, 0.0F);
        buffer.size = count;
    }
    return buffer.data.get();
}
