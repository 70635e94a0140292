// What the Exposure Lab says about a camera's settings.
#pragma once

#include "simulator/simsettings.h"

#include <QString>

#include <vector>

namespace ExposureTexts {

/// Under the picture, as in a viewfinder: "f/4  1/125  ISO 400".
[[nodiscard]] QString caption(const SimSettings &settings);

/// What the meter's reading means: "Correct exposure (meter at zero)." within a third of a stop.
[[nodiscard]] QString verdict(const SimSettings &settings);

/// "Light meter: −1.0 stop".
[[nodiscard]] QString meter(const SimSettings &settings);

/// The picture in words, blur and streak in pixels of a picture of this width: "1.0 stop under,
/// background blur 3.8 pixels, streak 5 pixels".
[[nodiscard]] QString picture(const SimSettings &settings, int width);

/// A line of a panel: what is computed, and what came out.
struct Figure {
    QString title;
    QString value;

    friend bool operator==(const Figure &, const Figure &) = default;
};

/// "EXPOSURE MATH": the exposure value of the settings, the light that it suits, the light there
/// is, and the difference.
[[nodiscard]] std::vector<Figure> math(const SimSettings &settings);
[[nodiscard]] QString mathNote();

/// "DEPTH OF FIELD & MOTION": what is sharp, how large blur and streak are on the sensor, and the
/// angle of view.
[[nodiscard]] std::vector<Figure> depthAndMotion(const SimSettings &settings);

/// That the camera will shake, if the shutter is open for longer than a hand is steady; else
/// nothing.
[[nodiscard]] QString shakeWarning(const SimSettings &settings);

} // namespace ExposureTexts
