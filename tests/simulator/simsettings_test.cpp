#include "simulator/simsettings.h"

#include "support/qtprinters.h"

#include <QList>

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

void PrintTo(const SensorFormat &format, std::ostream *out)
{
    *out << qPrintable(format.id) << ' ' << format.width << " x " << format.height;
}

namespace {

template <typename T>
bool differs(T SimSettings::*field, const T &value)
{
    SimSettings changed;
    changed.*field = value;
    return !(changed == SimSettings()) && changed != SimSettings();
}

template <typename T>
bool differs(T SensorFormat::*field, const T &value)
{
    SensorFormat changed = SensorFormat::fullFrame();
    changed.*field = value;
    return !(changed == SensorFormat::fullFrame()) && changed != SensorFormat::fullFrame();
}

} // namespace

TEST(SimSettings, StartAtTheFirstLightOfTheLab)
{
    const SimSettings settings;
    EXPECT_EQ(settings.aperture, 4.0);
    EXPECT_EQ(settings.shutter, 1.0 / 125);
    EXPECT_EQ(settings.iso, 400);
    EXPECT_EQ(settings.focal, 50);
    EXPECT_EQ(settings.format, SensorFormat::fullFrame());
    EXPECT_EQ(settings.sceneEV, 8.0);
    EXPECT_EQ(settings.subjectDistance, 3.0);
    EXPECT_EQ(settings.backgroundDistance, 30.0);
    EXPECT_EQ(settings.moverDistance, 8.0);
    EXPECT_EQ(settings.moverSpeed, 5.0);
}

TEST(SimSettings, AreFilledInTheOrderOfTheirFields)
{
    const SimSettings settings{ 2.8, 0.25, 1600, 85, SensorFormat::named(u"apsc"), 5, 2, 20, 6, 4 };
    EXPECT_EQ(settings.aperture, 2.8);
    EXPECT_EQ(settings.shutter, 0.25);
    EXPECT_EQ(settings.iso, 1600);
    EXPECT_EQ(settings.focal, 85);
    EXPECT_EQ(settings.format.id, u"apsc"_s);
    EXPECT_EQ(settings.sceneEV, 5);
    EXPECT_EQ(settings.subjectDistance, 2);
    EXPECT_EQ(settings.backgroundDistance, 20);
    EXPECT_EQ(settings.moverDistance, 6);
    EXPECT_EQ(settings.moverSpeed, 4);
}

TEST(SimSettings, AreEqualWhenEveryFieldIs)
{
    SimSettings one;
    one.iso = 3200;
    one.format = SensorFormat::named(u"mft");
    const SimSettings other = one;
    EXPECT_EQ(one, other);
    EXPECT_EQ(SimSettings(), SimSettings());
}

TEST(SimSettings, DifferWhenAnyOneFieldDoes)
{
    EXPECT_TRUE(differs(&SimSettings::aperture, 4.5));
    EXPECT_TRUE(differs(&SimSettings::shutter, 1.0 / 160));
    EXPECT_TRUE(differs(&SimSettings::iso, 500.0));
    EXPECT_TRUE(differs(&SimSettings::focal, 55.0));
    EXPECT_TRUE(differs(&SimSettings::format, SensorFormat::named(u"mf")));
    EXPECT_TRUE(differs(&SimSettings::sceneEV, 9.0));
    EXPECT_TRUE(differs(&SimSettings::subjectDistance, 3.1));
    EXPECT_TRUE(differs(&SimSettings::backgroundDistance, 31.0));
    EXPECT_TRUE(differs(&SimSettings::moverDistance, 8.5));
    EXPECT_TRUE(differs(&SimSettings::moverSpeed, 0.0));
}

TEST(SimSettings, DifferByASingleStepOfADouble)
{
    EXPECT_TRUE(differs(&SimSettings::aperture, std::nextafter(4.0, 5.0)));
}

