// The sRGB transfer curve, both ways.
// Source: IEC 61966-2-1:1999.
#pragma once

#include <array>
#include <cstdint>

namespace Simulator {

namespace Srgb {

/// Linear light of an encoded value; both from 0 to 1.
[[nodiscard]] double decoded(double encoded);

/// The encoded value of linear light; both from 0 to 1.
[[nodiscard]] double encoded(double linear);

/// Encoding to a byte, floor(255 · encoded(v) + 0.5) for a float v from 0 to 1, by one look-up.
///
/// A float's upper 16 bits, sign, exponent and the first seven of the mantissa, pick an entry. In
/// so short an interval the byte changes at most once (the curve rises by 112 · v^(1/2.4) bytes for
/// a relative step of 1, and the interval is 1/128). An entry holds the byte at the interval's
/// start, shifted by kByteShift, and below it the lower 16 bits from which on the byte is one
/// more. Below kLeast the byte is 0.
class ByteTable
{
public:
    static constexpr int kIntervalShift = 16;
    static constexpr int kByteShift = 17;
    static constexpr std::uint32_t kLeastBits = 0x39000000; // 2⁻¹³
    static constexpr float kLeast = 1.0F / 8192;
    static constexpr std::uint32_t kOneBits = 0x3F800000;
    static constexpr std::size_t kSize = ((kOneBits - kLeastBits) >> kIntervalShift) + 1;

    [[nodiscard]] static const ByteTable &instance();

    [[nodiscard]] const std::int32_t *entries() const { return m_entries.data(); }

    /// The byte of one value; NaN gives 0.
    [[nodiscard]] int byteOf(float linear) const;

private:
    ByteTable();

    std::array<std::int32_t, kSize> m_entries;
};

} // namespace Srgb

} // namespace Simulator
