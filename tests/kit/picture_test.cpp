// Pictures that are painted elsewhere: on the pool's threads, in bands, in points.

#include "kit/picture.h"

#include <QPainter>
#include <QThreadPool>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>

using namespace Painting;

namespace {

QImage painted(QSize pixels, QSize points, const std::function<void(QPainter &)> &paint)
{
    return paintAsync(pixels, points, paint).get();
}

void paintTarget(QPainter &painter)
{
    painter.fillRect(QRectF(10, 10, 80, 30), Qt::red);
    painter.setBrush(Qt::blue);
    painter.drawEllipse(QPointF(50, 50), 30.3, 41.7);
}

// The same picture by one painter on the calling thread.
QImage paintedPlainly(QSize pixels, QSize points)
{
    QImage picture(pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(
        double(pixels.width()) / points.width(), double(pixels.height()) / points.height());
    paintTarget(painter);
    return picture;
}

} // namespace

TEST(StartedPicture, IsWhatOnePainterPaints)
{
    // Low, whole, and in as many bands as the pool has threads.
    for (const QSize size : { QSize(100, 30), QSize(100, 100), QSize(1400, 900) })
        EXPECT_EQ(painted(size, size, paintTarget), paintedPlainly(size, size));
}

TEST(StartedPicture, IsPaintedInPoints)
{
    for (const QSize pixels : { QSize(85, 85), QSize(200, 300), QSize(1500, 1200) })
        EXPECT_EQ(painted(pixels, { 100, 100 }, paintTarget), paintedPlainly(pixels, { 100, 100 }));
}

TEST(StartedPicture, IsTheSameInParts)
{
    const QSize pixels(1500, 1200);
    const QSize points(100, 100);
    const QImage whole = paintedPlainly(pixels, points);
    for (const QRect part : { QRect(0, 0, 1500, 1200), QRect(0, 0, 37, 1200),
             QRect(411, 203, 1089, 700), QRect(1499, 1199, 1, 1) }) {
        EXPECT_EQ(paintPartAsync(pixels, points, part, paintTarget).get(), whole.copy(part))
            << part.width();
    }
}

TEST(StartedPicture, TakesEveryThreadForALargePictureAlone)
{
    std::atomic<int> calls = 0;
    const auto count = [&calls](QPainter &) { ++calls; };
    EXPECT_FALSE(painted({ 300, 300 }, { 300, 300 }, count).isNull());
    EXPECT_EQ(calls.exchange(0), 1);
    EXPECT_FALSE(painted({ 4000, 3000 }, { 4000, 3000 }, count).isNull());
    EXPECT_EQ(calls, threadPool().maxThreadCount());
}

TEST(StartedPicture, IsPaintedByThreadsThatStay)
{
    EXPECT_EQ(&threadPool(), QThreadPool::globalInstance());
    EXPECT_LT(threadPool().expiryTimeout(), 0);
}

TEST(StartedPicture, IsReadyLaterThanItIsAskedFor)
{
    std::promise<void> mayPaint;
    const std::shared_future<QImage> picture
        = paintAsync({ 50, 50 }, { 50, 50 }, [&mayPaint](QPainter &painter) {
              mayPaint.get_future().wait();
              paintTarget(painter);
          });
    EXPECT_EQ(picture.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
    mayPaint.set_value();
    EXPECT_EQ(picture.get(), paintedPlainly({ 50, 50 }, { 50, 50 }));
}

TEST(StartedPicture, StandsBesideWhatIsMadeByOtherMeans)
{
    const std::shared_future<int> answer = runAsync([] { return 42; });
    const std::shared_future<QImage> picture = paintAsync({ 50, 50 }, { 50, 50 }, paintTarget);
    EXPECT_EQ(answer.get(), 42);
    EXPECT_FALSE(picture.get().isNull());
}

TEST(StartedPicture, OfNoPixelsIsNull)
{
    for (const QSize size : { QSize(0, 0), QSize(0, 50), QSize(50, 0), QSize(-3, 5), QSize() }) {
        EXPECT_TRUE(painted(size, { 1, 1 }, [](QPainter &) { ADD_FAILURE(); }).isNull());
    }
}
