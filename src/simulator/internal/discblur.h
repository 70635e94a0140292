// Mean over a flat disc: how a defocused lens draws a point of light.
#pragma once

#include "simulator/internal/canvas.h"
#include "simulator/internal/disckernel.h"

#include <QRect>

class Layer;
class Parallel;
class Workspace;

/// A disc of one radius, ready to blur layers with.
///
/// Beyond a layer's edge its edge pixel repeats. Every pixel's arithmetic is the same whatever the
/// vectors' width and the number of threads, so that all machines give the same bytes.
class DiscBlur
{
public:
    /// @pre 0 < radius ≤ 90 pixels.
    explicit DiscBlur(double radius);

    [[nodiscard]] int reach() const { return m_kernel.reach(); }

    /// Writes all channels of the layer's `area`, blurred, to `out`, whose row begins at the area's
    /// left side. That side is a multiple of 16.
    ///
    /// A small disc is summed pixel by pixel. A larger one is convolved by way of the layer's
    /// Fourier transform, which costs the same whatever the radius.
    void apply(const Layer &layer, const QRect &area, const Canvas &out, Workspace &workspace,
        const Parallel &parallel) const;

    /// The farthest that discs reach which are summed pixel by pixel, in pixels. For larger ones
    /// the transform takes less time.
    static constexpr int kLongestDirectReach = 9;

    [[nodiscard]] const DiscKernel &kernel() const { return m_kernel; }

private:
    void applyInBands(
        const Layer &layer, const QRect &area, const Canvas &out, const Parallel &parallel) const;
    void applyByTransform(const Layer &layer, const QRect &area, const Canvas &out,
        Workspace &workspace, const Parallel &parallel) const;

    DiscKernel m_kernel;
};
