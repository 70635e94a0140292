#include "simulator/scenemetrics.h"

#include "simulator/scenerenderer.h"

#include <algorithm>
#include <cmath>

namespace {

// Inclusive pixel bounds.
struct Bounds {
    int x0, y0, x1, y1;
};

class Luma
{
public:
    explicit Luma(const QImage &image)
        : m_pixels(SceneRenderer::pixels(image))
    { }

    [[nodiscard]] int width() const { return m_pixels.w; }
    [[nodiscard]] int height() const { return m_pixels.h; }

    [[nodiscard]] double at(int x, int y) const
    {
        const auto i = (static_cast<std::size_t>(y) * static_cast<std::size_t>(m_pixels.w)
                           + static_cast<std::size_t>(x))
            * 4;
        return (0.2126 * m_pixels.data[i] + 0.7152 * m_pixels.data[i + 1]
                   + 0.0722 * m_pixels.data[i + 2])
            / 255;
    }

    // The pixels of a region, one away from the picture's edges so that each has its neighbors.
    [[nodiscard]] Bounds bounds(const QRectF &region) const
    {
        const auto pixel
            = [](double fraction, int size) { return static_cast<int>(fraction * size); };
        const Bounds bounds{
            .x0 = std::max(pixel(region.x(), width()), 1),
            .y0 = std::max(pixel(region.y(), height()), 1),
            .x1 = std::min(width() - 2, pixel(region.x() + region.width(), width())),
            .y1 = std::min(height() - 2, pixel(region.y() + region.height(), height())),
        };
        Q_ASSERT(bounds.x1 >= bounds.x0 && bounds.y1 >= bounds.y0);
        return bounds;
    }

private:
    SceneRenderer::Pixels m_pixels;
};

template <typename Visit>
void forEachPixel(const Bounds &bounds, const Visit &visit)
{
    for (int y = bounds.y0; y <= bounds.y1; ++y) {
        for (int x = bounds.x0; x <= bounds.x1; ++x)
            visit(x, y);
    }
}

double meanLuma(const Luma &luma)
{
    double sum = 0;
    for (int y = 0; y < luma.height(); y += 3) {
        for (int x = 0; x < luma.width(); x += 3)
            sum += luma.at(x, y);
    }
    return sum / ((luma.height() + 2) / 3 * ((luma.width() + 2) / 3));
}

double detail(const Luma &luma, const QRectF &region)
{
    double sum = 0;
    int count = 0;
    forEachPixel(luma.bounds(region), [&](int x, int y) {
        sum += std::abs(4 * luma.at(x, y) - luma.at(x - 1, y) - luma.at(x + 1, y)
            - luma.at(x, y - 1) - luma.at(x, y + 1));
        ++count;
    });
    return count > 0 ? sum / count : 0;
}

// The mean of the surroundings is taken off each pixel, which leaves the grain and not the sky's
// gradient.
double noise(const Luma &luma)
{
    double sum = 0;
    double sumOfSquares = 0;
    int count = 0;
    forEachPixel(luma.bounds(SceneRenderer::skyRegion), [&](int x, int y) {
        double around = 0;
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx)
                around += luma.at(x + dx, y + dy);
        }
        const double difference = luma.at(x, y) - around / 9;
        sum += difference;
        sumOfSquares += difference * difference;
        ++count;
    });
    const double mean = sum / count;
    // Rounding may leave a tiny negative variance.
    return std::sqrt(std::max(sumOfSquares / count - mean * mean, 0.0));
}

} // namespace

SceneMetrics SceneRenderer::metrics(const QImage &image)
{
    const Luma luma(image);
    return {
        .meanLuma = meanLuma(luma),
        .backgroundDetail = detail(luma, lightsRegion),
        .moverDetail = detail(luma, moverRegion),
        .subjectDetail = detail(luma, subjectRegion),
        .noise = noise(luma),
    };
}
