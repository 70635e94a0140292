#include "simulator/plainrenderer.h"

#include "simulator/sceneart.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace {

double decoded(double v)
{
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

double encoded(double v)
{
    return v <= 0.0031308 ? v * 12.92 : 1.055 * std::pow(v, 1 / 2.4) - 0.055;
}

PlainRenderer::Picture linear(const QImage &image)
{
    PlainRenderer::Picture picture{ image.width(), image.height(), {} };
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = reinterpret_cast<const QRgb *>(image.constScanLine(y))[x];
            const double alpha = qAlpha(pixel) / 255.0;
            for (const int value : { qRed(pixel), qGreen(pixel), qBlue(pixel) })
                picture.values.push_back(alpha > 0 ? decoded(value / 255.0 / alpha) * alpha : 0.0);
            picture.values.push_back(alpha);
        }
    }
    return picture;
}

// The area under the circle of radius r, above the x-axis and up to height h, from x0 to x1, which
// are at least 0: a rectangle as far as the circle is higher than h, and from there on the circle's
// integral, in closed form.
double areaUnderCircle(double r, double h, double x0, double x1)
{
    const auto height
        = [r, h](double x) { return std::clamp(std::sqrt(std::max(r * r - x * x, 0.0)), 0.0, h); };
    const auto primitive = [r](double x) {
        x = std::clamp(x, -r, r);
        return (x * std::sqrt(r * r - x * x) + r * r * std::asin(x / r)) / 2;
    };
    const double corner = h < r ? std::sqrt(r * r - h * h) : 0;
    const double flatEnd = std::clamp(corner, x0, x1);
    if (height(x0) == 0 && height(x1) == 0)
        return 0;
    return (flatEnd - x0) * h + primitive(x1) - primitive(flatEnd);
}

// The area that a disc around the origin shares with the unit pixel at (dx, dy), both at least 0.
double coverage(double radius, int dx, int dy)
{
    const double left = dx - 0.5;
    const double right = dx + 0.5;
    const auto below = [radius](double x0, double x1, double h) {
        if (h <= 0)
            return 0.0;
        // A pixel of the middle column lies on both sides of the axis.
        if (x0 < 0)
            return areaUnderCircle(radius, h, 0, -x0) + areaUnderCircle(radius, h, 0, x1);
        return areaUnderCircle(radius, h, x0, x1);
    };
    if (dy == 0)
        return 2 * below(left, right, 0.5);
    return below(left, right, dy + 0.5) - below(left, right, dy - 0.5);
}

} // namespace

double PlainRenderer::Picture::at(int x, int y, int channel) const
{
    x = std::clamp(x, 0, width - 1);
    y = std::clamp(y, 0, height - 1);
    return values[(static_cast<std::size_t>(y) * static_cast<std::size_t>(width)
                      + static_cast<std::size_t>(x))
            * 4
        + static_cast<std::size_t>(channel)];
}

PlainRenderer::Picture PlainRenderer::discBlur(const Picture &in, double radius)
{
    const int reach = static_cast<int>(std::ceil(radius));
    const double area = std::numbers::pi * radius * radius;
    // For each row of the disc: how far pixels are covered wholly, and the shares of those beyond.
    struct Row {
        int whole = -1;
        std::vector<double> shares;
    };
    std::vector<Row> rows(static_cast<std::size_t>(reach) + 1);
    for (int dy = 0; dy <= reach; ++dy) {
        Row &row = rows[static_cast<std::size_t>(dy)];
        for (int dx = 0; dx <= reach; ++dx) {
            const double share = coverage(radius, dx, dy);
            if (row.shares.empty() && std::hypot(dx + 0.5, dy + 0.5) <= radius)
                row.whole = dx;
            else
                row.shares.push_back(share);
        }
    }
    Picture out{ in.width, in.height, std::vector<double>(in.values.size()) };
    std::vector<double> sums;
    for (int channel = 0; channel < 4; ++channel) {
        for (int y = 0; y < in.height; ++y) {
            for (int dy = -reach; dy <= reach; ++dy) {
                const Row &row = rows[static_cast<std::size_t>(std::abs(dy))];
                // sums[i] is the sum of the i pixels from −reach − 1 on.
                sums.assign(1, 0);
                for (int x = -reach - 1; x <= in.width + reach; ++x)
                    sums.push_back(sums.back() + in.at(x, y + dy, channel));
                if (sums.back() == 0)
                    continue; // nothing lights this row
                for (int x = 0; x < in.width; ++x) {
                    double sum = 0;
                    if (row.whole >= 0) {
                        const int middle = x + reach + 1;
                        sum = sums[static_cast<std::size_t>(middle + row.whole + 1)]
                            - sums[static_cast<std::size_t>(middle - row.whole)];
                    }
                    for (std::size_t i = 0; i < row.shares.size(); ++i) {
                        const int dx = row.whole + 1 + static_cast<int>(i);
                        if (row.shares[i] == 0)
                            continue;
                        const double pair = dx == 0
                            ? in.at(x, y + dy, channel)
                            : in.at(x - dx, y + dy, channel) + in.at(x + dx, y + dy, channel);
                        sum += row.shares[i] * pair;
                    }
                    out.values[(static_cast<std::size_t>(y * in.width + x)) * 4
                        + static_cast<std::size_t>(channel)]
                        += sum / area;
                }
            }
        }
    }
    return out;
}

