// What the Lens Lab says about the rows of its comparison.
#pragma once

#include "simulator/lenslab.h"

#include <QString>

#include <array>
#include <vector>

namespace LensTexts {

/// "baseline" for a row that gains nothing, else "16.0× more (+4.00 stops)".
[[nodiscard]] QString light(const LensLabRow &row);

/// The time of the scale nearest to what the row needs.
[[nodiscard]] QString shutter(const LensLabRow &row);

/// "14.7 mm · 4.1%": the blur disc on the sensor, and as a share of the frame's width.
[[nodiscard]] QString blur(const LensLabRow &row);

/// "12 cm deep", or "to infinity".
[[nodiscard]] QString depth(const LensLabRow &row);

/// The text below the comparison, in the mark-up of lessons.
[[nodiscard]] QString note();

} // namespace LensTexts

namespace LensChoices {

/// The f-numbers that can be compared.
inline constexpr std::array offered{ 1.2, 1.4, 1.5, 1.8, 2.0, 2.8, 4.0, 5.6 };

/// `chosen` after a click on an f-number: without it if it was there, with it if it wasn't. The
/// last two stay, since one alone is no comparison.
[[nodiscard]] std::vector<double> toggled(std::vector<double> chosen, double aperture);

/// Whether a hand is too unsteady for the time that the row needs.
[[nodiscard]] bool isShaky(const LensLabRow &row, const LensLab::Conditions &conditions);

/// Diameters in points at which the rows' blur discs are drawn: the largest is 34, the others are
/// to its scale, but none is smaller than 3.
[[nodiscard]] std::vector<double> discs(const std::vector<LensLabRow> &rows);

} // namespace LensChoices
