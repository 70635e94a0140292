#include "simulator/internal/discblur.h"
#include "simulator/internal/fourier.h"
#include "simulator/internal/layer.h"
#include "simulator/internal/parallel.h"
#include "simulator/internal/streak.h"
#include "simulator/internal/workingmemory.h"

#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <random>
#include <utility>

using namespace Simulator;

namespace {

QImage noiseImage(int width, int height)
{
    std::mt19937 generator(1);
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto random = [&] { return static_cast<int>(generator() % 256); };
            image.setPixel(x, y, qRgb(random(), random(), random()));
        }
    }
    return image;
}

QImage plainImage(int width, int height, QRgb color)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

// A blurred opaque layer, with everything that the blur needs.
class Blurred
{
public:
    Blurred(const Layer &layer, double radius)
        : m_stride((layer.width() + 15) / 16 * 16)
        , m_planes{ m_workspace.floats(Workspace::Background,
                        static_cast<std::size_t>(m_stride * layer.height() * 3)),
            m_stride, std::ptrdiff_t{ m_stride } * layer.height(), 0, 0 }
    {
        DiscBlur(radius).apply(
            layer, QRect(0, 0, layer.width(), layer.height()), m_planes, m_workspace, Parallel(2));
    }

    [[nodiscard]] double at(int channel, int x, int y) const { return m_planes.row(channel, y)[x]; }

private:
    Workspace m_workspace;
    int m_stride;
    Planes m_planes;
};

} // namespace

TEST(DiscKernel, SharesOutTheWholeOfTheLight)
{
    for (const double radius : { 0.3, 0.5, 0.7, 1.0, 1.5, 1.91, 2.5, 5.0, 17.3, 90.0 }) {
        const DiscKernel kernel(radius);
        double sum = 0;
        for (int dy = -kernel.reach(); dy <= kernel.reach(); ++dy) {
            for (int dx = -kernel.reach(); dx <= kernel.reach(); ++dx)
                sum += kernel.weight(std::abs(dx), std::abs(dy));
        }
        EXPECT_NEAR(sum, 1, 1e-10) << radius;
    }
}

TEST(DiscKernel, ChangesNothingWithinAPixel)
{
    for (const double radius : { 0.3, 0.5 }) {
        const DiscKernel kernel(radius);
        EXPECT_EQ(kernel.reach(), 0);
        EXPECT_NEAR(kernel.weight(0, 0), 1, 1e-15);
    }
}

TEST(DiscKernel, WeighsPixelsByTheAreaUnderTheDisc)
{
    constexpr double radius = 3.3;
    constexpr int steps = 200; // to each side of a pixel
    const DiscKernel kernel(radius);
    for (int dy = 0; dy <= kernel.reach() + 1; ++dy) {
        for (int dx = 0; dx <= kernel.reach() + 1; ++dx) {
            int inside = 0;
            for (int j = 0; j < steps; ++j) {
                for (int i = 0; i < steps; ++i) {
                    const double x = dx - 0.5 + (i + 0.5) / steps;
                    const double y = dy - 0.5 + (j + 0.5) / steps;
                    inside += x * x + y * y < radius * radius ? 1 : 0;
                }
            }
            const double share = static_cast<double>(inside) / (steps * steps);
            EXPECT_NEAR(kernel.weight(dx, dy) * std::numbers::pi * radius * radius, share, 1e-3)
                << dx << ' ' << dy;
        }
    }
}

TEST(DiscKernel, IsSymmetric)
{
    const DiscKernel kernel(17.3);
    for (int dy = 0; dy <= kernel.reach(); ++dy) {
        for (int dx = 0; dx <= kernel.reach(); ++dx)
            EXPECT_NEAR(kernel.weight(dx, dy), kernel.weight(dy, dx), 1e-15);
    }
}

class DiscBlurRadius : public testing::TestWithParam<double>
{
};