TEST(SensorFormat, StandsInATableFromFullFrameToRollFilm)
{
    const QList<SensorFormat> expected = {
        { u"ff"_s, u"Full frame (36 × 24 mm)"_s, 36, 24 },
        { u"apsc"_s, u"APS-C (23.5 × 15.6 mm)"_s, 23.5, 15.6 },
        { u"mft"_s, u"Micro Four Thirds (17.3 × 13 mm)"_s, 17.3, 13 },
        { u"1in"_s, u"1-inch type (13.2 × 8.8 mm)"_s, 13.2, 8.8 },
        { u"mf"_s, u"Medium format digital (44 × 33 mm)"_s, 44, 33 },
        { u"66"_s, u"120 film, 6 × 6 (56 × 56 mm)"_s, 56, 56 },
    };
    EXPECT_EQ(
        QList<SensorFormat>(SensorFormat::all().begin(), SensorFormat::all().end()), expected);
}

TEST(SensorFormat, IsFoundByItsId)
{
    for (const SensorFormat &format : SensorFormat::all())
        EXPECT_EQ(SensorFormat::named(format.id), format);
}

TEST(SensorFormat, IsFullFrameForAnUnknownId)
{
    EXPECT_EQ(SensorFormat::fullFrame().id, u"ff"_s);
    for (const QString &id : { u""_s, u"FF"_s, u"aps"_s, u"apsc "_s, u"Full frame (36 × 24 mm)"_s })
        EXPECT_EQ(SensorFormat::named(id), SensorFormat::fullFrame()) << qPrintable(id);
}

TEST(SensorFormat, DiffersWhenAnyOneFieldDoes)
{
    EXPECT_TRUE(differs(&SensorFormat::id, u"other"_s));
    EXPECT_TRUE(differs(&SensorFormat::name, u"Other"_s));
    EXPECT_TRUE(differs(&SensorFormat::width, 35.9));
    EXPECT_TRUE(differs(&SensorFormat::height, 23.9));
}

TEST(SimSettings, UnderexposeTheFirstSceneByAStop)
{
    EXPECT_NEAR(SimSettings().offset(), -0.966, 0.001);
}

TEST(SimSettings, GiveBlursAsFractionsOfTheFrame)
{
    const SimSettings settings;
    EXPECT_NEAR(settings.backgroundBlurFraction() * 36, 0.1907, 0.0001);
    EXPECT_NEAR(settings.backgroundBlurFraction() * 720, 3.81, 0.01);
    EXPECT_NEAR(settings.moverDefocusFraction() * 720, 2.65, 0.01);
    EXPECT_NEAR(settings.moverStreakFraction() * 720, 5.0, 1e-9);
}

TEST(SimSettings, HaveNoDefocusForALensThatCannotFocus)
{
    SimSettings settings;
    settings.subjectDistance = 0.05;
    EXPECT_EQ(settings.backgroundBlurFraction(), 0);
    EXPECT_EQ(settings.moverDefocusFraction(), 0);
}

TEST(SimSettings, HaveNoStreakForAMoverThatIsNowhere)
{
    SimSettings settings;
    for (const double distance : { 0.0, -8.0 }) {
        settings.moverDistance = distance;
        EXPECT_EQ(settings.moverStreakFraction(), 0);
    }
}

TEST(SimSettings, GrowGrainWithTheRootOfTheIso)
{
    SimSettings settings;
    settings.iso = 100;
    EXPECT_EQ(settings.noiseSigma(), 0.006);
    settings.iso = 25600;
    EXPECT_NEAR(settings.noiseSigma(), 0.096, 1e-15);
}

TEST(SimSettings, KeepExposureAndBlurOnASmallerSensor)
{
    SimSettings large;
    SimSettings small;
    small.format = SensorFormat::mft();
    EXPECT_EQ(small.offset(), large.offset());
    EXPECT_NEAR(small.backgroundBlurFraction() * small.format.width,
        large.backgroundBlurFraction() * large.format.width, 1e-12);
    // The same frame takes half the focal length, and the disc shrinks.
    small.focal = 25;
    EXPECT_LT(small.backgroundBlurFraction(), 0.6 * large.backgroundBlurFraction());
}
