// What the light meter's needle says.
#pragma once

/// How far from the right exposure a picture is.
enum class MeterReading {
    Correct,        ///< within a third of a stop
    Off,            ///< on the scale, which ends three stops from its middle
    BeyondTheScale, ///< the needle stays at the end
};

/// The reading at `offset` stops over (+) or under (−). An offset of 0.34, a rounded third, is
/// already Off; one of 3 isn't beyond the scale yet.
[[nodiscard]] MeterReading meterReading(double offset);

/// Where the needle stands, from −1 at the scale's left end to 1 at its right; 0 for a NaN.
[[nodiscard]] double meterDeflection(double offset);