TEST_P(DiscBlurRadius, LeavesAUniformPictureAsItIs)
{
    const Layer layer(plainImage(200, 120, qRgb(10, 128, 250)), 3);
    const Blurred blurred(layer, GetParam());
    for (int channel = 0; channel < 3; ++channel) {
        for (const int y : { 0, 1, 60, 119 }) {
            for (const int x : { 0, 1, 15, 100, 199 })
                EXPECT_NEAR(blurred.at(channel, x, y), layer.row(channel, y)[x], 1e-6);
        }
    }
}

TEST_P(DiscBlurRadius, IsTheMeanOverTheDisc)
{
    const double radius = GetParam();
    const Layer layer(noiseImage(150, 90), 3);
    const Blurred blurred(layer, radius);
    const DiscKernel kernel(radius);
    // Corners, edges and the middle.
    for (const int y : { 0, 7, 45, 89 }) {
        for (const int x : { 0, 3, 16, 75, 149 }) {
            for (int channel = 0; channel < 3; ++channel) {
                double mean = 0;
                for (int dy = -kernel.reach(); dy <= kernel.reach(); ++dy) {
                    for (int dx = -kernel.reach(); dx <= kernel.reach(); ++dx) {
                        mean += kernel.weight(std::abs(dx), std::abs(dy))
                            * layer.row(channel, y + dy)[std::clamp(x + dx, 0, 149)];
                    }
                }
                EXPECT_NEAR(blurred.at(channel, x, y), mean, 1e-6) << x << ' ' << y;
            }
        }
    }
}

// Both sides of each change from one way of summing to another.
INSTANTIATE_TEST_SUITE_P(Radii, DiscBlurRadius,
    testing::Values(0.3, 0.5, 0.8, 1.4, 1.6, 2.49, 2.51, 3.49, 3.51, 5.0, 10.0, 16.49, 16.51, 45.0,
        89.9, 90.0));

TEST(Streak, CountsTheLinesEndsAsFarAsItCoversThem)
{
    // One bright pixel in a row of sixteen.
    std::array<float, 64> in{};
    in[8] = 1;
    alignas(64) std::array<float, 64> out{};
    const Planes source{ in.data(), 16, 16, 0, 0 };
    const Planes target{ out.data(), 16, 16, 0, 0 };
    streak({ source, QRect(0, 0, 16, 1), 16 }, 1.75, target, 16, Parallel(1));
    const std::vector<double> expected{ 0, 0.25, 1, 1, 1, 0.25, 0 };
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(out[5 + i], expected[i] / 3.5, 1e-7) << i;
}

TEST(Streak, ChangesNothingWithinAPixel)
{
    std::array<float, 64> in{};
    in[3] = 0.7F;
    alignas(64) std::array<float, 64> out{};
    const Planes source{ in.data(), 16, 16, 0, 0 };
    const Planes target{ out.data(), 16, 16, 0, 0 };
    for (const double halfLength : { 0.4, 0.5 }) {
        streak({ source, QRect(0, 0, 16, 1), 16 }, halfLength, target, 16, Parallel(1));
        EXPECT_EQ(out, in);
    }
}

TEST(Streak, RepeatsThePixelsAtTheFramesEdges)
{
    std::array<float, 64> in{};
    in.fill(0.25F);
    alignas(64) std::array<float, 64> out{};
    const Planes source{ in.data(), 16, 16, 0, 0 };
    const Planes target{ out.data(), 16, 16, 0, 0 };
    streak({ source, QRect(0, 0, 16, 1), 16 }, 300, target, 16, Parallel(1));
    for (int x = 0; x < 16; ++x)
        EXPECT_NEAR(out[static_cast<std::size_t>(x)], 0.25, 1e-7);
}

TEST(FourierPlan, FindsLengthsOfTwosThreesAndFives)
{
    EXPECT_EQ(FourierPlan::lengthFor(1), 1);
    EXPECT_EQ(FourierPlan::lengthFor(7), 8);
    EXPECT_EQ(FourierPlan::lengthFor(900), 900);
    EXPECT_EQ(FourierPlan::lengthFor(901), 960);
    EXPECT_EQ(FourierPlan::lengthFor(217), 225);
}

