#include "selfcheck/selftest/groups.h"
#include "simulator/exposure.h"
#include "simulator/numbertext.h"
#include "simulator/scenerenderer.h"

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kPicture(480, 300);

// The same settings in the light that they suit.
SimSettings wellExposed(SimSettings settings)
{
    settings.sceneEV = Exposure::ev100({ settings.aperture, settings.shutter, settings.iso });
    return settings;
}

SimSettings withShutter(SimSettings settings, double seconds)
{
    settings.shutter = seconds;
    return settings;
}

// What is measured on the photograph; nothing if there is none.
std::optional<SceneMetrics> measured(const HVSelfTest::Render &render, const SimSettings &settings)
{
    const QImage image = render(settings);
    return image.isNull() ? std::nullopt : std::optional(SceneRenderer::metrics(image));
}

// "beginning0.0123 vs 0.0456)"
QString comparing(
    const QString &beginning, double first, const QString &between, double second, int decimals)
{
    return beginning + NumberText::fixed(first, decimals) + between
        + NumberText::fixed(second, decimals) + u')';
}

const QString kArrow = u" → "_s;
const QString kVersus = u" vs "_s;

// False if nothing can be rendered at all.
bool checkExposure(HVTestRun &run, const HVSelfTest::Render &render)
{
    const SimSettings settings
        = wellExposed({ .aperture = 4, .shutter = 0.004, .iso = 400, .focal = 50 });
    const std::optional<SceneMetrics> base = measured(render, settings);
    if (!base) {
        run.check(false, u"preview renders"_s);
        return false;
    }
    run.check(base->meanLuma > 0.18 && base->meanLuma < 0.7,
        u"correct exposure looks mid-bright (mean "_s + NumberText::fixed(base->meanLuma, 2)
            + u')');

    const std::optional<SceneMetrics> over = measured(render, withShutter(settings, 1.0 / 60));
    const std::optional<SceneMetrics> under = measured(render, withShutter(settings, 0.001));
    if (!over || !under) {
        run.check(false, u"over/under renders"_s);
        return true;
    }
    run.check(over->meanLuma > base->meanLuma + 0.08,
        comparing(u"2 stops over (slower shutter) is clearly brighter ("_s, base->meanLuma, kArrow,
            over->meanLuma, 2));
    run.check(under->meanLuma < base->meanLuma - 0.06,
        comparing(
            u"2 stops under is clearly darker ("_s, base->meanLuma, kArrow, under->meanLuma, 2));
    return true;
}

void checkAperture(HVTestRun &run, const HVSelfTest::Render &render)
{
    SimSettings settings{ .aperture = 1.4, .shutter = 0.002, .iso = 100, .focal = 85 };
    settings.backgroundDistance = 40;
    settings.moverSpeed = 0;
    const std::optional<SceneMetrics> wide = measured(render, wellExposed(settings));
    settings.aperture = 16;
    settings.shutter = 0.25;
    const std::optional<SceneMetrics> narrow = measured(render, wellExposed(settings));
    if (!wide || !narrow) {
        run.check(false, u"aperture renders"_s);
        return;
    }
    run.check(wide->backgroundDetail < narrow->backgroundDetail * 0.6,
        comparing(u"f/1.4 blurs the background far more than f/16 (detail "_s,
            wide->backgroundDetail, kVersus, narrow->backgroundDetail, 4));
    run.check(wide->subjectDetail > narrow->subjectDetail * 0.6,
        comparing(u"the focused subject stays sharp at f/1.4 ("_s, wide->subjectDetail, kVersus,
            narrow->subjectDetail, 4));
    run.check(std::abs(wide->meanLuma - narrow->meanLuma) < 0.08,
        comparing(u"equal exposures look equally bright ("_s, wide->meanLuma, kVersus,
            narrow->meanLuma, 2));
}

void checkShutter(HVTestRun &run, const HVSelfTest::Render &render)
{
    SimSettings settings{ .aperture = 8, .shutter = 0.0005, .iso = 400, .focal = 50 };
    settings.moverSpeed = 8;
    const std::optional<SceneMetrics> fast = measured(render, wellExposed(settings));
    const std::optional<SceneMetrics> slow
        = measured(render, wellExposed(withShutter(settings, 1.0 / 15)));
    if (!fast || !slow) {
        run.check(false, u"shutter renders"_s);
        return;
    }
    run.check(slow->moverDetail < fast->moverDetail * 0.7,
        comparing(u"1/15 s smears the moving cyclist, 1/2000 s freezes it ("_s, slow->moverDetail,
            kVersus, fast->moverDetail, 4));
}

void checkISO(HVTestRun &run, const HVSelfTest::Render &render)
{
    SimSettings settings{ .aperture = 8, .shutter = 0.008, .iso = 100, .focal = 50 };
    const std::optional<SceneMetrics> low = measured(render, wellExposed(settings));
    settings.iso = 25600;
    const std::optional<SceneMetrics> high = measured(render, wellExposed(settings));
    if (!low || !high) {
        run.check(false, u"ISO renders"_s);
        return;
    }
    run.check(high->noise > low->noise * 3,
        comparing(
            u"ISO 25600 is much noisier than ISO 100 ("_s, high->noise, kVersus, low->noise, 4));
}

void checkSensorSize(HVTestRun &run)
{
    const SimSettings full{ .aperture = 2, .shutter = 1.0 / 60, .iso = 800, .focal = 50 };
    const auto disc = [](const SimSettings &settings) {
        return settings.format.width * settings.backgroundBlurFraction(); // mm
    };

    SimSettings cropped = full;
    cropped.format = SensorFormat::mft();
    run.check(cropped.offset() == full.offset() && std::abs(disc(cropped) - disc(full)) <= 1e-9,
        u"same focal length and f-number on a smaller sensor: same exposure and the same blur disc "
        "on the sensor (the frame is just cropped)"_s);

    SimSettings framedAlike = cropped;
    framedAlike.focal = 25;
    run.check(framedAlike.backgroundBlurFraction() < 0.6 * full.backgroundBlurFraction()
            && framedAlike.offset() == full.offset(),
        u"same framing (25 mm on Micro Four Thirds vs 50 mm full frame) at the same f/2: same "
        "exposure, about half the background blur"_s);
}

} // namespace

namespace HVSelfTest {

void simulatorTests(HVTestRun &run, const Render &render)
{
    run.begin(u"Exposure Lab preview: the picture changes the way the settings say"_s);
    if (!checkExposure(run, render))
        return;
    checkAperture(run, render);
    checkShutter(run, render);
    checkISO(run, render);
    checkSensorSize(run);
}

void simulatorTests(HVTestRun &run)
{
    const SceneRenderer renderer(kPicture, SceneRenderer::Threads::One);
    simulatorTests(
        run, [&renderer](const SimSettings &settings) { return renderer.render(settings); });
}

} // namespace HVSelfTest
