// What a faster lens buys, in numbers.
#pragma once

#include "simulator/simsettings.h"

#include <span>
#include <vector>

/// One f-number of a comparison, beside the slowest one of it.
struct LensLabRow {
    double aperture;       ///< f-number, the row's identity
    double stopsVsSlowest; ///< stops of light gained; 0 for the slowest
    double lightTimes;     ///< times the light; 1 for the slowest
    double shutter;        ///< exact time for the right exposure, s
    double blurMM;         ///< the background's blur disc on the sensor, mm
    double blurFraction;   ///< the same as a fraction of the frame's width
    double dofMM;          ///< depth of field, mm; +infinity from the hyperfocal distance on

    friend bool operator==(const LensLabRow &, const LensLabRow &) = default;
};

namespace LensLab {

/// What all rows of a comparison share.
struct Conditions {
    double focal; ///< mm
    SensorFormat format;
    double subject;    ///< m, the distance in focus
    double background; ///< m
    double sceneEV;    ///< EV at ISO 100
    double iso;
};

/// A row for each f-number, the fastest first whatever the order of `apertures`.
[[nodiscard]] std::vector<LensLabRow> rows(
    std::span<const double> apertures, const Conditions &conditions);

/// The camera of a row's picture: its f-number with the exact time for the right exposure, so that
/// the pictures of a comparison differ in blur and streak alone.
[[nodiscard]] SimSettings settings(const LensLabRow &row, const Conditions &conditions);

} // namespace LensLab
