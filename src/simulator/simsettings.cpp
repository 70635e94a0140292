#include "simulator/simsettings.h"

#include "simulator/exposure.h"

#include <cmath>

namespace {

constexpr double kMillimetersPerMeter = 1000;
constexpr double kNoiseAtIso100 = 0.006;

double blurFraction(const SimSettings &settings, double objectDistance)
{
    return Exposure::blurDisc({ settings.focal, settings.aperture },
               settings.subjectDistance * kMillimetersPerMeter,
               objectDistance * kMillimetersPerMeter)
        / settings.format.width;
}

} // namespace

double SimSettings::offset() const
{
    return Exposure::offset(sceneEV, { aperture, shutter, iso });
}

double SimSettings::backgroundBlurFraction() const
{
    return blurFraction(*this, backgroundDistance);
}

double SimSettings::moverDefocusFraction() const
{
    return blurFraction(*this, moverDistance);
}

double SimSettings::moverStreakFraction() const
{
    return Exposure::motionStreak(focal, { moverSpeed, moverDistance }, shutter) / format.width;
}

double SimSettings::noiseSigma() const
{
    return std::sqrt(iso / 100) * kNoiseAtIso100;
}
