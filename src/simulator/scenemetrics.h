// What can be measured on a photograph of the scene.
#pragma once

/// Brightness, detail and grain of a picture. Luma is 0.2126 R + 0.7152 G + 0.0722 B of the encoded
/// bytes (the weights of ITU-R BT.709), from 0 to 1.
struct SceneMetrics {
    double meanLuma = 0;         ///< mean over every third pixel of every third row
    double backgroundDetail = 0; ///< mean absolute Laplacian at the string of lights
    double moverDetail = 0;      ///< the same at the cyclist
    double subjectDetail = 0;    ///< the same on the subject's shirt
    double noise = 0;            ///< standard deviation, on the sky, of luma less its 3 × 3 mean

    friend bool operator==(const SceneMetrics &, const SceneMetrics &) = default;
};
