// Loading the course, which a user waits for at each start before the first window shows.
//
// Budget: BM_LoadLibrary takes at most 4 times as long as BM_ReadAndDecode, which does no more than
// read the same files and decode them, and with ten courses in one at most 11 times as long as with
// one. The argument is the number of courses.
//
// A program loads once, into memory that it has yet to get from the system. So each turn starts
// with an empty heap; otherwise the buffers of BM_ReadAndDecode would never leave the cache.
#include "content/contentlibrary.h"

#include "support/fullcourse.h"

#include <QFile>

#include <benchmark/benchmark.h>

#include <memory>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

// Gives freed memory back to the system, where the C library can do that.
void emptyHeap()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

void BM_ReadAndDecode(benchmark::State &state)
{
    const FullCourse folder(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        emptyHeap();
        state.ResumeTiming();
        for (const QString &name : FullCourse::fileNames()) {
            QFile file(folder.path() + u'/' + name);
            if (!file.open(QIODevice::ReadOnly))
                state.SkipWithError("A file can't be read.");
            benchmark::DoNotOptimize(QString::fromUtf8(file.readAll()));
        }
    }
    state.counters["bytes"] = static_cast<double>(folder.size());
}
BENCHMARK(BM_ReadAndDecode)->Arg(1)->Arg(10)->Unit(benchmark::kMicrosecond);

void BM_LoadLibrary(benchmark::State &state)
{
    const FullCourse folder(static_cast<int>(state.range(0)));
    std::unique_ptr<ContentLibrary> library;
    for (auto _ : state) {
        // A program keeps its course to the end: taking it down is no part of the wait.
        state.PauseTiming();
        library.reset();
        emptyHeap();
        state.ResumeTiming();
        library = std::make_unique<ContentLibrary>(folder.path());
        if (!library->loadErrors().isEmpty())
            state.SkipWithError("The course can't be loaded.");
    }
    state.counters["bytes"] = static_cast<double>(folder.size());
}
BENCHMARK(BM_LoadLibrary)->Arg(1)->Arg(10)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
