#include "kit/zoom.h"

#include "kit/preferences.h"
#include "kit/printing.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr QSizeF kMinimum(960, 640);
constexpr QSizeF kCamera(1240, 800); ///< What the camera's window needs.

// The stored zoom belongs to the process. Every test begins with none.
class Zoom : public ::testing::Test
{
protected:
    void SetUp() override { Preferences::shared().keepInMemory(); }

    static void store(const QVariant &value) { Preferences::shared().set(u"crvn.zoom"_s, value); }
    static double stored() { return Preferences::shared().number(u"crvn.zoom"_s); }
};

} // namespace

TEST_F(Zoom, ReachesFrom85To200Percent)
{
    EXPECT_EQ(CNZoom::min, 0.85);
    EXPECT_EQ(CNZoom::max, 2.0);
    EXPECT_EQ(CNZoom::clamp(0.85), 0.85);
    EXPECT_EQ(CNZoom::clamp(2.0), 2.0);
    EXPECT_EQ(CNZoom::clamp(0.84), 0.85);
    EXPECT_EQ(CNZoom::clamp(2.01), 2.0);
    EXPECT_EQ(CNZoom::clamp(3), 2.0);
    EXPECT_EQ(CNZoom::clamp(0.5), 0.85);
    EXPECT_EQ(CNZoom::clamp(-1), 0.85);
}

TEST_F(Zoom, IsRoundedToWholePercents)
{
    EXPECT_EQ(CNZoom::clamp(1.004), 1.0);
    EXPECT_EQ(CNZoom::clamp(1.006), 1.01);
    EXPECT_EQ(CNZoom::clamp(1.149), 1.15);
    // Rounded first and limited then: both of these are 2 before the limit sees them.
    EXPECT_EQ(CNZoom::clamp(2.004), 2.0);
    EXPECT_EQ(CNZoom::clamp(0.846), 0.85);
}

TEST_F(Zoom, OfAWholePercentageIsThatNumberExactly)
{
    for (int percent = 85; percent <= 200; ++percent)
        EXPECT_EQ(CNZoom::clamp(percent / 100.0), percent / 100.0) << percent;
}

TEST_F(Zoom, OfWhatIsNoNumberIsOne)
{
    EXPECT_EQ(CNZoom::clamp(std::numeric_limits<double>::quiet_NaN()), 1.0);
}

TEST_F(Zoom, OfInfinityIsTheLimit)
{
    EXPECT_EQ(CNZoom::clamp(std::numeric_limits<double>::infinity()), 2.0);
    EXPECT_EQ(CNZoom::clamp(-std::numeric_limits<double>::infinity()), 0.85);
}

TEST_F(Zoom, IsOneWhereNothingIsStored)
{
    EXPECT_EQ(CNZoom::value(), 1.0);
    EXPECT_FALSE(Preferences::shared().contains(u"crvn.zoom"_s));
}

TEST_F(Zoom, IsOneWhereZeroIsStored)
{
    store(0.0);
    EXPECT_EQ(CNZoom::value(), 1.0);
}

TEST_F(Zoom, IsOneWhereNoNumberIsStored)
{
    for (const QString &text : { u"large"_s, u""_s, u"nan"_s }) {
        store(text);
        EXPECT_EQ(CNZoom::value(), 1.0) << qPrintable(text);
    }
}

TEST_F(Zoom, StoredBeyondTheLimitsReadsAsTheLimit)
{
    store(3.7);
    EXPECT_EQ(CNZoom::value(), 2.0);
    store(0.2);
    EXPECT_EQ(CNZoom::value(), 0.85);
    store(-1.0);
    EXPECT_EQ(CNZoom::value(), 0.85);
}

TEST_F(Zoom, ReadsBackAsItWasStored)
{
    for (const int percent : CNZoom::levels) {
        CNZoom::setValue(percent / 100.0);
        EXPECT_EQ(CNZoom::value(), percent / 100.0);
    }
}

TEST_F(Zoom, BeyondTheLimitsIsNeverStored)
{
    CNZoom::setValue(3);
    EXPECT_EQ(stored(), 2.0);
    EXPECT_EQ(CNZoom::value(), 2.0);
    CNZoom::setValue(0.5);
    EXPECT_EQ(stored(), 0.85);
    EXPECT_EQ(CNZoom::value(), 0.85);
    CNZoom::setValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(stored(), 1.0);
}

TEST_F(Zoom, StepsInToTheLimitAndSkipsTheLevelsBetweenItsSteps)
{
    QList<double> reached;
    for (int press = 0; press < 8; ++press) {
        CNZoom::setValue(CNZoom::value() + CNZoom::step);
        reached.append(CNZoom::value());
    }
    EXPECT_EQ(reached, QList<double>({ 1.15, 1.3, 1.45, 1.6, 1.75, 1.9, 2.0, 2.0 }));
}

TEST_F(Zoom, StepsOutToTheLimitAndStays)
{
    CNZoom::setValue(CNZoom::value() - CNZoom::step);
    EXPECT_EQ(CNZoom::value(), 0.85);
    CNZoom::setValue(CNZoom::value() - CNZoom::step);
    EXPECT_EQ(CNZoom::value(), 0.85);
}

TEST_F(Zoom, OffersSevenLevels)
{
    const QList<int> levels(CNZoom::levels.begin(), CNZoom::levels.end());
    EXPECT_EQ(levels, QList<int>({ 85, 100, 115, 130, 150, 175, 200 }));
}

TEST_F(Zoom, LevelsAreTitledInPercent)
{
    EXPECT_EQ(CNZoom::levelTitle(115), u"115%"_s);
    EXPECT_EQ(CNZoom::levelTitle(85), u"85%"_s);
    EXPECT_EQ(CNZoom::levelTitle(0), u"0%"_s);
}

