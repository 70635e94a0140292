// Mean over a flat disc: how a defocused lens draws a point of light.
#pragma once

#include "simulator/internal/disckernel.h"
#include "simulator/internal/planes.h"

#include <QRect>

#include <vector>

namespace Simulator {

class Layer;
class Parallel;
class Workspace;

/// A disc of one radius, ready to blur layers with.
///
/// Beyond a layer's edge its edge pixel repeats. Every pixel's arithmetic is the same whatever the
/// vectors' width and the number of threads, so that all machines give the same bytes. A layer of
/// values up to 1 is blurred to within 10⁻⁶ of the exact mean with DiscKernel's weights; a uniform
/// one comes back unchanged to 10⁻⁶.
class DiscBlur
{
public:
    /// @pre 0 < radius ≤ 90 pixels.
    explicit DiscBlur(double radius);

    [[nodiscard]] int reach() const { return m_kernel.reach(); }

    /// Writes all channels of the layer's `area`, blurred, to `out`, whose row begins at the area's
    /// left side. That side is a multiple of 16.
    ///
    /// A small disc is summed pixel by pixel. With a larger one each row is the row above plus the
    /// change at the disc's rim, which grows with its circumference only; large ones are convolved
    /// by way of their Fourier transforms, which costs the same for all of them.
    void apply(const Layer &layer, const QRect &area, const Planes &out, Workspace &workspace,
        const Parallel &parallel) const;

    /// Whether each row is summed for itself, so that rows can be blurred as they are needed.
    [[nodiscard]] bool sumsRowByRow() const;

    /// Writes some rows of the layer, in the same way, on the calling thread.
    ///
    /// @pre sumsRowByRow().
    void applyToRows(const Layer &layer, const QRect &rows, const Planes &out) const;

    /// The columns of the lower half of the disc's rim: by how much the mean over the disc changes
    /// from one row to the next for each difference between a row that the disc gains and the one
    /// that it loses. Weights of the rows from `first` below the center on.
    struct RimColumn {
        int first = 0;
        std::vector<double> weights;
    };

    [[nodiscard]] const std::vector<RimColumn> &rim() const { return m_rim; }
    [[nodiscard]] const DiscKernel &kernel() const { return m_kernel; }

private:
    void applyInBands(
        const Layer &layer, const QRect &area, const Planes &out, const Parallel &parallel) const;
    void applyByTransform(const Layer &layer, const QRect &area, const Planes &out,
        Workspace &workspace, const Parallel &parallel) const;

    DiscKernel m_kernel;
    std::vector<RimColumn> m_rim; // one for each column from the center on
};

} // namespace Simulator
