// What a user waits for first: from the start of the process to the first frame of Campus.
//
// Budget: at most 2.5 times a bare Qt Quick window with one text on the same backend in the same
// run, and never over 400 ms; at most 90 MB of resident memory above that window. The course is
// one of full size. Run on the backend of the environment; offscreen unless one is named.

#include "support/fullcourse.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <unistd.h>

namespace {

void startProcess(benchmark::State &state, const QString &program)
{
    const QTemporaryDir home;
    const FullCourse course;

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

BENCHMARK(BM_BareWindow)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(BM_Campus)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
