#include "simulator/scenerenderer.h"

#include "simulator/internal/develop.h"
#include "simulator/internal/discblur.h"
#include "simulator/internal/grain.h"
#include "simulator/internal/layer.h"
#include "simulator/internal/parallel.h"
#include "simulator/internal/planes.h"
#include "simulator/internal/streak.h"
#include "simulator/internal/workingmemory.h"
#include "simulator/sceneart.h"

#include <QColorSpace>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <mutex>

using namespace Simulator;

namespace {

// Blurs below these sizes can't be seen, and are left out.
constexpr double kLeastDisc = 0.6;   // diameter in pixels
constexpr double kLeastStreak = 0.8; // length in pixels

constexpr double kLargestDiscRadius = 90; // pixels
constexpr double kLongestStreak = 0.8;    // of the frame's width
constexpr double kLargestOffset = 8;      // stops

// Grain this strong leaves only black and white; more would leave the range of the arithmetic.
constexpr double kLargestSigma = 1e6;

// What the settings come to for a picture of some width, in pixels; 0 where nothing is blurred.
struct Blurs {
    double backgroundRadius;
    double moverRadius;
    double moverHalfStreak;

    Blurs(const SimSettings &settings, int width)
        : backgroundRadius(radius(settings.backgroundBlurFraction() * width))
        , moverRadius(radius(settings.moverDefocusFraction() * width))
        , moverHalfStreak(
              halfStreak(std::min(settings.moverStreakFraction() * width, kLongestStreak * width)))
    { }

private:
    static double radius(double diameter)
    {
        return diameter > kLeastDisc ? std::min(diameter * 0.5, kLargestDiscRadius) : 0;
    }

    static double halfStreak(double length) { return length > kLeastStreak ? length * 0.5 : 0; }
};

float gain(const SimSettings &settings)
{
    const double offset = std::clamp(settings.offset(), -kLargestOffset, kLargestOffset);
    return static_cast<float>(std::exp2(offset));
}

// The part of the frame that lies within so many columns and rows of an area, in whole vectors; the
// last one may pass the frame's right edge.
QRect widened(const QRect &area, int columns, int rows, QSize frame)
{
    QRect wide = area.adjusted(-columns, -rows, columns, rows) & QRect({}, frame);
    if (wide.isEmpty())
        return {};
    wide.setLeft(vectorOf(wide.left()));
    wide.setRight(wholeVectors(wide.right() + 1) - 1);
    return wide;
}

} // namespace

class SceneRenderer::Private
{
public:
    Private(QSize frame, Threads threads)
        : size(frame)
        , parallel(threads == Threads::One ? 1 : QThread::idealThreadCount())
        , background(SceneArt::background(frame.width(), frame.height()), 3)
        , mover(SceneArt::cyclist(frame.width(), frame.height()), 4)
        , subject(SceneArt::subject(frame.width(), frame.height()), 4)
        , grain(frame.width(), frame.height())
    { }

    // Renders that run at once each have a workspace; one is kept for the next.
    std::unique_ptr<Workspace> takeWorkspace()
    {
        const std::lock_guard lock(m_workspaceGuard);
        return m_workspace ? std::move(m_workspace) : std::make_unique<Workspace>();
    }

    void giveBack(std::unique_ptr<Workspace> workspace)
    {
        const std::lock_guard lock(m_workspaceGuard);
        m_workspace = std::move(workspace);
    }

    const QSize size;
    const Parallel parallel;
    const Layer background;
    const Layer mover;
    const Layer subject;
    const GrainField grain;

private:
    std::mutex m_workspaceGuard;
    std::unique_ptr<Workspace> m_workspace;
};

namespace {

// A layer as it stands, without a copy.
Planes asItStands(const Layer &layer)
{
    return { .data = const_cast<float *>(layer.row(0, 0)),
        .stride = layer.stride(),
        .plane = std::ptrdiff_t{ layer.stride() } * layer.height(),
        .left = 0,
        .top = 0 };
}

// `memory` gives so many floats.
template <typename Memory>
Planes planesFor(const QRect &area, int channels, const Memory &memory)
{
    const int stride = wholeVectors(area.width());
    const std::ptrdiff_t plane = std::ptrdiff_t{ stride } * area.height();
    return { .data = memory(plane * channels),
        .stride = stride,
        .plane = plane,
        .left = area.left(),
        .top = area.top() };
}

Planes planesFor(const QRect &area, int channels, Workspace::Use use, Workspace &workspace)
{
    return planesFor(area, channels, [&](std::ptrdiff_t count) {
        return workspace.floats(use, static_cast<std::size_t>(count));
    });
}

// Of the calling thread, until it asks for the next one.
Planes passingPlanesFor(const QRect &area, int channels)
{
    return planesFor(area, channels, [](std::ptrdiff_t count) {
        return Scratch::floats(Scratch::Band, static_cast<int>(count));
    });
}

} // namespace