TEST(FourierConvolution, ConvolvesPicturesOfAnySize)
{
    // Tori of each radix, alone and after others, lengths of one and lengths within a block, and
    // some that are longer than they need be.
    for (const QSize size : { QSize(1, 1), QSize(2, 3), QSize(4, 5), QSize(6, 8), QSize(9, 10),
             QSize(16, 18), QSize(30, 32), QSize(45, 64), QSize(81, 100), QSize(120, 75),
             QSize(36, 250), QSize(37, 49), QSize(71, 33) }) {
        const int reach = std::min({ 2, (size.width() - 1) / 2, (size.height() - 1) / 2 });
        const int width = size.width() - 2 * reach;
        const int height = size.height() - 2 * reach;
        const FourierConvolution convolution(width, height, reach);
        std::mt19937 generator(3);
        std::uniform_real_distribution<float> random(0, 1);

        // Rows with their edges and the floats that may be read behind them.
        const int stride = size.width() + FourierConvolution::kBlock;
        std::array<std::vector<float>, 2> planes;
        for (std::vector<float> &plane : planes) {
            plane.resize(static_cast<std::size_t>(stride * height));
            std::ranges::generate(plane, [&] { return random(generator); });
        }
        const int dark = height / 2; // of the first plane
        std::fill_n(planes[0].begin() + std::ptrdiff_t{ dark } * stride, stride, 0.0F);
        const auto kernel = [reach](int dx, int dy) {
            return dx <= reach && dy <= reach ? 1.0F / static_cast<float>(1 + dx + 2 * dy) : 0.0F;
        };

        Workspace workspace;
        float *spectrum = workspace.floats(Workspace::Spectrum, convolution.spectrumSize());
        float *transformed = workspace.floats(Workspace::KernelSpectrum, convolution.kernelSize());
        std::generate_n(spectrum, convolution.spectrumSize(), [&] { return random(generator); });
        const Parallel parallel(2);
        convolution.transformKernel(kernel, transformed, parallel);
        // The pair, and once more with its planes exchanged.
        const auto planeOf
            = [](int plane) { return static_cast<std::size_t>(plane < 2 ? plane : 3 - plane); };
        std::array<std::vector<float>, 4> out;
        for (std::vector<float> &plane : out)
            plane.resize(static_cast<std::size_t>(width * height));
        convolution.convolve(
            2,
            [&](int plane, int y) {
                return planeOf(plane) == 0 && y == dark
                    ? nullptr
                    : planes[planeOf(plane)].data() + std::ptrdiff_t{ y } * stride;
            },
            [&](int plane, int y) {
                return out[static_cast<std::size_t>(plane)].data() + std::ptrdiff_t{ y } * width;
            },
            spectrum, transformed, parallel);

        double squares = 0;
        for (const std::vector<float> &plane : planes) {
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < size.width(); ++x)
                    squares += std::pow(plane[static_cast<std::size_t>(y * stride + x)], 2);
            }
        }
        double weight = 0;
        for (int dy = -reach; dy <= reach; ++dy) {
            for (int dx = -reach; dx <= reach; ++dx)
                weight += double{ kernel(std::abs(dx), std::abs(dy)) };
        }
        const double bound = 1e-6 * weight * std::sqrt(squares / (size.width() * height));

        for (int plane = 0; plane < 4; ++plane) {
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) {
                    double expected = 0;
                    for (int dy = -reach; dy <= reach; ++dy) {
                        const int from = std::clamp(y + dy, 0, height - 1) * stride + x + reach;
                        for (int dx = -reach; dx <= reach; ++dx) {
                            expected += double{ kernel(std::abs(dx), std::abs(dy)) }
                                * double{
                                      planes[planeOf(plane)][static_cast<std::size_t>(from + dx)]
                                  };
                        }
                    }
                    ASSERT_NEAR(out[static_cast<std::size_t>(plane)]
                                   [static_cast<std::size_t>(y * width + x)],
                        expected, bound)
                        << size.width() << 'x' << size.height() << ", plane " << plane;
                }
            }
        }
    }
}
