#include "simulator/lensthumbs.h"
#include "simulator/previewrenderer.h"
#include "simulator/scenerenderer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

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
    const std::vector<double> fast{ 1.4 };
    const std::vector<double> slow{ 5.6 };
    thumbs.renderThumbs(LensLab::rows(fast, conditions()), conditions());
    ASSERT_TRUE(waitFor(thumbs, &LensThumbs::thumbsChanged));
    thumbs.renderThumbs(LensLab::rows(slow, conditions()), conditions());
    ASSERT_TRUE(waitFor(thumbs, &LensThumbs::thumbsChanged));
    EXPECT_EQ(thumbs.thumbs().keys(), QList<double>{ 5.6 });
}

TEST(LensThumbs, JoinThoseThatAreThereWhenSynchronous)
{
    const Synchronously now;
    LensThumbs thumbs;
    const std::vector<double> fast{ 1.4 };
    const std::vector<double> slow{ 5.6 };
    thumbs.renderThumbs(LensLab::rows(fast, conditions()), conditions());
    thumbs.renderThumbs(LensLab::rows(slow, conditions()), conditions());
    EXPECT_EQ(thumbs.thumbs().keys(), (QList<double>{ 1.4, 5.6 }));
}
