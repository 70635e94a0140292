#include "simulator/screens/common/sliderreading.h"

#include "simulator/numbertext.h"

#include <cmath>
#include <cstdlib>

namespace {

constexpr double kFirstWithoutDecimal = 10;

} // namespace

QString SliderReading::text(double value, const QString &unit)
{
    return NumberText::fixed(value, value < kFirstWithoutDecimal ? 1 : 0) + u' ' + unit;
}

double SliderReading::moved(double value, int steps)
{
    const int direction = steps < 0 ? -1 : 1;
    for (int left = std::abs(steps); left > 0; --left) {
        // Down from 10 the next figure is 9.9.
        const bool tenths
            = direction < 0 ? value <= kFirstWithoutDecimal : value < kFirstWithoutDecimal;
        const double perUnit = tenths ? 10 : 1;
        value = (std::round(value * perUnit) + direction) / perUnit;
    }
    return value;
}
