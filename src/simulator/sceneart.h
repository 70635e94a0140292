// The scene that the simulated camera photographs, painted by code at any size.
//
// An evening town at the far end of a park, a cyclist who crosses it, and a person in a woven shirt
// who holds a camera. Each piece serves a measurement: the sky is smooth, so that grain can be
// measured on it; the string of lights is fine detail that blur destroys; the cyclist is what
// motion smears; the weave stays crisp only where the focus is.
#pragma once

#include <QImage>

namespace SceneArt {

/// Each layer is width × height pixels, Format_ARGB32_Premultiplied, sRGB, row 0 at the top, the
/// same bytes at every call. Some lengths are pixels whatever the size (windows, bulbs, weave), so
/// another size shows another town.
/// @pre width and height are positive.
[[nodiscard]] QImage background(int width, int height); ///< opaque
[[nodiscard]] QImage cyclist(int width, int height);    ///< on a transparent ground
[[nodiscard]] QImage subject(int width, int height);    ///< on a transparent ground

} // namespace SceneArt
