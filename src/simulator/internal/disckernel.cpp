#include "simulator/internal/disckernel.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Simulator {

namespace {

double square(double x)
{
    return x * x;
}

// The area that the disc shares with the rectangle from its center to (x, y), x and y ≥ 0.
class Quadrant
{
public:
    explicit Quadrant(double radius)
        : m_radius(radius)
    { }

    [[nodiscard]] double area(double x, double y) const
    {
        x = std::min(x, m_radius);
        y = std::min(y, m_radius);
        if (square(x) + square(y) <= square(m_radius))
            return x * y;
        // Up to `turn` the rectangle's upper side is the limit, beyond it the circle.
        const double turn = std::sqrt(square(m_radius) - square(y));
        return turn * y + underCircle(x) - underCircle(turn);
    }

private:
    // The integral of √(r² − t²) from 0 to x.
    [[nodiscard]] double underCircle(double x) const
    {
        return (x * std::sqrt(std::max(square(m_radius) - square(x), 0.0))
                   + square(m_radius) * std::asin(std::min(x / m_radius, 1.0)))
            / 2;
    }

    double m_radius;
};

} // namespace

DiscKernel::DiscKernel(double radius)
    : m_reach(static_cast<int>(std::ceil(radius + 0.5)) - 1)
{
    const int side = m_reach + 1;
    const double disc = std::numbers::pi * square(radius);
    const Quadrant quadrant(radius);
    m_weights.resize(static_cast<std::size_t>(side * side));
    for (int dy = 0; dy < side; ++dy) {
        for (int dx = 0; dx < side; ++dx) {
            double &weight = m_weights[static_cast<std::size_t>(dy * side + dx)];
            const double right = dx + 0.5;
            const double bottom = dy + 0.5;
            if (square(right) + square(bottom) <= square(radius)) {
                weight = 1 / disc;
                continue;
            }
            // The pixels on the axes are halved, or quartered, by the quadrant's border.
            const double left = std::max(dx - 0.5, 0.0);
            const double top = std::max(dy - 0.5, 0.0);
            if (square(left) + square(top) >= square(radius))
                continue;
            const double shared = quadrant.area(right, bottom) - quadrant.area(left, bottom)
                - quadrant.area(right, top) + quadrant.area(left, top);
            weight = std::max(shared, 0.0) * (dx == 0 ? 2 : 1) * (dy == 0 ? 2 : 1) / disc;
        }
    }
}

double DiscKernel::weight(int dx, int dy) const
{
    if (dx > m_reach || dy > m_reach)
        return 0;
    return m_weights[static_cast<std::size_t>(dy * (m_reach + 1) + dx)];
}

} // namespace Simulator
