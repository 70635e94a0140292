// What a user waits for first: from the start of the process to the first frame of Campus, in a
// real window.
//
// Budget, on two idle cores and with the software renderer, which a machine without a graphics
// processor gets: 250 ms, 3.5 times a bare Qt Quick window with one text in the same run, and 90 MB
// of resident memory above that window. Where GL is asked for and runs on the processor, the bare
// window alone takes most of those 250 ms, so only the ratio counts. The course is one of full
// size. Without a display a virtual one is started.
//
// All starts are made in random order, so that a neighbor of the machine who comes and goes weighs
// on all alike: compare medians of one run.

#include "support/fullcourse.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int kPatience = 10000; // ms
constexpr int kStarts = 30;      // of each program in each way to draw

using Variables = QMap<QString, QString>;

struct Program {
    const char *name;
    QString path;
    std::vector<double> milliseconds;
};

struct Comparison {
    const char *wayToDraw;
    Variables variables;
    Program bare{ "bare window", QStringLiteral(HV_BARE_WINDOW), {} };
    Program campus{ "Campus", QStringLiteral(HV_FIRST_FRAME), {} };
};

std::vector<Comparison> allComparisons()
{
    const QString backend = QStringLiteral("QSG_RHI_BACKEND");
    const QString loop = QStringLiteral("QSG_RENDER_LOOP");
    const QString gl = QStringLiteral("opengl");
    return {
        { .wayToDraw = "software",
            .variables = { { QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software") } } },
        { .wayToDraw = "GL", .variables = { { backend, gl }, { loop, QStringLiteral("basic") } } },
        { .wayToDraw = "GL threaded",
            .variables = { { backend, gl }, { loop, QStringLiteral("threaded") } } },
    };
}

// The user's display, or a virtual one of our own for as long as this lives.
class Display
{
public:
    Display()
    {
        if (!m_name.isEmpty())
            return;
        m_server.start(QStringLiteral("Xvfb"),
            { QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                QStringLiteral("0"), QStringLiteral("1920x1080x24"), QStringLiteral("-nolisten"),
                QStringLiteral("tcp"), QStringLiteral("-noreset") });
        m_server.waitForReadyRead(kPatience);
        const QString number = QString::fromLatin1(m_server.readLine()).trimmed();
        if (!number.isEmpty())
            m_name = u':' + number;
    }
    ~Display()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Display)

    /// Empty without a display.
    [[nodiscard]] QString name() const { return m_name; }

private:
    QString m_name = qEnvironmentVariable("DISPLAY");
    QProcess m_server;
};

// One user for all starts, whose progress file is there from the first one on.
class User
{
public:
    explicit User(const QString &display)
    {
        m_environment.insert(QStringLiteral("DISPLAY"), display);
        m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        for (const char *name : { "HOME", "XDG_RUNTIME_DIR" })
            m_environment.insert(QString::fromLatin1(name), m_home.path());
        for (const char *name : { "XDG_DATA_HOME", "XDG_CONFIG_HOME", "QT_QUICK_BACKEND",
                 "QSG_RHI_BACKEND", "QSG_RENDER_LOOP" })
            m_environment.remove(QString::fromLatin1(name));
        m_environment.insert(QStringLiteral("HV_CONTENT"), m_course.path());
    }

    [[nodiscard]] QProcessEnvironment environment(const Variables &variables) const
    {
        QProcessEnvironment environment = m_environment;
        for (const auto &[name, value] : variables.asKeyValueRange())
            environment.insert(name, value);
        return environment;
    }

private:
    QTemporaryDir m_home;
    FullCourse m_course;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

void start(benchmark::State &state, const QProcessEnvironment &environment, Program &program)
{
    double megabytes = 0;
    for (auto _ : state) {
        QProcess process;
        process.setProcessEnvironment(environment);
        QElapsedTimer clock;
        clock.start();
        process.start(program.path, {});
        if (!process.waitForReadyRead(kPatience)) {
            state.SkipWithError("no first frame");
            return;
        }
        const double seconds = double(clock.nsecsElapsed()) * 1e-9;
        state.SetIterationTime(seconds);
        program.milliseconds.push_back(seconds * 1e3);
        process.waitForFinished();
        megabytes = process.readAll().trimmed().toDouble() * double(::getpagesize()) / 1e6;
    }
    state.counters["resident_MB"] = megabytes;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    std::vector<char *> arguments(argv, argv + argc);
    char inRandomOrder[] = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, inRandomOrder);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());

    const Display display;
    if (display.name().isEmpty()) {
        std::fputs("There is no display, and no Xvfb to stand in for one.\n", stderr);
        return 1;
    }
    const User user(display.name());

    std::vector<Comparison> comparisons = allComparisons();
    for (Comparison &comparison : comparisons) {
        const QProcessEnvironment environment = user.environment(comparison.variables);
        for (Program *program : { &comparison.bare, &comparison.campus }) {
            const std::string name = std::string(comparison.wayToDraw) + '/' + program->name;
            const auto run = [environment, program](
                                 benchmark::State &state) { start(state, environment, *program); };
            benchmark::RegisterBenchmark(name.c_str(), run)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond)
                ->Iterations(1)
                ->Repetitions(kStarts)
                ->ReportAggregatesOnly();
        }
    }
    benchmark::RunSpecifiedBenchmarks();

    for (const Comparison &comparison : comparisons) {
        if (comparison.bare.milliseconds.empty() || comparison.campus.milliseconds.empty())
            continue;
        const double bare = median(comparison.bare.milliseconds);
        const double campus = median(comparison.campus.milliseconds);
        std::printf("%-12s Campus %.0f ms, bare window %.0f ms, %.2f times\n", comparison.wayToDraw,
            campus, bare, campus / bare);
    }
}
