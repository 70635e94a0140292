#include "simulator/internal/parallel.h"

#include "simulator/internal/helperteam.h"

#include <algorithm>
#include <thread>

namespace Simulator {

void Parallel::run(int count, const std::function<void(int)> &work) const
{
    const int helpers = std::min(m_threads, count) - 1;
    if (helpers < 1) {
        for (int i = 0; i < count; ++i)
            work(i);
        return;
    }
    // One less than there are cores: the calling thread works too.
    static HelperTeam team(static_cast<int>(std::thread::hardware_concurrency()) - 1);
    team.run(count, work, helpers);
}

} // namespace Simulator
