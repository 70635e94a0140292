// A painted layer as the renderer works on it.
#pragma once

#include <QImage>
#include <QRect>

#include <hwy/aligned_allocator.h>

namespace Simulator {

/// A layer in linear light with sRGB primaries: one plane of floats a channel, colors premultiplied
/// by alpha, row 0 at the top. Beyond its ends a row goes on with its edge pixel, kMargin floats to
/// each side and up to a whole number of vectors, so that a window over it needs no case for the
/// edges.
class Layer
{
public:
    /// More than the largest blur reaches, and a whole number of vectors.
    static constexpr int kMargin = 128;

    /// @pre image has Format_ARGB32_Premultiplied and isn't empty.
    /// With three channels (R, G, B) the image counts as opaque, with four alpha comes last.
    Layer(const QImage &image, int channels);

    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    [[nodiscard]] int channels() const { return m_channels; }

    /// Floats from one row to the next.
    [[nodiscard]] int stride() const { return m_stride; }

    /// The smallest rectangle outside of which every pixel is transparent.
    [[nodiscard]] QRect bounds() const { return m_bounds; }

    /// The first pixel of a row, aligned for vectors; rows above and below repeat the edge.
    [[nodiscard]] const float *row(int channel, int y) const;

    /// The same; null for a row that is transparent throughout.
    [[nodiscard]] const float *litRow(int channel, int y) const;

private:
    [[nodiscard]] float *writableRow(int channel, int y);

    int m_width;
    int m_height;
    int m_channels;
    int m_stride;
    QRect m_bounds;
    hwy::AlignedFreeUniquePtr<float[]> m_data;
};

} // namespace Simulator
