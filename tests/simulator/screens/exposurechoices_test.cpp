#include "simulator/screens/exposure/exposurechoices.h"

#include "simulator/exposure.h"
#include "support/qtprinters.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace ExposureChoices;

namespace {

SimSettings in(const QString &light)
{
    SimSettings settings;
    settings.sceneEV = LightLevel::named(light).ev;
    return settings;
}

} // namespace

TEST(AperturePriority, SetsTheShutterAndNothingElse)
{
    SimSettings expected;
    expected.shutter = 1.0 / 60;
    EXPECT_EQ(withMeteredShutter({}), expected);
    EXPECT_LT(std::abs(withMeteredShutter({}).offset()), 0.34);
}

TEST(AperturePriority, EndsWithTheScaleInFullSun)
{
    SimSettings settings = in(u"sun"_s);
    settings.aperture = 1;
    settings.iso = 102400;
    const SimSettings metered = withMeteredShutter(settings);
    EXPECT_EQ(metered.shutter, 1.0 / 8000);
    EXPECT_GT(metered.offset(), 3);
}

TEST(AperturePriority, EndsWithTheScaleInMoonlight)
{
    SimSettings settings = in(u"moon"_s);
    settings.aperture = 32;
    settings.iso = 50;
    EXPECT_EQ(withMeteredShutter(settings).shutter, 30);
}

TEST(ShutterPriority, SetsTheApertureAndNothingElse)
{
    SimSettings expected;
    expected.aperture = 2.8;
    EXPECT_EQ(withMeteredAperture({}), expected);
}

TEST(ShutterPriority, GivesTheWidestApertureInASceneTooDark)
{
    const SimSettings metered = withMeteredAperture(in(u"moon"_s));
    EXPECT_EQ(metered.aperture, 1);
    EXPECT_LT(metered.offset(), -3);
}

TEST(ShutterPriority, GivesTheSmallestApertureInASceneTooBright)
{
    SimSettings settings = in(u"snow"_s);
    settings.shutter = 1;
    EXPECT_EQ(withMeteredAperture(settings).aperture, 32);
}

TEST(LightOfSettings, IsTheFirstLevelWithTheirBrightness)
{
    EXPECT_EQ(lightID({}, u"sun"_s), u"office"_s);
    for (const LightLevel &level : LightLevel::all())
        EXPECT_EQ(lightID(in(level.id), u"none"_s), level.id);
}

TEST(LightOfSettings, StaysWhereNoLevelHasTheirBrightness)
{
    SimSettings settings;
    settings.sceneEV = 7.5;
    EXPECT_EQ(lightID(settings, u"office"_s), u"office"_s);
}
