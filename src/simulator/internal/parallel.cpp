#include "simulator/internal/parallel.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace {

// A job's pieces are taken one after the other by whoever is free.
struct Job {
    const std::function<void(int)> &work;
    int count;
    std::atomic<int> next = 0;
    int helpers = 0; // at work on it; guarded by the team's mutex

    void takePieces()
    {
        for (int i = next++; i < count; i = next++)
            work(i);
    }
};

// The threads beside the calling ones, one less than there are cores. They are of the standard
// library, and not the application's pool: that one may be full of renders which wait for these.
class Team
{
public:
    Team()
    {
        const unsigned cores = std::max(std::thread::hardware_concurrency(), 1U);
        for (unsigned i = 1; i < cores; ++i)
            m_threads.emplace_back([this](const std::stop_token &stop) { help(stop); });
    }

    void run(Job &job, int helpers)
    {
        {
            const std::lock_guard lock(m_guard);
            m_calls.insert(m_calls.end(), static_cast<std::size_t>(helpers), &job);
        }
        for (int i = 0; i < helpers; ++i)
            m_called.notify_one();
        job.takePieces();
        std::unique_lock lock(m_guard);
        std::erase(m_calls, &job); // nobody came, and there is nothing left to do
        m_left.wait(lock, [&job] { return job.helpers == 0; });
    }

private:
    void help(const std::stop_token &stop)
    {
        std::unique_lock lock(m_guard);
        while (m_called.wait(lock, stop, [this] { return !m_calls.empty(); })) {
            Job &job = *m_calls.front();
            m_calls.pop_front();
            ++job.helpers;
            lock.unlock();
            job.takePieces();
            lock.lock();
            if (--job.helpers == 0)
                m_left.notify_all();
        }
    }

    std::mutex m_guard;
    std::condition_variable_any m_called;
    std::condition_variable m_left;
    std::deque<Job *> m_calls;
    std::vector<std::jthread> m_threads; // last: they use all the others
};

} // namespace

void Parallel::run(int count, const std::function<void(int)> &work) const
{
    Job job{ .work = work, .count = count };
    const int helpers = std::min(m_threads, count) - 1;
    if (helpers < 1) {
        job.takePieces();
        return;
    }
    static Team team;
    team.run(job, helpers);
}
