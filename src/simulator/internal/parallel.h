// Work shared out to the processor's cores.
#pragma once

#include <functional>

namespace Simulator {

/// Runs pieces of one job on several threads, the calling one among them. Which thread takes which
/// piece is open, so a piece must depend on nothing that another one writes. May be used by several
/// threads at once; a busy machine slows the job down and never blocks it.
class Parallel
{
public:
    /// Uses at most this many threads; 1 works on the calling thread alone.
    explicit Parallel(int threads)
        : m_threads(threads)
    { }

    /// Calls work(i) for each i from 0 to count − 1 and returns when all calls have returned.
    ///
    /// After a call that throws no other is begun; when those that were begun have returned, the
    /// first exception is thrown on.
    void run(int count, const std::function<void(int)> &work) const;

private:
    int m_threads;
};

} // namespace Simulator
