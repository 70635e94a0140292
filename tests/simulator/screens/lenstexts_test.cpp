#include "simulator/screens/lens/lenstexts.h"

#include "simulator/screens/common/nearestbackground.h"
#include "support/qtprinters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

LensLab::Conditions livingRoom()
{
    return { .focal = 50,
        .format = SensorFormat::fullFrame(),
        .subject = 2.5,
        .background = 15,
        .sceneEV = LightLevel::named(u"home"_s).ev,
        .iso = 1600 };
}

std::vector<LensLabRow> rowsOf(
    const std::vector<double> &apertures, const LensLab::Conditions &conditions = livingRoom())
{
    return LensLab::rows(apertures, conditions);
}

} // namespace

TEST(LensTexts, CallTheSlowestRowTheBaseline)
{
    for (const std::vector<double> &apertures :
        std::vector<std::vector<double>>{ { 1.4, 5.6 }, { 1.2, 1.4, 1.5 }, { 2.8 } }) {
        const auto rows = rowsOf(apertures);
        EXPECT_EQ(LensTexts::light(rows.back()), u"baseline"_s);
        EXPECT_EQ(rows.back().lightTimes, 1);
    }
}

TEST(LensTexts, SayHowMuchLightTheOthersGain)
{
    const auto rows = rowsOf({ 1.4, 1.8, 2.8, 5.6 });
    EXPECT_EQ(LensTexts::light(rows[0]), u"16.0× more (+4.00 stops)"_s);
    EXPECT_EQ(LensTexts::light(rows[1]), u"9.7× more (+3.27 stops)"_s);
    EXPECT_EQ(LensTexts::light(rows[2]), u"4.0× more (+2.00 stops)"_s);
}

TEST(LensTexts, CallAGainOfLessThanATwentiethOfAStopNone)
{
    LensLabRow row{};
    row.stopsVsSlowest = 0.0499;
    EXPECT_EQ(LensTexts::light(row), u"baseline"_s);
    row.stopsVsSlowest = 0.05;
    row.lightTimes = 1.04;
    EXPECT_EQ(LensTexts::light(row), u"1.0× more (+0.05 stops)"_s);
}

TEST(LensTexts, ShowThatTheKitLensShakesWhereTheFastOneIsSharp)
{
    const auto rows = rowsOf({ 1.4, 5.6 });
    EXPECT_EQ(LensTexts::shutter(rows[0]), u"1/500"_s);
    EXPECT_FALSE(LensChoices::isShaky(rows[0], livingRoom()));
    EXPECT_EQ(LensTexts::shutter(rows[1]), u"1/30"_s);
    EXPECT_TRUE(LensChoices::isShaky(rows[1], livingRoom()));
}

TEST(LensTexts, GiveBlurAndDepth)
{
    const auto rows = rowsOf({ 1.4, 5.6 });
    EXPECT_EQ(LensTexts::blur(rows[0]), u"0.61 mm · 1.7%"_s);
    EXPECT_EQ(LensTexts::depth(rows[0]), u"20 cm deep"_s);
    EXPECT_EQ(LensTexts::blur(rows[1]), u"0.15 mm · 0.4%"_s);
    EXPECT_EQ(LensTexts::depth(rows[1]), u"81 cm deep"_s);
}

TEST(LensTexts, ReachToInfinityFromTheHyperfocalDistanceOn)
{
    LensLab::Conditions conditions = livingRoom();
    conditions.focal = 14;
    conditions.subject = 5;
    EXPECT_EQ(LensTexts::depth(rowsOf({ 5.6 }, conditions)[0]), u"to infinity"_s);
}

TEST(BlurDiscs, AreDrawnToTheScaleOfTheLargest)
{
    const auto discs = LensChoices::discs(rowsOf({ 1.4, 2.8, 5.6 }));
    ASSERT_EQ(discs.size(), 3U);
    EXPECT_EQ(discs[0], 34);
    EXPECT_NEAR(discs[1], 17, 1e-9);
    EXPECT_NEAR(discs[2], 8.5, 1e-9);
}

TEST(BlurDiscs, AreNeverTooSmallToBeSeen)
{
    EXPECT_TRUE(LensChoices::discs({}).empty());
    LensLabRow wide{};
    wide.blurFraction = 1;
    LensLabRow sharp{};
    EXPECT_EQ(LensChoices::discs({ wide, sharp }), (std::vector<double>{ 34, 3 }));
    EXPECT_EQ(LensChoices::discs({ sharp, sharp }), (std::vector<double>{ 3, 3 }));
}

TEST(BlurDiscs, ArePositiveWithTheBackgroundAtItsNearestAndTheSubjectAtItsFarthest)
{
    LensLab::Conditions conditions = livingRoom();
    conditions.subject = 9.9;
    conditions.background = nearestBackground(conditions.subject);
    const auto rows = rowsOf({ 1.4, 5.6 }, conditions);
    for (const LensLabRow &row : rows)
        EXPECT_GT(row.blurFraction, 0);
    for (const double disc : LensChoices::discs(rows))
        EXPECT_GE(disc, 3);
}

TEST(LensTexts, ShowNoNonsenseForDistancesThatNoLensCanFocus)
{
    LensLab::Conditions inside = livingRoom();
    inside.focal = 600;
    inside.subject = 0.5;
    LensLab::Conditions behind = livingRoom();
    behind.background = 1;
    for (const LensLab::Conditions &conditions : { inside, behind }) {
        const auto rows = rowsOf({ 1.2, 5.6 }, conditions);
        for (const LensLabRow &row : rows) {
            const QString all
                = LensTexts::light(row) + LensTexts::blur(row) + LensTexts::depth(row);
            EXPECT_FALSE(all.contains("nan"_L1)) << qPrintable(all);
        }
        for (const double disc : LensChoices::discs(rows))
            EXPECT_TRUE(disc >= 3 && disc <= 34) << disc;
    }
}

TEST(ChoosingLenses, TakesInWhatIsOutAndOutWhatIsIn)
{
    const std::vector<double> chosen{ 1.4, 1.8, 2.8 };
    EXPECT_EQ(LensChoices::toggled(chosen, 4), (std::vector<double>{ 1.4, 1.8, 2.8, 4 }));
    EXPECT_EQ(LensChoices::toggled(chosen, 1.8), (std::vector<double>{ 1.4, 2.8 }));
}

TEST(ChoosingLenses, LeavesTheLastTwo)
{
    const std::vector<double> chosen{ 1.4, 1.8 };
    EXPECT_EQ(LensChoices::toggled(chosen, 1.4), chosen);
    EXPECT_EQ(LensChoices::toggled(chosen, 1.8), chosen);
}

TEST(LensNote, ExplainsTheFourColumns)
{
    const QStringList lines = LensTexts::note().split(u'\n');
    ASSERT_EQ(lines.size(), 5);
    EXPECT_EQ(lines[0], u"## Reading the table"_s);
    for (const auto &[line, begin] :
        { std::pair{ 1, "• Light gathered: " }, { 2, "• Shutter needed: " },
            { 3, "• Background blur: " }, { 4, "• Depth of field also depends on" } })
        EXPECT_TRUE(lines[line].startsWith(QString::fromUtf8(begin))) << qPrintable(lines[line]);
}
