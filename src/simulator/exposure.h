// The photographic arithmetic of the program: constant tables and pure functions.
//
// Stateless and safe on any thread. All numbers are doubles, in these units:
//   aperture                        f-number N, dimensionless
//   shutter                         s
//   iso                             dimensionless, 100 is the reference
//   sceneEV100                      EV at ISO 100
//   focal, focus, object, coc       mm; so are blur discs, streaks and limits of sharpness
//   width                           mm, a side of the sensor
//   speed, and a mover's distance   m/s and m
// Values off the engraved scales are allowed; zero, negative numbers and NaN follow IEEE 754.
#pragma once

#include "simulator/scales.h"

#include <QString>

#include <array>
#include <span>
#include <vector>

namespace Exposure {

/// The scale of f-numbers in thirds of a stop as engraved on lenses, widest first.
inline constexpr std::array apertures{ 1.0, 1.1, 1.2, 1.4, 1.6, 1.8, 2.0, 2.2, 2.5, 2.8, 3.2, 3.5,
    4.0, 4.5, 5.0, 5.6, 6.3, 7.1, 8.0, 9.0, 10.0, 11.0, 13.0, 14.0, 16.0, 18.0, 20.0, 22.0, 25.0,
    29.0, 32.0 };

/// The whole stops of that scale.
inline constexpr std::array fullStopApertures{ 1.0, 1.4, 2.0, 2.8, 4.0, 5.6, 8.0, 11.0, 16.0, 22.0,
    32.0 };

/// Shutter times in thirds of a stop, longest first. Fractions stand as quotients, so that each
/// entry is the nearest double and callers may compare exactly.
inline constexpr std::array shutterSeconds{ 30.0, 25.0, 20.0, 15.0, 13.0, 10.0, 8.0, 6.0, 5.0, 4.0,
    3.2, 2.5, 2.0, 1.6, 1.3, 1.0, 0.8, 0.6, 0.5, 0.4, 0.3, 1.0 / 4, 1.0 / 5, 1.0 / 6, 1.0 / 8,
    1.0 / 10, 1.0 / 13, 1.0 / 15, 1.0 / 20, 1.0 / 25, 1.0 / 30, 1.0 / 40, 1.0 / 50, 1.0 / 60,
    1.0 / 80, 1.0 / 100, 1.0 / 125, 1.0 / 160, 1.0 / 200, 1.0 / 250, 1.0 / 320, 1.0 / 400,
    1.0 / 500, 1.0 / 640, 1.0 / 800, 1.0 / 1000, 1.0 / 1250, 1.0 / 1600, 1.0 / 2000, 1.0 / 2500,
    1.0 / 3200, 1.0 / 4000, 1.0 / 5000, 1.0 / 6400, 1.0 / 8000 };

/// The same times as values that know how they are written.
inline constexpr std::array<Shutter, shutterSeconds.size()> shutters = [] {
    std::array<Shutter, shutterSeconds.size()> times;
    for (std::size_t i = 0; i < times.size(); ++i)
        times[i] = Shutter{ shutterSeconds[i] };
    return times;
}();

/// ISO values in thirds of a stop; above 25600 only whole stops.
inline constexpr std::array isos{ 50.0, 64.0, 80.0, 100.0, 125.0, 160.0, 200.0, 250.0, 320.0, 400.0,
    500.0, 640.0, 800.0, 1000.0, 1250.0, 1600.0, 2000.0, 2500.0, 3200.0, 4000.0, 5000.0, 6400.0,
    8000.0, 10000.0, 12800.0, 16000.0, 20000.0, 25600.0, 51200.0, 102400.0 };

/// A hole and a time.
struct Pair {
    double aperture;
    double shutter;

