#include "simulator/internal/grain.h"
#include "simulator/internal/srgb.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

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
