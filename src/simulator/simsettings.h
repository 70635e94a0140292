// What the user has set on the simulated camera, and the scene in front of it.
#pragma once

#include "simulator/scales.h"

/// One state of the simulated camera and its scene. The lens is always focused on the subject, a
/// person in the foreground; the background is the street behind, the mover a cyclist crossing
/// it. A plain value, safe to hand to another thread; equal when every field is equal.
struct SimSettings {
    double aperture = 4.0;  ///< f-number
    double shutter = 0.008; ///< s
    double iso = 400;
    double focal = 50; ///< mm
    SensorFormat format = SensorFormat::fullFrame();
    double sceneEV = 8.0;             ///< EV at ISO 100: a bright office or gym
    double subjectDistance = 3.0;     ///< m
    double backgroundDistance = 30.0; ///< m
    double moverDistance = 8.0;       ///< m
    double moverSpeed = 5.0;          ///< m/s

    /// Stops over (+) or under (−) the right exposure.
    [[nodiscard]] double offset() const;

    /// Blur disc of the background, of the mover, and the mover's streak, as fractions of the
    /// frame's width: what carries over into a picture of any size.
    [[nodiscard]] double backgroundBlurFraction() const;
    [[nodiscard]] double moverDefocusFraction() const;
    [[nodiscard]] double moverStreakFraction() const;

    /// Standard deviation of the grain where full white is 1: 0.006 at ISO 100, √2 times as much
    /// with each doubling of the ISO.
    [[nodiscard]] double noiseSigma() const;

    friend bool operator==(const SimSettings &, const SimSettings &) = default;
};
