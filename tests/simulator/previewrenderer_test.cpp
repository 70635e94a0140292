#include "simulator/previewrenderer.h"

#include "simulator/internal/renderqueue.h"
#include "simulator/lensthumbs.h"
#include "simulator/scenerenderer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Simulator;

namespace {

// Turns the events until the sender signals; false after five seconds.
template <typename Sender, typename Signal>
bool waitFor(const Sender &sender, Signal signal)
{
    QEventLoop loop;
    bool signaled = false;
    QObject::connect(&sender, signal, &loop, [&] {
        signaled = true;
        loop.quit();
    });
    QTimer::singleShot(5000, &loop, &QEventLoop::quit);
    loop.exec();
    return signaled;
}

class Synchronously
{
public:
    Synchronously() { PreviewRenderer::setSynchronous(true); }
    ~Synchronously() { PreviewRenderer::setSynchronous(false); }
    Synchronously(const Synchronously &) = delete;
    Synchronously &operator=(const Synchronously &) = delete;
};

// A queue whose turn never comes while the object lives.
class Blocked
{
public:
    explicit Blocked(QThreadPool &queue)
        : m_queue(queue)
    {
        m_queue.start([this] { m_end.acquire(); });
    }
    ~Blocked()
    {
        m_end.release();
        m_queue.waitForDone();
    }
    Blocked(const Blocked &) = delete;
    Blocked &operator=(const Blocked &) = delete;

private:
    QThreadPool &m_queue;
    QSemaphore m_end;
};

SimSettings bright()
{
    SimSettings settings;
    settings.sceneEV += 2;
    return settings;
}

const SceneRenderer &smallRenderer()
{
    static const SceneRenderer renderer({ 96, 60 });
    return renderer;
}

LensLab::Conditions conditions()
{
    return { 50, SensorFormat::fullFrame(), 2.5, 15, 6, 1600 };
}

void renderThumbsOf(LensThumbs &thumbs, const std::vector<double> &apertures)
{
    thumbs.renderThumbs(LensLab::rows(apertures, conditions()), conditions());
}

} // namespace

TEST(PreviewRenderer, StartsWithoutAPicture)
{
    EXPECT_TRUE(PreviewRenderer().image().isNull());
    EXPECT_FALSE(PreviewRenderer::isSynchronous());
}

TEST(PreviewRenderer, ShowsThePictureOfItsSettings)
{
    PreviewRenderer preview;
    preview.update(bright(), &smallRenderer());
    EXPECT_TRUE(preview.image().isNull()) << "the render must not hold up its caller";
    ASSERT_TRUE(waitFor(preview, &PreviewRenderer::imageChanged));
    EXPECT_EQ(preview.image(), smallRenderer().render(bright()));
}

TEST(PreviewRenderer, ShowsOnlyTheNewestOfTwoRequests)
{
    PreviewRenderer preview;
    int changes = 0;
    QObject::connect(&preview, &PreviewRenderer::imageChanged, [&changes] { ++changes; });
    preview.update({}, &smallRenderer());
    preview.update(bright(), &smallRenderer());
    ASSERT_TRUE(waitFor(preview, &PreviewRenderer::imageChanged));
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(preview.image(), smallRenderer().render(bright()));
}

TEST(PreviewRenderer, ChangesItsPictureOnTheMainThread)
{
    PreviewRenderer preview;
    QThread *thread = nullptr;
    QObject::connect(
        &preview, &PreviewRenderer::imageChanged, [&thread] { thread = QThread::currentThread(); });
    preview.update({}, &smallRenderer());
    ASSERT_TRUE(waitFor(preview, &PreviewRenderer::imageChanged));
    EXPECT_EQ(thread, QCoreApplication::instance()->thread());
}

TEST(PreviewRenderer, MayGoWhileItsWorkWaits)
{
    PreviewRenderer other;
    {
        PreviewRenderer preview;
        for (int i = 0; i < 5; ++i)
            preview.update({}, &smallRenderer());
    }
    other.update(bright(), &smallRenderer());
    EXPECT_TRUE(waitFor(other, &PreviewRenderer::imageChanged));
}

TEST(PreviewRenderer, DoesNotWaitBehindThumbnails)
{
    const Blocked thumbnails(thumbQueue());
    PreviewRenderer preview;
    preview.update({}, &smallRenderer());
    EXPECT_TRUE(waitFor(preview, &PreviewRenderer::imageChanged));
}

TEST(PreviewRenderer, HasThePictureAtOnceWhenSynchronous)
{
    const Synchronously now;
    PreviewRenderer preview;
    preview.update(bright(), &smallRenderer());
    EXPECT_EQ(preview.image(), smallRenderer().render(bright()));
}

TEST(PreviewRenderer, RendersTheLabsPictureByDefault)
{
    const Synchronously now;
    PreviewRenderer preview;
    preview.update({});
    EXPECT_EQ(preview.image().size(), QSize(720, 450));
    EXPECT_EQ(preview.image(), SceneRenderer::shared().render({}));
}

