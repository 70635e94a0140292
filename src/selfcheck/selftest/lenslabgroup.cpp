#include "selfcheck/selftest/groups.h"
#include "simulator/exposure.h"
#include "simulator/lenslab.h"

#include <algorithm>
#include <array>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

QString shutterLabel(const LensLabRow &row)
{
    return Shutter{ Exposure::nearestShutter(row.shutter) }.label();
}

} // namespace

void HVSelfTest::lensLabTests(HVTestRun &run)
{
    run.begin(u"Lens Lab: f/1.4, f/1.8, f/2.8 and f/5.6 compared with real math"_s);

    const LensLab::Conditions livingRoom{ .focal = 50,
        .format = SensorFormat::fullFrame(),
        .subject = 2.5,
        .background = 15,
        .sceneEV = 6,
        .iso = 1600 };
    const std::vector<LensLabRow> rows
        = LensLab::rows(std::array{ 5.6, 2.8, 1.8, 1.4 }, livingRoom);
    const LensLabRow &fastest = rows[0];
    const LensLabRow &kitLens = rows[3];

    run.check(std::ranges::equal(rows, std::array{ 1.4, 1.8, 2.8, 5.6 }, {}, &LensLabRow::aperture),
        u"rows sorted fastest first"_s);
    run.near(u"f/1.4 vs kit f/5.6: stops"_s, fastest.stopsVsSlowest, 4, 0.05);
    run.near(u"f/1.8 vs kit f/5.6: stops"_s, rows[1].stopsVsSlowest, 3.28, 0.05);
    run.near(u"f/2.8 vs kit f/5.6: stops"_s, rows[2].stopsVsSlowest, 2, 0.05);
    run.near(u"in the same light the kit lens needs a 16× longer shutter than f/1.4"_s,
        kitLens.shutter / fastest.shutter, 16, 0.01);
    run.check(shutterLabel(fastest) == "1/500"_L1 && shutterLabel(kitLens) == "1/30"_L1,
        u"living room (EV 6), ISO 1600: f/1.4 → 1/500, f/5.6 → 1/30"_s);
    run.near(u"background blur f/1.4 = 4× f/5.6"_s, fastest.blurMM / kitLens.blurMM, 4, 0.001);
    const auto notDeeper
        = std::ranges::adjacent_find(rows, std::ranges::greater_equal(), &LensLabRow::dofMM);
    run.check(notDeeper == rows.end(), u"depth of field grows from f/1.4 to f/5.6"_s);
}
