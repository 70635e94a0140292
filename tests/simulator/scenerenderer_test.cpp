#include "simulator/scenerenderer.h"

#include "simulator/exposure.h"
#include "simulator/plainrenderer.h"
#include "support/sampling.h"

#include <hwy/targets.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>
#include <thread>

namespace {

using Bytes = std::vector<unsigned char>;

Bytes bytesOf(const QImage &image)
{
    return SceneRenderer::pixels(image).data;
}

struct Difference {
    int largest = 0;
    std::size_t bytes = 0;
    std::size_t of = 0;
};

Difference difference(const Bytes &one, const Bytes &other)
{
    EXPECT_EQ(one.size(), other.size());
    Difference result{ .of = one.size() };
    for (std::size_t i = 0; i < std::min(one.size(), other.size()); ++i) {
        const int step = std::abs(int{ one[i] } - int{ other[i] });
        result.largest = std::max(result.largest, step);
        result.bytes += step != 0 ? 1 : 0;
    }
    return result;
}

// Settings whose blurs come to these many pixels in a picture of some width. 0 leaves a blur out.
SimSettings blurred(
    int width, double backgroundRadius, double moverRadius, double streak, double offset = 0)
{
    SimSettings settings;
    // Everything lies in the plane of focus, unless it is to be blurred.
    settings.subjectDistance = 4;
    settings.backgroundDistance = 4;
    settings.moverDistance = 4;
    settings.moverSpeed = 0;
    const double reference = std::max(backgroundRadius, moverRadius);
    if (reference > 0) {
        // At infinity the disc is f² / ((s − f)·N); a nearer object takes its share of it.
        const double largest = 2 * reference * 1.25 / width * settings.format.width;
        settings.aperture = 2500 / ((4000 - 50) * largest);
        const auto distance = [&](double radius) {
            const double share = 2 * radius / width * settings.format.width / largest;
            return 4 / (1 - share);
        };
        settings.backgroundDistance = distance(backgroundRadius);
        settings.moverDistance = distance(moverRadius);
    }
    if (streak > 0) {
        settings.moverSpeed = streak / width * settings.format.width * settings.moverDistance
            / (settings.focal * settings.shutter);
    }
    settings.sceneEV
        = Exposure::ev100({ settings.aperture, settings.shutter, settings.iso }) + offset;
    return settings;
}

// Only these instructions are used until the object goes.
class OnlyTarget
{
public:
    explicit OnlyTarget(std::int64_t target)
    {
        hwy::SetSupportedTargetsForTest(target);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
    }

    ~OnlyTarget()
    {
        hwy::SetSupportedTargetsForTest(0);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
    }

    OnlyTarget(const OnlyTarget &) = delete;
    OnlyTarget &operator=(const OnlyTarget &) = delete;
};

} // namespace

TEST(SceneRenderer, HelpsItsTestsToTheBlursTheyAskFor)
{
    const SimSettings settings = blurred(720, 45, 20, 30);
    EXPECT_NEAR(settings.backgroundBlurFraction() * 720 / 2, 45, 1e-9);
    EXPECT_NEAR(settings.moverDefocusFraction() * 720 / 2, 20, 1e-9);
    EXPECT_NEAR(settings.moverStreakFraction() * 720, 30, 1e-9);
    EXPECT_NEAR(settings.offset(), 0, 1e-12);
}

TEST(SceneRenderer, GivesThePlainPictureAtTheFirstSettings)
{
    const std::vector<QSize> sizes{ { 360, 225 }, { 480, 300 }, { 720, 450 } };
    for (const QSize size : everyNthIfSanitized(sizes, 3)) {
        const SceneRenderer renderer(size);
        const PlainRenderer plain(size);
        Bytes expected = plain.renderWithoutGrain({});
        EXPECT_EQ(bytesOf(renderer.renderWithoutGrain({})), expected) << size.width();
        PlainRenderer::addGrain(expected, SimSettings().noiseSigma() * 255);
        EXPECT_EQ(bytesOf(renderer.render({})), expected) << size.width();
    }
}

