// What the Exposure Lab does for its user.
#pragma once

#include "simulator/simsettings.h"

#include <QString>

namespace ExposureChoices {

/// Aperture priority: the settings with the shutter time of the scale that comes nearest to the
/// right exposure. Beyond the scale's ends it is the end, and the meter shows the rest.
[[nodiscard]] SimSettings withMeteredShutter(SimSettings settings);

/// Shutter priority: the same with the f-number. It is limited to f/1 to f/32 before the scale is
/// asked, so a scene too dark for f/1 gives f/1.
[[nodiscard]] SimSettings withMeteredAperture(SimSettings settings);

/// The id of the first level of light with the settings' brightness; `otherwise` if none has it.
[[nodiscard]] QString lightID(const SimSettings &settings, const QString &otherwise);

} // namespace ExposureChoices
