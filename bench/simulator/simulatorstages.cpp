// The renderer's stages, one line each:
//
//     BENCH <who> <stage> <threads> <median_ms> <min_ms> <repetitions>
//
// <who> is program, or opencv for the same arithmetic in OpenCV. With --digest it prints a hash of
// the picture of each setting instead: builds by different compilers, and runs with different
// processors, must agree.
#include "simulator/exposure.h"
#include "simulator/internal/develop.h"
#include "simulator/internal/discblur.h"
#include "simulator/internal/grain.h"
#include "simulator/internal/layer.h"
#include "simulator/internal/parallel.h"
#include "simulator/internal/srgb.h"
#include "simulator/internal/streak.h"
#include "simulator/internal/workingmemory.h"
#include "simulator/sceneart.h"
#include "simulator/scenerenderer.h"

#include <QCryptographicHash>

#ifdef HV_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

using namespace Simulator;

namespace {

constexpr int kWidth = 720;
constexpr int kHeight = 450;

template <typename Work>
void measure(const char *who, const char *stage, int threads, const Work &work)
{
    using Clock = std::chrono::steady_clock;
    std::vector<double> times;
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(600);
    work(); // warm
    while (times.size() < 7 || (Clock::now() < end && times.size() < 1000)) {
        const Clock::time_point start = Clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    std::ranges::sort(times);
    std::printf("BENCH %s %s %d %.3f %.3f %zu\n", who, stage, threads, times[times.size() / 2],
        times.front(), times.size());
    std::fflush(stdout);
}

// Settings whose blurs come to these many pixels; everything else is rightly exposed.
SimSettings blurred(double backgroundRadius, double moverRadius, double streak)
{
    SimSettings settings;
    settings.subjectDistance = 4;
    settings.backgroundDistance = 4;
    settings.moverDistance = 4;
    settings.moverSpeed = 0;
    const double reference = std::max(backgroundRadius, moverRadius);
    if (reference > 0) {
        const double largest = 2 * reference * 1.25 / kWidth * settings.format.width;
        settings.aperture = 2500 / ((4000 - 50) * largest);
        const auto distance = [&](double radius) {
            return 4 / (1 - 2 * radius / kWidth * settings.format.width / largest);
        };
        settings.backgroundDistance = distance(backgroundRadius);
        settings.moverDistance = distance(moverRadius);
    }
    settings.moverSpeed = streak / kWidth * settings.format.width * settings.moverDistance
        / (settings.focal * settings.shutter);
    settings.sceneEV = Exposure::ev100({ settings.aperture, settings.shutter, settings.iso });
    return settings;
}

struct Full {
    const char *stage;
    SimSettings settings;
};

std::vector<Full> fullStages()
{
    return {
        { "full/default", {} },
        { "full/bg-5", blurred(5, 0, 0) },
        { "full/bg-20", blurred(20, 0, 0) },
        { "full/bg-45", blurred(45, 0, 0) },
        { "full/bg-90", blurred(90, 0, 0) },
        { "full/streak", blurred(0, 0, 0.8 * kWidth) },
        { "full/worst", blurred(90, 90, 0.8 * kWidth) },
    };
}

void printDigests()
{
    const SceneRenderer renderer;
    for (const Full &full : fullStages()) {
        const auto pixels = SceneRenderer::pixels(renderer.render(full.settings));
        const QByteArray hash = QCryptographicHash::hash(
            QByteArrayView(pixels.data.data(), static_cast<qsizetype>(pixels.data.size())),
            QCryptographicHash::Sha256);
        std::printf("%s %s\n", full.stage, hash.toHex().constData());
    }
}

void measureMemory()
{
    std::vector<float> from(std::size_t{ kWidth } * kHeight * 4, 0.5F);
    std::vector<float> to(from.size());
    measure("program", "memcpy", 1, [&] {
        std::memcpy(to.data(), from.data(), from.size() * sizeof(float));
        asm volatile("" : : "r"(to.data()) : "memory");
    });
}

void measureRenders(int threads)
{
    const SceneRenderer renderer(QSize(kWidth, kHeight),
        threads == 1 ? SceneRenderer::Threads::One : SceneRenderer::Threads::AllCores);
    for (const Full &full : fullStages())
        measure("program", full.stage, threads, [&] { (void)renderer.render(full.settings); });
}

void measureSteps(int threads)
{
    const Parallel parallel(threads);
    Workspace workspace;
    const QRect frame(0, 0, kWidth, kHeight);
    const Layer background(SceneArt::background(kWidth, kHeight), 3);
    const Layer subject(SceneArt::subject(kWidth, kHeight), 4);
    constexpr std::ptrdiff_t plane = std::ptrdiff_t{ kWidth } * kHeight;
    const Planes blurredBackground{ workspace.floats(Workspace::Background, 3 * plane), kWidth,
        plane, 0, 0 };
    for (const auto &[stage, radius] : { std::pair{ "disc/1.91", 1.91 }, { "disc/5", 5.0 },
             { "disc/20", 20.0 }, { "disc/45", 45.0 }, { "disc/90", 90.0 } }) {
        measure("program", stage, threads, [&, radius = radius] {
            DiscBlur(radius).apply(background, frame, blurredBackground, workspace, parallel);
        });
    }

    // A whole picture of four channels rather than the cyclist's small part of one.
    const Layer whole(SceneArt::background(kWidth, kHeight), 4);
    const Planes in{ const_cast<float *>(whole.row(0, 0)), whole.stride(),
        std::ptrdiff_t{ whole.stride() } * kHeight, 0, 0 };
    const Planes smeared{ workspace.floats(Workspace::Streak, 4 * plane), kWidth, plane, 0, 0 };
    for (const auto &[stage, half] :
        { std::pair{ "line/2.5", 2.5 }, { "line/30", 30.0 }, { "line/288", 288.0 } }) {
        measure("program", stage, threads, [&, half = half] {
            streak({ in, frame, kWidth }, half, smeared, kWidth, parallel);
        });
    }

    const GrainField grain(kWidth, kHeight);
    QImage picture(kWidth, kHeight, QImage::Format_RGBA8888_Premultiplied);
    const SimSettings first;
    measure("program", "develop", threads, [&] {
        develop({ .background = [&](int, int) { return blurredBackground; },
                    .mover = smeared,
                    .moverArea = frame,
                    .subject = &subject,
                    .gain = 0.5F },
            first.noiseSigma() * 255, grain, picture, parallel);
    });
}

#ifdef HV_HAVE_OPENCV

cv::Mat discKernel(double radius)
{
    const DiscKernel kernel(radius);
    const int reach = kernel.reach();
    cv::Mat weights(2 * reach + 1, 2 * reach + 1, CV_32F);
    for (int y = -reach; y <= reach; ++y) {
        for (int x = -reach; x <= reach; ++x) {
            weights.at<float>(y + reach, x + reach)
                = static_cast<float>(kernel.weight(std::abs(x), std::abs(y)));
        }
    }
    return weights;
}

cv::Mat lineKernel(double halfLength)
{
    const int reach = static_cast<int>(std::ceil(halfLength + 0.5)) - 1;
    cv::Mat weights(1, 2 * reach + 1, CV_32F);
    for (int x = -reach; x <= reach; ++x) {
        weights.at<float>(0, x + reach) = static_cast<float>(
            (std::min(x + 0.5, halfLength) - std::max(x - 0.5, -halfLength)) / (2 * halfLength));
    }
    return weights;
}

cv::Mat layerOf(const Layer &layer)
{
    cv::Mat mat(kHeight, kWidth, CV_MAKETYPE(CV_32F, layer.channels()));
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            for (int channel = 0; channel < layer.channels(); ++channel)
                mat.ptr<float>(y)[x * layer.channels() + channel] = layer.row(channel, y)[x];
        }
    }
    return mat;
}

