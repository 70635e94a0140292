#include "simulator/screens/exposure/exposuretexts.h"

#include "simulator/exposure.h"
#include "support/qtprinters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using ExposureTexts::Figure;

namespace {

// The default camera in a light that makes this offset.
SimSettings offBy(double stops)
{
    SimSettings settings;
    settings.sceneEV
        = Exposure::ev100({ settings.aperture, settings.shutter, settings.iso }) + stops;
    return settings;
}

// f/4, 1/16 s and ISO 100 suit exactly EV 8: sums of these are exact.
SimSettings exactlyOffBy(double stops)
{
    SimSettings settings;
    settings.shutter = 1.0 / 16;
    settings.iso = 100;
    settings.sceneEV = 8 + stops;
    return settings;
}

QString valueOf(const std::vector<Figure> &figures, const QString &title)
{
    const auto found = std::ranges::find(figures, title, &Figure::title);
    return found != figures.end() ? found->value : u"no such line"_s;
}

} // namespace

TEST(Caption, ReadsLikeAViewfinder)
{
    EXPECT_EQ(ExposureTexts::caption({}), u"f/4  1/125  ISO 400"_s);
    SimSettings night;
    night.aperture = 1.4;
    night.shutter = 2.5;
    night.iso = 102400;
    EXPECT_EQ(ExposureTexts::caption(night), u"f/1.4  2.5\"  ISO 102400"_s);
}

TEST(Verdict, IsCorrectWithinAThirdOfAStop)
{
    EXPECT_EQ(ExposureTexts::verdict(exactlyOffBy(0)), u"Correct exposure (meter at zero)."_s);
    EXPECT_EQ(ExposureTexts::verdict(offBy(0.33)), u"Correct exposure (meter at zero)."_s);
    EXPECT_EQ(ExposureTexts::verdict(offBy(-0.33)), u"Correct exposure (meter at zero)."_s);
    EXPECT_EQ(
        ExposureTexts::verdict(offBy(0.36)), u"Brighter than the meter suggests (+0.4 stops)."_s);
    EXPECT_EQ(
        ExposureTexts::verdict(offBy(-0.36)), u"Darker than the meter suggests (−0.4 stops)."_s);
}

TEST(Verdict, FollowsTheMeterUpToItsEnd)
{
    ASSERT_EQ(exactlyOffBy(3).offset(), 3);
    EXPECT_EQ(ExposureTexts::verdict(exactlyOffBy(3)),
        u"Brighter than the meter suggests (+3.0 stops)."_s);
    EXPECT_EQ(ExposureTexts::verdict(exactlyOffBy(-3)),
        u"Darker than the meter suggests (−3.0 stops)."_s);
}

TEST(Verdict, SaysWhatIsLostBeyondTheMetersEnd)
{
    EXPECT_EQ(ExposureTexts::verdict(exactlyOffBy(5)),
        u"Far too bright: about +5.0 stops. Highlights are blown out."_s);
    EXPECT_EQ(ExposureTexts::verdict(exactlyOffBy(-4.25)), u"Far too dark: about −4.3 stops."_s);
}

TEST(Verdict, OfTheDefaultSettingsIsAStopUnder)
{
    EXPECT_EQ(ExposureTexts::verdict({}), u"Darker than the meter suggests (−1.0 stop)."_s);
}

TEST(MeterLabel, SaysTheOffset)
{
    EXPECT_EQ(ExposureTexts::meter({}), u"Light meter: −1.0 stop"_s);
    EXPECT_EQ(ExposureTexts::meter(exactlyOffBy(0)), u"Light meter: 0 stops"_s);
}

TEST(PictureInWords, TellsExposureBlurAndStreak)
{
    EXPECT_EQ(ExposureTexts::picture({}, 720),
        u"1.0 stop under, background blur 3.8 pixels, streak 5 pixels"_s);
    SimSettings bright = exactlyOffBy(2);
    bright.moverSpeed = 0;
    EXPECT_EQ(ExposureTexts::picture(bright, 720),
        u"2.0 stops over, background blur 3.8 pixels, streak 0 pixels"_s);
    EXPECT_EQ(ExposureTexts::picture(offBy(0.1), 720),
        u"correct exposure, background blur 3.8 pixels, streak 5 pixels"_s);
}

