// Soft shadows and glows, computed on the processor: the software scene graph runs no shaders.
#pragma once

#include "kit/ninepatch.h"

#include <QColor>
#include <QImage>

namespace Painting {

/// Blurs the opacity of a picture and fills it with one color.
///
/// mask     any format; only its alpha channel counts. Leave `radius` pixels of empty margin on
///          all sides, or the blur is cut off there.
/// radius   pixels, at least 0: the reach of the blur. Three passes of a box blur, which come
///          within 3 % of a Gaussian of sigma = radius / 3 + 1/2.
/// Returns  the same size, ARGB32_Premultiplied, with the mask's device pixel ratio.
[[nodiscard]] QImage softBlur(const QImage &mask, double radius, const QColor &color);

/// Makes the shadow of a rounded rectangle of `size`, corners of `cornerRadius`, blurred by
/// `blurRadius`; all in device pixels. The picture holds `blurRadius` of margin on all sides. It is
/// meant to be stretched as a nine-patch along each side that is long enough, so one picture serves
/// all lengths. Pictures are kept, within a bound: asking again soon costs nothing.
[[nodiscard]] NinePatch shadowPatchAsync(
    QSize size, int cornerRadius, int blurRadius, const QColor &color);

} // namespace Painting
