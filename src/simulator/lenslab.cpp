#include "simulator/lenslab.h"

#include "simulator/exposure.h"

#include <algorithm>

std::vector<LensLabRow> LensLab::rows(
    std::span<const double> apertures, const Conditions &conditions)
{
    std::vector<double> sorted(apertures.begin(), apertures.end());
    std::ranges::sort(sorted);
    const double focus = conditions.subject * 1000;
    const double background = conditions.background * 1000;

    std::vector<LensLabRow> rows;
    rows.reserve(sorted.size());
    for (const double aperture : sorted) {
        const double slowest = sorted.back();
        const Exposure::Lens lens{ conditions.focal, aperture };
        const double blur = Exposure::blurDisc(lens, focus, background);
        const auto sharp = Exposure::depthOfField(lens, conditions.format.coc(), focus);
        rows.push_back({
            .aperture = aperture,
            .stopsVsSlowest = Exposure::stops(aperture, slowest),
            .lightTimes = Exposure::lightRatio(aperture, slowest),
            .shutter = Exposure::shutterFor(conditions.sceneEV, aperture, conditions.iso),
            .blurMM = blur,
            .blurFraction = blur / conditions.format.width,
            .dofMM = sharp.far - sharp.near,
        });
    }
    return rows;
}

SimSettings LensLab::settings(const LensLabRow &row, const Conditions &conditions)
{
    return {
        .aperture = row.aperture,
        .shutter = row.shutter,
        .iso = conditions.iso,
        .focal = conditions.focal,
        .format = conditions.format,
        .sceneEV = conditions.sceneEV,
        .subjectDistance = conditions.subject,
        .backgroundDistance = conditions.background,
        .moverDistance = 8,
        .moverSpeed = 5,
    };
}
