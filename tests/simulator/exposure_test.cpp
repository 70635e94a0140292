#include "simulator/exposure.h"

#include "support/qtprinters.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kVeryFar = 1e12; // mm

double fullFrameCoc()
{
    return SensorFormat::fullFrame().coc();
}

bool holds(const std::vector<Exposure::Pair> &pairs, double aperture, double shutter)
{
    return std::ranges::find(pairs, Exposure::Pair{ aperture, shutter }) != pairs.end();
}

} // namespace

TEST(ExposureTables, HoldTheEngravedFNumbers)
{
    const std::vector<double> expected{ 1.0, 1.1, 1.2, 1.4, 1.6, 1.8, 2.0, 2.2, 2.5, 2.8, 3.2, 3.5,
        4.0, 4.5, 5.0, 5.6, 6.3, 7.1, 8.0, 9.0, 10.0, 11.0, 13.0, 14.0, 16.0, 18.0, 20.0, 22.0,
        25.0, 29.0, 32.0 };
    EXPECT_EQ(std::vector(Exposure::apertures.begin(), Exposure::apertures.end()), expected);
    EXPECT_EQ(expected.size(), 31U);
}

TEST(ExposureTables, HoldTheWholeStops)
{
    const std::vector<double> expected{ 1, 1.4, 2, 2.8, 4, 5.6, 8, 11, 16, 22, 32 };
    EXPECT_EQ(std::vector(Exposure::fullStopApertures.begin(), Exposure::fullStopApertures.end()),
        expected);
}

TEST(ExposureTables, HoldFiftyFiveTimesAsTheNearestDoubles)
{
    ASSERT_EQ(Exposure::shutterSeconds.size(), 55U);
    const std::vector<double> decimals{ 30, 25, 20, 15, 13, 10, 8, 6, 5, 4, 3.2, 2.5, 2, 1.6, 1.3,
        1, 0.8, 0.6, 0.5, 0.4, 0.3 };
    const std::vector<int> fractions{ 4, 5, 6, 8, 10, 13, 15, 20, 25, 30, 40, 50, 60, 80, 100, 125,
        160, 200, 250, 320, 400, 500, 640, 800, 1000, 1250, 1600, 2000, 2500, 3200, 4000, 5000,
        6400, 8000 };
    ASSERT_EQ(decimals.size() + fractions.size(), Exposure::shutterSeconds.size());
    for (std::size_t i = 0; i < decimals.size(); ++i)
        EXPECT_EQ(Exposure::shutterSeconds[i], decimals[i]);
    for (std::size_t i = 0; i < fractions.size(); ++i)
        EXPECT_EQ(Exposure::shutterSeconds[decimals.size() + i], 1.0 / fractions[i]);
    for (const double exact : { 0.008, 0.004, 1.0 / 60 })
        EXPECT_NE(
            std::ranges::find(Exposure::shutterSeconds, exact), Exposure::shutterSeconds.end());
}

TEST(ExposureTables, HoldTheSameTimesAsShutters)
{
    ASSERT_EQ(Exposure::shutters.size(), Exposure::shutterSeconds.size());
    for (std::size_t i = 0; i < Exposure::shutters.size(); ++i)
        EXPECT_EQ(Exposure::shutters[i], Shutter{ Exposure::shutterSeconds[i] });
}

TEST(ExposureTables, HoldThirtyIsosThinningOutAtTheTop)
{
    const std::vector<double> expected{ 50, 64, 80, 100, 125, 160, 200, 250, 320, 400, 500, 640,
        800, 1000, 1250, 1600, 2000, 2500, 3200, 4000, 5000, 6400, 8000, 10000, 12800, 16000, 20000,
        25600, 51200, 102400 };
    EXPECT_EQ(std::vector(Exposure::isos.begin(), Exposure::isos.end()), expected);
    EXPECT_EQ(expected.size(), 30U);
}

TEST(Ev, IsZeroForAHoleOfOneAndASecond)
{
    EXPECT_EQ(Exposure::ev({ 1, 1 }), 0);
}

TEST(Ev, CountsHoleAndTime)
{
    EXPECT_NEAR(Exposure::ev({ 16, 1.0 / 125 }), 14.966, 0.001);
    EXPECT_NEAR(Exposure::ev({ 2.8, 1.0 / 60 }), 8.877, 0.001);
    EXPECT_EQ(Exposure::ev({ 2, 1 }) - Exposure::ev({ 1, 1 }), 2);
    EXPECT_EQ(Exposure::ev({ 4, 0.25 }) - Exposure::ev({ 4, 0.5 }), 1);
}

