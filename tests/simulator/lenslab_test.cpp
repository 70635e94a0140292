#include "simulator/lenslab.h"

#include "simulator/exposure.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// The comparison that the Lens Lab opens with: a living room at night.
LensLab::Conditions livingRoom()
{
    return { .focal = 50,
        .format = SensorFormat::fullFrame(),
        .subject = 2.5,
        .background = 15,
        .sceneEV = 6,
        .iso = 1600 };
}

std::vector<LensLabRow> rowsOf(const std::vector<double> &apertures)
{
    return LensLab::rows(apertures, livingRoom());
}

} // namespace

TEST(LensLab, HasNoRowsOfNothing)
{
    EXPECT_TRUE(rowsOf({}).empty());
}

TEST(LensLab, ComparesASingleLensWithItself)
{
    const auto rows = rowsOf({ 2.8 });
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].stopsVsSlowest, 0);
    EXPECT_EQ(rows[0].lightTimes, 1);
}

TEST(LensLab, SortsTheFastestFirst)
{
    const auto rows = rowsOf({ 5.6, 2.8, 1.8, 1.4 });
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0].aperture, 1.4);
    EXPECT_EQ(rows[1].aperture, 1.8);
    EXPECT_EQ(rows[2].aperture, 2.8);
    EXPECT_EQ(rows[3].aperture, 5.6);
}

TEST(LensLab, ShowsWhatAFastLensBuysAtNight)
{
    struct Expected {
        double stops, times, shutter, nearest;
    };
    const std::vector<Expected> expected{
        { 4.00, 16.0, 0.001914, 1.0 / 500 },
        { 3.27, 9.68, 0.003164, 1.0 / 320 },
        { 2.00, 4.0, 0.007656, 1.0 / 125 },
        { 0, 1, 0.030625, 1.0 / 30 },
    };
    const auto rows = rowsOf({ 1.4, 1.8, 2.8, 5.6 });
    ASSERT_EQ(rows.size(), expected.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_NEAR(rows[i].stopsVsSlowest, expected[i].stops, 0.006);
        EXPECT_NEAR(rows[i].lightTimes, expected[i].times, 0.005);
        EXPECT_NEAR(rows[i].shutter, expected[i].shutter, 0.0000006);
        EXPECT_EQ(Exposure::nearestShutter(rows[i].shutter), expected[i].nearest);
    }
}

TEST(LensLab, BlursInProportionToTheHole)
{
    const auto rows = rowsOf({ 5.6, 2.8, 1.8, 1.4 });
    EXPECT_NEAR(rows[0].blurMM / rows[3].blurMM, 4, 0.001);
    EXPECT_NEAR(rows[3].shutter / rows[0].shutter, 16, 0.01);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].blurFraction, rows[i].blurMM / 36);
        if (i > 0) {
            EXPECT_GT(rows[i].dofMM, rows[i - 1].dofMM);
        }
    }
}

TEST(LensLab, HasEndlessDepthBeyondTheHyperfocalDistance)
{
    auto conditions = livingRoom();
    conditions.focal = 24;
    conditions.subject = 5;
    const std::vector<double> apertures{ 1.4, 8 };
    const auto rows = LensLab::rows(apertures, conditions);
    EXPECT_TRUE(std::isfinite(rows[0].dofMM));
    EXPECT_TRUE(std::isinf(rows[1].dofMM));
}

TEST(LensLab, TakesItsPicturesRightlyExposed)
{
    for (const LensLabRow &row : rowsOf({ 1.4, 5.6 })) {
        const SimSettings settings = LensLab::settings(row, livingRoom());
        EXPECT_EQ(settings.aperture, row.aperture);
        EXPECT_EQ(settings.shutter, row.shutter);
        EXPECT_NEAR(settings.offset(), 0, 1e-12);
        EXPECT_EQ(settings.subjectDistance, 2.5);
        EXPECT_EQ(settings.backgroundDistance, 15);
        EXPECT_EQ(settings.moverDistance, 8);
        EXPECT_EQ(settings.moverSpeed, 5);
        EXPECT_NEAR(settings.backgroundBlurFraction(), row.blurFraction, 1e-15);
    }
}
