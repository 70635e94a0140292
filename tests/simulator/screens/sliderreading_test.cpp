#include "simulator/screens/common/nearestbackground.h"
#include "simulator/screens/common/sliderreading.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SliderReading, HasOneDecimalBelowTenAndNoneFromThereOn)
{
    EXPECT_EQ(SliderReading::text(3, u"m"_s), u"3.0 m"_s);
    EXPECT_EQ(SliderReading::text(0, u"m/s"_s), u"0.0 m/s"_s);
    EXPECT_EQ(SliderReading::text(9.94, u"m"_s), u"9.9 m"_s);
    EXPECT_EQ(SliderReading::text(9.96, u"m"_s), u"10.0 m"_s);
    EXPECT_EQ(SliderReading::text(10, u"m"_s), u"10 m"_s);
    EXPECT_EQ(SliderReading::text(30, u"m"_s), u"30 m"_s);
}

TEST(SliderReading, RoundsTiesToTheEvenDigit)
{
    EXPECT_EQ(SliderReading::text(2.25, u"m"_s), u"2.2 m"_s);
    EXPECT_EQ(SliderReading::text(12.5, u"m"_s), u"12 m"_s);
}

TEST(SliderReading, MovesByTheLastDigitThatIsShown)
{
    EXPECT_EQ(SliderReading::moved(3, 1), 3.1);
    EXPECT_EQ(SliderReading::moved(3, -1), 2.9);
    EXPECT_EQ(SliderReading::moved(30, 1), 31);
    EXPECT_EQ(SliderReading::moved(30, -1), 29);
    EXPECT_EQ(SliderReading::moved(3.04, 1), 3.1);
    EXPECT_EQ(SliderReading::moved(30.4, 1), 31);
}

TEST(SliderReading, ChangesItsStepAtTen)
{
    EXPECT_EQ(SliderReading::moved(9.9, 1), 10);
    EXPECT_EQ(SliderReading::moved(9.9, 2), 11);
    EXPECT_EQ(SliderReading::moved(10, -1), 9.9);
    EXPECT_EQ(SliderReading::moved(11, -2), 9.9);
    EXPECT_EQ(SliderReading::moved(5, 10), 6);
}

TEST(NearestBackground, StaysHalfAMeterBehindTheSubjectAndAMeterAway)
{
    EXPECT_EQ(nearestBackground(0.5), 1);
    EXPECT_EQ(nearestBackground(0.4), 1);
    EXPECT_EQ(nearestBackground(0.75), 1.25);
    EXPECT_EQ(nearestBackground(20), 20.5);
}
