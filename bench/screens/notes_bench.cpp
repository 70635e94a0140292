// What a user waits for who opens the notes after decades: 50,000 notes and 5,000 bookmarks.
//
// Budget: from the turn of the dial to the frame that shows the screen, 300 ms; scrolling, a frame
// of a display for each step of the wheel, 16 ms. 1440 × 948 window, offscreen, software scene
// graph.

#include "support/realwindow.h"

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

void BM_OpenNotes(benchmark::State &state)
{
    for (auto _ : state) {
        AppModel::shared().setScreen(Screen::Home);
        settle();
        state.SetIterationTime(
            secondsToFrame(g_app->window(), [] { AppModel::shared().setScreen(Screen::Notes); }));
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
        const double seconds = secondsToFrame(g_app->window(), [&] {
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
    const BenchHome home;

    HalvorinApp app(argc, argv);
    g_app = &app;
    fill(UserStore::shared()->url().toLocalFile());
    benchmark::RunSpecifiedBenchmarks();
}
