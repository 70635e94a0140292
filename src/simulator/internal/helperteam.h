// Threads that wait for a job to help with.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace Simulator {

/// The threads beside the calling ones. They are of the standard library, and not the application's
/// pool: that one may be full of renders which wait for these.
class HelperTeam
{
public:
    /// Gives a thread that runs `body`, or throws.
    using StartThread = std::function<std::thread(const std::function<void()> &body)>;

    /// A team of so many threads; of fewer, or none, where the system gives no more. None for a
    /// negative number.
    explicit HelperTeam(int size, const StartThread &start = startThread);

    /// @pre no job runs.
    ~HelperTeam();

    HelperTeam(const HelperTeam &) = delete;
    HelperTeam &operator=(const HelperTeam &) = delete;

    [[nodiscard]] std::size_t size() const { return m_threads.size(); }

    /// As Parallel::run(), on the calling thread and on up to so many of the team that are free.
    void run(int count, const std::function<void(int)> &work, int helpers);

private:
    struct Job;

    static std::thread startThread(const std::function<void()> &body);
    void help();

    std::mutex m_guard;
    std::condition_variable m_called;
    std::condition_variable m_left;
    std::deque<Job *> m_calls; // one for each helper that a job asks for
    bool m_ended = false;
    std::vector<std::thread> m_threads;
};

} // namespace Simulator
