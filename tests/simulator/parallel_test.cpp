#include "simulator/internal/parallel.h"

#include "simulator/internal/helperteam.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <latch>
#include <semaphore>
#include <stdexcept>
#include <system_error>

using namespace Simulator;

namespace {

// A system that gives so many threads and no more.
HelperTeam::StartThread threadsUpTo(int count)
{
    return [count](const std::function<void()> &body) mutable {
        if (count-- <= 0)
            throw std::system_error(
                std::make_error_code(std::errc::resource_unavailable_try_again));
        return std::thread(body);
    };
}

} // namespace

TEST(Parallel, DoesEachPieceOnce)
{
    for (const int threads : { 1, 2, 5 }) {
        std::array<std::atomic<int>, 100> done{};
        Parallel(threads).run(100, [&](int i) { ++done[static_cast<std::size_t>(i)]; });
        for (const auto &count : done)
            EXPECT_EQ(count, 1);
    }
}

TEST(Parallel, HasNothingToDoForNoPieces)
{
    Parallel(2).run(0, [](int) { FAIL(); });
}

TEST(Parallel, MayBeUsedWithinItself)
{
    std::atomic<int> count = 0;
    const Parallel parallel(2);
    parallel.run(8, [&](int) { parallel.run(8, [&](int) { ++count; }); });
    EXPECT_EQ(count, 64);
}

TEST(Parallel, ThrowsOnWhatAPieceThrows)
{
    for (const int threads : { 1, 2, 5 }) {
        const Parallel parallel(threads);
        const auto fail = [](int) { throw std::runtime_error("a piece"); };
        EXPECT_THROW(parallel.run(100, fail), std::runtime_error) << threads;
        std::atomic<int> count = 0;
        parallel.run(100, [&](int) { ++count; });
        EXPECT_EQ(count, 100) << "the threads must be there for the next job";
    }
}

TEST(Parallel, BeginsNoPieceAfterOneThatThrew)
{
    int last = -1;
    const auto failAtFour = [&](int i) {
        last = i;
        if (i == 4)
            throw std::runtime_error("a piece");
    };
    EXPECT_THROW(Parallel(1).run(100, failAtFour), std::runtime_error);
    EXPECT_EQ(last, 4);
    HelperTeam alone(0);
    EXPECT_THROW(alone.run(100, failAtFour, 1), std::runtime_error);
    EXPECT_EQ(last, 4);
}

TEST(HelperTeam, IsWaitedForWhenTheCallersPieceThrows)
{
    HelperTeam team(1);
    const std::thread::id caller = std::this_thread::get_id();
    std::latch bothAtWork(2);
    std::binary_semaphore thrown(0);
    std::atomic<bool> helped = false;
    const auto work = [&](int) {
        bothAtWork.arrive_and_wait();
        if (std::this_thread::get_id() == caller) {
            thrown.release();
            throw std::runtime_error("the caller's piece");
        }
        thrown.acquire();
        for (int i = 0; i < 100; ++i)
            std::this_thread::yield();
        helped = true;
    };
    EXPECT_THROW(team.run(2, work, 1), std::runtime_error);
    EXPECT_TRUE(helped);
}

TEST(HelperTeam, HandsItsOwnExceptionToTheCaller)
{
    HelperTeam team(1);
    const std::thread::id caller = std::this_thread::get_id();
    std::latch bothAtWork(2);
    const auto work = [&](int) {
        bothAtWork.arrive_and_wait();
        if (std::this_thread::get_id() != caller)
            throw std::runtime_error("the helper's piece");
    };
    EXPECT_THROW(team.run(2, work, 1), std::runtime_error);
}

TEST(HelperTeam, MakesDoWithTheThreadsThatItGets)
{
    for (const int given : { 0, 1, 3 }) {
        HelperTeam team(3, threadsUpTo(given));
        EXPECT_EQ(team.size(), static_cast<std::size_t>(given));
        std::array<std::atomic<int>, 100> done{};
        team.run(
            100, [&](int i) { ++done[static_cast<std::size_t>(i)]; }, 3);
        for (const auto &count : done)
            EXPECT_EQ(count, 1);
    }
}