    friend bool operator==(const Pair &, const Pair &) = default;
};

/// The three numbers that decide how bright the picture becomes.
struct Triple {
    double aperture;
    double shutter;
    double iso;
};

/// A lens at an f-number.
struct Lens {
    double focal;
    double aperture;
};

struct DepthOfField {
    double near; ///< nearest sharp distance, mm
    double far;  ///< farthest sharp distance, mm; +infinity from the hyperfocal distance on
};

/// Something that crosses the frame.
struct Motion {
    double speed;    ///< m/s
    double distance; ///< m
};

/// Exposure value log2(N² / t).
/// Source: the APEX system, ANSI PH2.5-1960 (EV = Av + Tv).
[[nodiscard]] double ev(Pair pair);

/// The scene brightness that these settings suit: ev − log2(iso / 100). Same source.
[[nodiscard]] double ev100(Triple triple);

/// Stops over (+) or under (−) the right exposure: sceneEV100 − ev100.
[[nodiscard]] double offset(double sceneEV100, Triple triple);

/// Stops of light lost from one f-number to another, 2·log2(to / from).
[[nodiscard]] double stops(double from, double to);

/// How many times more light `aperture` lets in than `other`: (other / aperture)².
[[nodiscard]] double lightRatio(double aperture, double other);

/// The exact time for the right exposure, N² / 2^(log2(iso / 100) + sceneEV100), in s.
[[nodiscard]] double shutterFor(double sceneEV100, double aperture, double iso);

/// The entry of `shutterSeconds` or `apertures` nearest in stops. A tie keeps the earlier entry;
/// zero, a negative number and NaN give the first.
[[nodiscard]] double nearestShutter(double seconds);
[[nodiscard]] double nearestAperture(double aperture);

/// The index of the entry of `scale` nearest to `value` in stops, by the same rule; 0 in a scale
/// of fewer than two entries.
[[nodiscard]] std::size_t nearestIndex(std::span<const double> scale, double value);

/// The pairs of the same exposure value with the f-numbers of `from`, each with the nearest time
/// of the scale. An f-number whose exact time lies beyond 30.5 s or under 0.1125 ms is left out.
[[nodiscard]] std::vector<Pair> equivalents(
    Pair pair, std::span<const double> from = fullStopApertures);

/// Hyperfocal distance f² / (N·c) + f, mm.
/// Source: S. F. Ray, Applied Photographic Optics, 3rd ed., on depth of field.
[[nodiscard]] double hyperfocal(Lens lens, double coc);

/// Near and far limits of acceptable sharpness for a lens focused at `focus`. Focused at the
/// hyperfocal distance exactly, `far` is already infinite. Same source as hyperfocal().
[[nodiscard]] DepthOfField depthOfField(Lens lens, double coc, double focus);

/// Diameter on the sensor of the blur disc of a point at `object` when the lens is focused at
/// `focus`: f² / ((s − f)·N) · |object − s| / object, mm. 0 for a focus within the focal length
/// and for an object that isn't in front of the lens. Source: as hyperfocal().
[[nodiscard]] double blurDisc(Lens lens, double focus, double object);

/// 2·atan(width / 2f) in degrees: the angle of view across a side, or the diagonal, of `width` mm.
[[nodiscard]] double angleOfView(double focal, double width);

/// Length on the sensor of what a mover's image covers while the shutter is open, mm; 0 for a
/// distance that isn't positive.
[[nodiscard]] double motionStreak(double focal, Motion motion, double shutter);

/// The reciprocal rule with the crop factor, 1 / (crop · focal), in s.
[[nodiscard]] double slowestHandheld(double focal, const SensorFormat &format);

/// "f/8", "f/1.4".
/// @pre aperture is finite.
[[nodiscard]] QString fLabel(double aperture);

/// A distance of so many mm in meters, with fewer decimals the farther it is: "2.36 m", "12.5 m",
/// "120 m", "infinity".
[[nodiscard]] QString formatDistance(double distance);

/// A signed number of stops with one decimal: "+1.0 stop", "−2.3 stops", "0 stops".
[[nodiscard]] QString formatStops(double count);

} // namespace Exposure
