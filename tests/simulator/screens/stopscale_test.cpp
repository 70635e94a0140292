#include "simulator/screens/common/stopscale.h"

#include "simulator/exposure.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

TEST(StopScale, HoldsTheStopsOfTheExposureTables)
{
    EXPECT_TRUE(std::ranges::equal(StopScales::aperture().stops(), Exposure::apertures));
    EXPECT_TRUE(std::ranges::equal(StopScales::shutter().stops(), Exposure::shutterSeconds));
    EXPECT_TRUE(std::ranges::equal(StopScales::iso().stops(), Exposure::isos));
    EXPECT_EQ(StopScales::focalLength().stops(),
        (QList<double>{ 14, 16, 20, 24, 28, 35, 50, 70, 85, 100, 135, 200, 300, 400, 600 }));
}

TEST(StopScale, WritesStopsAsACameraDoes)
{
    EXPECT_EQ(StopScales::aperture().label(4), u"f/4"_s);
    EXPECT_EQ(StopScales::aperture().label(1.4), u"f/1.4"_s);
    EXPECT_EQ(StopScales::shutter().label(1.0 / 125), u"1/125"_s);
    EXPECT_EQ(StopScales::shutter().label(30), u"30\""_s);
    EXPECT_EQ(StopScales::iso().label(102400), u"102400"_s);
    EXPECT_EQ(StopScales::focalLength().label(50), u"50mm"_s);
}

TEST(StopScale, StandsAtTheNearestStop)
{
    const StopScale &shutter = StopScales::shutter();
    EXPECT_EQ(shutter.label(1.0 / 130), u"1/125"_s);
    EXPECT_EQ(shutter.label(100), u"30\""_s);
    EXPECT_EQ(shutter.label(1e-6), u"1/8000"_s);
    EXPECT_EQ(shutter.nearest(1.0 / 125), 36);
}

TEST(StopScale, KeepsTheEarlierStopInATie)
{
    const StopScale scale({ 1, 4 }, Exposure::fLabel);
    EXPECT_EQ(scale.nearest(2), 0);
    EXPECT_EQ(scale.nearest(2.001), 1);
}

TEST(StopScale, GoesPlaceByPlaceAndNoFurtherThanItsEnds)
{
    const StopScale &aperture = StopScales::aperture();
    EXPECT_EQ(aperture.moved(4, 1), 4.5);
    EXPECT_EQ(aperture.moved(4, -1), 3.5);
    EXPECT_EQ(aperture.moved(4, 100), 32);
    EXPECT_EQ(aperture.moved(32, 1), 32);
    EXPECT_EQ(aperture.moved(1, -1), 1);
}

TEST(StopScale, GoesFromTheNearestStopWhenTheValueLiesBetweenTwo)
{
    EXPECT_EQ(StopScales::aperture().moved(4.1, 0), 4);
    EXPECT_EQ(StopScales::aperture().moved(4.1, 1), 4.5);
}

TEST(StopScale, GoesToShorterTimesUpTheShutterScale)
{
    EXPECT_EQ(StopScales::shutter().moved(1.0 / 125, 1), 1.0 / 160);
    EXPECT_EQ(StopScales::shutter().moved(1.0 / 125, -1), 1.0 / 100);
    EXPECT_EQ(StopScales::shutter().moved(1.0 / 8000, 1), 1.0 / 8000);
    EXPECT_EQ(StopScales::shutter().moved(30, -1), 30);
}

TEST(StopScale, HasOnePlaceOrNoneInAShortList)
{
    const StopScale one({ 5.6 }, Exposure::fLabel);
    EXPECT_EQ(one.nearest(2), 0);
    EXPECT_EQ(one.moved(2, 1), 5.6);
    const StopScale none;
    EXPECT_EQ(none.nearest(2), 0);
    EXPECT_EQ(none.label(2), QString());
    EXPECT_EQ(none.moved(2, 1), 2);
}
