#include "simulator/screens/exposure/meterreading.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(MeterReading, IsCorrectWithinAThirdOfAStop)
{
    EXPECT_EQ(meterReading(0), MeterReading::Correct);
    EXPECT_EQ(meterReading(0.339), MeterReading::Correct);
    EXPECT_EQ(meterReading(-0.339), MeterReading::Correct);
    EXPECT_EQ(meterReading(0.34), MeterReading::Off);
    EXPECT_EQ(meterReading(-0.34), MeterReading::Off);
}

TEST(MeterReading, IsOnTheScaleUpToThreeStops)
{
    EXPECT_EQ(meterReading(3), MeterReading::Off);
    EXPECT_EQ(meterReading(-3), MeterReading::Off);
    EXPECT_EQ(meterReading(3.001), MeterReading::BeyondTheScale);
    EXPECT_EQ(meterReading(-3.001), MeterReading::BeyondTheScale);
}

TEST(MeterDeflection, EndsWithTheScale)
{
    EXPECT_EQ(meterDeflection(0), 0);
    EXPECT_EQ(meterDeflection(1.5), 0.5);
    EXPECT_EQ(meterDeflection(3), 1);
    EXPECT_EQ(meterDeflection(5), 1);
    EXPECT_EQ(meterDeflection(-HUGE_VAL), -1);
    EXPECT_EQ(meterDeflection(std::nan("")), 0);
}