TEST(Ev100, TakesTheIsoOff)
{
    EXPECT_NEAR(Exposure::ev100({ 8, 1.0 / 125, 400 }), 10.966, 0.001);
    EXPECT_EQ(Exposure::ev100({ 8, 0.5, 100 }), Exposure::ev({ 8, 0.5 }));
}

TEST(Offset, IsPositiveForTooMuchLight)
{
    EXPECT_NEAR(Exposure::offset(15, { 2.8, 0.008, 100 }), 5.06, 0.01);
    EXPECT_LT(Exposure::offset(8, { 4, 0.008, 400 }), 0);
}

TEST(Stops, AreTwoPerDoublingOfTheFNumber)
{
    EXPECT_EQ(Exposure::stops(1.4, 5.6), 4);
    EXPECT_NEAR(Exposure::stops(1.8, 5.6), 3.28, 0.01);
    EXPECT_NEAR(Exposure::stops(1.4, 1.8), 0.73, 0.01);
    EXPECT_NEAR(Exposure::stops(1.4, 1.5), 0.2, 0.01);
    EXPECT_EQ(Exposure::stops(5.6, 1.4), -4);
}

TEST(LightRatio, IsTheSquareOfTheFNumbers)
{
    EXPECT_NEAR(Exposure::lightRatio(1.4, 5.6), 16, 1e-12);
    EXPECT_EQ(Exposure::lightRatio(4, 4), 1);
    EXPECT_EQ(Exposure::lightRatio(4, 2), 0.25);
}

TEST(ShutterFor, MakesTheOffsetZero)
{
    for (const double ev : { -3.0, 4.0, 8.0, 16.0 }) {
        for (const double iso : { 50.0, 400.0, 102400.0 }) {
            const double time = Exposure::shutterFor(ev, 2.8, iso);
            EXPECT_NEAR(Exposure::offset(ev, { 2.8, time, iso }), 0, 1e-12);
        }
    }
}

TEST(NearestShutter, KnowsTheRuleOfSixteenInFullSun)
{
    EXPECT_EQ(Exposure::nearestShutter(Exposure::shutterFor(15, 16, 100)), 0.008);
}

TEST(NearestShutter, CountsInStops)
{
    // Between 2 s and 2.5 s the middle in stops is 2.236 s, the arithmetic one 2.25 s.
    EXPECT_EQ(Exposure::nearestShutter(2.24), 2.5);
    EXPECT_EQ(Exposure::nearestShutter(2.23), 2);
}

TEST(NearestShutter, KeepsTheLongerTimeOfATie)
{
    EXPECT_EQ(Exposure::nearestShutter(std::sqrt(1.0 * 4) / std::sqrt(1.0)), 2);
    const std::vector<double> scale{ 4, 1 };
    EXPECT_EQ(Exposure::nearestIndex(scale, 2), 0U); // a stop from either
    const std::vector<double> turned{ 1, 4 };
    EXPECT_EQ(Exposure::nearestIndex(turned, 2), 0U);
}

TEST(NearestShutter, StaysWithinTheScale)
{
    EXPECT_EQ(Exposure::nearestShutter(1000), 30);
    EXPECT_EQ(Exposure::nearestShutter(1e-9), 1.0 / 8000);
}

TEST(NearestShutter, IsTheFirstForWhatIsNoTime)
{
    for (const double time : { 0.0, -1.0, kNaN, kInfinity })
        EXPECT_EQ(Exposure::nearestShutter(time), 30) << time;
}

TEST(NearestAperture, IsTheWidestForWhatIsNoFNumber)
{
    for (const double aperture : { 0.0, -1.0, kNaN, kInfinity })
        EXPECT_EQ(Exposure::nearestAperture(aperture), 1) << aperture;
    EXPECT_EQ(Exposure::nearestAperture(26.9), 25);
    EXPECT_EQ(Exposure::nearestAperture(5.61), 5.6);
}

TEST(NearestIndex, IsZeroInAScaleOfFewerThanTwo)
{
    EXPECT_EQ(Exposure::nearestIndex({}, 5), 0U);
    const std::vector<double> one{ 8 };
    EXPECT_EQ(Exposure::nearestIndex(one, 5), 0U);
}

