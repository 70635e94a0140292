#include "simulator/internal/layer.h"

#include "simulator/internal/planes.h"
#include "simulator/internal/srgb.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Simulator {

namespace {

QRect opaqueBounds(const QImage &image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        const auto visible = [](QRgb pixel) { return qAlpha(pixel) != 0; };
        const auto *first = std::find_if(row, row + image.width(), visible);
        if (first == row + image.width())
            continue;
        const auto *end = row + image.width();
        while (!visible(end[-1]))
            --end;
        bounds |= QRect(static_cast<int>(first - row), y, static_cast<int>(end - first), 1);
    }
    return bounds;
}

// A premultiplied channel in linear light, premultiplied again.
double linearPremultiplied(int value, int alpha)
{
    static const std::array<double, 256> opaque = [] {
        std::array<double, 256> table;
        for (std::size_t i = 0; i < table.size(); ++i)
            table[i] = Srgb::decoded(static_cast<double>(i) / 255);
        return table;
    }();
    if (alpha == 255)
        return opaque[static_cast<std::size_t>(value)];
    if (alpha == 0)
        return 0;
    const double share = alpha / 255.0;
    return Srgb::decoded(value / 255.0 / share) * share;
}

} // namespace

Layer::Layer(const QImage &image, int channels)
    : m_width(image.width())
    , m_height(image.height())
    , m_channels(channels)
    , m_stride(wholeVectors(m_width) + 2 * kMargin)
    , m_bounds(channels == 4 ? opaqueBounds(image) : image.rect())
    , m_data(hwy::AllocateAligned<float>(
          static_cast<std::size_t>(m_stride) * static_cast<std::size_t>(m_height * channels)))
{
    Q_ASSERT(image.format() == QImage::Format_ARGB32_Premultiplied && !image.isNull());
    if (!m_data)
        qBadAlloc();
    for (int y = 0; y < m_height; ++y) {
        const auto *source = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int channel = 0; channel < m_channels; ++channel) {
            float *row = writableRow(channel, y);
            for (int x = 0; x < m_width; ++x) {
                const QRgb pixel = source[x];
                const std::array values{ qRed(pixel), qGreen(pixel), qBlue(pixel) };
                row[x] = static_cast<float>(channel == 3
                        ? qAlpha(pixel) / 255.0
                        : linearPremultiplied(
                            values[static_cast<std::size_t>(channel)], qAlpha(pixel)));
            }
            std::fill(row - kMargin, row, row[0]);
            std::fill(row + m_width, row + m_stride - kMargin, row[m_width - 1]);
        }
    }
}

const float *Layer::row(int channel, int y) const
{
    const std::ptrdiff_t index = channel * m_height + std::clamp(y, 0, m_height - 1);
    return m_data.get() + index * m_stride + kMargin;
}

const float *Layer::litRow(int channel, int y) const
{
    y = std::clamp(y, 0, m_height - 1);
    return y >= m_bounds.top() && y <= m_bounds.bottom() ? row(channel, y) : nullptr;
}

float *Layer::writableRow(int channel, int y)
{
    return const_cast<float *>(std::as_const(*this).row(channel, y));
}

} // namespace Simulator
