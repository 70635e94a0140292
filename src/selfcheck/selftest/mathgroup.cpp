#include "selfcheck/selftest/groups.h"
#include "simulator/exposure.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double kFarAway = 1e12; // mm

QString label(double seconds)
{
    return Shutter{ seconds }.label();
}

} // namespace

void HVSelfTest::mathTests(HVTestRun &run)
{
    using namespace Exposure;

    run.begin(u"Exposure math: EV, equivalent exposures, stops between f-numbers (within 0.05)"_s);

    run.near(u"EV of f/1 at 1 s"_s, ev({ .aperture = 1, .shutter = 1 }), 0, 1e-9);
    run.near(u"EV of f/16 at 1/125"_s, ev({ .aperture = 16, .shutter = 0.008 }), 14.966, 0.01);
    run.near(u"f/8, 1/125, ISO 400 suits a scene of EV 11"_s,
        ev100({ .aperture = 8, .shutter = 0.008, .iso = 400 }), 10.966, 0.01);
    run.check(nearestShutter(shutterFor(15, 16, 100)) == 0.008,
        u"sunny 16: f/16 at ISO 100 in full sun → 1/125"_s);
    run.check(offset(15, { .aperture = 2.8, .shutter = 0.008, .iso = 100 }) > 4.9,
        u"f/2.8 in full sun at 1/125 is about 5 stops too bright (positive = over)"_s);

    run.near(u"f/1.4 → f/5.6"_s, stops(1.4, 5.6), 4, 0.05);
    run.near(u"f/1.8 → f/5.6"_s, stops(1.8, 5.6), 3.28, 0.05);
    run.near(u"f/2.8 → f/5.6"_s, stops(2.8, 5.6), 2, 0.05);
    run.near(u"f/1.4 → f/1.8"_s, stops(1.4, 1.8), 0.73, 0.05);
    run.near(u"f/1.4 → f/2.8"_s, stops(1.4, 2.8), 2, 0.05);
    run.near(u"f/1.4 → f/1.5 (Student's f/1.5)"_s, stops(1.4, 1.5), 0.2, 0.05);
    run.near(u"f/1.4 gathers 16× the light of f/5.6"_s, lightRatio(1.4, 5.6), 16, 0.01);

    const Pair start{ .aperture = 8, .shutter = 0.008 };
    const std::vector<Pair> same = equivalents(start);
    const auto isListed = [&](Pair pair) { return std::ranges::find(same, pair) != same.end(); };
    run.check(isListed({ .aperture = 5.6, .shutter = 0.004 })
            && isListed({ .aperture = 11, .shutter = 1.0 / 60 }),
        u"f/8 at 1/125 = f/5.6 at 1/250 = f/11 at 1/60"_s);
    run.check(
        std::ranges::all_of(same, [&](Pair pair) { return std::abs(ev(pair) - ev(start)) < 0.2; }),
        u"every listed equivalent is within 1/5 stop of the same EV"_s);

    const double coc = SensorFormat::fullFrame().coc();
    const Lens standard{ .focal = 50, .aperture = 8 };
    const Lens wide{ .focal = 24, .aperture = 11 };
    const DepthOfField sharp = depthOfField(standard, coc, 3000);
    run.near(u"50 mm f/8 focused at 3 m: sharp from (m)"_s, sharp.near / 1000, 2.36, 0.03);
    run.near(u"50 mm f/8 focused at 3 m: sharp to (m)"_s, sharp.far / 1000, 4.12, 0.05);
    run.near(u"hyperfocal distance, 24 mm f/11 full frame (m)"_s, hyperfocal(wide, coc) / 1000,
        1.84, 0.02);
    run.check(std::isinf(depthOfField(wide, coc, 2000).far),
        u"focused beyond the hyperfocal distance → sharp to infinity"_s);

    const auto disc = [](double aperture) {
        return blurDisc({ .focal = 85, .aperture = aperture }, 2000, kFarAway);
    };
    run.near(u"85 mm f/1.4 at 2 m: background blur disc (mm)"_s, disc(1.4), 2.695, 0.01);
    run.near(u"blur disc ∝ 1/N: f/1.4 is 4× f/5.6"_s, disc(1.4), 4 * disc(5.6), 0.001);

    run.near(u"50 mm on full frame: 39.6° across"_s, angleOfView(50, 36), 39.6, 0.1);
    run.near(u"APS-C crop factor"_s, SensorFormat::apsc().crop(), 1.53, 0.02);
    run.near(u"Micro Four Thirds crop factor"_s, SensorFormat::mft().crop(), 2, 0.03);
    run.check(nearestShutter(slowestHandheld(50, SensorFormat::apsc())) == 0.0125,
        u"hand-holding guide: 50 mm on APS-C → about 1/80"_s);
    run.check(label(0.008) == "1/125"_L1 && label(2) == "2\""_L1 && label(0.5) == "0.5\""_L1,
        u"shutter labels"_s);
}