void blur(const cv::Mat &in, cv::Mat &out, const cv::Mat &kernel)
{
    cv::filter2D(in, out, -1, kernel, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
}

// The whole picture with OpenCV: its filters, then the plain loops for the rest.
class OpenCvRenderer
{
public:
    OpenCvRenderer()
        : m_background(layerOf(Layer(SceneArt::background(kWidth, kHeight), 3)))
        , m_mover(layerOf(Layer(SceneArt::cyclist(kWidth, kHeight), 4)))
        , m_subject(layerOf(Layer(SceneArt::subject(kWidth, kHeight), 4)))
    { }

    void render(const SimSettings &settings)
    {
        const double disc = settings.backgroundBlurFraction() * kWidth;
        if (disc > 0.6)
            blur(m_background, m_blurred, discKernel(std::min(disc / 2, 90.0)));
        else
            m_background.copyTo(m_blurred);
        const double moverDisc = settings.moverDefocusFraction() * kWidth;
        if (moverDisc > 0.6)
            blur(m_mover, m_defocused, discKernel(std::min(moverDisc / 2, 90.0)));
        else
            m_mover.copyTo(m_defocused);
        const double length = std::min(settings.moverStreakFraction() * kWidth, 0.8 * kWidth);
        if (length > 0.8)
            blur(m_defocused, m_smeared, lineKernel(length / 2));
        else
            m_defocused.copyTo(m_smeared);

        const auto gain = static_cast<float>(std::exp2(std::clamp(settings.offset(), -8.0, 8.0)));
        const double sigma = settings.noiseSigma() * 255;
        const auto &table = Srgb::ByteTable::instance();
        GrainGenerator generator;
        m_bytes.resize(std::size_t{ 4 } * kWidth * kHeight);
        unsigned char *out = m_bytes.data();
        for (int y = 0; y < kHeight; ++y) {
            const float *back = m_blurred.ptr<float>(y);
            const float *mover = m_smeared.ptr<float>(y);
            const float *subject = m_subject.ptr<float>(y);
            for (int x = 0; x < kWidth; ++x, back += 3, mover += 4, subject += 4, out += 4) {
                const double brightness = generator.gaussian();
                for (int channel = 0; channel < 3; ++channel) {
                    float value = mover[channel] + (1 - mover[3]) * back[channel];
                    value = subject[channel] + (1 - subject[3]) * value;
                    const int byte = table.byteOf(std::clamp(value * gain, 0.0F, 1.0F));
                    out[channel] = static_cast<unsigned char>(
                        withGrain(byte, brightness, generator.gaussian(), sigma));
                }
                out[3] = 255;
            }
        }
    }

private:
    cv::Mat m_background, m_mover, m_subject;
    cv::Mat m_blurred, m_defocused, m_smeared;
    std::vector<unsigned char> m_bytes;
};

void measureOpenCv()
{
    cv::setNumThreads(2);
    const cv::Mat background = layerOf(Layer(SceneArt::background(kWidth, kHeight), 3));
    cv::Mat out;
    for (const auto &[stage, radius] : { std::pair{ "disc/1.91", 1.91 }, { "disc/5", 5.0 },
             { "disc/20", 20.0 }, { "disc/45", 45.0 }, { "disc/90", 90.0 } }) {
        const cv::Mat kernel = discKernel(radius);
        measure("opencv", stage, 2, [&] { blur(background, out, kernel); });
    }
    OpenCvRenderer renderer;
    for (const Full &full : fullStages())
        measure("opencv", full.stage, 2, [&] { renderer.render(full.settings); });
}

#endif

} // namespace

int main(int argc, char **argv)
{
    if (argc == 2 && std::string_view(argv[1]) == "--digest") {
        printDigests();
        return 0;
    }
    if (argc > 1) {
        std::fprintf(stderr, "Usage: simulatorstages [--digest]\n");
        return 2;
    }
    measureMemory();
    for (const int threads : { 1, 2 }) {
        measureRenders(threads);
        measureSteps(threads);
    }
    measure("program", "construct", 1, [] { (void)SceneRenderer().size(); });
#ifdef HV_HAVE_OPENCV
    measureOpenCv();
#endif
}