struct Case {
    QSize size;
    SimSettings settings;
};

void PrintTo(const Case &one, std::ostream *out)
{
    const SimSettings &settings = one.settings;
    const int width = one.size.width();
    *out << width << " x " << one.size.height() << ", discs "
         << settings.backgroundBlurFraction() * width << " and "
         << settings.moverDefocusFraction() * width << ", streak "
         << settings.moverStreakFraction() * width << ", " << settings.offset() << " stops";
}

class SceneRendererAgainstPlain : public testing::TestWithParam<Case>
{
};

TEST_P(SceneRendererAgainstPlain, DiffersByAStepInFiveOfTenThousandBytesAtMost)
{
    const auto &[size, settings] = GetParam();
    const Difference found = difference(bytesOf(SceneRenderer(size).renderWithoutGrain(settings)),
        PlainRenderer(size).renderWithoutGrain(settings));
    EXPECT_LE(found.largest, 1);
    EXPECT_LE(static_cast<double>(found.bytes), 0.0005 * static_cast<double>(found.of));
}

std::vector<Case> cases()
{
    std::vector<Case> all;
    const auto add
        = [&all](QSize size, double background, double mover, double streak, double offset = 0) {
              all.push_back({ size, blurred(size.width(), background, mover, streak, offset) });
          };
    // Every kind of disc, at its edges and between, in the smaller pictures.
    for (const double radius : { 0.3, 0.31, 0.5, 0.51, 0.75, 1.0, 1.4, 1.5, 1.91, 2.4, 2.5, 3.0,
             3.49, 3.51, 4.5, 5.0, 7.3, 11.0, 15.9, 16.4, 16.6, 20.0, 28.7, 45.0, 64.5, 90.0 })
        add({ 360, 225 }, radius, radius * 0.6, 5);
    for (const double radius : { 1.2, 3.3, 9.0, 33.0, 89.9 })
        add({ 480, 300 }, radius, radius, 44);
    // Streaks alone.
    for (const double streak : { 0.81, 1.0, 1.7, 2.0, 3.0, 5.0, 30.0, 77.7, 200.0, 288.0 })
        add({ 360, 225 }, 0, 0, streak);
    // The exposures' ends, with and without blurs.
    for (const double offset : { -9.0, -8.0, -4.0, -1.0, 1.0, 3.0, 5.0, 8.0, 9.0 })
        add({ 360, 225 }, 6, 2, 12, offset);
    for (const double offset : { -6.0, 2.0 })
        add({ 480, 300 }, 40, 10, 0, offset);
    // Pictures of other shapes, down to a single pixel.
    for (const double radius : { 0.0, 2.0, 10.0, 40.0 }) {
        add({ 1, 1 }, radius, radius, 0);
        add({ 37, 1000 }, radius, radius, radius);
        add({ 17, 3 }, radius, radius, 9);
    }
    // The picture of the lab.
    add({ 720, 450 }, 5, 1, 5);
    add({ 720, 450 }, 20, 7, 30);
    add({ 720, 450 }, 90, 90, 576);
    // Everything sharp.
    add({ 720, 450 }, 0, 0, 0);
    return all;
}

// The sample has each way of blurring a disc, a streak alone, both ends of the exposures and
// pictures of other shapes.
INSTANTIATE_TEST_SUITE_P(
    Settings, SceneRendererAgainstPlain, testing::ValuesIn(everyNthIfSanitized(cases(), 7)));

TEST(SceneRenderer, IsComparedAtSixtySettingsOrMore)
{
    EXPECT_GE(cases().size(), 60U);
}