TEST(PictureInWords, CountsASinglePixelAsOne)
{
    SimSettings slow;
    slow.moverSpeed = 1;
    EXPECT_TRUE(ExposureTexts::picture(slow, 720).endsWith("streak 1 pixel"_L1));
}

TEST(ExposureMath, ShowsHowTheExposureComesAbout)
{
    EXPECT_EQ(ExposureTexts::math({}),
        (std::vector<Figure>{
            { u"EV of these settings (ISO 100)"_s, u"10.97"_s },
            { u"…adjusted for ISO 400"_s, u"8.97"_s },
            { u"Scene light (EV at ISO 100)"_s, u"8"_s },
            { u"Exposure"_s, u"−1.0 stop"_s },
        }));
    EXPECT_EQ(ExposureTexts::mathNote(),
        u"EV = log₂(N² ÷ t). Every +1 EV is half the light. Correct exposure: EV − log₂(ISO ÷ "
        "100) = scene EV."_s);
}

TEST(DepthAndMotion, ShowsWhatIsSharpAndWhatIsBlurred)
{
    EXPECT_EQ(ExposureTexts::depthAndMotion({}),
        (std::vector<Figure>{
            { u"Sharp from"_s, u"2.64 m"_s },
            { u"Sharp to"_s, u"3.47 m"_s },
            { u"Hyperfocal distance"_s, u"21.7 m"_s },
            { u"Background blur disc"_s, u"0.19 mm (0.5% of width)"_s },
            { u"Cyclist streak"_s, u"0.25 mm (0.7% of width)"_s },
            { u"Angle of view"_s, u"40° across"_s },
        }));
}

TEST(DepthAndMotion, ReachesInfinityFromTheHyperfocalDistanceOn)
{
    SimSettings wide;
    wide.focal = 24;
    wide.aperture = 11;
    EXPECT_EQ(valueOf(ExposureTexts::depthAndMotion(wide), u"Sharp to"_s), u"infinity"_s);
}

TEST(ShakeWarning, ComesWhenAHandIsTooUnsteady)
{
    SimSettings settings;
    settings.shutter = 1.0 / 60;
    EXPECT_EQ(ExposureTexts::shakeWarning(settings), QString());
    settings.shutter = 1.0 / 40;
    EXPECT_EQ(ExposureTexts::shakeWarning(settings),
        u"Slower than about 1/50 — use a tripod or stabilization, or camera shake may blur "
        "everything."_s);
}

TEST(ShakeWarning, ComparesTheExactTimeAndWritesTheNearest)
{
    SimSettings settings;
    settings.format = SensorFormat::apsc();
    const double steady = Exposure::slowestHandheld(50, SensorFormat::apsc());
    settings.shutter = steady;
    EXPECT_EQ(ExposureTexts::shakeWarning(settings), QString());
    settings.shutter = std::nextafter(steady, 1);
    EXPECT_TRUE(ExposureTexts::shakeWarning(settings).contains("1/80"_L1));
}

TEST(ExposureTexts, ShowNoNonsenseForSettingsThatNoControlGives)
{
    SimSettings between;
    between.aperture = 4.17;
    between.shutter = 0.0097;
    SimSettings inside;
    inside.focal = 600;
    inside.subjectDistance = 0.5; // within the focal length
    SimSettings behind;
    behind.subjectDistance = 12;
    behind.backgroundDistance = 3;
    SimSettings still;
    still.moverSpeed = 0;
    still.moverDistance = 0;
    SimSettings beyond;
    beyond.subjectDistance = 1000;
    beyond.backgroundDistance = 100000;
    beyond.moverSpeed = 400;
    for (const SimSettings &settings : { between, inside, behind, still, beyond }) {
        QStringList texts{ ExposureTexts::caption(settings), ExposureTexts::verdict(settings),
            ExposureTexts::meter(settings), ExposureTexts::picture(settings, 720),
            ExposureTexts::shakeWarning(settings) };
        for (const auto &figures :
            { ExposureTexts::math(settings), ExposureTexts::depthAndMotion(settings) }) {
            for (const Figure &figure : figures)
                texts.append(figure.value);
        }
        const QString all = texts.join(u'\n');
        EXPECT_FALSE(all.contains("nan"_L1)) << qPrintable(all);
        EXPECT_FALSE(all.contains("inf "_L1)) << qPrintable(all);
    }
}
