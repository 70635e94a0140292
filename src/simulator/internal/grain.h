// Photographic grain: the noise of the sensor, laid over the finished picture.
#pragma once

#include <hwy/aligned_allocator.h>

#include <array>
#include <cstdint>
#include <vector>

namespace Simulator {

/// The generator of the grain, xorshift with 64 bits of state and the shifts 13, 7 and 17.
/// Source: G. Marsaglia, "Xorshift RNGs", J. Stat. Softw. 8(14), 2003.
class GrainGenerator
{
public:
    static constexpr std::uint64_t kSeed = 0x9E3779B97F4A7C15;

    explicit GrainGenerator(std::uint64_t state = kSeed)
        : m_state(state)
    { }

    [[nodiscard]] std::uint64_t state() const { return m_state; }

    /// An Irwin–Hall sum of four uniforms, scaled to unit deviation: within ±3.46.
    [[nodiscard]] double gaussian();

private:
    [[nodiscard]] double uniform();

    std::uint64_t m_state;
};

/// The grain of every pixel of a picture, the same for each picture: it must not crawl while a
/// slider moves.
class GrainField
{
public:
    /// A pixel's grain: one number for its brightness and one for each of red, green and blue.
    static constexpr int kPlanes = 4;

    GrainField(int width, int height);

    /// A row of one plane, in single precision; aligned for vectors and padded to a whole number of
    /// them.
    [[nodiscard]] const float *row(int plane, int y) const;

    /// The same four numbers of one pixel as they are generated, in double precision.
    [[nodiscard]] std::array<double, kPlanes> exact(int x, int y) const;

private:
    int m_width;
    int m_height;
    int m_stride;
    hwy::AlignedFreeUniquePtr<float[]> m_values;
    std::vector<std::uint64_t> m_states; // of the generator, before each pixel
};

/// A byte with grain, in double precision: round(sigma · color · 0.35 + (sigma · brightness +
/// byte)), halves away from zero, limited to 0 to 255. Sigma counts in steps of a byte.
[[nodiscard]] int withGrain(int byte, double brightness, double color, double sigma);

} // namespace Simulator