TEST(Equivalents, ListTheWholeStopsOfTheSameLight)
{
    const std::vector<Exposure::Pair> expected{ { 1, 1.0 / 8000 }, { 1.4, 1.0 / 4000 },
        { 2, 1.0 / 2000 }, { 2.8, 1.0 / 1000 }, { 4, 1.0 / 500 }, { 5.6, 1.0 / 250 },
        { 8, 1.0 / 125 }, { 11, 1.0 / 60 }, { 16, 1.0 / 30 }, { 22, 1.0 / 15 }, { 32, 1.0 / 8 } };
    EXPECT_EQ(Exposure::equivalents({ 8, 0.008 }), expected);
}

TEST(Equivalents, StayWithinAFifthOfAStop)
{
    for (const auto &pair : Exposure::equivalents({ 8, 0.008 }))
        EXPECT_LT(std::abs(Exposure::ev(pair) - Exposure::ev({ 8, 0.008 })), 0.2);
}

TEST(Equivalents, EndAtTheScalesEnds)
{
    const std::vector<double> one{ 1 };
    EXPECT_TRUE(holds(Exposure::equivalents({ 1, 30.5 }, one), 1, 30));
    EXPECT_TRUE(Exposure::equivalents({ 1, 30.6 }, one).empty());
    EXPECT_TRUE(holds(Exposure::equivalents({ 1, 0.0001126 }, one), 1, 1.0 / 8000));
    EXPECT_TRUE(Exposure::equivalents({ 1, 0.000112 }, one).empty());
}

TEST(Equivalents, AreNoneOfNothing)
{
    EXPECT_TRUE(Exposure::equivalents({ 8, 0.008 }, {}).empty());
    EXPECT_TRUE(Exposure::equivalents({ kNaN, 0.008 }).empty());
}

TEST(Hyperfocal, OfAWideLensIsNear)
{
    EXPECT_NEAR(Exposure::hyperfocal({ 24, 11 }, fullFrameCoc()), 1839, 1);
}

TEST(DepthOfField, ReachesAroundAPersonAtThreeMeters)
{
    const auto sharp = Exposure::depthOfField({ 50, 8 }, fullFrameCoc(), 3000);
    EXPECT_NEAR(sharp.near, 2358, 1);
    EXPECT_NEAR(sharp.far, 4123, 1);
}

TEST(DepthOfField, ReachesInfinityExactlyAtTheHyperfocalDistance)
{
    const Exposure::Lens lens{ 24, 11 };
    const double h = Exposure::hyperfocal(lens, fullFrameCoc());
    EXPECT_TRUE(std::isinf(Exposure::depthOfField(lens, fullFrameCoc(), h).far));
    EXPECT_TRUE(std::isinf(Exposure::depthOfField(lens, fullFrameCoc(), 2000).far));
    EXPECT_TRUE(std::isfinite(Exposure::depthOfField(lens, fullFrameCoc(), h - 1).far));
}

TEST(BlurDisc, OfAPortraitLensAgainstADistantTown)
{
    const double wide = Exposure::blurDisc({ 85, 1.4 }, 2000, kVeryFar);
    EXPECT_NEAR(wide, 2.695, 0.001);
    EXPECT_NEAR(wide, 4 * Exposure::blurDisc({ 85, 5.6 }, 2000, kVeryFar), 1e-12);
}

TEST(BlurDisc, IsNoneInThePlaneOfFocus)
{
    EXPECT_EQ(Exposure::blurDisc({ 50, 2 }, 3000, 3000), 0);
    EXPECT_GT(Exposure::blurDisc({ 50, 2 }, 3000, 2000), 0);
}

TEST(BlurDisc, IsNoneWhereTheLensCannotFocus)
{
    EXPECT_EQ(Exposure::blurDisc({ 50, 2 }, 50, 3000), 0);
    EXPECT_EQ(Exposure::blurDisc({ 50, 2 }, 40, 3000), 0);
    EXPECT_EQ(Exposure::blurDisc({ 50, 2 }, 3000, 0), 0);
    EXPECT_EQ(Exposure::blurDisc({ 50, 2 }, 3000, -1), 0);
    EXPECT_EQ(Exposure::blurDisc({ kNaN, 2 }, 3000, 5000), 0);
    EXPECT_EQ(Exposure::blurDisc({ 50, 2 }, 3000, kNaN), 0);
}

TEST(AngleOfView, OfANormalLens)
{
    EXPECT_NEAR(Exposure::angleOfView(50, 36), 39.6, 0.01);
    EXPECT_NEAR(Exposure::angleOfView(50, 24), 26.99, 0.01);
    EXPECT_NEAR(Exposure::angleOfView(18, 36), 90, 1e-12);
}