TEST(SceneRenderer, AddsGrainAsThePlainLoopDoes)
{
    const QSize size(360, 225);
    const SceneRenderer renderer(size);
    for (const double iso : { 50.0, 100.0, 400.0, 3200.0, 25600.0, 102400.0, 1e9 }) {
        SimSettings settings = blurred(size.width(), 3, 1, 5);
        settings.iso = iso;
        settings.sceneEV
            = Exposure::ev100({ settings.aperture, settings.shutter, settings.iso }) - 1;
        Bytes expected = bytesOf(renderer.renderWithoutGrain(settings));
        PlainRenderer::addGrain(expected, settings.noiseSigma() * 255);
        EXPECT_EQ(bytesOf(renderer.render(settings)), expected) << iso;
    }
}

TEST(SceneRenderer, LeavesOutGrainThatCouldNotChangeAByte)
{
    SimSettings settings;
    settings.iso = 1e-6;
    settings.sceneEV = Exposure::ev100({ settings.aperture, settings.shutter, settings.iso });
    const SceneRenderer renderer({ 120, 75 });
    EXPECT_EQ(renderer.render(settings), renderer.renderWithoutGrain(settings));
}

TEST(SceneRenderer, IsOpaqueEverywhere)
{
    const auto pixels = SceneRenderer::pixels(SceneRenderer({ 120, 75 }).render({}));
    EXPECT_EQ(pixels.w, 120);
    EXPECT_EQ(pixels.h, 75);
    ASSERT_EQ(pixels.data.size(), 4U * 120 * 75);
    for (std::size_t i = 3; i < pixels.data.size(); i += 4)
        ASSERT_EQ(pixels.data[i], 255);
}

TEST(SceneRenderer, GivesEqualBytesForEqualSettings)
{
    const SceneRenderer renderer({ 360, 225 });
    const SimSettings settings = blurred(360, 30, 12, 40);
    const QImage first = renderer.render(settings);
    (void)renderer.render(blurred(360, 5, 90, 200, 3));
    EXPECT_EQ(renderer.render(settings), first);
    EXPECT_EQ(SceneRenderer({ 360, 225 }).render(settings), first);
}

TEST(SceneRenderer, GivesTheSameBytesOnOneThread)
{
    const SceneRenderer one({ 360, 225 }, SceneRenderer::Threads::One);
    const SceneRenderer all({ 360, 225 });
    for (const double radius : { 0.0, 1.9, 9.0, 45.0 }) {
        const SimSettings settings = blurred(360, radius, radius, radius);
        EXPECT_EQ(one.render(settings), all.render(settings)) << radius;
    }
}

TEST(SceneRenderer, RendersOnSeveralThreadsAtOnce)
{
    const SceneRenderer renderer({ 360, 225 });
    const std::vector<SimSettings> settings{ {}, blurred(360, 6, 2, 30), blurred(360, 45, 20, 90) };
    std::vector<QImage> alone;
    for (const SimSettings &one : settings)
        alone.push_back(renderer.render(one));

    std::vector<int> wrong(2);
    const auto renderAll = [&](int &count) {
        for (int round = 0; round < 4; ++round) {
            for (std::size_t i = 0; i < settings.size(); ++i)
                count += renderer.render(settings[i]) == alone[i] ? 0 : 1;
        }
    };
    std::thread other(renderAll, std::ref(wrong[0]));
    renderAll(wrong[1]);
    other.join();
    EXPECT_EQ(wrong[0], 0);
    EXPECT_EQ(wrong[1], 0);
}

TEST(SceneRenderer, GivesTheSameBytesWithAnyInstructions)
{
    std::vector<SimSettings> settings{ {} };
    for (const double radius : { 1.0, 9.0, 2.0, 40.0, 3.0 })
        settings.push_back(blurred(360, radius, radius / 2, 2 * radius, radius / 10));
    settings = everyNthIfSanitized(settings, 2);
    const SceneRenderer renderer({ 360, 225 });
    std::vector<QImage> expected;
    for (const SimSettings &one : settings)
        expected.push_back(renderer.render(one));

    const std::int64_t supported = hwy::SupportedTargets();
    int targets = 0;
    for (std::int64_t left = supported; left != 0; left &= left - 1) {
        const OnlyTarget target(left & -left);
        ++targets;
        for (std::size_t i = 0; i < settings.size(); ++i) {
            EXPECT_EQ(renderer.render(settings[i]), expected[i])
                << hwy::TargetName(left & -left) << ' ' << i;
        }
    }
    EXPECT_GE(targets, 1);
}

