#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "simulator/internal/develop.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "simulator/internal/develop.h"
#include "simulator/internal/grain.h"
#include "simulator/internal/layer.h"
#include "simulator/internal/parallel.h"
#include "simulator/internal/planes.h"
#include "simulator/internal/srgb.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>

// One row of everything that makes a row of the picture. Pointers begin at column 0.
#ifndef HV_DEVELOP_ROW
#define HV_DEVELOP_ROW
namespace Simulator {
namespace {

struct DevelopRow {
    int y;
    int width;
    std::array<const float *, 3> background;
    std::array<const float *, 4> mover;   // valid from moverBegin to moverEnd
    int moverBegin, moverEnd;             // whole vectors
    std::array<const float *, 4> subject; // the same
    int subjectBegin, subjectEnd;
    float gain;
    double sigma;
    const GrainField *grain;
    uchar *out;
};

} // namespace
} // namespace Simulator
#endif

HWY_BEFORE_NAMESPACE();
namespace Simulator::HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

constexpr hn::CappedTag<float, kWidestVector> kFloats;
constexpr hn::RebindToSigned<decltype(kFloats)> kInts;
using Floats = hn::Vec<decltype(kFloats)>;
using Ints = hn::Vec<decltype(kInts)>;
constexpr int kLanes = static_cast<int>(hn::MaxLanes(kFloats));

// Source over, premultiplied.
HWY_ATTR HWY_INLINE void layOver(
    const std::array<const float *, 4> &layer, int x, Floats &red, Floats &green, Floats &blue)
{
    const Floats rest = hn::Sub(hn::Set(kFloats, 1.0F), hn::Load(kFloats, layer[3] + x));
    red = hn::Add(hn::Load(kFloats, layer[0] + x), hn::Mul(rest, red));
    green = hn::Add(hn::Load(kFloats, layer[1] + x), hn::Mul(rest, green));
    blue = hn::Add(hn::Load(kFloats, layer[2] + x), hn::Mul(rest, blue));
}

// Bytes of linear light, by the table of Srgb::ByteTable; as whole numbers.
HWY_ATTR HWY_INLINE Floats encoded(Floats linear, const std::int32_t *table)
{
    using Table = Srgb::ByteTable;
    const Floats limited
        = hn::Min(hn::Max(linear, hn::Set(kFloats, Table::kLeast)), hn::Set(kFloats, 1.0F));
    const Ints bits = hn::Sub(
        hn::BitCast(kInts, limited), hn::Set(kInts, static_cast<std::int32_t>(Table::kLeastBits)));
    const Ints entry = hn::GatherIndex(kInts, table, hn::ShiftRight<Table::kIntervalShift>(bits));
    const Ints low = hn::And(bits, hn::Set(kInts, (1 << Table::kIntervalShift) - 1));
    const Ints from = hn::And(entry, hn::Set(kInts, (1 << Table::kByteShift) - 1));
    // A comparison that holds is −1 in every lane.
    const Ints more = hn::VecFromMask(kInts, hn::Not(hn::Lt(low, from)));
    return hn::ConvertTo(kFloats, hn::Sub(hn::ShiftRight<Table::kByteShift>(entry), more));
}

// How far single precision may be from the exact value of a grainy byte before its rounding. The
// grain stays within 5 · sigma, in which four roundings count, and one in its sum with a byte; each
// is by 2⁻²⁴ = 6·10⁻⁸ at most.
float uncertainty(double sigma)
{
    return static_cast<float>((256 + 5 * 5 * sigma) * 1e-7);
}

// Adds grain to bytes.
struct Grain {
    const GrainField &field;
    double sigma;
    Floats brightness; // sigma
    Floats color;      // 0.35 · sigma
    Floats doubt;      // 0.5 − uncertainty

    HWY_ATTR Grain(const GrainField &ofPicture, double strength)
        : field(ofPicture)
        , sigma(strength)
        , brightness(hn::Set(kFloats, static_cast<float>(strength)))
        , color(hn::Set(kFloats, static_cast<float>(0.35 * strength)))
        , doubt(hn::Set(kFloats, 0.5F - uncertainty(strength)))
    { }

    // Limited before they are rounded: what is out of range is never in doubt.
    HWY_ATTR HWY_INLINE void add(Floats (&bytes)[3],
        const std::array<const float *, GrainField::kPlanes> &noise, int x, int y, int width) const
    {
        const Floats own = hn::Mul(brightness, hn::Load(kFloats, noise[0] + x));
        Floats grainy[3];
        Floats farthest = hn::Zero(kFloats);
        for (int channel = 0; channel < 3; ++channel) {
            const Floats ownColor = hn::Mul(
                color, hn::Load(kFloats, noise[static_cast<std::size_t>(channel) + 1] + x));
            const Floats value = hn::Min(
                hn::Max(hn::Add(bytes[channel], hn::Add(own, ownColor)), hn::Zero(kFloats)),
                hn::Set(kFloats, 255.0F));
            grainy[channel] = hn::Round(value);
            farthest = hn::Max(farthest, hn::Abs(hn::Sub(value, grainy[channel])));
        }
        const auto doubtful = hn::Gt(farthest, doubt);
        if (!hn::AllFalse(kFloats, doubtful)) {
            const Channels before{ bytes };
            Channels exact{ grainy };
            addExactly(before, doubtful, x, y, width, exact);
            exact.load(grainy);
        }
        for (int channel = 0; channel < 3; ++channel)
            bytes[channel] = grainy[channel];
    }

private:
    // In memory, for the call below. Vectors that it had the address of would never be registers.
    struct Channels {
        HWY_ALIGN float values[3][kLanes];

        HWY_ATTR HWY_INLINE explicit Channels(const Floats (&vectors)[3])
        {
            for (int channel = 0; channel < 3; ++channel)
                hn::Store(vectors[channel], kFloats, values[channel]);
        }

