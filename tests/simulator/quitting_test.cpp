// What becomes of waiting renders when the application ends. A single test, which makes and ends
// the only application of its process.
#include "simulator/internal/renderqueue.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThreadPool>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>

using namespace Simulator;

namespace {

constexpr int kPatience = 5000; // ms

// A task that goes on until those behind it are dropped.
class Burst
{
public:
    void startOn(QThreadPool &queue)
    {
        queue.start([this] {
            m_begun.release();
            m_ended = m_dropped.tryAcquire(1, kPatience);
        });
        const std::shared_ptr<void> untilDropped(nullptr, [this](void *) { m_dropped.release(); });
        for (int i = 0; i < 20; ++i)
            queue.start([this, untilDropped] { ++m_lateTasks; });
        m_begun.acquire();
    }

    [[nodiscard]] bool ended() const { return m_ended; }
    [[nodiscard]] int lateTasks() const { return m_lateTasks; }

private:
    QSemaphore m_begun;
    QSemaphore m_dropped;
    std::atomic<bool> m_ended = false;
    std::atomic<int> m_lateTasks = 0;
};

} // namespace

TEST(Quitting, WaitsForARenderThatHasBegunAndDropsTheOthers)
{
    Burst previews;
    Burst thumbs;
    {
        int argc = 0;
        const QCoreApplication application(argc, nullptr);
        previews.startOn(previewQueue());
        thumbs.startOn(thumbQueue());
    }
    for (const Burst *burst : { &previews, &thumbs }) {
        EXPECT_TRUE(burst->ended());
        EXPECT_EQ(burst->lateTasks(), 0);
    }
}
