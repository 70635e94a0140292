#include "simulator/internal/helperteam.h"

#include <algorithm>
#include <atomic>
#include <exception>

namespace Simulator {

// A job's pieces are taken one after the other by whoever is free.
struct HelperTeam::Job {
    const std::function<void(int)> &work;
    int count;
    std::atomic<int> next = 0;
    int helpers = 0;            // at work on it; guarded by the team's mutex
    std::exception_ptr failure; // the first; guarded by the team's mutex

    void takePieces(std::mutex &guard) noexcept
    {
        try {
            for (int i = next++; i < count; i = next++)
                work(i);
        } catch (...) {
            next = count;
            const std::lock_guard lock(guard);
            if (!failure)
                failure = std::current_exception();
        }
    }
};

HelperTeam::HelperTeam(int size, const StartThread &start)
{
    try {
        m_threads.reserve(static_cast<std::size_t>(std::max(size, 0)));
        for (int i = 0; i < size; ++i)
            m_threads.push_back(start([this] { help(); }));
    } catch (const std::exception &) {
        // Whoever calls for help does the work with those that are there, or alone.
    }
}

HelperTeam::~HelperTeam()
{
    {
        const std::lock_guard lock(m_guard);
        m_ended = true;
    }
    m_called.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
}

void HelperTeam::run(int count, const std::function<void(int)> &work, int helpers)
{
    Job job{ .work = work, .count = count };
    const std::size_t calls = std::min(static_cast<std::size_t>(std::max(helpers, 0)), size());
    {
        const std::lock_guard lock(m_guard);
        m_calls.insert(m_calls.end(), calls, &job);
    }
    for (std::size_t i = 0; i < calls; ++i)
        m_called.notify_one();
    job.takePieces(m_guard);

    // The job must outlive its helpers, whatever became of the caller's own pieces.
    std::unique_lock lock(m_guard);
    std::erase(m_calls, &job); // nobody came, and there is nothing left to do
    m_left.wait(lock, [&job] { return job.helpers == 0; });
    if (job.failure)
        std::rethrow_exception(job.failure);
}

std::thread HelperTeam::startThread(const std::function<void()> &body)
{
    return std::thread(body);
}

void HelperTeam::help()
{
    std::unique_lock lock(m_guard);
    for (;;) {
        m_called.wait(lock, [this] { return m_ended || !m_calls.empty(); });
        if (m_calls.empty())
            return;
        Job &job = *m_calls.front();
        m_calls.pop_front();
        ++job.helpers;
        lock.unlock();
        job.takePieces(m_guard);
        lock.lock();
        if (--job.helpers == 0)
            m_left.notify_all();
    }
}

} // namespace Simulator