TEST(MotionStreak, IsTheImagesWayWhileTheShutterIsOpen)
{
    EXPECT_NEAR(Exposure::motionStreak(50, { 5, 8 }, 0.008), 0.25, 1e-12);
    EXPECT_EQ(Exposure::motionStreak(50, { 0, 8 }, 0.008), 0);
    EXPECT_EQ(Exposure::motionStreak(50, { 5, 0 }, 0.008), 0);
    EXPECT_EQ(Exposure::motionStreak(50, { 5, -1 }, 0.008), 0);
    EXPECT_EQ(Exposure::motionStreak(50, { 5, kNaN }, 0.008), 0);
}

TEST(SlowestHandheld, FollowsTheCrop)
{
    EXPECT_NEAR(Exposure::slowestHandheld(50, SensorFormat::apsc()), 0.01304, 0.00001);
    EXPECT_EQ(
        Exposure::nearestShutter(Exposure::slowestHandheld(50, SensorFormat::apsc())), 1.0 / 80);
    EXPECT_NEAR(Exposure::slowestHandheld(50, SensorFormat::fullFrame()), 0.02, 1e-8);
}

TEST(FLabel, HasADecimalOnlyWhereTheNumberHas)
{
    EXPECT_EQ(Exposure::fLabel(8), u"f/8"_s);
    EXPECT_EQ(Exposure::fLabel(16.0), u"f/16"_s);
    EXPECT_EQ(Exposure::fLabel(1.4), u"f/1.4"_s);
    EXPECT_EQ(Exposure::fLabel(1), u"f/1"_s);
    EXPECT_EQ(Exposure::fLabel(2.83), u"f/2.8"_s);
    EXPECT_EQ(Exposure::fLabel(2.25), u"f/2.2"_s);
}

TEST(FormatDistance, LosesDecimalsWithDistance)
{
    EXPECT_EQ(Exposure::formatDistance(2358.4), u"2.36 m"_s);
    EXPECT_EQ(Exposure::formatDistance(9999), u"10.00 m"_s);
    EXPECT_EQ(Exposure::formatDistance(10000), u"10.0 m"_s);
    EXPECT_EQ(Exposure::formatDistance(99990), u"100.0 m"_s);
    EXPECT_EQ(Exposure::formatDistance(100000), u"100 m"_s);
    EXPECT_EQ(Exposure::formatDistance(kInfinity), u"infinity"_s);
    EXPECT_EQ(Exposure::formatDistance(-kInfinity), u"infinity"_s);
    EXPECT_EQ(Exposure::formatDistance(0), u"0.00 m"_s);
}

TEST(FormatDistance, RoundsTiesToTheEvenDigit)
{
    EXPECT_EQ(Exposure::formatDistance(125), u"0.12 m"_s);
    EXPECT_EQ(Exposure::formatDistance(375), u"0.38 m"_s);
    EXPECT_EQ(Exposure::formatDistance(12250), u"12.2 m"_s);
    EXPECT_EQ(Exposure::formatDistance(102500), u"102 m"_s);
}

TEST(FormatStops, HasASignAndAPlural)
{
    EXPECT_EQ(Exposure::formatStops(1), u"+1.0 stop"_s);
    EXPECT_EQ(Exposure::formatStops(-1), u"−1.0 stop"_s);
    EXPECT_EQ(Exposure::formatStops(-2.34), u"−2.3 stops"_s);
    EXPECT_EQ(Exposure::formatStops(5), u"+5.0 stops"_s);
    EXPECT_EQ(Exposure::formatStops(0.96), u"+1.0 stop"_s);
}

TEST(FormatStops, HasNoSignForWhatRoundsToZero)
{
    EXPECT_EQ(Exposure::formatStops(0.04), u"0 stops"_s);
    EXPECT_EQ(Exposure::formatStops(-0.04), u"0 stops"_s);
    EXPECT_EQ(Exposure::formatStops(0), u"0 stops"_s);
}

TEST(FormatStops, RoundsHalvesAwayFromZero)
{
    EXPECT_EQ(Exposure::formatStops(0.25), u"+0.3 stops"_s);
    EXPECT_EQ(Exposure::formatStops(-0.25), u"−0.3 stops"_s);
    EXPECT_EQ(Exposure::formatStops(0.05), u"+0.1 stops"_s);
}
