#include "simulator/internal/grain.h"

#include "simulator/internal/planes.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace Simulator {

double GrainGenerator::uniform()
{
    m_state ^= m_state << 13U;
    m_state ^= m_state >> 7U;
    m_state ^= m_state << 17U;
    return static_cast<double>(m_state >> 11U) / 9007199254740992.0;
}

double GrainGenerator::gaussian()
{
    const double first = uniform();
    const double second = uniform();
    const double third = uniform();
    const double fourth = uniform();
    return (first + second + third + fourth - 2) / 0.57735;
}

GrainField::GrainField(int width, int height)
    : m_width(width)
    , m_height(height)
    , m_stride(wholeVectors(width))
    , m_values(hwy::AllocateAligned<float>(static_cast<std::size_t>(m_stride)
          * static_cast<std::size_t>(height) * std::size_t{ kPlanes }))
{
    if (!m_values)
        qBadAlloc();
    m_states.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    GrainGenerator generator;
    for (int y = 0; y < height; ++y) {
        std::array<float *, kPlanes> rows;
        for (int plane = 0; plane < kPlanes; ++plane)
            rows[static_cast<std::size_t>(plane)] = const_cast<float *>(row(plane, y));
        for (int x = 0; x < width; ++x) {
            m_states.push_back(generator.state());
            for (float *values : rows)
                values[x] = static_cast<float>(generator.gaussian());
        }
        for (float *values : rows)
            std::fill(values + width, values + m_stride, 0.0F);
    }
}

const float *GrainField::row(int plane, int y) const
{
    return m_values.get() + (std::ptrdiff_t{ plane } * m_height + y) * std::ptrdiff_t{ m_stride };
}

std::array<double, GrainField::kPlanes> GrainField::exact(int x, int y) const
{
    GrainGenerator generator(
        m_states[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width)
            + static_cast<std::size_t>(x)]);
    std::array<double, kPlanes> values;
    for (double &value : values)
        value = generator.gaussian();
    return values;
}

int withGrain(int byte, double brightness, double color, double sigma)
{
    const double value = std::round(sigma * color * 0.35 + (sigma * brightness + byte));
    return static_cast<int>(std::clamp(value, 0.0, 255.0));
}

} // namespace Simulator