        HWY_ATTR HWY_INLINE void load(Floats (&vectors)[3]) const
        {
            for (int channel = 0; channel < 3; ++channel)
                vectors[channel] = hn::Load(kFloats, values[channel]);
        }
    };

    // Recomputes the doubtful pixels from the bytes without grain.
    HWY_ATTR HWY_NOINLINE void addExactly(const Channels &bytes,
        hn::Mask<decltype(kFloats)> doubtful, int x, int y, int width, Channels &grainy) const
    {
        HWY_ALIGN std::int32_t again[kLanes];
        hn::Store(hn::VecFromMask(kInts, hn::RebindMask(kInts, doubtful)), kInts, again);
        for (int lane = 0; lane < kLanes && x + lane < width; ++lane) {
            if (again[lane] == 0)
                continue;
            const auto values = field.exact(x + lane, y);
            for (int channel = 0; channel < 3; ++channel) {
                grainy.values[channel][lane]
                    = static_cast<float>(withGrain(static_cast<int>(bytes.values[channel][lane]),
                        values[0], values[static_cast<std::size_t>(channel) + 1], sigma));
            }
        }
    }
};

static_assert(std::endian::native == std::endian::little);

// Opaque pixels, red in the lowest byte. A float holds the three bytes exactly as one number.
HWY_ATTR HWY_INLINE Ints packed(const Floats (&bytes)[3])
{
    const Floats upper = hn::MulAdd(bytes[2], hn::Set(kFloats, 256.0F), bytes[1]);
    const Floats color = hn::MulAdd(upper, hn::Set(kFloats, 256.0F), bytes[0]);
    return hn::Or(hn::ConvertTo(kInts, color), hn::Set(kInts, -1 << 24));
}

} // namespace

HWY_ATTR void developRow(const DevelopRow &row)
{
    const std::int32_t *table = Srgb::ByteTable::instance().entries();
    const Floats gain = hn::Set(kFloats, row.gain);
    const bool grainy = row.sigma > 0.01;
    const Grain grain(*row.grain, row.sigma);
    std::array<const float *, GrainField::kPlanes> noise;
    for (int plane = 0; plane < GrainField::kPlanes; ++plane)
        noise[static_cast<std::size_t>(plane)] = row.grain->row(plane, row.y);

    for (int x = 0; x < row.width; x += kLanes) {
        Floats red = hn::Load(kFloats, row.background[0] + x);
        Floats green = hn::Load(kFloats, row.background[1] + x);
        Floats blue = hn::Load(kFloats, row.background[2] + x);
        if (x >= row.moverBegin && x < row.moverEnd)
            layOver(row.mover, x, red, green, blue);
        if (x >= row.subjectBegin && x < row.subjectEnd)
            layOver(row.subject, x, red, green, blue);

        Floats bytes[3] = { encoded(hn::Mul(red, gain), table),
            encoded(hn::Mul(green, gain), table), encoded(hn::Mul(blue, gain), table) };
        if (grainy)
            grain.add(bytes, noise, x, row.y, row.width);

        const Ints pixels = packed(bytes);
        uchar *out = row.out + 4 * std::ptrdiff_t{ x };
        if (x + kLanes <= row.width) {
            hn::StoreU(pixels, kInts, reinterpret_cast<std::int32_t *>(out));
        } else {
            HWY_ALIGN std::int32_t rest[kLanes];
            hn::Store(pixels, kInts, rest);
            std::memcpy(out, rest, static_cast<std::size_t>(4 * (row.width - x)));
        }
    }
}

} // namespace Simulator::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace Simulator {

HWY_EXPORT(developRow);

void develop(const Exposed &layers, double sigma, const GrainField &grain, QImage &picture,
    const Parallel &parallel)
{
    constexpr int kRowsAtOnce = 8;
    const Layer &subject = *layers.subject;
    const QRect subjectArea = subject.bounds();
    uchar *bits = picture.bits(); // here, where it may detach, and not in the threads
    const std::ptrdiff_t bytesPerLine = picture.bytesPerLine();
    const int bands = (picture.height() + kRowsAtOnce - 1) / kRowsAtOnce;
    parallel.run(bands, [&](int band) {
        const int top = band * kRowsAtOnce;
        const int bottom = std::min(top + kRowsAtOnce, picture.height());
        const Planes background = layers.background(top, bottom);
        for (int y = top; y < bottom; ++y) {
            DevelopRow row{};
            row.y = y;
            row.width = picture.width();
            row.gain = std::isnan(layers.gain) ? 1.0F : layers.gain;
            row.sigma = sigma;
            row.grain = &grain;
            row.out = bits + y * bytesPerLine;
            for (int channel = 0; channel < 3; ++channel)
                row.background[static_cast<std::size_t>(channel)] = background.row(channel, y);
            const QRect &mover = layers.moverArea;
            if (!mover.isEmpty() && y >= mover.top() && y <= mover.bottom()) {
                row.moverBegin = mover.left();
                row.moverEnd = wholeVectors(mover.right() + 1);
                for (int channel = 0; channel < 4; ++channel) {
                    row.mover[static_cast<std::size_t>(channel)]
                        = layers.mover.row(channel, y) - layers.mover.left;
                }
            }
            if (subject.litRow(3, y) != nullptr) {
                row.subjectBegin = vectorOf(subjectArea.left());
                row.subjectEnd = wholeVectors(subjectArea.right() + 1);
                for (int channel = 0; channel < 4; ++channel)
                    row.subject[static_cast<std::size_t>(channel)] = subject.row(channel, y);
            }
            HWY_DYNAMIC_DISPATCH(developRow)(row);
        }
    });
}

} // namespace Simulator

#endif
