// What a user waits for who opens the notes after decades: 50,000 notes and 5,000 bookmarks.
//
// Budget: from the turn of the dial to the frame that shows the screen, 300 ms; scrolling, a frame
// of a display for each step of the wheel, 16 ms. 1440 × 948 window, offscreen, software scene
// graph.

#include "support/fullcourse.h"

#include "shell/appmodel.h"
#include "shell/launch/halvorinapp.h"
#include "store/sqlitedb.h"
#include "store/userstore.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

HalvorinApp *g_app = nullptr;

void fill(const QString &path)
{
    SQLiteDB file(path);
    file.transaction([&] {
        for (int i = 0; i < 50'000; ++i) {
            file.run(u"INSERT INTO notes (target_type, target_id, body, created, updated) "
                     "VALUES ('lesson', ?, ?, ?, ?)"_s,
                { u"m%1"_s.arg(i % 82),
                    u"Meter for the shadows, and let the sky go. "_s.repeated(1 + i % 9), i, i });
        }
        for (int i = 0; i < 5'000; ++i)
            file.run(u"INSERT INTO bookmarks VALUES ('gear', ?, ?)"_s, { u"g%1"_s.arg(i), i });
    });
}

// Lets everything that is still under way come to rest: animations, delayed calls.
void settle()
{
    QEventLoop loop;
    QTimer::singleShot(350, &loop, &QEventLoop::quit);
    loop.exec();
}

template <typename Change>
double secondsToFrame(const Change &change)
{
    QEventLoop loop;
    const auto frame
        = QObject::connect(g_app->window(), &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    QElapsedTimer clock;
    clock.start();
    change();
    loop.exec();
    QObject::disconnect(frame);
    return double(clock.nsecsElapsed()) * 1e-9;
}

void BM_OpenNotes(benchmark::State &state)
{
    for (auto _ : state) {
        AppModel::shared().setScreen(Screen::Home);
        settle();
        state.SetIterationTime(secondsToFrame([] { AppModel::shared().setScreen(Screen::Notes); }));
    }
}
BENCHMARK(BM_OpenNotes)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_ScrollNotes(benchmark::State &state)
{
    AppModel::shared().setScreen(Screen::Notes);
    settle();
    const QPointF place(800, 600);
    double longest = 0;
    for (auto _ : state) {
        const double seconds = secondsToFrame([&] {
            QWheelEvent wheel(place, place, {}, { 0, -120 }, Qt::NoButton, Qt::NoModifier,
                Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(g_app->window(), &wheel);
        });
        state.SetIterationTime(seconds);
        longest = std::max(longest, seconds * 1e3);
    }
    state.counters["longest_ms"] = longest;
}
BENCHMARK(BM_ScrollNotes)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(300);

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    // Nothing of the user's is read or written.
    const QTemporaryDir home;
    const FullCourse course;
    qputenv("HV_CONTENT", course.path().toLocal8Bit());
    for (const char *name : { "HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR" })
        qputenv(name, home.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    HalvorinApp app(argc, argv);
    g_app = &app;
    fill(UserStore::shared()->url().toLocalFile());
    benchmark::RunSpecifiedBenchmarks();
}