TEST(SceneRenderer, StopsDiscsAtNinetyPixels)
{
    const SceneRenderer renderer({ 360, 225 });
    const SimSettings at = blurred(360, 90, 0, 0);
    SimSettings beyond = blurred(360, 200, 0, 0);
    beyond.sceneEV += at.offset() - beyond.offset();
    EXPECT_EQ(renderer.renderWithoutGrain(at), renderer.renderWithoutGrain(beyond));
}

TEST(SceneRenderer, StopsStreaksAtFourFifthsOfTheWidth)
{
    const SceneRenderer renderer({ 360, 225 });
    EXPECT_EQ(renderer.renderWithoutGrain(blurred(360, 0, 0, 288)),
        renderer.renderWithoutGrain(blurred(360, 0, 0, 1000)));
    EXPECT_NE(renderer.renderWithoutGrain(blurred(360, 0, 0, 280)),
        renderer.renderWithoutGrain(blurred(360, 0, 0, 288)));
}

TEST(SceneRenderer, LeavesOutBlursThatCannotBeSeen)
{
    const SceneRenderer renderer({ 360, 225 });
    const QImage sharp = renderer.renderWithoutGrain(blurred(360, 0, 0, 0));
    EXPECT_EQ(renderer.renderWithoutGrain(blurred(360, 0.29, 0, 0)), sharp);
    EXPECT_EQ(renderer.renderWithoutGrain(blurred(360, 0, 0, 0.79)), sharp);
    EXPECT_NE(renderer.renderWithoutGrain(blurred(360, 0, 0, 1.5)), sharp);
}

TEST(SceneRenderer, LimitsTheOffsetToEightStops)
{
    const SceneRenderer renderer({ 120, 75 });
    SimSettings settings;
    settings.aperture = 1;
    settings.shutter = 30;
    settings.iso = 51200;
    settings.sceneEV = 15;
    const SimSettings sharp = [settings] {
        SimSettings other = settings;
        other.moverSpeed = 0;
        other.backgroundDistance = other.subjectDistance;
        other.moverDistance = other.subjectDistance;
        return other;
    }();
    SimSettings eight = sharp;
    eight.sceneEV = sharp.sceneEV - sharp.offset() + 8;
    EXPECT_EQ(renderer.renderWithoutGrain(sharp), renderer.renderWithoutGrain(eight));
    EXPECT_GT(SceneRenderer::metrics(renderer.renderWithoutGrain(sharp)).meanLuma, 0.99);
}

TEST(SceneRenderer, RendersSettingsOutOfAnySensibleRange)
{
    const SceneRenderer renderer({ 96, 60 });
    const double infinity = std::numeric_limits<double>::infinity();
    const double odd[] = { 0, -1, 1e-300, 1e9, -1e9, infinity, -infinity,
        std::numeric_limits<double>::quiet_NaN() };
    double SimSettings::*const fields[] = { &SimSettings::aperture, &SimSettings::shutter,
        &SimSettings::iso, &SimSettings::focal, &SimSettings::sceneEV,
        &SimSettings::subjectDistance, &SimSettings::backgroundDistance,
        &SimSettings::moverDistance, &SimSettings::moverSpeed };
    for (double SimSettings::*const field : fields) {
        for (const double value : odd) {
            SimSettings settings;
            settings.*field = value;
            EXPECT_EQ(renderer.render(settings).size(), QSize(96, 60));
        }
    }
    for (const double value : odd) {
        SimSettings settings;
        settings.format.width = value;
        EXPECT_EQ(renderer.render(settings).size(), QSize(96, 60));
        for (double SimSettings::*const field : fields)
            settings.*field = value;
        EXPECT_EQ(renderer.render(settings).size(), QSize(96, 60));
    }
}

