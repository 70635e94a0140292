// Soft shadows and glows, computed on the processor: the software scene graph runs no shaders.
#pragma once

#include <QColor>
#include <QImage>

#include <future>

namespace Painting {

/// Blurs the opacity of a picture and fills it with one color.
///
/// mask     any format; only its alpha channel counts. Leave `radius` pixels of empty margin on
///          all sides, or the blur is cut off there.
/// radius   pixels, at least 0: the reach of the blur. Three passes of a box blur, which come
///          within 3 % of a Gaussian of sigma = radius / 3 + 1/2.
/// Returns  the same size, ARGB32_Premultiplied, with the mask's device pixel ratio.
[[nodiscard]] QImage softBlur(const QImage &mask, double radius, const QColor &color);

/// A blurred rounded rectangle as a picture with borders that must not be stretched.
struct ShadowPatch {
    QImage image; ///< Device pixels.
    /// Device pixels at the left and at the right that stay as they are; the one column between
    /// them is stretched. 0 if the picture is as wide as it is shown.
    int sideBorder = 0;
    /// The same at the top and at the bottom.
    int endBorder = 0;
};

/// Makes the shadow of a rounded rectangle of `size`, corners of `cornerRadius`, blurred by
/// `blurRadius`; all in device pixels. The picture holds `blurRadius` of margin on all sides. It is
/// meant to be stretched as a nine-patch along each side that is long enough, so one picture serves
/// all lengths. Pictures are kept, within a bound: asking again soon costs nothing.
[[nodiscard]] std::shared_future<ShadowPatch> shadowPatchAsync(
    QSize size, int cornerRadius, int blurRadius, const QColor &color);

} // namespace Painting
