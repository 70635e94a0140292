#include "simulator/internal/develop.h"
#include "simulator/internal/grain.h"
#include "simulator/internal/layer.h"
#include "simulator/internal/parallel.h"
#include "simulator/internal/planes.h"
#include "simulator/internal/srgb.h"

#include <gtest/gtest.h>

#include <hwy/aligned_allocator.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

using namespace Simulator;

TEST(Srgb, EncodesWhatItDecodes)
{
    for (int i = 0; i <= 255; ++i)
        EXPECT_NEAR(Srgb::encoded(Srgb::decoded(i / 255.0)), i / 255.0, 1e-7);
    EXPECT_EQ(Srgb::decoded(0), 0);
    EXPECT_NEAR(Srgb::decoded(1), 1, 1e-15);
    EXPECT_NEAR(Srgb::encoded(0.18), 0.4613, 0.0001);
}

TEST(SrgbByteTable, RoundsTheCurveToBytes)
{
    const auto &table = Srgb::ByteTable::instance();
    const auto byCurve = [](float v) {
        return static_cast<int>(std::floor(255 * Srgb::encoded(double{ v }) + 0.5));
    };
    for (int i = 0; i <= 1'000'000; ++i) {
        const float v = static_cast<float>(i) / 1'000'000;
        ASSERT_EQ(table.byteOf(v), byCurve(v)) << v;
    }
}

TEST(SrgbByteTable, ChangesAtTheVeryFloat)
{
    const auto &table = Srgb::ByteTable::instance();
    for (int byte = 1; byte <= 255; ++byte) {
        // The first float that has this byte, by halving.
        float low = 0;
        float high = 1;
        while (std::nextafter(low, 1.0F) < high) {
            const float middle = (low + high) / 2;
            if (std::floor(255 * Srgb::encoded(double{ middle }) + 0.5) >= byte)
                high = middle;
            else
                low = middle;
        }
        EXPECT_EQ(table.byteOf(high), byte);
        EXPECT_EQ(table.byteOf(low), byte - 1);
    }
}

TEST(SrgbByteTable, LimitsWhatIsOutOfRange)
{
    const auto &table = Srgb::ByteTable::instance();
    EXPECT_EQ(table.byteOf(-1), 0);
    EXPECT_EQ(table.byteOf(0), 0);
    EXPECT_EQ(table.byteOf(1e-30F), 0);
    EXPECT_EQ(table.byteOf(1), 255);
    EXPECT_EQ(table.byteOf(1e30F), 255);
    EXPECT_EQ(table.byteOf(std::numeric_limits<float>::quiet_NaN()), 0);
}

TEST(GrainGenerator, StaysWithinItsRangeWithUnitDeviation)
{
    GrainGenerator generator;
    double sum = 0;
    double squares = 0;
    constexpr int count = 200'000;
    for (int i = 0; i < count; ++i) {
        const double value = generator.gaussian();
        ASSERT_LE(std::abs(value), 3.4642);
        sum += value;
        squares += value * value;
    }
    EXPECT_NEAR(sum / count, 0, 0.01);
    EXPECT_NEAR(std::sqrt(squares / count), 1, 0.01);
}

TEST(GrainField, HoldsTheGeneratorsNumbersPixelByPixel)
{
    const GrainField field(21, 5);
    GrainGenerator generator;
    for (int y = 0; y < 5; ++y) {
        for (int x = 0; x < 21; ++x) {
            const auto exact = field.exact(x, y);
            for (int plane = 0; plane < GrainField::kPlanes; ++plane) {
                const double expected = generator.gaussian();
                EXPECT_EQ(exact[static_cast<std::size_t>(plane)], expected);
                EXPECT_EQ(field.row(plane, y)[x], static_cast<float>(expected));
            }
        }
    }
}

TEST(WithGrain, RoundsHalvesAwayFromZeroAndStaysAByte)
{
    EXPECT_EQ(withGrain(100, 0, 0, 3), 100);
    EXPECT_EQ(withGrain(100, 0.5, 0, 1), 101);
    EXPECT_EQ(withGrain(100, -0.5, 0, 1), 100);
    EXPECT_EQ(withGrain(0, -3, -3, 50), 0);
    EXPECT_EQ(withGrain(255, 3, 3, 50), 255);
    EXPECT_EQ(withGrain(10, 0, 2, 10), 17);
}

TEST(Develop, EncodesEveryLightAsTheTableDoes)
{
    // All that isn't black, in short steps, in a picture whose rows end within a vector.
    constexpr int kWidth = 1021;
    constexpr int kHeight = 513;
    constexpr std::uint32_t kFirst = 0x38800000; // 2⁻¹⁴
    constexpr std::uint32_t kEnd = 0x3F800010;   // a little beyond 1
    constexpr std::uint32_t kStep = (kEnd - kFirst) / (3 * kWidth * kHeight) + 1;
    constexpr int kStride = wholeVectors(kWidth);
    constexpr std::ptrdiff_t kPlane = std::ptrdiff_t{ kStride } * kHeight;
    const auto light = hwy::AllocateAligned<float>(3 * kPlane);
    ASSERT_TRUE(light);
    std::fill_n(light.get(), 3 * kPlane, -1.0F);
    const Planes background{ light.get(), kStride, kPlane, 0, 0 };
    std::uint32_t bits = kFirst;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            for (int channel = 0; channel < 3; ++channel, bits += kStep)
                background.row(channel, y)[x] = std::bit_cast<float>(std::min(bits, kEnd));
        }
    }

    QImage nothing(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    nothing.fill(Qt::transparent);
    const Layer subject(nothing, 4);
    const GrainField grain(kWidth, kHeight);
    QImage picture(kWidth, kHeight, QImage::Format_RGBA8888_Premultiplied);
    develop({ .background = [&](int, int) { return background; },
                .mover = {},
                .moverArea = {},
                .subject = &subject,
                .gain = 1 },
        0, grain, picture, Parallel(1));
    const auto &table = Srgb::ByteTable::instance();
    for (int y = 0; y < kHeight; ++y) {
        const uchar *row = picture.constScanLine(y);
        for (int x = 0; x < kWidth; ++x) {
            for (int channel = 0; channel < 3; ++channel) {
                const float value = background.row(channel, y)[x];
                ASSERT_EQ(row[4 * x + channel], table.byteOf(value)) << value;
            }
            ASSERT_EQ(row[4 * x + 3], 255);
        }
    }
}
