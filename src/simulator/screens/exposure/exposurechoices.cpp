#include "simulator/screens/exposure/exposurechoices.h"

#include "simulator/exposure.h"

#include <algorithm>
#include <cmath>

SimSettings ExposureChoices::withMeteredShutter(SimSettings settings)
{
    settings.shutter = Exposure::nearestShutter(
        Exposure::shutterFor(settings.sceneEV, settings.aperture, settings.iso));
    return settings;
}

SimSettings ExposureChoices::withMeteredAperture(SimSettings settings)
{
    // The equation of shutterFor(), solved for the f-number.
    const double exact
        = std::sqrt(settings.shutter * std::exp2(settings.sceneEV + std::log2(settings.iso / 100)));
    settings.aperture = Exposure::nearestAperture(
        std::clamp(exact, Exposure::apertures.front(), Exposure::apertures.back()));
    return settings;
}

QString ExposureChoices::lightID(const SimSettings &settings, const QString &otherwise)
{
    const auto levels = LightLevel::all();
    const auto found = std::ranges::find(levels, settings.sceneEV, &LightLevel::ev);
    return found != levels.end() ? found->id : otherwise;
}
