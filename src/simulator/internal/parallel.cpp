#include "simulator/internal/parallel.h"

#include <QSemaphore>
#include <QThreadPool>

#include <algorithm>
#include <atomic>

namespace {

// A pool of its own: the program's global one may be full of renders that wait for these threads.
QThreadPool &pool()
{
    static QThreadPool threads;
    return threads;
}

} // namespace

void Parallel::run(int count, const std::function<void(int)> &work) const
{
    std::atomic<int> next = 0;
    const auto takePieces = [&] {
        for (int i = next++; i < count; i = next++)
            work(i);
    };
    QSemaphore finished;
    int helpers = 0;
    for (const int wanted = std::min(m_threads, count) - 1; helpers < wanted; ++helpers) {
        // A helper that can't start at once would only be waited for.
        const bool started = pool().tryStart([&] {
            takePieces();
            finished.release();
        });
        if (!started)
            break;
    }
    takePieces();
    finished.acquire(helpers);
}
