// What a user waits for first: from the start of the process to the first frame of Campus.
//
// Budget: at most 2.5 times a bare Qt Quick window with one text on the same backend in the same
// run, and never over 400 ms; at most 90 MB of resident memory above that window. The course is
// one of full size. Run on the backend of the environment; offscreen unless one is named.
//
// The two programs are started in random order, so that a neighbor of the machine who comes and
// goes weighs on both alike: compare the medians.

#include "support/fullcourse.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <unistd.h>

#include <vector>

namespace {

void startProcess(benchmark::State &state, const QString &program)
{
    // One user for all starts, whose progress file is there from the first one on.
    static const QTemporaryDir home;
    static const FullCourse course;

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : { "HOME", "XDG_RUNTIME_DIR" })
        environment.insert(QString::fromLatin1(name), home.path());
    for (const char *name : { "XDG_DATA_HOME", "XDG_CONFIG_HOME" })
        environment.remove(QString::fromLatin1(name));
    environment.insert(QStringLiteral("HV_CONTENT"), course.path());
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM"))
        && !environment.contains(QStringLiteral("DISPLAY")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    if (!environment.contains(QStringLiteral("QT_QUICK_BACKEND")))
        environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));

    double megabytes = 0;
    for (auto _ : state) {
        QProcess process;
        process.setProcessEnvironment(environment);
        QElapsedTimer clock;
        clock.start();
        process.start(program, {});
        if (!process.waitForReadyRead(10000)) {
            state.SkipWithError("no first frame");
            return;
        }
        state.SetIterationTime(double(clock.nsecsElapsed()) * 1e-9);
        process.waitForFinished();
        megabytes = process.readAll().trimmed().toDouble() * double(::getpagesize()) / 1e6;
    }
    state.counters["resident_MB"] = megabytes;
}

void BM_BareWindow(benchmark::State &state)
{
    startProcess(state, QStringLiteral(HV_BARE_WINDOW));
}

void BM_Campus(benchmark::State &state)
{
    startProcess(state, QStringLiteral(HV_FIRST_FRAME));
}

void startRepeatedly(benchmark::internal::Benchmark *start)
{
    start->UseManualTime()->Unit(benchmark::kMillisecond);
    start->Iterations(1)->Repetitions(40)->ReportAggregatesOnly();
}

BENCHMARK(BM_BareWindow)->Apply(startRepeatedly);
BENCHMARK(BM_Campus)->Apply(startRepeatedly);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    std::vector<char *> arguments(argv, argv + argc);
    char inRandomOrder[] = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, inRandomOrder);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    benchmark::RunSpecifiedBenchmarks();
}
