#include "simulator/exposure.h"

#include "simulator/numbertext.h"

#include <cmath>
#include <limits>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

double square(double x)
{
    return x * x;
}

// The times that a camera's scale reaches, with some room at both ends.
constexpr double kLongestListed = 30.5;
constexpr double kShortestListed = 0.0001125;

} // namespace

double Exposure::ev(Pair pair)
{
    return std::log2(square(pair.aperture) / pair.shutter);
}

double Exposure::ev100(Triple triple)
{
    return ev({ triple.aperture, triple.shutter }) - std::log2(triple.iso / 100);
}

double Exposure::offset(double sceneEV100, Triple triple)
{
    return sceneEV100 - ev100(triple);
}

double Exposure::stops(double from, double to)
{
    return 2 * std::log2(to / from);
}

double Exposure::lightRatio(double aperture, double other)
{
    return square(other / aperture);
}

double Exposure::shutterFor(double sceneEV100, double aperture, double iso)
{
    return square(aperture) / std::exp2(std::log2(iso / 100) + sceneEV100);
}

std::size_t Exposure::nearestIndex(std::span<const double> scale, double value)
{
    std::size_t best = 0;
    for (std::size_t i = 1; i < scale.size(); ++i) {
        // Strictly nearer, so that a tie keeps the earlier entry: the longer time, the wider hole.
        if (std::abs(std::log2(scale[i] / value)) < std::abs(std::log2(scale[best] / value)))
            best = i;
    }
    return best;
}

double Exposure::nearestShutter(double seconds)
{
    return shutterSeconds[nearestIndex(shutterSeconds, seconds)];
}

double Exposure::nearestAperture(double aperture)
{
    return apertures[nearestIndex(apertures, aperture)];
}

std::vector<Exposure::Pair> Exposure::equivalents(Pair pair, std::span<const double> from)
{
    const double ratio = std::exp2(ev(pair)); // N² / t
    std::vector<Pair> pairs;
    for (const double aperture : from) {
        const double time = square(aperture) / ratio;
        if (time <= kLongestListed && time >= kShortestListed)
            pairs.push_back({ aperture, nearestShutter(time) });
    }
    return pairs;
}

double Exposure::hyperfocal(Lens lens, double coc)
{
    return square(lens.focal) / (lens.aperture * coc) + lens.focal;
}

Exposure::DepthOfField Exposure::depthOfField(Lens lens, double coc, double focus)
{
    const double h = hyperfocal(lens, coc);
    const double numerator = (h - lens.focal) * focus;
    return { .near = numerator / (h + focus - 2 * lens.focal),
        .far = h <= focus ? std::numeric_limits<double>::infinity() : numerator / (h - focus) };
}

double Exposure::blurDisc(Lens lens, double focus, double object)
{
    if (!(lens.focal < focus && object > 0))
        return 0;
    return square(lens.focal) / ((focus - lens.focal) * lens.aperture) * std::abs(object - focus)
        / object;
}

double Exposure::angleOfView(double focal, double width)
{
    return 2 * std::atan(width / (2 * focal)) * 180 / std::numbers::pi;
}

double Exposure::motionStreak(double focal, Motion motion, double shutter)
{
    if (!(motion.distance > 0))
        return 0;
    return focal * motion.speed * shutter / motion.distance; // the meters cancel
}

double Exposure::slowestHandheld(double focal, const SensorFormat &format)
{
    return 1 / (format.crop() * focal);
}

QString Exposure::fLabel(double aperture)
{
    Q_ASSERT(std::isfinite(aperture));
    const bool whole = aperture == std::floor(aperture);
    return "f/"_L1 + NumberText::fixed(aperture, whole ? 0 : 1);
}

QString Exposure::formatDistance(double distance)
{
    if (std::isinf(distance))
        return u"infinity"_s;
    const double meters = distance / 1000;
    const int decimals = meters >= 100 ? 0 : meters >= 10 ? 1 : 2;
    return NumberText::fixed(meters, decimals) + " m"_L1;
}

QString Exposure::formatStops(double count)
{
    const double rounded = std::round(count * 10) / 10;
    const double size = std::abs(rounded);
    if (size < 0.05)
        return u"0 stops"_s;
    return (rounded > 0 ? u"+"_s : u"−"_s) + NumberText::fixed(size, 1)
        + (size == 1.0 ? " stop"_L1 : " stops"_L1);
}
