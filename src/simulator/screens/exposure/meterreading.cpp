#include "simulator/screens/exposure/meterreading.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kThirdOfAStop = 0.34;
constexpr double kEndOfScale = 3;

} // namespace

MeterReading meterReading(double offset)
{
    const double size = std::abs(offset);
    if (size < kThirdOfAStop)
        return MeterReading::Correct;
    return size > kEndOfScale ? MeterReading::BeyondTheScale : MeterReading::Off;
}

double meterDeflection(double offset)
{
    return std::isnan(offset) ? 0 : std::clamp(offset, -kEndOfScale, kEndOfScale) / kEndOfScale;
}
