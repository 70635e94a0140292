// What stands beside a lab's continuous slider, and how far a key moves it.
#pragma once

#include <QString>

namespace SliderReading {

/// "3.0 m", "30 m": one decimal below 10, none from there on.
[[nodiscard]] QString text(double value, const QString &unit);

/// `value` so many steps on, each a unit of the last digit that text() shows: from 9.8 by 0.1, from
/// 10 by 1. It starts from what is shown, so that every step shows the next figure.
[[nodiscard]] double moved(double value, int steps);

} // namespace SliderReading
