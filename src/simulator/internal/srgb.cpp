#include "simulator/internal/srgb.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace Simulator {

namespace {

constexpr std::uint32_t kLowBits = (1U << Srgb::ByteTable::kIntervalShift) - 1;

int byteByCurve(float linear)
{
    return static_cast<int>(std::floor(255 * Srgb::encoded(double{ linear }) + 0.5));
}

} // namespace

double Srgb::decoded(double encoded)
{
    return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

double Srgb::encoded(double linear)
{
    return linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

Srgb::ByteTable::ByteTable()
{
    for (std::size_t i = 0; i < kSize; ++i) {
        const std::uint32_t start = kLeastBits + (static_cast<std::uint32_t>(i) << kIntervalShift);
        const int byte = byteByCurve(std::bit_cast<float>(start));
        // The first of the interval's floats that has the next byte, if any has.
        std::uint32_t low = 0;
        std::uint32_t high = kLowBits + 1;
        while (low < high) {
            const std::uint32_t middle = (low + high) / 2;
            if (byteByCurve(std::bit_cast<float>(start + middle)) > byte)
                high = middle;
            else
                low = middle + 1;
        }
        m_entries[i] = (byte << kByteShift) | static_cast<std::int32_t>(low);
    }
}

const Srgb::ByteTable &Srgb::ByteTable::instance()
{
    static const ByteTable table;
    return table;
}

int Srgb::ByteTable::byteOf(float linear) const
{
    if (!(linear >= kLeast))
        return 0;
    const auto bits = std::bit_cast<std::uint32_t>(std::min(linear, 1.0F));
    const std::int32_t entry = m_entries[(bits - kLeastBits) >> kIntervalShift];
    const auto low = static_cast<std::int32_t>(bits & kLowBits);
    return (entry >> kByteShift) + (low >= (entry & ((1 << kByteShift) - 1)) ? 1 : 0);
}

} // namespace Simulator