TEST(ZoomLayout, At100PercentIsTheWindow)
{
    const CNZoom::Layout layout = CNZoom::layout({ 1440, 920 }, 1, kCamera);
    EXPECT_EQ(layout.logical, QSizeF(1440, 920));
    EXPECT_EQ(layout.scaled, QSizeF(1440, 920));
    EXPECT_FALSE(layout.scrolls);
}

TEST(ZoomLayout, FillsTheWindowWhileTheMinimumFits)
{
    const CNZoom::Layout layout = CNZoom::layout({ 2000, 1500 }, 2, kMinimum);
    EXPECT_EQ(layout.logical, QSizeF(1000, 750));
    EXPECT_EQ(layout.scaled, QSizeF(2000, 1500));
    EXPECT_FALSE(layout.scrolls);
}

TEST(ZoomLayout, GrowsBeyondTheWindowInsideWhenZoomedOut)
{
    const CNZoom::Layout layout = CNZoom::layout({ 1020, 680 }, 0.85, kMinimum);
    EXPECT_DOUBLE_EQ(layout.logical.width(), 1200);
    EXPECT_DOUBLE_EQ(layout.logical.height(), 800);
    EXPECT_DOUBLE_EQ(layout.scaled.width(), 1020);
    EXPECT_DOUBLE_EQ(layout.scaled.height(), 680);
    EXPECT_FALSE(layout.scrolls);
}

TEST(ZoomLayout, KeepsTheMinimumInAWindowThatIsTooSmall)
{
    const CNZoom::Layout layout = CNZoom::layout({ 1000, 700 }, 2, kMinimum);
    EXPECT_EQ(layout.logical, QSizeF(960, 640));
    EXPECT_EQ(layout.scaled, QSizeF(1920, 1280));
    EXPECT_TRUE(layout.scrolls);
}

TEST(ZoomLayout, KeepsTheMinimumOnOneAxisAlone)
{
    const CNZoom::Layout wide = CNZoom::layout({ 3000, 700 }, 2, kMinimum);
    EXPECT_EQ(wide.logical, QSizeF(1500, 640));
    EXPECT_EQ(wide.scaled, QSizeF(3000, 1280));
    EXPECT_TRUE(wide.scrolls);
    const CNZoom::Layout high = CNZoom::layout({ 1000, 2000 }, 2, kMinimum);
    EXPECT_EQ(high.logical, QSizeF(960, 1000));
    EXPECT_EQ(high.scaled, QSizeF(1920, 2000));
    EXPECT_TRUE(high.scrolls);
}

TEST(ZoomLayout, ForgivesOnePoint)
{
    // At 200 % the camera is 2480 × 1600 points.
    EXPECT_FALSE(CNZoom::layout({ 2480, 1600 }, 2, kCamera).scrolls);
    EXPECT_FALSE(CNZoom::layout({ 2479, 1600 }, 2, kCamera).scrolls);
    EXPECT_TRUE(CNZoom::layout({ 2478.9, 1600 }, 2, kCamera).scrolls);
    EXPECT_FALSE(CNZoom::layout({ 2480, 1599 }, 2, kCamera).scrolls);
    EXPECT_TRUE(CNZoom::layout({ 2480, 1598.9 }, 2, kCamera).scrolls);
}

TEST(ZoomLayout, OfTheUsualWindowAt115PercentShowsNoScrollBar)
{
    // 920 / 1.15 is the minimum of 800 to the last digit, and 800 · 1.15 may miss 920 by it.
    const CNZoom::Layout layout = CNZoom::layout({ 1440, 920 }, 1.15, kCamera);
    EXPECT_NEAR(layout.logical.width(), 1252.17, 0.01);
    EXPECT_NEAR(layout.logical.height(), 800, 1e-9);
    EXPECT_NEAR(layout.scaled.width(), 1440, 1e-9);
    EXPECT_NEAR(layout.scaled.height(), 920, 1e-9);
    EXPECT_FALSE(layout.scrolls);
}

TEST(ZoomLayout, OfTheUsualWindowAt130PercentScrolls)
{
    const CNZoom::Layout layout = CNZoom::layout({ 1440, 920 }, 1.3, kCamera);
    EXPECT_EQ(layout.logical, QSizeF(1240, 800));
    EXPECT_NEAR(layout.scaled.width(), 1612, 1e-9);
    EXPECT_NEAR(layout.scaled.height(), 1040, 1e-9);
    EXPECT_TRUE(layout.scrolls);
}

TEST(ZoomLayout, OfAWindowWithoutSizeIsTheMinimum)
{
    const CNZoom::Layout layout = CNZoom::layout({ 0, 0 }, 1, kMinimum);
    EXPECT_EQ(layout.logical, kMinimum);
    EXPECT_EQ(layout.scaled, kMinimum);
    EXPECT_TRUE(layout.scrolls);
}

TEST(ZoomLayout, IsAtLeastTheWindowAtEveryLevelAndSize)
{
    for (const int percent : CNZoom::levels) {
        for (double width = 400; width <= 3000; width += 130) {
            const double zoom = percent / 100.0;
            const QSizeF window(width, width * 0.66);
            const CNZoom::Layout layout = CNZoom::layout(window, zoom, kCamera);
            EXPECT_GE(layout.scaled.width(), window.width() - 1e-9);
            EXPECT_GE(layout.scaled.height(), window.height() - 1e-9);
            EXPECT_GE(layout.logical.width(), kCamera.width());
            EXPECT_GE(layout.logical.height(), kCamera.height());
        }
    }
}