TEST(SceneRenderer, MeasuresTheFirstPicture)
{
    const SceneMetrics metrics = SceneRenderer::metrics(SceneRenderer({ 480, 300 }).render({}));
    EXPECT_NEAR(metrics.meanLuma, 0.2575, 0.02 * 0.2575);
    EXPECT_NEAR(metrics.backgroundDetail, 0.0645, 0.02 * 0.0645);
    EXPECT_NEAR(metrics.moverDetail, 0.0516, 0.02 * 0.0516);
    EXPECT_NEAR(metrics.subjectDetail, 0.1466, 0.02 * 0.1466);
    EXPECT_NEAR(metrics.noise, 0.0117, 0.02 * 0.0117);
}

// How the picture follows the settings, at the size and with the limits that a photographer would
// notice.
class SceneRendererAsACamera : public testing::Test
{
protected:
    static SimSettings exposedRightly(SimSettings settings)
    {
        settings.sceneEV = Exposure::ev100({ settings.aperture, settings.shutter, settings.iso });
        return settings;
    }

    SceneMetrics taken(const SimSettings &settings) const
    {
        return SceneRenderer::metrics(m_renderer.render(settings));
    }

private:
    SceneRenderer m_renderer{ QSize(480, 300) };
};

TEST_F(SceneRendererAsACamera, BrightensAndDarkensWithTheShutter)
{
    SimSettings base = exposedRightly({ .aperture = 4, .shutter = 0.004, .iso = 400 });
    const double middle = taken(base).meanLuma;
    EXPECT_GT(middle, 0.18);
    EXPECT_LT(middle, 0.7);
    base.shutter = 1.0 / 60;
    EXPECT_GT(taken(base).meanLuma, middle + 0.08);
    base.shutter = 0.001;
    EXPECT_LT(taken(base).meanLuma, middle - 0.06);
}

TEST_F(SceneRendererAsACamera, BlursTheBackgroundAndNotTheSubjectAtAWideHole)
{
    SimSettings wide{ .aperture = 1.4, .shutter = 0.002, .iso = 100, .focal = 85 };
    wide.subjectDistance = 3;
    wide.backgroundDistance = 40;
    wide.moverSpeed = 0;
    SimSettings narrow = wide;
    narrow.aperture = 16;
    narrow.shutter = 0.25;
    const SceneMetrics soft = taken(exposedRightly(wide));
    const SceneMetrics crisp = taken(exposedRightly(narrow));
    EXPECT_LT(soft.backgroundDetail, crisp.backgroundDetail * 0.6);
    EXPECT_GT(soft.subjectDetail, crisp.subjectDetail * 0.6);
    EXPECT_NEAR(soft.meanLuma, crisp.meanLuma, 0.08);
}

TEST_F(SceneRendererAsACamera, SmearsTheCyclistAtASlowShutter)
{
    SimSettings fast{ .aperture = 8, .shutter = 0.0005, .iso = 400, .focal = 50 };
    fast.moverSpeed = 8;
    SimSettings slow = fast;
    slow.shutter = 1.0 / 15;
    EXPECT_LT(
        taken(exposedRightly(slow)).moverDetail, taken(exposedRightly(fast)).moverDetail * 0.7);
}

TEST_F(SceneRendererAsACamera, RoughensTheSkyAtAHighIso)
{
    const SimSettings low = exposedRightly({ .aperture = 8, .shutter = 0.008, .iso = 100 });
    const SimSettings high = exposedRightly({ .aperture = 8, .shutter = 0.008, .iso = 25600 });
    EXPECT_GT(taken(high).noise, taken(low).noise * 3);
}