SceneRenderer::SceneRenderer(QSize size, Threads threads)
    : d(std::make_unique<Private>(size, threads))
{ }

SceneRenderer::~SceneRenderer() = default;

const SceneRenderer &SceneRenderer::shared()
{
    static const SceneRenderer renderer;
    return renderer;
}

QSize SceneRenderer::size() const
{
    return d->size;
}

QImage SceneRenderer::render(const SimSettings &settings) const
{
    return picture(settings, std::min(settings.noiseSigma() * 255, kLargestSigma));
}

QImage SceneRenderer::renderWithoutGrain(const SimSettings &settings) const
{
    return picture(settings, 0);
}

QImage SceneRenderer::picture(const SimSettings &settings, double sigma) const
{
    QImage picture(d->size, QImage::Format_RGBA8888_Premultiplied);
    if (picture.isNull())
        return picture;
    picture.setColorSpace(QColorSpace::SRgb);

    const Blurs blurs(settings, d->size.width());
    std::unique_ptr<Workspace> workspace = d->takeWorkspace();
    const QRect frame({}, d->size);

    // Where the disc allows it, rows of the background are blurred just before they are developed,
    // so that they don't leave the processor's cache in between.
    const DiscBlur backgroundDisc(std::max(blurs.backgroundRadius, kLeastDisc / 2));
    std::function<Planes(int, int)> background;
    if (blurs.backgroundRadius == 0) {
        background = [this](int, int) { return asItStands(d->background); };
    } else if (backgroundDisc.sumsRowByRow()) {
        background = [&](int top, int bottom) {
            const QRect rows(0, top, d->size.width(), bottom - top);
            const Planes planes = passingPlanesFor(rows, 3);
            backgroundDisc.applyToRows(d->background, rows, planes);
            return planes;
        };
    } else {
        const Planes planes = planesFor(frame, 3, Workspace::Background, *workspace);
        backgroundDisc.apply(d->background, frame, planes, *workspace, d->parallel);
        background = [planes](int, int) { return planes; };
    }

    // The cyclist fills a small part of the frame; only what light of it may reach is computed.
    Planes mover = asItStands(d->mover);
    QRect area = widened(d->mover.bounds(), 0, 0, d->size);
    if (blurs.moverRadius > 0 && !area.isEmpty()) {
        const DiscBlur disc(blurs.moverRadius);
        area = widened(area, disc.reach(), disc.reach(), d->size);
        mover = planesFor(area, 4, Workspace::Mover, *workspace);
        disc.apply(d->mover, area, mover, *workspace, d->parallel);
    }
    if (blurs.moverHalfStreak > 0 && !area.isEmpty()) {
        const StreakSource source{ mover, area, d->size.width() };
        area = widened(area, static_cast<int>(std::ceil(blurs.moverHalfStreak)), 0, d->size);
        mover = planesFor(area, 4, Workspace::Streak, *workspace);
        streak(source, blurs.moverHalfStreak, mover, area.right() + 1, d->parallel);
    }

    develop({ .background = background,
                .mover = mover,
                .moverArea = area,
                .subject = &d->subject,
                .gain = gain(settings) },
        sigma, d->grain, picture, d->parallel);
    d->giveBack(std::move(workspace));
    return picture;
}

SceneRenderer::Pixels SceneRenderer::pixels(const QImage &image)
{
    const QImage bytes = image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    Pixels pixels{ .data = {}, .w = bytes.width(), .h = bytes.height() };
    const auto rowLength = static_cast<std::size_t>(bytes.width()) * 4;
    pixels.data.reserve(rowLength * static_cast<std::size_t>(bytes.height()));
    for (int y = 0; y < bytes.height(); ++y) {
        const uchar *row = bytes.constScanLine(y);
        pixels.data.insert(pixels.data.end(), row, row + rowLength);
    }
    return pixels;
}
