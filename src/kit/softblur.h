// Soft shadows and glows, computed on the processor: the software scene graph runs no shaders.
#pragma once

#include <QColor>
#include <QImage>

/// Blurs the opacity of a picture and fills it with one colour.
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
    /// Device pixels at the left and right, and at the top and bottom. One line between them is
    /// meant to be stretched; 0 if the picture has the shape's own extent in this direction.
    QSize border;
};

/// The shadow of a rounded rectangle of `size`, corners of `cornerRadius`, blurred by
/// `blurRadius`; all in device pixels. The picture holds `blurRadius` of margin on all sides. It is
/// a nine-patch: where the shape is long, the picture is short and serves every greater length.
/// Pictures are kept: asking again costs nothing.
[[nodiscard]] ShadowPatch shadowPatch(
    QSize size, int cornerRadius, int blurRadius, const QColor &color);