PlainRenderer::Picture PlainRenderer::streak(const Picture &in, double halfLength)
{
    Picture out{ in.width, in.height, {} };
    for (int y = 0; y < in.height; ++y) {
        for (int x = 0; x < in.width; ++x) {
            for (int channel = 0; channel < 4; ++channel) {
                double sum = 0;
                const int reach = static_cast<int>(std::ceil(halfLength + 0.5));
                for (int dx = -reach; dx <= reach; ++dx) {
                    const double covered
                        = std::min(dx + 0.5, halfLength) - std::max(dx - 0.5, -halfLength);
                    if (covered > 0)
                        sum += covered * in.at(x + dx, y, channel);
                }
                out.values.push_back(sum / (2 * halfLength));
            }
        }
    }
    return out;
}

PlainRenderer::PlainRenderer(QSize size)
    : m_background(linear(SceneArt::background(size.width(), size.height())))
    , m_mover(linear(SceneArt::cyclist(size.width(), size.height())))
    , m_subject(linear(SceneArt::subject(size.width(), size.height())))
{ }

std::vector<unsigned char> PlainRenderer::renderWithoutGrain(const SimSettings &settings) const
{
    const double width = m_background.width;
    const auto disc = [](const Picture &picture, double diameter) {
        return diameter > 0.6 ? discBlur(picture, std::min(diameter * 0.5, 90.0)) : picture;
    };
    const Picture background = disc(m_background, settings.backgroundBlurFraction() * width);
    Picture mover = disc(m_mover, settings.moverDefocusFraction() * width);
    const double length = std::min(settings.moverStreakFraction() * width, 0.8 * width);
    if (length > 0.8)
        mover = streak(mover, length * 0.5);

    const double gain = std::exp2(std::clamp(settings.offset(), -8.0, 8.0));
    std::vector<unsigned char> bytes;
    bytes.reserve(background.values.size());
    for (std::size_t i = 0; i < background.values.size(); i += 4) {
        for (std::size_t channel = 0; channel < 3; ++channel) {
            double value = background.values[i + channel];
            for (const Picture *layer : { &std::as_const(mover), &m_subject })
                value = layer->values[i + channel] + (1 - layer->values[i + 3]) * value;
            value = encoded(std::clamp(value * gain, 0.0, 1.0));
            bytes.push_back(static_cast<unsigned char>(std::floor(255 * value + 0.5)));
        }
        bytes.push_back(255);
    }
    return bytes;
}

void PlainRenderer::addGrain(std::vector<unsigned char> &bytes, double sigma)
{
    std::uint64_t state = 0x9E3779B97F4A7C15;
    const auto uniform = [&state] {
        state ^= state << 13U;
        state ^= state >> 7U;
        state ^= state << 17U;
        return static_cast<double>(state >> 11U) / 9007199254740992.0;
    };
    const auto gaussian = [&uniform] {
        double sum = 0;
        for (int i = 0; i < 4; ++i)
            sum += uniform();
        return (sum - 2) / 0.57735;
    };
    for (std::size_t i = 0; i < bytes.size(); i += 4) {
        const double brightness = gaussian();
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const double color = gaussian();
            const double value
                = std::round(sigma * color * 0.35 + (sigma * brightness + bytes[i + channel]));
            bytes[i + channel] = static_cast<unsigned char>(std::clamp(value, 0.0, 255.0));
        }
        bytes[i + 3] = 255;
    }
}