TEST(PreviewQueue, KeepsItsThread)
{
    EXPECT_LT(previewQueue().expiryTimeout(), 0);
    EXPECT_LT(thumbQueue().expiryTimeout(), 0);
}

TEST(PreviewQueue, DoesItsTasksInOrder)
{
    std::vector<int> done;
    std::vector<int> expected;
    for (int i = 0; i < 100; ++i) {
        expected.push_back(i);
        previewQueue().start([&done, i] { done.push_back(i); });
    }
    previewQueue().waitForDone();
    EXPECT_EQ(done, expected);
}

TEST(LensThumbs, AppearAllAtOnce)
{
    LensThumbs thumbs;
    const std::vector<double> apertures{ 1.4, 5.6 };
    const auto rows = LensLab::rows(apertures, conditions());
    thumbs.renderThumbs(rows, conditions());
    EXPECT_TRUE(thumbs.thumbs().isEmpty());
    ASSERT_TRUE(waitFor(thumbs, &LensThumbs::thumbsChanged));
    ASSERT_EQ(thumbs.thumbs().size(), 2);
    for (const LensLabRow &row : rows) {
        EXPECT_EQ(thumbs.thumbs().value(row.aperture),
            LensThumbs::renderer().render(LensLab::settings(row, conditions())));
        EXPECT_EQ(thumbs.thumbs().value(row.aperture).size(), QSize(360, 225));
    }
}

TEST(LensThumbs, ReplaceThoseOfAnEarlierComparison)
{
    LensThumbs thumbs;
    renderThumbsOf(thumbs, { 1.4 });
    ASSERT_TRUE(waitFor(thumbs, &LensThumbs::thumbsChanged));
    renderThumbsOf(thumbs, { 5.6 });
    ASSERT_TRUE(waitFor(thumbs, &LensThumbs::thumbsChanged));
    EXPECT_EQ(thumbs.thumbs().keys(), QList<double>{ 5.6 });
}

TEST(LensThumbs, ShowOnlyTheSetThatWasAskedForLast)
{
    LensThumbs thumbs;
    int changes = 0;
    QObject::connect(&thumbs, &LensThumbs::thumbsChanged, [&changes] { ++changes; });
    // The last set is the quickest: it would be there first if sets overtook each other.
    renderThumbsOf(thumbs, { 1.2, 1.4, 1.8, 2, 2.8, 4 });
    renderThumbsOf(thumbs, { 1.4, 2.8 });
    renderThumbsOf(thumbs, { 5.6 });
    ASSERT_TRUE(waitFor(thumbs, &LensThumbs::thumbsChanged));
    EXPECT_EQ(thumbs.thumbs().keys(), QList<double>{ 5.6 });
    thumbQueue().waitForDone();
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(thumbs.thumbs().keys(), QList<double>{ 5.6 });
}

TEST(LensThumbs, OfTwoComparisonsDoNotDisturbEachOther)
{
    LensThumbs one;
    LensThumbs other;
    renderThumbsOf(one, { 1.4 });
    renderThumbsOf(other, { 5.6 });
    ASSERT_TRUE(waitFor(other, &LensThumbs::thumbsChanged));
    EXPECT_EQ(one.thumbs().keys(), QList<double>{ 1.4 });
    EXPECT_EQ(other.thumbs().keys(), QList<double>{ 5.6 });
}

TEST(LensThumbs, DoNotWaitBehindPreviews)
{
    const Blocked previews(previewQueue());
    LensThumbs thumbs;
    renderThumbsOf(thumbs, { 5.6 });
    EXPECT_TRUE(waitFor(thumbs, &LensThumbs::thumbsChanged));
}

TEST(LensThumbs, MayGoWhileTheirWorkWaits)
{
    LensThumbs other;
    {
        const Blocked thumbnails(thumbQueue());
        LensThumbs thumbs;
        renderThumbsOf(thumbs, { 1.4 });
        renderThumbsOf(other, { 5.6 });
    }
    EXPECT_TRUE(waitFor(other, &LensThumbs::thumbsChanged));
}

TEST(LensThumbs, JoinThoseThatAreThereWhenSynchronous)
{
    const Synchronously now;
    LensThumbs thumbs;
    renderThumbsOf(thumbs, { 1.4 });
    renderThumbsOf(thumbs, { 5.6 });
    EXPECT_EQ(thumbs.thumbs().keys(), (QList<double>{ 1.4, 5.6 }));
}

TEST(LensThumbs, LeaveASetThatWaitsForOneMadeSynchronously)
{
    LensThumbs thumbs;
    {
        const Blocked thumbnails(thumbQueue());
        renderThumbsOf(thumbs, { 1.4 });
        const Synchronously now;
        renderThumbsOf(thumbs, { 5.6 });
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(thumbs.thumbs().keys(), QList<double>{ 5.6 });
}
